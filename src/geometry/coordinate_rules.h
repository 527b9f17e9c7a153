#pragma once

#include <string_view>

namespace tarvex {

inline constexpr std::string_view EnterOnlyNumbers = "Enter only numbers please.";

// What is wrong with a text that has to be a number, in the screen's words; empty when it is accepted, as the
// empty text is.
std::string_view NumberComplaint(std::string_view text, std::string_view words = EnterOnlyNumbers);

// What tells the entry of a latitude from that of a longitude: the most whole degrees that it can have, and
// the words of its complaints. Degrees and minutes are magnitudes; a hemisphere option carries the sign.
struct CoordinateAxis {
    double mostDegrees;
    std::string_view tooManyDegrees;
    std::string_view minutesPastLimit;
};

inline constexpr CoordinateAxis LatitudeAxis{
    90,
    "There are no Latitude values greater than 90.\r\n                       Please correct.",
    "Latitude degrees is 90. Minutes must be zero.\r\n                         Please correct.",
};
inline constexpr CoordinateAxis LongitudeAxis{
    180,
    "There are no Longitude values greater than 180.\r\n                       Please correct.",
    "Longitude degrees is 180. Minutes must be zero.\r\n                         Please correct.",
};

// What is wrong with a text of whole degrees, by the number that it begins with first: more than the axis
// has, or not a number. Empty when the text is accepted; the empty text is, and so is any negative number.
std::string_view DegreesComplaint(const CoordinateAxis& axis, std::string_view degrees);

// What is wrong with a text of decimal minutes beside a text of degrees: above 0 at the most degrees, 60 or
// more, not a number. Empty when the text is accepted; the empty text is.
std::string_view MinutesComplaint(const CoordinateAxis& axis, std::string_view degrees,
                                  std::string_view minutes);

}  // namespace tarvex
