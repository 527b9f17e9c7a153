#pragma once

#include <string>

#include "chart/palette.h"
#include "toolkit/drawing.h"

namespace tarvex {

// The drawing as an SVG file that needs nothing beside it: XML in UTF-8, of the drawing's size. `title` is a
// text in UTF-8. What XML can't hold, control characters and bytes that are no UTF-8, is replaced by U+FFFD.
std::string SvgText(const Drawing& drawing, const Palette& palette, const std::string& title);

}  // namespace tarvex
