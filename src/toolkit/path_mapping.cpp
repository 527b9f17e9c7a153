#include "toolkit/path_mapping.h"

#include <algorithm>

#include "toolkit/folding.h"

namespace tarvex {

namespace {

constexpr std::string_view Separators = "\\/";

bool IsLetter(char c) {
    return Folded(c) >= 'a' && Folded(c) <= 'z';
}

bool HasDriveLetter(std::string_view path) {
    return path.size() >= 2 && IsLetter(path[0]) && path[1] == ':';
}

std::vector<std::string> Parts(std::string_view path) {
    std::vector<std::string> parts;
    while (true) {
        const auto begin = path.find_first_not_of(Separators);
        if (begin == std::string_view::npos) return parts;
        path.remove_prefix(begin);
        parts.emplace_back(path.substr(0, path.find_first_of(Separators)));
        path.remove_prefix(parts.back().size());
    }
}

}  // namespace

PathMapping::PathMapping(const FolderView& view, std::string_view winePrefix) : view_(view) {
    if (!winePrefix.empty()) devices_ = std::string(winePrefix) + "/dosdevices/";
}

std::string PathMapping::Stored(const std::string& folder, const std::string& part, bool& found) const {
    found = true;
    if (view_.Has(folder + part)) return part;
    std::string stored;
    for (auto& name : view_.Names(folder.empty() ? "." : folder)) {
        if (EqualFolded(name, part) && (stored.empty() || name < stored)) stored = std::move(name);
    }
    // A folder may be open to those who know what is in it, as the one that holds the users' own.
    if (stored.empty() && view_.Has(folder + Folded(part))) stored = Folded(part);
    found = !stored.empty();
    return found ? stored : part;
}

MappedPath PathMapping::ToSystem(std::string_view path) const {
    if (path.find('\0') != std::string_view::npos) return {"", false};
    std::string mapped;
    if (HasDriveLetter(path)) {
        const std::string drive{Folded(path[0]), ':'};
        if (devices_.empty() || !view_.Has(devices_ + drive)) return {"", false};
        mapped = devices_ + drive + "/";
        path.remove_prefix(2);
    } else if (!path.empty() && Separators.find(path[0]) != std::string_view::npos) {
        mapped = "/";
    }

    bool found = true;
    bool folderFound = true;
    const auto parts = Parts(path);
    for (std::size_t i = 0; i < parts.size(); ++i) {
        folderFound = found;
        mapped += found ? Stored(mapped, parts[i], found) : parts[i];
        if (i + 1 < parts.size()) mapped += '/';
    }
    // A closing separator says that a folder is meant; the system is told so.
    if (!parts.empty() && Separators.find(path.back()) != std::string_view::npos) mapped += '/';
    return {mapped, folderFound};
}

std::string PathMapping::ToProgram(std::string_view systemPath) {
    std::string path(systemPath);
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

bool PathMapping::CanName(std::string_view entry) {
    return entry.find('\\') == std::string_view::npos;
}

std::vector<std::string> PathMapping::Drives() const {
    std::vector<std::string> drives;
    if (devices_.empty()) return drives;
    for (const auto& name : view_.Names(devices_)) {
        // Beside the drives stand links to devices, as "c::".
        if (name.size() == 2 && HasDriveLetter(name) && name[0] == Folded(name[0])) {
            drives.push_back(Capitals(name) + "\\");
        }
    }
    std::sort(drives.begin(), drives.end());
    return drives;
}

}  // namespace tarvex
