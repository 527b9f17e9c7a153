#pragma once

#include <memory>

#include "toolkit/registry.h"

namespace tarvex {

// The registry of this machine. On Windows the system's own; elsewhere that of the user's Wine prefix, of
// which HKEY_LOCAL_MACHINE is known, to read only. A key that doesn't open is looked for among the keys of
// 32-bit programs too.
std::unique_ptr<Registry> MakeNativeRegistry();

}  // namespace tarvex
