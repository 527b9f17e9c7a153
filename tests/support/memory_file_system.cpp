#include "support/memory_file_system.h"

#include <algorithm>
#include <stdexcept>

#include "toolkit/failure.h"

namespace tarvex::testing {

std::string MemoryFileSystem::Key(std::string path) {
    std::transform(path.begin(), path.end(), path.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
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

const std::string& MemoryFileSystem::Content(const std::string& path) const {
    const auto found = files_.find(Key(path));
    if (found == files_.end()) throw std::runtime_error("no file " + path);
    return found->second.text;
}

FileText MemoryFileSystem::Read(const std::string& path) {
    RequireFolder(FolderOf(path));
    if (const auto fault = failRead_.find(Key(path)); fault != failRead_.end() && fault->second != 0) {
        throw Failure(fault->second, path + ": cannot be read");
    }
    if (folders_.contains(Key(path))) throw Failure(AccessError, path + ": is a folder");
    const auto found = files_.find(Key(path));
    if (found == files_.end()) throw Failure(FileNotFound, path + ": no such file");
    return FileText(found->second.text);
}

void MemoryFileSystem::Write(const std::string& path, std::string_view text) {
    RequireFolder(FolderOf(path));
    if (const auto fault = failWrite_.find(Key(path)); fault != failWrite_.end() && fault->second != 0) {
        throw Failure(fault->second, path + ": cannot be written");
    }
    if (folders_.contains(Key(path))) throw Failure(AccessError, path + ": is a folder");
    ++writes_;
    auto [entry, made] = files_.try_emplace(Key(path), Entry{path, {}});
    entry->second.text = text;
}

std::optional<std::string> MemoryFileSystem::FindFile(const std::string& path) {
    RequireFolder(FolderOf(path));
    const auto found = files_.find(Key(path));
    if (found == files_.end()) return std::nullopt;
    const std::string& stored = found->second.path;
    return stored.substr(stored.find_last_of('\\') + 1);
}

std::vector<std::string> MemoryFileSystem::Files(const std::string& folder) {
    RequireFolder(folder);
    std::vector<std::string> names;
    for (const auto& [key, entry] : files_) {
        if (FolderOf(key) == Key(folder))
            names.push_back(entry.path.substr(entry.path.find_last_of('\\') + 1));
    }
    return names;
}

std::vector<std::string> MemoryFileSystem::Folders(const std::string& folder) {
    RequireFolder(folder);
    std::vector<std::string> names;
    for (const auto& [key, path] : folders_) {
        if (FolderOf(key) == Key(folder)) names.push_back(path.substr(path.find_last_of('\\') + 1));
    }
    return names;
}

std::string MemoryFileSystem::FolderOfDrive(const std::string& drive) {
    RequireFolder(drive);
    return Key(currentFolder_).starts_with(Key(drive)) ? currentFolder_ : drive;
}

}  // namespace tarvex::testing
