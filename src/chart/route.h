#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "geometry/position.h"
#include "geometry/rhumb_line.h"
#include "procedure/waypoint_record.h"

namespace tarvex {

// What a waypoint demands of the altitude.
struct AltitudeRestriction {
    enum class Kind { None, At, AtOrAbove, AtOrBelow, Between };

    Kind kind = Kind::None;
    double low = 0;   // feet; the one altitude of At, AtOrAbove and AtOrBelow, whose `high` is the same
    double high = 0;  // feet; not below `low`

    friend bool operator==(const AltitudeRestriction&, const AltitudeRestriction&) = default;
};

// One row as pictures show it. Texts are in UTF-8, as windows show those of the row, without the blanks at
// their ends.
struct RoutePoint {
    std::string name;
    std::optional<Position> position;  // what a save would write; nothing if that is no point of the earth
    AltitudeRestriction altitude;
    double speed = 0;             // knots; 0 for none
    std::string frequency;        // of a navaid; empty for a fix
    bool runway = false;          // then `altitude` is its elevation, as long as nobody changed it
    std::optional<RhumbLeg> leg;  // from the row before, if both have a position
    double distance = 0;          // nautical miles along the legs from the first row to this one

    friend bool operator==(const RoutePoint&, const RoutePoint&) = default;
};

// A procedure in flying order. `route.points[i]` is row i.
struct Route {
    std::vector<RoutePoint> points;

    double Miles() const { return points.empty() ? 0 : points.back().distance; }
};

// Takes whatever stands in the rows: numbers that make no sense count as none.
RoutePoint RoutePointOf(const WaypointRecord& row);
Route RouteOf(std::span<const WaypointRecord> rows);

// Works out the legs and distances of points that were put together by hand.
void ConnectLegs(Route& route);

}  // namespace tarvex
