#include "chart/airport.h"

#include <algorithm>
#include <charconv>
#include <string>

#include "geometry/text_rules.h"
#include "navigation/entry_position.h"

namespace tarvex {

namespace {

std::string_view IdentifierAt(const NavigationTables& tables, std::int32_t index) {
    return EntryAt(tables, NavigationTable::Airports, index).identifier;
}

}  // namespace

std::string OppositeEnd(std::string_view name) {
    int number = 0;
    const auto read = std::from_chars(name.data(), name.data() + name.size(), number);
    if (read.ec != std::errc() || number < 1 || number > 36) return {};
    const int opposite = (number + 17) % 36 + 1;
    std::string text = (opposite < 10 ? "0" : "") + std::to_string(opposite);
    for (const char* side = read.ptr; side != name.data() + name.size(); ++side) {
        text += *side == 'L' ? 'R' : *side == 'R' ? 'L' : *side;
    }
    return text;
}

Airport AirportOf(const NavigationTables& tables, std::int32_t index) {
    const std::string_view code = IdentifierAt(tables, index).substr(0, AirportCodeLength);
    const auto isSame = [&](std::int32_t other) {
        return IdentifierAt(tables, other).substr(0, AirportCodeLength) == code;
    };
    std::int32_t first = index;
    while (first > 0 && isSame(first - 1)) --first;

    Airport airport{code, {}, {}};
    for (std::int32_t at = first; at <= tables.AirportCount && isSame(at); ++at) {
        const NavigationEntry entry = EntryAt(tables, NavigationTable::Airports, at);
        if (const auto position = PositionOf(entry)) {
            airport.ends.push_back({at, Trim(entry.identifier.substr(AirportCodeLength)), *position});
        }
    }
    for (std::size_t end = 0; end < airport.ends.size(); ++end) {
        const std::string opposite = OppositeEnd(airport.ends[end].name);
        for (std::size_t other = end + 1; other < airport.ends.size(); ++other) {
            if (airport.ends[other].name == opposite) airport.runways.emplace_back(end, other);
        }
    }
    return airport;
}

}  // namespace tarvex
