#pragma once

#include <wx/colour.h>

#include "chart/palette.h"
#include "toolkit/control.h"

namespace tarvex {

// The desktop theme's colour for the background that a box has in the program. White, a box in use, is no
// colour of its own: the theme paints it.
wxColour BoxBackground(Colour colour);

// The same for the text of a label. Black, a plain label, is no colour of its own either.
wxColour LabelInk(Colour colour);

// The palette that goes with the desktop theme.
const Palette& ThemePalette();
// A palette in the theme's colour of text alone.
Palette TextPalette();

}  // namespace tarvex
