#include "navigation/search_kinds.h"

#include <algorithm>
#include <array>
#include <string>

#include "toolkit/failure.h"

namespace tarvex {

namespace {

constexpr std::string_view ForFix = "Search for Fix";
constexpr std::string_view ForNavaid = "Search for Navaid";
constexpr std::string_view ForAirport = "Search for Airport";

using enum NavigationTable;
using enum SearchCaller;

constexpr std::array<SearchKindEntry, 7> Kinds{{
    // name, caller, table, heading, caption, tallFrame, showsFrequency, picked
    {"F", Editor, Fixes, ForFix, "Waypoint", false, false, ""},
    {"N", Editor, Navaids, ForNavaid, "Waypoint", true, true, ""},
    {"AP", Editor, Airports, ForAirport, "Waypoint", false, false, ""},
    {"A", ArcDesigner, Navaids, ForNavaid, "ARC Center", false, true, ""},
    {"CF", StartPoint, Fixes, ForFix, "Starting Point", false, false, "Fix        Start Point Selected"},
    {"CN", StartPoint, Navaids, ForNavaid, "Starting Point", true, false, "Navaid   Start Point Selected"},
    {"CAP", StartPoint, Airports, ForAirport, "Starting Point", false, false,
     "Airport   Start Point Selected"},
}};

}  // namespace

const SearchKindEntry& SearchKindNamed(std::string_view name) {
    const auto found = std::find_if(Kinds.begin(), Kinds.end(),
                                    [name](const SearchKindEntry& kind) { return kind.name == name; });
    if (found == Kinds.end()) throw Failure(BadArgument, "no search of kind \"" + std::string(name) + "\"");
    return *found;
}

const SearchKindEntry& SearchKindFor(SearchCaller caller, NavigationTable table) {
    const auto found = std::find_if(Kinds.begin(), Kinds.end(), [&](const SearchKindEntry& kind) {
        return kind.caller == caller && kind.table == table;
    });
    if (found == Kinds.end()) throw Failure(BadArgument, "no search over that table for that screen");
    return *found;
}

}  // namespace tarvex
