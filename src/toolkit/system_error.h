#pragma once

#include <string>

#include "toolkit/failure.h"

namespace tarvex {

// The failure that an error of the system stands for. `error` is an errno value, on Windows a system error
// code. `path` names the file or folder in the reason; `folderFound` tells whether the folder on the way to
// it is there, which is the difference between FileNotFound and PathNotFound.
Failure SystemFailure(unsigned long error, const std::string& path, bool folderFound);

}  // namespace tarvex
