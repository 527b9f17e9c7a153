#include "chart/plan_view.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "geometry/rhumb_line.h"

namespace tarvex {

namespace {

constexpr double MilesAround = 21600;
constexpr double Margin = 0.09;    // of the picture's size, on each side
constexpr double MostMargin = 70;  // pixels

double ScaleWithinLimits(double scale, const Size& size) {
    return std::clamp(scale, std::min(LeastScale(size), MostScale), MostScale);
}

// Of the unit vectors; the first position for points all round the earth.
Position MeanOf(std::span<const Position> positions) {
    double x = 0;
    double y = 0;
    double z = 0;
    for (const auto& position : positions) {
        const double cosine = std::cos(position.latitude * RadiansPerDegree);
        x += cosine * std::cos(position.longitude * RadiansPerDegree);
        y += cosine * std::sin(position.longitude * RadiansPerDegree);
        z += std::sin(position.latitude * RadiansPerDegree);
    }
    const double across = std::hypot(x, y);
    if (std::hypot(across, z) < 1e-9) return positions.front();
    return {std::atan2(z, across) * DegreesPerRadian, std::atan2(y, x) * DegreesPerRadian};
}

struct Box {
    Point least;
    Point most;

    Point Middle() const { return {(least.x + most.x) / 2, (least.y + most.y) / 2}; }
};

Box BoxOf(std::span<const Position> positions, const Projection& projection) {
    Box box{projection.ToPoint(positions.front()), projection.ToPoint(positions.front())};
    for (const auto& position : positions) {
        const Point point = projection.ToPoint(position);
        box = {{std::min(box.least.x, point.x), std::min(box.least.y, point.y)},
               {std::max(box.most.x, point.x), std::max(box.most.y, point.y)}};
    }
    return box;
}

double RoomWithin(double length) {
    return std::max(length - 2 * std::min(length * Margin, MostMargin), 1.0);
}

// Moving the middle turns the meridians, so one step is not always enough. Round a pole, where north up turns
// the picture round, it may stay off.
PlanView WithPlaceAt(const PlanView& view, const Position& place, const Point& at) {
    PlanView moved = view;
    for (int round = 0; round < 4; ++round) {
        const Projection map(moved);
        const Point now = map.ToPoint(place);
        moved.middle =
            map.ToPosition({view.size.width / 2 + now.x - at.x, view.size.height / 2 + now.y - at.y});
    }
    return moved;
}

}  // namespace

double LeastScale(const Size& size) {
    return std::max(std::min(size.width, size.height), 1.0) / MilesAround;
}

PlanView FitView(std::span<const Position> positions, const Size& size) {
    if (positions.empty()) return {{}, ScaleWithinLimits(0, size), size};
    PlanView view{MeanOf(positions), 1, size};
    // The box of the points round its own middle is another one; twice is close enough.
    for (int round = 0; round < 2; ++round) {
        const Projection projection(view);
        view.middle = projection.ToPosition(BoxOf(positions, projection).Middle());
    }
    const Box box = BoxOf(positions, Projection(view));
    const Point middle{size.width / 2, size.height / 2};
    const double width = 2 * std::max(box.most.x - middle.x, middle.x - box.least.x);
    const double height = 2 * std::max(box.most.y - middle.y, middle.y - box.least.y);
    view.scale = ScaleWithinLimits(std::min(RoomWithin(size.width) / std::max(width, FewestMiles),
                                            RoomWithin(size.height) / std::max(height, 1e-9)),
                                   size);
    return view;
}

PlanView ViewRound(const Position& middle, double miles, const Size& size) {
    return {middle, ScaleWithinLimits(std::min(size.width, size.height) / (2 * miles), size), size};
}

PlanView Zoomed(const PlanView& view, double factor, const Point& fixed) {
    PlanView zoomed = view;
    zoomed.scale = ScaleWithinLimits(view.scale * factor, view.size);
    return WithPlaceAt(zoomed, Projection(view).ToPosition(fixed), fixed);
}

PlanView Panned(const PlanView& view, const Point& from, const Point& to) {
    return WithPlaceAt(view, Projection(view).ToPosition(from), to);
}

}  // namespace tarvex
