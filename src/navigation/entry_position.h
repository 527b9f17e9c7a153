#pragma once

#include <optional>
#include <string_view>

#include "geometry/position.h"
#include "navigation/search.h"

namespace tarvex {

// The place of an entry; nothing if its coordinates, as the tables hold them, are no numbers or no point of
// the earth.
std::optional<Position> PositionOf(const NavigationEntry& entry);

}  // namespace tarvex
