#include "procedure/edited_coordinate.h"

#include <cmath>

#include "geometry/position.h"
#include "geometry/text_rules.h"

namespace tarvex {

namespace {

double DecimalDegrees(std::string_view degrees, std::string_view minutes) {
    const double number = LeadingNumber(degrees);
    const double magnitude = JoinDegrees({std::abs(number), LeadingNumber(minutes)});
    const bool negative = number < 0 || (number == 0 && LeftTrim(degrees).starts_with('-'));
    return negative ? -magnitude : magnitude;
}

}  // namespace

std::string EditedLatitude(std::string_view degrees, std::string_view minutes) {
    const std::string text =
        PatternFormat(SignedNumberText(DecimalDegrees(degrees, minutes)), ThreeDigitPattern);
    return text == "." ? "0." : text;
}

std::string EditedLongitude(std::string_view degrees, std::string_view minutes) {
    return PatternFormat(SignedNumberText(DecimalDegrees(degrees, minutes)), FourDigitPattern);
}

bool IsLonePoint(std::string_view text) {
    if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
    return text == ".";
}

}  // namespace tarvex
