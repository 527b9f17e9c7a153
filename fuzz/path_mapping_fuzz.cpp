// Sources: toolkit/path_mapping.cpp
// Any tree of names and any path: every line of the input is an entry of the tree, the last one the path.

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "target.h"
#include "toolkit/path_mapping.h"

namespace tarvex::fuzzing {
namespace {

constexpr std::string_view Prefix = "/w";
constexpr std::string_view Devices = "/w/dosdevices/";

std::vector<std::string> Parts(std::string_view path, std::string_view separators) {
    std::vector<std::string> parts;
    for (std::size_t begin = 0;
         (begin = path.find_first_not_of(separators, begin)) != std::string_view::npos;) {
        const std::size_t end = std::min(path.find_first_of(separators, begin), path.size());
        parts.emplace_back(path.substr(begin, end - begin));
        begin = end;
    }
    return parts;
}

// Folders in memory, with "." and ".." as the system has them. The current folder is "/here".
class Tree : public FolderView {
  public:
    Tree() { Add("/here"); }

    void Add(std::string_view path) {
        std::string folder = "/";
        for (const auto& part : Parts(path, "/")) {
            if (part == "." || part == ".." || part.find('\0') != std::string::npos) return;
            children_[folder].insert(part);
            folder += part + "/";
        }
    }

    bool Has(const std::string& path) const override { return Resolved(path).has_value(); }
    std::vector<std::string> Names(const std::string& folder) const override {
        std::vector<std::string> names{".", ".."};
        const auto resolved = Resolved(folder);
        const auto found = resolved ? children_.find(*resolved) : children_.end();
        if (found == children_.end()) return {};
        names.insert(names.end(), found->second.begin(), found->second.end());
        return names;
    }

  private:
    // The folder's own path with a closing slash.
    std::optional<std::string> Resolved(const std::string& path) const {
        std::vector<std::string> way{""};
        for (const auto& part : Parts(path.starts_with('/') ? path : "/here/" + path, "/")) {
            if (part == ".") continue;
            if (part == "..") {
                if (way.size() > 1) way.pop_back();
                continue;
            }
            const auto found = children_.find(way.back() + "/");
            if (found == children_.end() || !found->second.contains(part)) return std::nullopt;
            way.push_back(way.back() + "/" + part);
        }
        return way.back() + "/";
    }

    std::map<std::string, std::set<std::string>> children_;
};

std::string Folded(std::string text) {
    for (char& c : text) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
    }
    return text;
}

bool HasDrive(std::string_view path) {
    const std::string letter = Folded(std::string(path.substr(0, 1)));
    return path.size() >= 2 && path[1] == ':' && letter >= "a" && letter <= "z";
}

// The system's path is the user's, part by part, but for case: nothing can lead out of the folder that the
// user's own text doesn't name.
void CheckParts(const Tree& tree, const MappedPath& mapped, std::string_view path) {
    std::string_view below = mapped.path;
    std::string folder;
    if (HasDrive(path)) {
        folder = std::string(Devices) + Folded(std::string(path.substr(0, 2))) + "/";
        Require(tree.Has(folder) && below.starts_with(folder), "a drive is a link of the prefix", {below});
        below.remove_prefix(folder.size());
        path.remove_prefix(2);
    } else {
        const bool root = path.starts_with('\\') || path.starts_with('/');
        Require(below.starts_with('/') == root, "a path from the root stays one", {below});
        folder = root ? "/" : "";
    }
    const auto wanted = Parts(path, "\\/");
    const auto parts = Parts(below, "/");
    Require(parts.size() == wanted.size(), "no part comes in or gets lost", {mapped.path, path});
    bool folderFound = true;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        Require(Folded(parts[i]) == Folded(wanted[i]), "a part differs in case at most", {mapped.path, path});
        Require(parts[i] == wanted[i] || (tree.Has(folder + parts[i]) && !tree.Has(folder + wanted[i])),
                "another spelling is taken only if it is there and the user's isn't", {mapped.path, path});
        if (i > 0) folderFound = tree.Has(folder);
        folder += parts[i] + "/";
    }
    Require(mapped.folderFound == folderFound, "the folder is found if it is there", {mapped.path, path});
}

void CheckPath(const Tree& tree, std::string_view prefix, std::string_view path) {
    const PathMapping mapping(tree, prefix);
    const MappedPath mapped = mapping.ToSystem(path);
    if (mapped.path.empty()) {
        Require(!mapped.folderFound || path.empty(), "what has no path has no folder", {path});
        const bool noDrive =
            HasDrive(path) &&
            (prefix.empty() || !tree.Has(std::string(Devices) + Folded(std::string(path.substr(0, 2)))));
        Require(path.empty() || noDrive || path.find('\0') != std::string_view::npos,
                "only a drive that isn't there and a zero have no path", {path});
        return;
    }
    CheckParts(tree, mapped, path);
    const bool passesBack = PathMapping::CanName(mapped.path);
    if (passesBack) {
        Require(mapping.ToSystem(PathMapping::ToProgram(mapped.path)).path == mapped.path,
                "a path of the system comes back from the program", {mapped.path});
    }
}

void CheckDrives(const Tree& tree) {
    const PathMapping mapping(tree, Prefix);
    for (const auto& drive : mapping.Drives()) {
        Require(drive.size() == 3 && drive.ends_with(":\\") && mapping.ToSystem(drive).folderFound,
                "a drive in the list can be chosen", {drive});
    }
}

}  // namespace

void TryInput(std::string_view input) {
    Tree tree;
    for (std::size_t end; (end = input.find('\n')) != std::string_view::npos; input.remove_prefix(end + 1)) {
        tree.Add(input.substr(0, end));
    }
    CheckDrives(tree);
    CheckPath(tree, "", input);
    CheckPath(tree, Prefix, input);
}

}  // namespace tarvex::fuzzing
