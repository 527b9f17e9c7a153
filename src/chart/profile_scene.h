#pragma once

#include "chart/route.h"
#include "toolkit/drawing.h"

namespace tarvex {

// The part of the route that a profile shows, in nautical miles from the first row.
struct ProfileView {
    double from = 0;
    double miles = 0;  // across the room of the line; above 0

    // The whole of the route.
    static ProfileView Whole(const Route& route);
    // Nearer (above 0) or away, so that what is shown at `x` of a profile of that width stays there.
    ProfileView Zoomed(double steps, double x, double width) const;
    // With its content moved so far to the right.
    ProfileView Moved(double x, double width) const;

    friend bool operator==(const ProfileView&, const ProfileView&) = default;
};

// The route from the side: distance along it against altitude. A line leads over the given altitudes, over
// the middle of a band, with the gradient along each part of it; a row without one stands open on the line.
// Bars and triangles are the restrictions, with the room that they leave shaded; a runway is a bar on the
// ground. Rows without a position have no place here. `selected` is the selected row, -1 for none.
Drawing ProfileDrawing(const Route& route, const ProfileView& view, int selected, Size size,
                       const TextMeasure& measure);

}  // namespace tarvex
