#pragma once

#include <string>
#include <vector>

#include "toolkit/failure.h"
#include "toolkit/file_system.h"

namespace tarvex::testing {

// A file system whose n-th operation fails. Before the fault and after it, everything goes to the one behind
// it.
class FaultyFileSystem : public FileSystem {
  public:
    enum class Operation { Read, Write, FindFile, Files, Folders, FolderOfDrive };

    struct Done {
        Operation operation;
        std::string path;
        std::size_t index;  // from 0
    };

    // In place of an error number: a read gives the first half of the file and no error.
    static constexpr int ShortRead = -1;
    // In place of the number of an operation: none of them fails.
    static constexpr std::size_t Never = static_cast<std::size_t>(-1);

    explicit FaultyFileSystem(FileSystem& files) : files_(files) {}

    // Operation `n`, counted from 0 from now on, fails with the number. A write that fails with DiskFull or
    // DeviceError leaves the first half of the text in the file.
    void FailAt(std::size_t n, int number) {
        done_.clear();
        faultAt_ = n;
        number_ = number;
    }
    // Nothing fails from now on.
    void NoFault() { FailAt(Never, 0); }
    // The operations since FailAt, or since the beginning.
    const std::vector<Done>& Operations() const { return done_; }

    // The one of them that failed; null when none did.
    const Done* Failed() const { return faultAt_ < done_.size() ? &done_[faultAt_] : nullptr; }

    FileText Read(const std::string& path) override {
        if (!Faulty(Operation::Read, path)) return files_.Read(path);
        if (number_ != ShortRead) Fail(path);
        const FileText whole = files_.Read(path);
        return FileText(whole.View().substr(0, whole.View().size() / 2));
    }
    void Write(const std::string& path, std::string_view text) override {
        if (!Faulty(Operation::Write, path) || number_ == ShortRead) return files_.Write(path, text);
        if (number_ == DiskFull || number_ == DeviceError)
            files_.Write(path, text.substr(0, text.size() / 2));
        Fail(path);
    }
    std::optional<std::string> FindFile(const std::string& path) override {
        FailIfDue(Operation::FindFile, path);
        return files_.FindFile(path);
    }
    std::vector<std::string> Files(const std::string& folder) override {
        FailIfDue(Operation::Files, folder);
        return files_.Files(folder);
    }
    std::vector<std::string> Folders(const std::string& folder) override {
        FailIfDue(Operation::Folders, folder);
        return files_.Folders(folder);
    }
    std::vector<std::string> Drives() override { return files_.Drives(); }
    std::string CurrentFolder() override { return files_.CurrentFolder(); }
    std::string FolderOfDrive(const std::string& drive) override {
        FailIfDue(Operation::FolderOfDrive, drive);
        return files_.FolderOfDrive(drive);
    }

  private:
    bool Faulty(Operation operation, const std::string& path) {
        done_.push_back({operation, path, done_.size()});
        return done_.size() - 1 == faultAt_;
    }
    [[noreturn]] void Fail(const std::string& path) const { throw Failure(number_, path + ": made to fail"); }
    void FailIfDue(Operation operation, const std::string& path) {
        if (Faulty(operation, path) && number_ != ShortRead) Fail(path);
    }

    FileSystem& files_;
    std::size_t faultAt_ = Never;
    int number_ = 0;
    std::vector<Done> done_;
};

}  // namespace tarvex::testing
