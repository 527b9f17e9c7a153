#include "support/memory_file_system.h"

#include <stdexcept>

#include "toolkit/failure.h"

namespace tarvex::testing {

std::string MemoryFileSystem::Key(std::string path) {
    for (char& c : path) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
    while (path.size() > 1 && path.back() == '\\') path.pop_back();
    return path;
}

std::string MemoryFileSystem::FolderOf(const std::string& path) {
    const auto cut = path.find_last_of('\\');
    return cut == std::string::npos ? std::string() : path.substr(0, cut);
}

void MemoryFileSystem::RequireFolder(const std::string& folder) const {
    if (!folders_.contains(Key(folder))) throw Failure(PathNotFound, folder + ": no such folder");
}

void MemoryFileSystem::Put(const std::string& path, std::string text) {
    PutFolder(FolderOf(path));
    files_[Key(path)] = {path, std::move(text)};
}

void MemoryFileSystem::PutFolder(const std::string& path) {
    for (std::string folder = path; !folder.empty(); folder = FolderOf(folder)) {
        if (folder.back() == '\\') folder.pop_back();
        folders_.try_emplace(Key(folder), folder);
    }
}

void MemoryFileSystem::Remove(const std::string& path) {
    files_.erase(Key(path));
}

void MemoryFileSystem::RemoveFolder(const std::string& path) {
    const std::string key = Key(path);
    std::erase_if(folders_, [&key](const auto& folder) {
        return folder.first == key || folder.first.starts_with(key + "\\");
    });
    std::erase_if(files_, [&key](const auto& file) { return file.first.starts_with(key + "\\"); });
}

bool MemoryFileSystem::Has(const std::string& path) const {
    return files_.contains(Key(path));
}

std::map<std::string, std::string> MemoryFileSystem::Contents() const {
    std::map<std::string, std::string> contents;
    for (const auto& [key, entry] : files_) contents[key] = entry.text;
    return contents;
}

const std::string& MemoryFileSystem::Content(const std::string& path) const {
    const auto found = files_.find(Key(path));
    if (found == files_.end()) throw std::runtime_error("no file " + path);
    return found->second.text;
}

int MemoryFileSystem::Begin(Operation operation, const std::string& path) {
    const bool due = done_.size() == faultAt_;
    const auto standing = failing_.find({operation, Key(path)});
    const int number = due ? faultNumber_ : standing == failing_.end() ? 0 : standing->second;
    const bool halfWritten =
        due && operation == Operation::Write && (number == DiskFull || number == DeviceError);
    done_.push_back({operation, path, number > 0});
    if (number == 0 || number == ShortRead || halfWritten) return number;
    throw Failure(number, path + (operation == Operation::Write  ? ": cannot be written"
                                  : operation == Operation::Read ? ": cannot be read"
                                                                 : ": cannot be looked into"));
}

FileText MemoryFileSystem::Read(const std::string& path) {
    const int fault = Begin(Operation::Read, path);
    RequireFolder(FolderOf(path));
    if (folders_.contains(Key(path))) throw Failure(AccessError, path + ": is a folder");
    const auto found = files_.find(Key(path));
    if (found == files_.end()) throw Failure(FileNotFound, path + ": no such file");
    const std::string_view text = found->second.text;
    return FileText(fault == ShortRead ? text.substr(0, text.size() / 2) : text);
}

void MemoryFileSystem::Write(const std::string& path, std::string_view text) {
    const int fault = Begin(Operation::Write, path);
    RequireFolder(FolderOf(path));
    if (folders_.contains(Key(path))) throw Failure(AccessError, path + ": is a folder");
    auto [entry, made] = files_.try_emplace(Key(path), Entry{path, {}});
    entry->second.text = fault > 0 ? text.substr(0, text.size() / 2) : text;
    if (fault > 0) throw Failure(fault, path + ": cannot be written");
    ++writes_;
}

std::optional<std::string> MemoryFileSystem::FindFile(const std::string& path) {
    Begin(Operation::FindFile, path);
    RequireFolder(FolderOf(path));
    const auto found = files_.find(Key(path));
    if (found == files_.end()) return std::nullopt;
    const std::string& stored = found->second.path;
    return stored.substr(stored.find_last_of('\\') + 1);
}

std::vector<std::string> MemoryFileSystem::Files(const std::string& folder) {
    Begin(Operation::Files, folder);
    RequireFolder(folder);
    std::vector<std::string> names;
    for (const auto& [key, entry] : files_) {
        if (FolderOf(key) == Key(folder))
            names.insert(names.begin(), entry.path.substr(entry.path.find_last_of('\\') + 1));
    }
    return names;
}

std::vector<std::string> MemoryFileSystem::Folders(const std::string& folder) {
    Begin(Operation::Folders, folder);
    RequireFolder(folder);
    std::vector<std::string> names;
    for (const auto& [key, path] : folders_) {
        if (FolderOf(key) == Key(folder)) {
            names.insert(names.begin(), path.substr(path.find_last_of('\\') + 1));
        }
    }
    return names;
}

std::string MemoryFileSystem::FolderOfDrive(const std::string& drive) {
    Begin(Operation::FolderOfDrive, drive);
    RequireFolder(drive);
    return Key(currentFolder_).starts_with(Key(drive)) ? currentFolder_ : drive;
}

}  // namespace tarvex::testing
