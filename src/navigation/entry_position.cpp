#include "navigation/entry_position.h"

#include <charconv>
#include <cmath>

#include "geometry/text_rules.h"

namespace tarvex {

namespace {

// Plain decimals at once, and by the rules of texts whatever else is a number.
std::optional<double> Coordinate(std::string_view text, double most) {
    text = Trim(text);
    double value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size()) {
        if (!IsNumberText(text)) return std::nullopt;
        value = StrictNumber(text);
    }
    return std::fabs(value) <= most ? std::optional(value) : std::nullopt;
}

}  // namespace

std::optional<Position> PositionOf(const NavigationEntry& entry) {
    const auto latitude = Coordinate(entry.latitude, 90);
    const auto longitude = Coordinate(entry.longitude, 180);
    if (!latitude || !longitude) return std::nullopt;
    return Position{*latitude, *longitude};
}

}  // namespace tarvex
