#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "geometry/position.h"
#include "navigation/navigation_tables.h"

namespace tarvex {

// Characters of AirportID that are the ICAO code.
inline constexpr std::size_t AirportCodeLength = 4;

// One end of a runway.
struct RunwayEnd {
    std::int32_t index = 0;  // in AirportTable
    std::string_view name;   // "27L", without blanks
    Position position;
};

// An airport as its runway ends beside each other in AirportTable.
struct Airport {
    std::string_view code;  // ICAO, four characters
    std::vector<RunwayEnd> ends;
    std::vector<std::pair<std::size_t, std::size_t>> runways;  // both ends of each, numbers in `ends`
};

// The airport of an entry of AirportTable. Ends without a position are left out; two ends are one runway if
// their names say so: 09L and 27R. The texts are those of the table.
Airport AirportOf(const NavigationTables& tables, std::int32_t index);

// The name of the other end: "27R" for "09L"; empty if there can be none.
std::string OppositeEnd(std::string_view name);

}  // namespace tarvex
