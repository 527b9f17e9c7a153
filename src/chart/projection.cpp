#include "chart/projection.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "geometry/rhumb_line.h"

namespace tarvex {

namespace {

constexpr double MilesPerRadian = 1 / RadiansPerNauticalMile;
constexpr double Least = 1e-15;  // radians; what is nearer to the middle or its opposite has no direction

}  // namespace

Projection::Projection(const PlanView& view)
    : view_(view),
      sinMiddle_(std::sin(view.middle.latitude * RadiansPerDegree)),
      cosMiddle_(std::cos(view.middle.latitude * RadiansPerDegree)),
      pixelsPerRadian_(view.scale * MilesPerRadian) {}

Point Projection::ToPoint(const Position& position) const {
    const double latitude = position.latitude * RadiansPerDegree;
    const double longitude = (position.longitude - view_.middle.longitude) * RadiansPerDegree;
    const double sine = std::sin(latitude);
    const double cosine = std::cos(latitude);
    const double cosineEast = cosine * std::cos(longitude);
    const double east = cosine * std::sin(longitude);
    const double north = cosMiddle_ * sine - sinMiddle_ * cosineEast;
    const double away = sinMiddle_ * sine + cosMiddle_ * cosineEast;
    const double across = std::hypot(east, north);
    const double middleX = view_.size.width / 2;
    const double middleY = view_.size.height / 2;
    if (across < Least) return {middleX, middleY - (away < 0 ? std::numbers::pi * pixelsPerRadian_ : 0)};
    const double stretch = std::atan2(across, away) / across * pixelsPerRadian_;
    return {middleX + east * stretch, middleY - north * stretch};
}

Position Projection::ToPosition(const Point& point) const {
    const double east = (point.x - view_.size.width / 2) / pixelsPerRadian_;
    const double north = (view_.size.height / 2 - point.y) / pixelsPerRadian_;
    const double length = std::hypot(east, north);
    if (length < Least) return view_.middle;
    const double distance = std::min(length, std::numbers::pi);
    const double sine = std::sin(distance);
    const double cosine = std::cos(distance);
    const double latitude =
        std::asin(std::clamp(cosine * sinMiddle_ + north / length * sine * cosMiddle_, -1.0, 1.0));
    const double longitude =
        std::atan2(east * sine, length * cosMiddle_ * cosine - north * sinMiddle_ * sine);
    return {latitude * DegreesPerRadian,
            std::remainder(view_.middle.longitude + longitude * DegreesPerRadian, 360)};
}

bool Projection::Shows(const Point& point, double margin) const {
    return point.x >= -margin && point.x <= view_.size.width + margin && point.y >= -margin &&
           point.y <= view_.size.height + margin;
}

}  // namespace tarvex
