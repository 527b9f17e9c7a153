#include "toolkit/drive_lists.h"

#include <algorithm>
#include <utility>

#include "toolkit/failure.h"
#include "toolkit/folding.h"

namespace tarvex {

namespace {

bool FoldedLess(const std::string& a, const std::string& b) {
    const auto same = [](char x, char y) { return Folded(x) == Folded(y); };
    const auto [x, y] = std::mismatch(a.begin(), a.end(), b.begin(), b.end(), same);
    if (x == a.end() && y == b.end()) return a < b;
    if (x == a.end() || y == b.end()) return x == a.end();
    return static_cast<unsigned char>(Folded(*x)) < static_cast<unsigned char>(Folded(*y));
}

bool IsRoot(std::string_view path) {
    return path == "\\" || (path.size() == 3 && path.substr(1) == ":\\");
}

std::string Joined(const std::string& folder, const std::string& name) {
    return folder.empty() || folder.back() == '\\' ? folder + name : folder + "\\" + name;
}

// The folders above `path`, the nearest first.
std::vector<std::string> FoldersAbove(std::string path) {
    std::vector<std::string> above;
    while (!IsRoot(path)) {
        const auto cut = path.find_last_of('\\');
        if (cut == std::string::npos) break;
        path.resize(cut);
        if (path.empty() || (path.size() == 2 && path[1] == ':')) path += '\\';
        above.push_back(path);
    }
    return above;
}

// The program's current folder; where that has gone, the first drive.
std::string StartFolder(FileSystem& files) {
    try {
        return files.CurrentFolder();
    } catch (const Failure&) {
        const auto drives = files.Drives();
        return drives.empty() ? std::string() : drives.front();
    }
}

}  // namespace

std::string NameOfRoot(std::string_view root) {
    return std::string(root == "\\" ? "/" : root);
}

DriveList::DriveList(Form& form, std::string_view name, int tabIndex, FileSystem& files)
    : Control(form, name, tabIndex), drives_(files.Drives()) {
    const std::string here = StartFolder(files);
    // The longest that fits, so that a drive letter comes before a bare root.
    for (const auto& drive : drives_) {
        if (BeginsFolded(here, drive) && drive.size() > drive_.size()) drive_ = drive;
    }
    if (drive_.empty() && !drives_.empty()) drive_ = drives_.front();
}

void DriveList::SetDrive(std::string_view drive) {
    const auto found = std::find_if(drives_.begin(), drives_.end(), [drive](const std::string& known) {
        const bool lettered = known.size() > 1;
        return lettered ? BeginsFolded(drive, known.substr(0, 2)) : drive.substr(0, 1) == known;
    });
    if (found == drives_.end()) throw Failure(PathNotFound, "no drive " + std::string(drive));
    if (drive_ == *found) return;
    const std::string before = std::exchange(drive_, *found);
    Changed();
    try {
        Run(OnChange);
    } catch (const Failure&) {
        drive_ = before;
        Changed();
        throw;
    }
}

FolderList::FolderList(Form& form, std::string_view name, int tabIndex, FileSystem& files)
    : Control(form, name, tabIndex), files_(files) {
    path_ = StartFolder(files);
    above_ = FoldersAbove(path_);
    try {
        below_ = files_.Folders(path_);
    } catch (const Failure&) {
        // A current folder that can't be listed has nothing below it to choose.
    }
    std::sort(below_.begin(), below_.end(), FoldedLess);
}

void FolderList::SetPath(std::string_view path) {
    std::string target(path);
    if (target.size() == 2 && target[1] == ':') target += '\\';
    if (IsRoot(target)) {
        target = files_.FolderOfDrive(target);
    } else if (target.size() > 1 && target.back() == '\\') {
        target.pop_back();
    }
    GoTo(std::move(target));
}

void FolderList::Open(int index) {
    GoTo(List(index));
}

void FolderList::GoTo(std::string target) {
    auto below = files_.Folders(target);
    std::sort(below.begin(), below.end(), FoldedLess);
    const bool changed = path_ != target;
    path_ = std::move(target);
    above_ = FoldersAbove(path_);
    below_ = std::move(below);
    listIndex_ = OpenFolder;
    Changed();
    if (changed) Run(OnChange);
}

std::string FolderList::List(int index) const {
    RequireIndex(index >= FirstIndex() && index < ListCount());
    if (index == OpenFolder) return path_;
    if (index < OpenFolder) return above_[static_cast<std::size_t>(OpenFolder - 1 - index)];
    return Joined(path_, below_[static_cast<std::size_t>(index)]);
}

std::string FolderList::Name(int index) const {
    const std::string path = List(index);
    return IsRoot(path) ? NameOfRoot(path) : path.substr(path.find_last_of('\\') + 1);
}

void FolderList::SetListIndex(int index) {
    RequireIndex(index >= FirstIndex() && index < ListCount());
    if (listIndex_ == index) return;
    listIndex_ = index;
    Changed();
    Run(OnClick);
}

void FolderList::ShowChosen(std::string_view path) {
    chosen_ = path;
    for (int index = FirstIndex(); index < ListCount(); ++index) {
        if (EqualFolded(List(index), chosen_)) listIndex_ = index;
    }
    Changed();
}

bool FolderList::ShowsChosen() const {
    return !chosen_.empty() && EqualFolded(List(listIndex_), chosen_);
}

FileList::FileList(Form& form, std::string_view name, int tabIndex, FileSystem& files)
    : Control(form, name, tabIndex), files_(files) {}

void FileList::SetPath(std::string_view path) {
    auto names = files_.Files(std::string(path));
    std::sort(names.begin(), names.end(), FoldedLess);
    path_ = path;
    names_ = std::move(names);
    Narrow();
}

void FileList::SetPattern(std::string_view pattern) {
    pattern_ = pattern;
    Narrow();
}

void FileList::Narrow() {
    std::string_view beginning = pattern_;
    if (!beginning.empty() && beginning.back() == '*') beginning.remove_suffix(1);
    lines_.clear();
    std::copy_if(names_.begin(), names_.end(), std::back_inserter(lines_),
                 [beginning](const std::string& name) { return BeginsFolded(name, beginning); });
    listIndex_ = -1;
    Changed();
}

void FileList::SetListIndex(int index) {
    RequireIndex(index >= -1 && index < static_cast<int>(lines_.size()));
    if (listIndex_ == index) return;
    listIndex_ = index;
    Changed();
    if (listIndex_ >= 0) Run(OnClick);
}

std::string FileList::FileName() const {
    return listIndex_ < 0 ? std::string() : lines_[static_cast<std::size_t>(listIndex_)];
}

}  // namespace tarvex
