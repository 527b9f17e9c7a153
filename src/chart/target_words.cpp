#include "chart/target_words.h"

#include <algorithm>

#include "chart/airport.h"
#include "chart/route_words.h"
#include "geometry/text_rules.h"
#include "navigation/entry_position.h"
#include "navigation/search_hit.h"
#include "toolkit/display_text.h"

namespace tarvex {

namespace {

std::string BearingAndDistance(const Position& from, const Position& to) {
    const RhumbLeg leg = RhumbLegBetween(from, to);
    return (leg.miles > 0 ? CourseText(leg.course) + "° " : "") + MilesText(leg.miles) + " NM";
}

std::string NavaidWords(std::string_view name, std::string_view frequency) {
    return ShownUtf8(name) + (IsInKilohertz(frequency) ? ", NDB " : ", VOR ") +
           ShownUtf8(FrequencyWithUnit(Trim(frequency)));
}

std::string RowWords(const RoutePoint& point, int row) {
    std::string words = point.name + ", waypoint " + NumberText(row + 1);
    if (point.runway) words += ", runway";
    if (!point.frequency.empty()) words += ", " + FrequencyWithUnit(point.frequency);
    const std::string altitude = AltitudeWords(point.altitude);
    if (!altitude.empty()) words += ", " + altitude;
    if (point.speed > 0) words += ", " + FeetText(point.speed) + "K";
    return words;
}

std::string EntryWords(const Target& target, const NavigationTables& tables) {
    const auto index = static_cast<std::size_t>(target.index);
    switch (target.kind) {
        case Target::Kind::Fix:
            return ShownUtf8(Trim(tables.FixTable[index].FixID)) + ", fix";
        case Target::Kind::Navaid:
            return NavaidWords(Trim(tables.NavaidTable[index].NavaidID),
                               tables.NavaidTable[index].NavaidFreq);
        case Target::Kind::Runway: {
            const AirportRecord& airport = tables.AirportTable[index];
            return ShownUtf8(Trim(airport.AirportID.View().substr(0, AirportCodeLength))) + " " +
                   ShownUtf8(Trim(airport.AirportID.View().substr(AirportCodeLength))) +
                   ", runway, elevation " + NumberText(airport.AirportElevation) + " ft";
        }
        default:
            return "";
    }
}

// The two navaids nearest to a place that don't stand at it, each with where the place lies from it.
std::string NearbyNavaids(const Position& place, const NavigationTables& tables, const PositionGrid& grid) {
    constexpr std::size_t Told = 2;
    constexpr std::size_t MostAtOnePlace = 3;
    constexpr double AtThePlace = 0.05;  // miles
    std::string words;
    std::size_t told = 0;
    for (const PlacedEntry& entry : grid.Nearest(NavigationTable::Navaids, place, Told + MostAtOnePlace)) {
        if (RhumbLegBetween(entry.At(), place).miles < AtThePlace) continue;
        if (++told > Told) break;
        const auto& navaid = tables.NavaidTable[static_cast<std::size_t>(entry.index)];
        words += "; " + BearingAndDistance(entry.At(), place) + " from " + ShownUtf8(Trim(navaid.NavaidID)) +
                 " " + ShownUtf8(FrequencyWithUnit(Trim(navaid.NavaidFreq)));
    }
    return words;
}

}  // namespace

std::string TargetWords(const Target& target, const Route& route, const NavigationTables& tables,
                        const PositionGrid& grid, const std::optional<TargetOrigin>& from) {
    const auto position = PositionOf(target, route, tables);
    if (!position) return "";
    const bool row = target.kind == Target::Kind::Row;
    std::string words = row ? RowWords(route.points[static_cast<std::size_t>(target.index)], target.index)
                            : EntryWords(target, tables);
    words += ", " + PositionWords(*position);
    if (from && from->position != *position) {
        words += ", " + BearingAndDistance(from->position, *position) + " from " + from->name;
    }
    return row ? words + NearbyNavaids(*position, tables, grid) : words;
}

std::optional<TargetOrigin> OriginOf(const Route& route, int selected) {
    if (route.points.empty()) return std::nullopt;
    const bool isRow = selected >= 0 && selected < static_cast<int>(route.points.size());
    const RoutePoint& point = isRow ? route.points[static_cast<std::size_t>(selected)] : route.points.back();
    if (!point.position) return std::nullopt;
    return TargetOrigin{point.name, *point.position};
}

std::optional<Position> PositionOf(const Target& target, const Route& route, const NavigationTables& tables) {
    const auto entry = [&](NavigationTable table) {
        return PositionOf(EntryAt(tables, table, target.index));
    };
    switch (target.kind) {
        case Target::Kind::None:
            return std::nullopt;
        case Target::Kind::Row: {
            const auto row = static_cast<std::size_t>(target.index);
            return row < route.points.size() ? route.points[row].position : std::nullopt;
        }
        case Target::Kind::Fix:
            return entry(NavigationTable::Fixes);
        case Target::Kind::Navaid:
            return entry(NavigationTable::Navaids);
        case Target::Kind::Runway:
            return entry(NavigationTable::Airports);
    }
    return std::nullopt;
}

}  // namespace tarvex
