#pragma once

#include "geometry/position.h"
#include "toolkit/drawing.h"

namespace tarvex {

// What part of the earth a chart shows: north is up at its middle.
struct PlanView {
    Position middle;
    double scale = 1;  // pixels to a nautical mile, above 0
    Size size;         // of the picture, in pixels

    friend bool operator==(const PlanView&, const PlanView&) = default;
};

// The azimuthal equidistant projection round the middle of a view: bearing and distance from there are true.
// The whole earth lies within half a circumference of it, so the date line and the poles are points like
// others.
// Source: J. P. Snyder, Map Projections: A Working Manual (USGS 1395), chapter 25, the sphere.
class Projection {
  public:
    explicit Projection(const PlanView& view);

    // Finite for every position of the earth; the point opposite of the middle is put straight above it.
    Point ToPoint(const Position& position) const;
    // The nearest place of the earth's rim for a point outside of it.
    Position ToPosition(const Point& point) const;

    // Whether a point lies in the picture or at most `margin` pixels outside.
    bool Shows(const Point& point, double margin = 0) const;

    const PlanView& View() const { return view_; }

  private:
    PlanView view_;
    double sinMiddle_;
    double cosMiddle_;
    double pixelsPerRadian_;
};

}  // namespace tarvex
