#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "toolkit/file_system.h"

namespace tarvex::testing {

// A file system in memory. Paths are as the program builds them; case is kept and does not matter.
class MemoryFileSystem : public FileSystem {
  public:
    // Puts a file and the folders on the way to it.
    void Put(const std::string& path, std::string text);
    void PutFolder(const std::string& path);
    void Remove(const std::string& path);
    void RemoveFolder(const std::string& path);
    bool Has(const std::string& path) const;
    // What a file holds. A missing one fails the test with an exception.
    const std::string& Content(const std::string& path) const;

    // From now on reading, or writing, this path fails with the number; 0: no more.
    void FailRead(const std::string& path, int number) { failRead_[Key(path)] = number; }
    void FailWrite(const std::string& path, int number) { failWrite_[Key(path)] = number; }

    void SetDrives(std::vector<std::string> drives) { drives_ = std::move(drives); }
    void SetCurrentFolder(std::string folder) { currentFolder_ = std::move(folder); }

    // How often a file was written.
    int Writes() const { return writes_; }

    FileText Read(const std::string& path) override;
    void Write(const std::string& path, std::string_view text) override;
    std::optional<std::string> FindFile(const std::string& path) override;
    std::vector<std::string> Files(const std::string& folder) override;
    std::vector<std::string> Folders(const std::string& folder) override;
    std::vector<std::string> Drives() override { return drives_; }
    std::string CurrentFolder() override { return currentFolder_; }
    std::string FolderOfDrive(const std::string& drive) override;

  private:
    struct Entry {
        std::string path;  // as spelled when it was made
        std::string text;
    };

    static std::string Key(std::string path);
    static std::string FolderOf(const std::string& path);
    void RequireFolder(const std::string& folder) const;

    std::map<std::string, Entry> files_;
    std::map<std::string, std::string> folders_;  // key to spelling
    std::map<std::string, int> failRead_;
    std::map<std::string, int> failWrite_;
    std::vector<std::string> drives_{"C:\\"};
    std::string currentFolder_ = "C:\\";
    int writes_ = 0;
};

}  // namespace tarvex::testing
