#pragma once

#include <string>
#include <string_view>

namespace tarvex {

// Decimal degrees, as a procedure file holds them, of a position given as whole degrees and decimal minutes.
// The sign is that of the degrees; degrees of the number 0 are negative exactly if, after blanks, they begin
// with "-". At most six decimals, the point always, no zero in front of it: "33.5", "34.", "-.5". A latitude
// of zero is "0.", since a lone point is no number to a reader; a longitude of zero is ".".
std::string EditedLatitude(std::string_view degrees, std::string_view minutes);
std::string EditedLongitude(std::string_view degrees, std::string_view minutes);

// Whether `text`, a point with at most a sign in front, is zero in the form in which rows of arcs hold it,
// though it is no number by IsNumberText.
bool IsLonePoint(std::string_view text);

}  // namespace tarvex
