#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "geometry/fixed_field.h"
#include "geometry/position.h"
#include "navigation/search.h"
#include "navigation/search_variables.h"

namespace tarvex {

// One entry of the navigation tables, found to be taken somewhere.
struct SearchHit {
    NavigationTable table = NavigationTable::Fixes;
    std::int32_t SelectedRow = 0;  // index in its table
    std::string identifier;        // of a fix or navaid trimmed, of an airport entry all seven characters
    Position position;
    std::string frequency;  // of a navaid, as the table holds it
    std::string elevation;  // of an airport entry, in feet, as plain digits

    // The position in the texts of a search, by the numbers that the table's texts begin with.
    std::string LatDegreesText;  // magnitudes; the minutes are cut, not rounded
    std::string LongDegreesText;
    FixedField<9> LatMinutesText;
    FixedField<9> LongMinutesText;
    std::string LatHemisphere;   // "N" or "S"
    std::string LongHemisphere;  // "E" or "W"
};

// The entry of that index; nothing where the table holds no number for its position.
std::optional<SearchHit> HitAt(const NavigationTables& tables, NavigationTable table, std::int32_t index);

// What the shared variables keep of the entry that was chosen last.
void Remember(const SearchHit& hit, SearchVariables& variables);

// Whether a frequency, which the tables hold without its unit, is that of an NDB: above 120 it counts as KHz,
// else as MHz.
bool IsInKilohertz(std::string_view frequency);
std::string FrequencyWithUnit(std::string_view frequency);

}  // namespace tarvex
