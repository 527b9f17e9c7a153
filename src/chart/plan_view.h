#pragma once

#include <span>

#include "chart/projection.h"

namespace tarvex {

inline constexpr double MostScale = 2000;  // pixels to a nautical mile: about one to a metre
inline constexpr double FewestMiles = 6;   // across the picture, of a view that fits what has no extent

// The least scale of a picture: the whole earth is in it.
double LeastScale(const Size& size);

// The view in which all positions lie inside, with a margin for their names. The whole earth for none.
PlanView FitView(std::span<const Position> positions, const Size& size);

// The view with `miles` on each side of a position.
PlanView ViewRound(const Position& middle, double miles, const Size& size);

// The scale times `factor`, within the limits; what lies under `fixed` stays there, but for the pole's
// neighbourhood.
PlanView Zoomed(const PlanView& view, double factor, const Point& fixed);

// What lies at `from` moves to `to`, with the same reserve.
PlanView Panned(const PlanView& view, const Point& from, const Point& to);

}  // namespace tarvex
