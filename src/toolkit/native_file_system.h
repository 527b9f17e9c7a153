#pragma once

#include <memory>
#include <string>

#include "toolkit/file_system.h"

namespace tarvex {

// The files of this machine. On Windows paths go to the system as they are, in the ANSI code page. Elsewhere
// they are mapped (see PathMapping) over the user's Wine prefix, and a root without drives is a drive "\".
std::unique_ptr<FileSystem> MakeNativeFileSystem();

// The folder that holds the executable, as a path of that file system, without a closing backslash unless it
// is a root. DeviceError (57) when the system doesn't tell.
std::string NativeProgramFolder();

}  // namespace tarvex
