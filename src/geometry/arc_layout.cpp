#include "geometry/arc_layout.h"

#include <cmath>
#include <optional>

#include "geometry/text_rules.h"
#include "toolkit/failure.h"

namespace tarvex {

namespace {

void RequireRadial(double degrees) {
    if (!(std::fabs(degrees) <= 360)) throw Failure(BadArgument, "a radial lies past 360 degrees");
}

// Degrees from start to end in the direction of the turn; not above 0 if there is no way between them.
double SweepDegrees(const ArcRequest& request) {
    if (request.turn == Turn::Right) {
        if (request.start < request.end) return request.end - request.start;
        return 360 - request.start + request.end;
    }
    if (request.start < request.end) return 360 - request.end + request.start;
    return request.start - request.end;
}

double TrueRadial(const ArcRequest& request, double magneticDegrees) {
    const double variation = request.side == VariationSide::West ? -request.variation : request.variation;
    return (magneticDegrees + variation) * RadiansPerDegree;
}

double NextRadial(double radial, double step, Turn turn) {
    if (turn == Turn::Right) {
        const double next = radial + step;
        return next > TwoPi ? next - TwoPi : next;
    }
    const double next = radial - step;
    return next < 0 ? next + TwoPi : next;
}

}  // namespace

ArcLayout LayOutArc(const ArcRequest& request) {
    RequireRadial(request.start);
    RequireRadial(request.end);
    const double sweepDegrees = SweepDegrees(request);
    if (sweepDegrees <= 0) return {ArcFault::NoLength, {}};

    const RhumbPoint center = RhumbPointAt(request.centerLat, request.centerLong);
    const double radius = request.radius * RadiansPerNauticalMile;
    const int stepCount = WholeNumber16(Int(sweepDegrees / ArcMaxStepDegrees)) + 1;
    const double stepRadians = sweepDegrees / stepCount * RadiansPerDegree;

    ArcLayout arc;
    const auto add = [&](double radial, double distance) {
        const std::optional<RhumbPoint> position = RhumbLineStep(center, distance, radial);
        if (position) arc.points.push_back({radial, distance, *position});
        return position.has_value();
    };
    double radial = TrueRadial(request, request.start);
    bool complete = add(radial, radius);
    for (int step = 1; step <= stepCount && complete; ++step) {
        radial = NextRadial(radial, stepRadians, request.turn);
        complete = add(radial, radius);
    }
    if (complete && request.closingPoint) complete = add(radial, radius - ArcClosingInset);
    if (!complete) return {ArcFault::ReachesPole, {}};
    return arc;
}

}  // namespace tarvex
