#pragma once

#include <vector>

#include "geometry/rhumb_line.h"

namespace tarvex {

inline constexpr double ArcMaxStepDegrees = 16;                  // between neighbouring points
inline constexpr double ArcClosingInset = 0.000581776417331442;  // radians of arc: 2 nautical miles

enum class Turn { Right, Left };  // clockwise round the centre, and the other way
enum class VariationSide { East, West };

// What an arc is laid out from.
struct ArcRequest {
    double centerLat = 0;   // degrees, north positive
    double centerLong = 0;  // degrees, east positive
    double start = 0;       // magnetic radials from the centre, degrees; 0 to 360 is sensible
    double end = 0;
    double radius = 0;     // nautical miles
    double variation = 0;  // degrees, magnetic against true north
    VariationSide side = VariationSide::West;
    Turn turn = Turn::Right;
    bool closingPoint = false;  // one more point behind the last, 2 nautical miles nearer to the centre
};

// One point of an arc.
struct ArcPoint {
    double radial = 0;    // true, radians
    double distance = 0;  // from the centre, radians of arc; below 0 on the reciprocal radial
    RhumbPoint position;
};

enum class ArcFault { None, NoLength, ReachesPole };

// The points in flying order, or the fault that kept them from being laid out.
struct ArcLayout {
    ArcFault fault = ArcFault::None;
    std::vector<ArcPoint> points;
};

// The points divide the way from start to end into equal steps of at most ArcMaxStepDegrees; a sweep of a
// whole multiple of it takes one step more. A right turn from a radial to itself is a full circle. A left one
// has no length, nor has a left turn from 0 to 360 or a right turn from 360 to 0. An arc reaches a pole if
// the rhumb line to one of its points does. BadArgument (5) for a radial of more than 360 degrees either way.
ArcLayout LayOutArc(const ArcRequest& request);

}  // namespace tarvex
