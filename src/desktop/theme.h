#pragma once

#include <wx/colour.h>

#include "toolkit/control.h"

namespace tarvex {

// The desktop theme's colour for the background that a box has in the program. White, a box in use, is no
// colour of its own: the theme paints it.
wxColour BoxBackground(Colour colour);

}  // namespace tarvex
