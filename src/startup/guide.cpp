#include "startup/guide.h"

#include "toolkit/failure.h"

namespace tarvex {

namespace {

constexpr const char* Title = "The guide to Tarvex";

bool IsThere(FileSystem& files, const std::string& path) try {
    return files.FindFile(path).has_value();
} catch (const Failure&) {
    return false;
}

}  // namespace

void ShowGuide(const Platform& platform, Dialogue& dialogue) {
    const std::string path = platform.programFolder + "\\guide\\guide.html";
    if (!IsThere(platform.files, path)) {
        dialogue.Ask({.prompt = "The guide is not where it belongs:\r\n" + path, .title = Title});
    } else if (!platform.browser.Open(path)) {
        dialogue.Ask({.prompt = "No browser opens the guide. It lies here:\r\n" + path, .title = Title});
    }
}

}  // namespace tarvex
