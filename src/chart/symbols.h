#pragma once

#include <vector>

#include "toolkit/drawing.h"

namespace tarvex {

// A part of a symbol as it stands in the picture: a line through its points, or a circle.
struct SymbolPart {
    enum class Fill {
        None,
        Ink,   // the symbol's own
        Page,  // so that what runs beneath does not show
    };

    std::vector<Point> points;  // of a circle its middle
    double radius = 0;          // of a circle; 0 for a line
    bool closed = false;
    Fill fill = Fill::None;
    double width = 1;  // of the line; 0 for none
};

// The parts, in the order of painting.
std::vector<SymbolPart> PartsOf(const Symbol& symbol);

}  // namespace tarvex
