#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "toolkit/native_file_system.h"
#include "toolkit/path_mapping.h"
#include "toolkit/system_error.h"
#include "toolkit/wine_prefix.h"

namespace tarvex {

namespace {

// Linux transfers at most this much in one call.
constexpr std::size_t LargestTransfer = 0x7ffff000;

class SystemFolders : public FolderView {
  public:
    bool Has(const std::string& path) const override {
        struct stat status {};
        return lstat(path.c_str(), &status) == 0;
    }

    std::vector<std::string> Names(const std::string& folder) const override {
        std::vector<std::string> names;
        DIR* stream = opendir(folder.c_str());
        if (stream == nullptr) return names;
        while (const dirent* entry = readdir(stream)) names.emplace_back(entry->d_name);
        closedir(stream);
        return names;
    }
};

// An open file. Not left open by a failure.
class OpenFile {
  public:
    OpenFile(int descriptor) : descriptor_(descriptor) {}
    ~OpenFile() {
        if (descriptor_ >= 0) close(descriptor_);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    int Descriptor() const { return descriptor_; }
    bool Close() { return close(std::exchange(descriptor_, -1)) == 0; }

  private:
    int descriptor_;
};

Failure LastFailure(const std::string& path, bool folderFound) {
    return SystemFailure(static_cast<unsigned long>(errno), path, folderFound);
}

// The same, with `mapped` for what stands for `path`. A folder that is a link to nowhere is not there.
Failure LastFailure(const std::string& path, const MappedPath& mapped) {
    const int error = errno;
    const std::string folder = mapped.path.substr(0, mapped.path.find_last_of('/') + 1);
    struct stat status {};
    const bool leads = folder.empty() || stat(folder.c_str(), &status) == 0;
    return SystemFailure(static_cast<unsigned long>(error), path, mapped.folderFound && leads);
}

// Repeats a call that a signal interrupted.
template <class Call>
auto Repeated(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

enum class Kind { PlainFile, Folder, Other };

Kind KindOf(mode_t mode) {
    if (S_ISREG(mode)) return Kind::PlainFile;
    return S_ISDIR(mode) ? Kind::Folder : Kind::Other;
}

Kind KindOf(const dirent& entry, int folder) {
    if (entry.d_type == DT_REG) return Kind::PlainFile;
    if (entry.d_type == DT_DIR) return Kind::Folder;
    struct stat status {};
    const bool link = entry.d_type == DT_LNK || entry.d_type == DT_UNKNOWN;
    return link && fstatat(folder, entry.d_name, &status, 0) == 0 ? KindOf(status.st_mode) : Kind::Other;
}

class PosixFileSystem : public FileSystem {
  public:
    explicit PosixFileSystem(const std::string& winePrefix) : mapping_(folders_, winePrefix) {}

    FileText Read(const std::string& path) override;
    void Write(const std::string& path, std::string_view text) override;
    std::optional<std::string> FindFile(const std::string& path) override;

    std::vector<std::string> Files(const std::string& folder) override {
        auto names = NamesOf(folder, Kind::PlainFile);
        std::erase_if(names, [](const std::string& name) { return name.starts_with('.'); });
        return names;
    }
    std::vector<std::string> Folders(const std::string& folder) override {
        return NamesOf(folder, Kind::Folder);
    }

    std::vector<std::string> Drives() override {
        auto drives = mapping_.Drives();
        drives.emplace_back("\\");
        return drives;
    }
    std::string CurrentFolder() override;
    std::string FolderOfDrive(const std::string& drive) override;

  private:
    std::vector<std::string> NamesOf(const std::string& folder, Kind kind) const;

    SystemFolders folders_;
    PathMapping mapping_;
};

// The status of an open file, which must be a plain one: a pipe or a device could wait for ever.
struct stat PlainStatus(const OpenFile& file, const std::string& path) {
    struct stat status {};
    if (fstat(file.Descriptor(), &status) != 0) {
        throw LastFailure(path, true);
    }
    const Kind kind = KindOf(status.st_mode);
    if (kind == Kind::Folder) throw SystemFailure(EISDIR, path, true);
    if (kind == Kind::Other) throw SystemFailure(ENXIO, path, true);
    return status;
}

FileText PosixFileSystem::Read(const std::string& path) {
    const auto mapped = mapping_.ToSystem(path);
    const auto fail = [&] { throw LastFailure(path, mapped); };
    OpenFile file(
        Repeated([&] { return open(mapped.path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY); }));
    if (file.Descriptor() < 0) fail();

    const auto size = static_cast<std::size_t>(PlainStatus(file, path).st_size);
    std::unique_ptr<char[]> bytes;
    try {
        bytes = std::make_unique_for_overwrite<char[]>(size);
    } catch (const std::bad_alloc&) {
        throw SystemFailure(ENOMEM, path, true);
    }
    std::size_t done = 0;
    while (done < size) {
        const auto part = Repeated([&] {
            return read(file.Descriptor(), bytes.get() + done, std::min(size - done, LargestTransfer));
        });
        if (part < 0) fail();
        if (part == 0) break;  // someone has just cut the file short
        done += static_cast<std::size_t>(part);
    }
    return {std::move(bytes), done};
}

void PosixFileSystem::Write(const std::string& path, std::string_view text) {
    const auto mapped = mapping_.ToSystem(path);
    const auto fail = [&] { throw LastFailure(path, mapped); };
    constexpr mode_t everyoneByUmask = 0666;
    OpenFile file(Repeated([&] {
        return open(mapped.path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY,
                    everyoneByUmask);
    }));
    if (file.Descriptor() < 0) {
        if (errno == EACCES && folders_.Has(mapped.path)) {
            throw Failure(AccessError, path + ": must not be written");
        }
        fail();
    }
    const auto before = PlainStatus(file, path).st_size;
    const auto size = static_cast<off_t>(text.size());

    // Room is made before the old content goes, so that a full disk leaves the file as it was.
    if (size > before) {
        const int error = posix_fallocate(file.Descriptor(), before, size - before);
        if (error == ENOSPC || error == EDQUOT || error == EFBIG) {
            if (ftruncate(file.Descriptor(), before) != 0) fail();
            throw SystemFailure(static_cast<unsigned long>(error), path, true);
        }
    }
    std::size_t done = 0;
    while (done < text.size()) {
        const auto part = Repeated([&] {
            return write(file.Descriptor(), text.data() + done,
                         std::min(text.size() - done, LargestTransfer));
        });
        if (part < 0) fail();
        done += static_cast<std::size_t>(part);
    }
    if (Repeated([&] { return ftruncate(file.Descriptor(), size); }) != 0) fail();
    if (!file.Close() && errno != EINTR) fail();
}

std::optional<std::string> PosixFileSystem::FindFile(const std::string& path) {
    const auto mapped = mapping_.ToSystem(path);
    struct stat status {};
    if (stat(mapped.path.c_str(), &status) == 0) {
        if (KindOf(status.st_mode) != Kind::PlainFile) return std::nullopt;
        return mapped.path.substr(mapped.path.find_last_of('/') + 1);
    }
    const Failure failure = LastFailure(path, mapped);
    if (failure.Number() == FileNotFound) return std::nullopt;
    throw failure;
}

std::vector<std::string> PosixFileSystem::NamesOf(const std::string& folder, Kind kind) const {
    const auto mapped = mapping_.ToSystem(folder);
    const auto fail = [&folder] { throw LastFailure(folder, false); };
    DIR* stream = opendir(mapped.path.c_str());
    if (stream == nullptr) fail();
    const std::unique_ptr<DIR, int (*)(DIR*)> closer(stream, closedir);

    std::vector<std::string> names;
    while (true) {
        errno = 0;
        const dirent* entry = readdir(stream);
        if (entry == nullptr) break;
        const std::string_view name = entry->d_name;
        if (name == "." || name == ".." || !PathMapping::CanName(name)) continue;
        if (KindOf(*entry, dirfd(stream)) == kind) names.emplace_back(name);
    }
    if (errno != 0) fail();
    return names;
}

std::string PosixFileSystem::CurrentFolder() {
    const std::unique_ptr<char, void (*)(void*)> folder(getcwd(nullptr, 0), std::free);
    if (folder == nullptr) throw LastFailure("the current folder", false);
    return PathMapping::ToProgram(folder.get());
}

std::string PosixFileSystem::FolderOfDrive(const std::string& drive) {
    if (drive == "\\") return CurrentFolder();
    struct stat status {};
    if (stat(mapping_.ToSystem(drive).path.c_str(), &status) != 0) {
        throw LastFailure(drive, false);
    }
    return drive;
}

}  // namespace

std::unique_ptr<FileSystem> MakeNativeFileSystem() {
    return std::make_unique<PosixFileSystem>(WinePrefix());
}

std::string NativeProgramFolder() {
    std::string executable(256, '\0');
    while (true) {
        const auto size = readlink("/proc/self/exe", executable.data(), executable.size());
        if (size < 0) throw LastFailure("/proc/self/exe", true);
        if (static_cast<std::size_t>(size) < executable.size()) {
            executable.resize(static_cast<std::size_t>(size));
            break;
        }
        executable.resize(executable.size() * 2);
    }
    const auto cut = executable.find_last_of('/');
    return PathMapping::ToProgram(executable.substr(0, std::max<std::size_t>(cut, 1)));
}

}  // namespace tarvex
