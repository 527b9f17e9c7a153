#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

// The bytes of a file that was read whole.
class FileText {
  public:
    FileText() = default;
    FileText(std::unique_ptr<char[]> bytes, std::size_t size) : bytes_(std::move(bytes)), size_(size) {}
    explicit FileText(std::string_view text);

    std::string_view View() const { return {bytes_.get(), size_}; }

  private:
    std::unique_ptr<char[]> bytes_;
    std::size_t size_ = 0;
};

// The files of the machine. A path is a text built with backslashes, as
// "C:\FS2000\Giostam\navdata\Sids\X.wsd"; the implementation alone knows how the system spells it. Names that
// a call returns are spelled as stored. Every call may throw Failure: FileNotFound (53) for a file,
// PathNotFound (76) for a folder on the way to it, PermissionDenied (70), AccessError (75: a folder where a
// file should be, a read-only file), DiskFull (61), DeviceError (57: anything else that the system reports).
class FileSystem {
  public:
    virtual ~FileSystem() = default;

    // A path, or a name in one, in upper case: another spelling of the same file or folder. Letters whose
    // case tells files apart stay as they are; here these are all but A to Z.
    virtual std::string UpperCase(std::string_view path) const;

    virtual FileText Read(const std::string& path) = 0;

    // Creates the file or replaces what it held. A disk without the room for it leaves the file as it was; of
    // any later failure what was written stays.
    virtual void Write(const std::string& path, std::string_view text) = 0;

    // The stored name, without folder, of the normal file that `path` leads to; nothing when there is none.
    // A missing folder is PathNotFound.
    virtual std::optional<std::string> FindFile(const std::string& path) = 0;

    // Names of the plain files of a folder, in no particular order. Leaves out what the system keeps hidden,
    // and names that no path can hold.
    virtual std::vector<std::string> Files(const std::string& folder) = 0;

    // Names of the sub-folders of a folder, in no particular order, without "." and "..".
    virtual std::vector<std::string> Folders(const std::string& folder) = 0;

    // The drives to choose from, as "C:\"; on a system whose root is above all drives also "\", behind them.
    virtual std::vector<std::string> Drives() = 0;

    // The folder of the process as a path of this file system.
    virtual std::string CurrentFolder() = 0;

    // The folder that choosing `drive` leads to: the current folder when it lies on the drive, else the root.
    // A drive that is not there is PathNotFound.
    virtual std::string FolderOfDrive(const std::string& drive) = 0;
};

}  // namespace tarvex
