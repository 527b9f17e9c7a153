#pragma once

#include <wx/iconbndl.h>

namespace tarvex {

// The program's icon in all its sizes.
wxIconBundle ProgramIcons();

}  // namespace tarvex
