#include <algorithm>
#include <array>
#include <string_view>
#include <windows.h>

#include "toolkit/system_error.h"

namespace tarvex {

namespace {

struct KnownError {
    DWORD error;
    int number;
    std::string_view words;
};

constexpr std::array KnownErrors{
    KnownError{ERROR_FILE_NOT_FOUND, FileNotFound, "no such file"},
    KnownError{ERROR_PATH_NOT_FOUND, PathNotFound, "no such folder"},
    KnownError{ERROR_INVALID_DRIVE, PathNotFound, "no such drive"},
    KnownError{ERROR_BAD_NETPATH, PathNotFound, "no such computer"},
    KnownError{ERROR_BAD_NET_NAME, PathNotFound, "no such shared folder"},
    KnownError{ERROR_BAD_PATHNAME, PathNotFound, "no such folder"},
    KnownError{ERROR_DIRECTORY, PathNotFound, "a file stands where a folder should be"},
    KnownError{ERROR_SHARING_VIOLATION, PermissionDenied, "in use by another program"},
    KnownError{ERROR_LOCK_VIOLATION, PermissionDenied, "in use by another program"},
    KnownError{ERROR_USER_MAPPED_FILE, PermissionDenied, "in use by another program"},
    KnownError{ERROR_ACCESS_DENIED, AccessError, "no access, or marked as read-only"},
    KnownError{ERROR_WRITE_PROTECT, AccessError, "on a read-only medium"},
    KnownError{ERROR_DISK_FULL, DiskFull, "the disk is full"},
    KnownError{ERROR_HANDLE_DISK_FULL, DiskFull, "the disk is full"},
    KnownError{ERROR_NOT_ENOUGH_QUOTA, DiskFull, "the space allowed on the disk is used up"},
    KnownError{ERROR_FILE_TOO_LARGE, DiskFull, "larger than a file may be"},
    KnownError{ERROR_INVALID_NAME, DeviceError, "not a name that a file can have"},
    KnownError{ERROR_FILENAME_EXCED_RANGE, DeviceError, "too long a name"},
    KnownError{ERROR_NOT_READY, DeviceError, "the drive is not ready"},
    KnownError{ERROR_NOT_ENOUGH_MEMORY, DeviceError, "too large for the memory"},
};

}  // namespace

Failure SystemFailure(unsigned long error, const std::string& path, bool folderFound) {
    if (!folderFound && (error == ERROR_FILE_NOT_FOUND || error == ERROR_INVALID_NAME)) {
        error = ERROR_PATH_NOT_FOUND;
    }
    const auto known = std::find_if(KnownErrors.begin(), KnownErrors.end(),
                                    [error](const KnownError& entry) { return entry.error == error; });
    if (known != KnownErrors.end()) return {known->number, path + ": " + std::string(known->words)};
    return {DeviceError, path + ": the system reports its error " + std::to_string(error)};
}

}  // namespace tarvex
