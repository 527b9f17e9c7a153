#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>
#include <system_error>

#include "toolkit/system_error.h"

namespace tarvex {

namespace {

struct KnownError {
    int error;
    int number;
    std::string_view words;
};

constexpr std::array KnownErrors{
    KnownError{ENOENT, FileNotFound, "no such file"},
    KnownError{ENOTDIR, PathNotFound, "a file stands where a folder should be"},
    KnownError{ELOOP, PathNotFound, "its links lead in a circle"},
    KnownError{EACCES, PermissionDenied, "no permission"},
    KnownError{EPERM, PermissionDenied, "no permission"},
    KnownError{EBUSY, PermissionDenied, "in use by another program"},
    KnownError{ETXTBSY, PermissionDenied, "in use by another program"},
    KnownError{EISDIR, AccessError, "a folder stands where a file should be"},
    KnownError{EROFS, AccessError, "on a read-only medium"},
    KnownError{ENXIO, AccessError, "no plain file"},
    KnownError{ENOSPC, DiskFull, "the disk is full"},
    KnownError{EDQUOT, DiskFull, "the space allowed on the disk is used up"},
    KnownError{EFBIG, DiskFull, "larger than a file may be"},
    KnownError{ENOMEM, DeviceError, "too large for the memory"},
};

}  // namespace

Failure SystemFailure(unsigned long error, const std::string& path, bool folderFound) {
    if (error == ENOENT && !folderFound) return {PathNotFound, path + ": no such folder"};
    const auto known = std::find_if(KnownErrors.begin(), KnownErrors.end(), [error](const KnownError& entry) {
        return static_cast<unsigned long>(entry.error) == error;
    });
    if (known != KnownErrors.end()) return {known->number, path + ": " + std::string(known->words)};
    return {DeviceError, path + ": " + std::generic_category().message(static_cast<int>(error))};
}

}  // namespace tarvex
