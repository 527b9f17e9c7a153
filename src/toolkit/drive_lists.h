#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "toolkit/control.h"
#include "toolkit/file_system.h"

namespace tarvex {

// What a list shows of a drive or a root: the root of a system without drives goes by that system's own name.
std::string NameOfRoot(std::string_view root);

// The drives to choose from. Starts on the drive of the program's current folder.
class DriveList : public Control {
  public:
    DriveList(Form& form, std::string_view name, int tabIndex, FileSystem& files);

    // As "C:\"; "\" is a root without drives.
    const std::vector<std::string>& Drives() const { return drives_; }
    const std::string& Drive() const { return drive_; }  // an entry of Drives(); empty without any
    // Takes "C:", "C:\" or a longer text that begins so, in any case. Runs OnChange when the drive changes.
    // PathNotFound, and no change, when it is none of Drives(); no change either when OnChange fails.
    void SetDrive(std::string_view drive);
    bool TakesFocus() const override { return true; }

    std::function<void()> OnChange;

  private:
    std::vector<std::string> drives_;
    std::string drive_;
};

// One folder with the folders above it and its sub-folders, to walk through and to choose from. Starts on the
// program's current folder. The folder itself has the list index -1, the folders above it -2 and down, its
// sub-folders, sorted by name, 0 and up.
class FolderList : public Control {
  public:
    static constexpr int OpenFolder = -1;

    FolderList(Form& form, std::string_view name, int tabIndex, FileSystem& files);

    const std::string& Path() const { return path_; }
    // Takes a folder, or a drive as "C:\", which leads to the drive's current folder. Runs OnChange when the
    // path changes. PathNotFound, and no change, for a folder that is not there.
    void SetPath(std::string_view path);

    int FirstIndex() const { return OpenFolder - static_cast<int>(above_.size()); }
    int ListCount() const { return static_cast<int>(below_.size()); }  // sub-folders
    // Walks to the folder at an index, of a root to the root itself. Otherwise as SetPath.
    void Open(int index);
    // The full path at an index from FirstIndex() to ListCount() - 1.
    std::string List(int index) const;
    // What a row shows: the name alone; of a root, the root.
    std::string Name(int index) const;
    int ListIndex() const { return listIndex_; }
    // Runs OnClick when the selection changes.
    void SetListIndex(int index);
    // The folder that counts as chosen (empty: none). Where it has a row, that is selected, without OnClick.
    void ShowChosen(std::string_view path);
    // Whether the selected row is that folder: on any other it is no choice, only where the user is.
    bool ShowsChosen() const;
    bool TakesFocus() const override { return true; }
    using Control::Name;

    std::function<void()> OnChange;
    std::function<void()> OnClick;

  private:
    void GoTo(std::string folder);

    FileSystem& files_;
    std::string path_;
    std::vector<std::string> above_;  // full paths, the nearest first
    std::vector<std::string> below_;  // names, sorted
    int listIndex_ = OpenFolder;
    std::string chosen_;
};

// The plain files of one folder, sorted by name without regard to case.
class FileList : public Control {
  public:
    FileList(Form& form, std::string_view name, int tabIndex, FileSystem& files);

    const std::string& Path() const { return path_; }
    // Reads the folder. PathNotFound, and no change, for a folder that is not there.
    void SetPath(std::string_view path);
    const std::string& Pattern() const { return pattern_; }
    // The beginning of the names to show, without regard to case, and a closing "*". All characters before
    // that one are plain. Ends the selection.
    void SetPattern(std::string_view pattern);

    // The names that the pattern lets through.
    const std::vector<std::string>& Lines() const { return lines_; }
    int ListIndex() const { return listIndex_; }  // -1: no selection
    // -1 ends the selection. Runs OnClick when another line is selected.
    void SetListIndex(int index);
    std::string FileName() const;  // the selected name, without folder; empty without a selection
    bool TakesFocus() const override { return true; }

    std::function<void()> OnClick;

  private:
    void Narrow();

    FileSystem& files_;
    std::string path_;
    std::string pattern_ = "*";
    std::vector<std::string> names_;  // all of the folder, sorted
    std::vector<std::string> lines_;
    int listIndex_ = -1;
};

}  // namespace tarvex
