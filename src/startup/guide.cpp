#include "startup/guide.h"

#include <algorithm>

#include "toolkit/failure.h"

namespace tarvex {

namespace {

constexpr const char* Title = "The guide to Tarvex";

bool IsThere(FileSystem& files, const std::string& path) try {
    return files.FindFile(path).has_value();
} catch (const Failure&) {
    return false;
}

// As the system writes it, for the user to copy.
std::string ForUser(std::string path) {
    const bool rooted = path.starts_with('\\') && !path.starts_with("\\\\");
    if (rooted) std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

}  // namespace

void ShowGuide(const Platform& platform, Dialogue& dialogue) {
    const std::string path = platform.programFolder + "\\guide\\guide.html";
    if (!IsThere(platform.files, path)) {
        dialogue.Ask({.prompt = "The guide is not where it belongs:\r\n" + ForUser(path), .title = Title});
    } else if (!platform.browser.Open(path)) {
        dialogue.Ask(
            {.prompt = "No browser opens the guide. It lies here:\r\n" + ForUser(path), .title = Title});
    }
}

}  // namespace tarvex
