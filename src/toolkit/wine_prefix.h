#pragma once

#include <string>

namespace tarvex {

// The folder of the Wine prefix that the user's Windows programs live in: WINEPREFIX, else ".wine" in the
// home folder. Empty when there is no such folder.
std::string WinePrefix();

}  // namespace tarvex
