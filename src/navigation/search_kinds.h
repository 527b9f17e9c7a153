#pragma once

#include <string_view>

#include "navigation/search.h"

namespace tarvex {

// Who asked for a search.
enum class SearchCaller { Editor, ArcDesigner, StartPoint };

// One kind of search.
struct SearchKindEntry {
    std::string_view name;  // as SearchKind holds it
    SearchCaller caller;
    NavigationTable table;
    std::string_view heading;
    std::string_view caption;  // of the screen
    bool tallFrame;            // with room for the frequency
    bool showsFrequency;
    std::string_view picked;  // what the derived waypoint's screen says of the start point
};

// BadArgument (5) when there is no such kind.
const SearchKindEntry& SearchKindNamed(std::string_view name);
// The same for a caller that has no search over the table.
const SearchKindEntry& SearchKindFor(SearchCaller caller, NavigationTable table);

}  // namespace tarvex
