#pragma once

#include "toolkit/dialogue.h"
#include "toolkit/platform.h"

namespace tarvex {

// Opens the guide that lies beside the program; where that can't be done, says where it lies, or that it is
// not there.
void ShowGuide(const Platform& platform, Dialogue& dialogue);

}  // namespace tarvex
