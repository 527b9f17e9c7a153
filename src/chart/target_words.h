#pragma once

#include <optional>
#include <string>

#include "chart/position_grid.h"
#include "chart/route.h"
#include "toolkit/drawing.h"

namespace tarvex {

// What stands at a point of the chart, in a line of words in UTF-8: name, kind, frequency or elevation,
// position, and true bearing and distance from `from`, along the rhumb line; of a row also the bearing and
// distance at which it lies from the two nearest navaids:
//   "SLI, VOR 115.70 MHz, N33°47.00' W118°03.29', 245° 12.3 NM from BASET"
// Empty for nothing, and for an entry that has no position.
struct TargetOrigin {
    std::string name;
    Position position;
};
std::string TargetWords(const Target& target, const Route& route, const NavigationTables& tables,
                        const PositionGrid& grid, const std::optional<TargetOrigin>& from);

// Where bearings and distances are told from: the selected row, or the last one; nothing if that has no
// position.
std::optional<TargetOrigin> OriginOf(const Route& route, int selected);

// The position of what a target stands for; nothing if it has none.
std::optional<Position> PositionOf(const Target& target, const Route& route, const NavigationTables& tables);

}  // namespace tarvex
