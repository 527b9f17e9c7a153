#include <algorithm>
#include <new>
#include <windows.h>

#include "toolkit/code_page_windows.h"
#include "toolkit/native_file_system.h"
#include "toolkit/system_error.h"

namespace tarvex {

namespace {

constexpr std::size_t LargestTransfer = 0x40000000;

// A handle of the system, closed by the function that belongs to it.
template <BOOL(WINAPI* Closer)(HANDLE)>
class OwnedHandle {
  public:
    explicit OwnedHandle(HANDLE handle) : handle_(handle) {}
    ~OwnedHandle() {
        if (Good()) Closer(handle_);
    }
    OwnedHandle(const OwnedHandle&) = delete;
    OwnedHandle& operator=(const OwnedHandle&) = delete;

    bool Good() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return handle_; }

  private:
    HANDLE handle_;
};
using OpenFile = OwnedHandle<CloseHandle>;
using OpenSearch = OwnedHandle<FindClose>;

bool IsFolder(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// Everything before the name, with its closing separator; empty for a bare name.
std::string FolderPart(const std::string& path) {
    const auto cut = path.find_last_of("\\/:");
    return cut == std::string::npos ? std::string() : path.substr(0, cut + 1);
}

bool FolderFound(const std::string& path) {
    const std::string folder = FolderPart(path);
    return folder.empty() || IsFolder(folder);
}

[[noreturn]] void Fail(const std::string& path) {
    const DWORD error = GetLastError();
    if (error == ERROR_ACCESS_DENIED && IsFolder(path)) {
        throw Failure(AccessError, path + ": a folder stands where a file should be");
    }
    throw SystemFailure(error, path, FolderFound(path));
}

// A text with a zero in it would reach the system as another, shorter path.
void RequireWhole(const std::string& path) {
    if (path.find('\0') != std::string::npos) throw SystemFailure(ERROR_PATH_NOT_FOUND, path, false);
}

// The open file's size. It must be a plain file: a device could wait for ever.
std::size_t PlainSize(const OpenFile& file, const std::string& path) {
    if (GetFileType(file.Get()) != FILE_TYPE_DISK) throw Failure(AccessError, path + ": no plain file");
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file.Get(), &size)) Fail(path);
    return static_cast<std::size_t>(size.QuadPart);
}

void CutAt(const OpenFile& file, std::size_t size, const std::string& path) {
    LARGE_INTEGER end{};
    end.QuadPart = static_cast<LONGLONG>(size);
    if (!SetFilePointerEx(file.Get(), end, nullptr, FILE_BEGIN) || !SetEndOfFile(file.Get())) Fail(path);
}

class WindowsFileSystem : public FileSystem {
  public:
    std::string UpperCase(std::string_view path) const override { return UpperInCodePage(path, CP_ACP); }
    FileText Read(const std::string& path) override;
    void Write(const std::string& path, std::string_view text) override;
    std::optional<std::string> FindFile(const std::string& path) override;
    std::vector<std::string> Files(const std::string& folder) override {
        return Names(folder, false, FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    }
    std::vector<std::string> Folders(const std::string& folder) override {
        return Names(folder, true, FILE_ATTRIBUTE_SYSTEM);
    }
    std::vector<std::string> Drives() override;
    std::string CurrentFolder() override;
    std::string FolderOfDrive(const std::string& drive) override;

  private:
    // The names of a folder's sub-folders, or of its files, but those with one of the unwanted attributes.
    static std::vector<std::string> Names(const std::string& folder, bool folders, DWORD unwanted);
};

FileText WindowsFileSystem::Read(const std::string& path) {
    RequireWhole(path);
    const OpenFile file(CreateFileA(path.c_str(), GENERIC_READ,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!file.Good()) Fail(path);
    const std::size_t size = PlainSize(file, path);
    std::unique_ptr<char[]> bytes;
    try {
        bytes = std::make_unique_for_overwrite<char[]>(size);
    } catch (const std::bad_alloc&) {
        throw SystemFailure(ERROR_NOT_ENOUGH_MEMORY, path, true);
    }
    std::size_t done = 0;
    while (done < size) {
        DWORD part = 0;
        const auto wanted = static_cast<DWORD>(std::min(size - done, LargestTransfer));
        if (!ReadFile(file.Get(), bytes.get() + done, wanted, &part, nullptr)) Fail(path);
        if (part == 0) break;  // someone has just cut the file short
        done += part;
    }
    return {std::move(bytes), done};
}

void WindowsFileSystem::Write(const std::string& path, std::string_view text) {
    RequireWhole(path);
    const OpenFile file(CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.Good()) Fail(path);
    // Room is made before the old content goes, so that a full disk leaves the file as it was.
    if (PlainSize(file, path) < text.size()) CutAt(file, text.size(), path);
    if (!SetFilePointerEx(file.Get(), LARGE_INTEGER{}, nullptr, FILE_BEGIN)) Fail(path);
    std::size_t done = 0;
    while (done < text.size()) {
        DWORD part = 0;
        const auto wanted = static_cast<DWORD>(std::min(text.size() - done, LargestTransfer));
        if (!WriteFile(file.Get(), text.data() + done, wanted, &part, nullptr)) Fail(path);
        done += part;
    }
    CutAt(file, text.size(), path);
}

std::optional<std::string> WindowsFileSystem::FindFile(const std::string& path) {
    RequireWhole(path);
    if (!FolderFound(path)) throw SystemFailure(ERROR_PATH_NOT_FOUND, path, false);
    // The search would take these as wildcards, which no name can hold.
    if (path.find_first_of("*?<>\"", FolderPart(path).size()) != std::string::npos) return std::nullopt;
    WIN32_FIND_DATAA entry{};
    const OpenSearch search(FindFirstFileA(path.c_str(), &entry));
    if (search.Good()) {
        if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return std::nullopt;
        return entry.cFileName;
    }
    const DWORD error = GetLastError();
    if (error == ERROR_FILE_NOT_FOUND || error == ERROR_NO_MORE_FILES || error == ERROR_INVALID_NAME) {
        return std::nullopt;
    }
    throw SystemFailure(error, path, true);
}

std::vector<std::string> WindowsFileSystem::Names(const std::string& folder, bool folders, DWORD unwanted) {
    RequireWhole(folder);
    if (!IsFolder(folder)) throw SystemFailure(ERROR_PATH_NOT_FOUND, folder, false);
    std::string pattern = folder;
    if (FolderPart(pattern).size() != pattern.size()) pattern += '\\';
    pattern += '*';

    std::vector<std::string> names;
    WIN32_FIND_DATAA entry{};
    const OpenSearch search(FindFirstFileA(pattern.c_str(), &entry));
    if (!search.Good()) {
        // The root of an empty drive holds not even "." and "..".
        if (GetLastError() == ERROR_FILE_NOT_FOUND) return names;
        throw SystemFailure(GetLastError(), folder, false);
    }
    do {
        const std::string_view name = entry.cFileName;
        const bool isFolder = (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        if (isFolder != folders || (entry.dwFileAttributes & unwanted) != 0) continue;
        if (name != "." && name != "..") names.emplace_back(name);
    } while (FindNextFileA(search.Get(), &entry));
    if (GetLastError() != ERROR_NO_MORE_FILES) throw SystemFailure(GetLastError(), folder, true);
    return names;
}

std::vector<std::string> WindowsFileSystem::Drives() {
    std::vector<std::string> drives;
    const DWORD present = GetLogicalDrives();
    for (int i = 0; i < 26; ++i) {
        if ((present >> i & 1) != 0) drives.push_back(std::string{static_cast<char>('A' + i)} + ":\\");
    }
    return drives;
}

// What one of the system's calls writes into a buffer; empty when it fails. The call takes a size and a
// buffer and gives the length written or, when the buffer is too small, at least its size.
template <class Call>
std::string Filled(Call call) {
    std::string text(MAX_PATH, '\0');
    while (true) {
        const DWORD length = call(static_cast<DWORD>(text.size()), text.data());
        if (length < text.size()) {
            text.resize(length);
            return text;
        }
        text.resize(text.size() * 2);
    }
}

std::string WindowsFileSystem::CurrentFolder() {
    std::string folder = Filled(GetCurrentDirectoryA);
    if (folder.empty()) throw SystemFailure(GetLastError(), "the current folder", false);
    return folder;
}

std::string WindowsFileSystem::FolderOfDrive(const std::string& drive) {
    RequireWhole(drive);
    // The system keeps a current folder for each drive, which a path without a root starts from.
    const std::string here = drive.substr(0, 2) + ".";
    std::string folder = Filled(
        [&here](DWORD size, char* buffer) { return GetFullPathNameA(here.c_str(), size, buffer, nullptr); });
    if (IsFolder(folder)) return folder;
    if (!IsFolder(drive)) throw SystemFailure(ERROR_INVALID_DRIVE, drive, false);
    return drive;
}

}  // namespace

std::unique_ptr<FileSystem> MakeNativeFileSystem() {
    // No box of the system's own about a drive without a disk.
    SetErrorMode(SEM_FAILCRITICALERRORS);
    return std::make_unique<WindowsFileSystem>();
}

std::string NativeProgramFolder() {
    const std::string executable =
        Filled([](DWORD size, char* buffer) { return GetModuleFileNameA(nullptr, buffer, size); });
    if (executable.empty()) throw SystemFailure(GetLastError(), "the program's own folder", true);
    std::string folder = executable.substr(0, executable.find_last_of('\\'));
    if (folder.size() == 2) folder += '\\';
    return folder;
}

}  // namespace tarvex
