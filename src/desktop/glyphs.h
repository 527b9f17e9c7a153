#pragma once

#include <wx/bmpbndl.h>

#include "toolkit/drawing.h"

namespace tarvex {

// The symbol as an image of `size` by `size`, in the theme's colour of text, sharp at any scale.
wxBitmapBundle GlyphImage(Glyph glyph, int size);

}  // namespace tarvex
