#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "navigation/navigation_tables.h"

namespace tarvex {

enum class NavigationTable { Fixes, Navaids, Airports };

// Table indexes of all entries that are called `text`, in table order. A fix or navaid is called what its
// identifier holds between the blanks at its ends, an airport what the first four characters of its
// identifier are. Whole texts compare, case-sensitively, so a text with a blank at an end finds no fix or
// navaid.
std::vector<std::int32_t> FindEntries(const NavigationTables& tables, NavigationTable table,
                                      std::string_view text);

// What the entries of all tables have in common, as the table holds it, blanks included.
struct NavigationEntry {
    std::string_view identifier;
    std::string_view latitude;
    std::string_view longitude;
};

NavigationEntry EntryAt(const NavigationTables& tables, NavigationTable table, std::int32_t index);

}  // namespace tarvex
