#include "geometry/coordinate_rules.h"

#include "geometry/text_rules.h"

namespace tarvex {

namespace {

constexpr std::string_view SixtyMinutes = "Minutes must be less than 60.\r\n            Please correct.";

}  // namespace

std::string_view NumberComplaint(std::string_view text, std::string_view words) {
    return text.empty() || IsNumberText(text) ? std::string_view() : words;
}

std::string_view DegreesComplaint(const CoordinateAxis& axis, std::string_view degrees) {
    if (LeadingNumber(degrees) > axis.mostDegrees) return axis.tooManyDegrees;
    return NumberComplaint(degrees);
}

std::string_view MinutesComplaint(const CoordinateAxis& axis, std::string_view degrees,
                                  std::string_view minutes) {
    const double number = LeadingNumber(minutes);
    if (LeadingNumber(degrees) == axis.mostDegrees && number > 0) return axis.minutesPastLimit;
    if (number >= 60) return SixtyMinutes;
    return NumberComplaint(minutes);
}

}  // namespace tarvex
