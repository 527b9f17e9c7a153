#pragma once

#include <map>
#include <string>
#include <vector>

#include "toolkit/file_system.h"

namespace tarvex::testing {

// A file system in memory. Paths are as the program builds them; case is kept and does not matter. Names come
// last first, since no list may rely on their order.
class MemoryFileSystem : public FileSystem {
  public:
    // Puts a file and the folders on the way to it.
    void Put(const std::string& path, std::string text);
    void PutFolder(const std::string& path);
    void Remove(const std::string& path);
    void RemoveFolder(const std::string& path);
    bool Has(const std::string& path) const;
    // All files, by their paths in lower case.
    std::map<std::string, std::string> Contents() const;
    // What a file holds. A missing one fails the test with an exception.
    const std::string& Content(const std::string& path) const;

    enum class Operation { Read, Write, FindFile, Files, Folders, FolderOfDrive };
    struct Done {
        Operation operation;
        std::string path;
        bool failed = false;
    };
    // In place of an error number: a read gives the first half of the file and no error.
    static constexpr int ShortRead = -1;
    static constexpr std::size_t Never = static_cast<std::size_t>(-1);

    // From now on reading, or writing, this path fails with the number; 0: no more.
    void FailRead(const std::string& path, int number) { failing_[{Operation::Read, Key(path)}] = number; }
    void FailWrite(const std::string& path, int number) { failing_[{Operation::Write, Key(path)}] = number; }
    // Operation `n`, counted from 0 from now on, fails with the number. A write that fails so with DiskFull
    // or DeviceError leaves the first half of the text in the file.
    void FailAt(std::size_t n, int number) {
        done_.clear();
        faultAt_ = n;
        faultNumber_ = number;
    }
    // The operations since FailAt, or since they were last forgotten.
    const std::vector<Done>& Operations() const { return done_; }
    void ForgetOperations() { done_.clear(); }
    // Whether the operation that FailAt told has come.
    bool FaultMet() const { return done_.size() > faultAt_; }

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
    // Notes the operation and fails it where it is to fail. The number of a fault that the operation has to
    // carry out itself; 0 without one.
    int Begin(Operation operation, const std::string& path);

    std::map<std::string, Entry> files_;
    std::map<std::string, std::string> folders_;  // key to spelling
    std::map<std::pair<Operation, std::string>, int> failing_;
    std::size_t faultAt_ = Never;
    int faultNumber_ = 0;
    std::vector<Done> done_;
    std::vector<std::string> drives_{"C:\\"};
    std::string currentFolder_ = "C:\\";
    int writes_ = 0;
};

}  // namespace tarvex::testing
