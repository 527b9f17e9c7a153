#pragma once

#include <string>

#include "chart/route.h"
#include "toolkit/drawing.h"

namespace tarvex {

inline constexpr Size SheetPlanSize{800, 560};
inline constexpr Size SheetProfileSize{800, 220};

// What goes onto a sheet. Texts are in UTF-8.
struct SheetContent {
    std::string title;
    Drawing plan;     // of SheetPlanSize
    Drawing profile;  // of SheetProfileSize
    const Route& route;
};

// A procedure on one sheet: title, chart, profile, legs, and that it's not for navigation.
Drawing SheetDrawing(const SheetContent& content);

}  // namespace tarvex
