#include "chart/route.h"

#include <algorithm>
#include <cmath>

#include "geometry/text_rules.h"
#include "procedure/edited_coordinate.h"
#include "procedure/procedure_lines.h"
#include "toolkit/display_text.h"
#include "toolkit/failure.h"

namespace tarvex {

namespace {

constexpr double MostFeet = 99999;
constexpr double MostKnots = 9999;
constexpr std::string_view RunwayType = "15";

std::optional<double> Coordinate(std::string_view text, double most) {
    text = Trim(text);
    if (!IsNumberText(text) && !IsLonePoint(text)) return std::nullopt;
    const double value = LeadingNumber(text);
    return std::fabs(value) <= most ? std::optional(value) : std::nullopt;
}

std::optional<Position> SavedPosition(const WaypointRecord& row) try {
    const auto [latitudeText, longitudeText] = CoordinatesForSave(row);
    const auto latitude = Coordinate(latitudeText, 90);
    const auto longitude = Coordinate(longitudeText, 180);
    if (!latitude || !longitude) return std::nullopt;
    return Position{*latitude, *longitude};
} catch (const Failure&) {
    return std::nullopt;
}

// The number of a field; 0 for one that is not above 0 or more than makes sense.
double Amount(std::string_view field, double most) {
    const double value = LeadingNumber(field);
    return value > 0 && value <= most ? value : 0;
}

AltitudeRestriction RestrictionOf(const WaypointRecord& row) {
    using enum AltitudeRestriction::Kind;
    const double first = Amount(row.Altitude1, MostFeet);
    const double second = Amount(row.Altitude2, MostFeet);
    const double single = first > 0 ? first : second;
    if (single == 0) return {};
    switch (row.RestrictionType.View().front()) {
        case '0':
            return {At, single, single};
        case '1':
            return {AtOrAbove, single, single};
        case '2':
            return {AtOrBelow, single, single};
        case '3':
            // A band without its lower bound is open downward.
            if (first == 0 || second == 0) return {AtOrBelow, single, single};
            return {Between, std::min(first, second), std::max(first, second)};
        default:
            return {};
    }
}

}  // namespace

RoutePoint RoutePointOf(const WaypointRecord& row) {
    RoutePoint point;
    point.name = ShownUtf8(Trim(row.WaypointID));
    point.position = SavedPosition(row);
    point.altitude = RestrictionOf(row);
    point.speed = Amount(row.Airspeed, MostKnots);
    if (LeadingNumber(row.Frequency) != 0) point.frequency = ShownUtf8(Trim(row.Frequency));
    point.runway = Trim(row.WaypointType) == RunwayType;
    return point;
}

Route RouteOf(std::span<const WaypointRecord> rows) {
    Route route;
    route.points.reserve(rows.size());
    for (const auto& row : rows) route.points.push_back(RoutePointOf(row));
    ConnectLegs(route);
    return route;
}

void ConnectLegs(Route& route) {
    const RoutePoint* before = nullptr;
    for (auto& point : route.points) {
        point.leg.reset();
        if (before && before->position && point.position) {
            point.leg = RhumbLegBetween(*before->position, *point.position);
        }
        point.distance = (before ? before->distance : 0) + (point.leg ? point.leg->miles : 0);
        before = &point;
    }
}

}  // namespace tarvex
