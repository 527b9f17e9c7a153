#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "chart/position_grid.h"
#include "chart/projection.h"
#include "chart/route.h"
#include "navigation/navigation_tables.h"
#include "toolkit/drawing.h"

namespace tarvex {

// What is not yet a row.
struct PlanDrafts {
    // The waypoint in the boxes, with the legs that it would have: in the place of the row `replaces`, or, at
    // -1, behind the last row. One without a position isn't drawn.
    std::optional<RoutePoint> waypoint;
    int replaces = -1;

    std::vector<Position> arc;

    // A point derived from another by course and distance.
    struct Derived {
        Position start;
        Position end;

        friend bool operator==(const Derived&, const Derived&) = default;
    };
    std::optional<Derived> derived;

    friend bool operator==(const PlanDrafts&, const PlanDrafts&) = default;
};

// All that a chart shows, but for the part of the earth. What is referred to must outlive it.
struct PlanContent {
    const Route& route;
    const NavigationTables& tables;
    const PositionGrid& grid;
    int selected = -1;  // a row, -1 for none
    PlanDrafts drafts{};
    std::vector<Target> hits{};  // of a search: ringed
    Target marked{};             // by a click, of the tables
};

// The chart: graticule and scale bar; what the tables have around the procedure, as far as the scale leaves
// room; the procedure with its names, restrictions and legs; drafts. Words cover neither each other nor the
// procedure: what finds no room for its words keeps its symbol. Everything lies within the picture, but for
// symbols at its edge.
Drawing PlanScene(const PlanView& view, const PlanContent& content, const TextMeasure& measure);

// The positions that a view of the procedure has to show, drafts included.
std::vector<Position> PositionsOf(const Route& route, const PlanDrafts& drafts = {});

}  // namespace tarvex
