#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tarvex {

// A procedure file is a stream of comma-separated items. The first item of what follows decides what it is: a
// comment begins with ";", the end mark with "E", and what is empty or begins below "!" is nothing. Anything
// else opens a waypoint record of twelve items.
inline constexpr char CommentMark = ';';
inline constexpr char EndMark = 'E';
inline constexpr char FirstMark = '!';
inline constexpr std::string_view WaypointMark = "W";
inline constexpr std::string_view EndLine = "End of Terminal Procedure";

// The items of a waypoint record in their order.
enum WaypointColumn : std::size_t {
    MarkColumn,
    NameColumn,
    UnusedColumn,  // empty; read and dropped
    TypeColumn,
    LatitudeColumn,   // decimal degrees, north positive
    LongitudeColumn,  // decimal degrees, east positive
    FrequencyColumn,
    AirspeedColumn,
    FirstAltitudeColumn,   // "0", or the lower altitude of a band
    SecondAltitudeColumn,  // the single altitude, or the upper altitude of a band
    RestrictionColumn,
    ClosingColumn,  // must be empty: it shows a record that lost a comma or has one too many
    WaypointColumns,
};

using WaypointItems = std::array<std::string, WaypointColumns>;

}  // namespace tarvex
