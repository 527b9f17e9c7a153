#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "procedure/procedure_format.h"
#include "procedure/waypoint_record.h"

namespace tarvex {

// The line of a row exactly as the row holds it, without trailing blanks.
WaypointItems ItemsAsHeld(const WaypointRecord& row);

// The decimals of a row's position as a save writes them: those that the row holds, or, of an edited one,
// computed from its degrees and minutes. Overflow (6) for edited ones past the range of a double.
struct SavedCoordinates {
    std::string latitude;
    std::string longitude;
};
SavedCoordinates CoordinatesForSave(const WaypointRecord& row);

// The line of a row for the user's save: the type as a number, the position by CoordinatesForSave, two
// altitudes lower first. NotANumber (13) for a WaypointType that is no number.
WaypointItems ItemsForSave(const WaypointRecord& row);

// An item that would not come back from the file as it is, because it holds a comma or a line end or begins
// with a quote.
struct UnstorableItem {
    std::size_t row;
    WaypointColumn column;
};
std::optional<UnstorableItem> FindUnstorableItem(std::span<const WaypointItems> lines);

// A whole procedure file. `comment` is its first line.
std::string ProcedureText(std::string_view comment, std::span<const WaypointItems> lines);

// The first line. Nothing may follow the version: readers tell older files by its last character.
std::string CommentOfRewrite(std::string_view version);
std::string CommentOfSave(std::string_view date, std::string_view version);

}  // namespace tarvex
