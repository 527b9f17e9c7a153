#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "geometry/position.h"
#include "navigation/navigation_tables.h"
#include "navigation/search.h"

namespace tarvex {

// An entry of the navigation tables, known by its place.
struct PlacedEntry {
    std::uint32_t cell;      // table and cell of the grid
    std::int32_t latitude;   // millionths of a degree
    std::int32_t longitude;  // as latitude
    std::int32_t index;      // in its table

    Position At() const { return {latitude / 1e6, longitude / 1e6}; }
};

// The entries of all tables in the order of nested cells: each cell is a quarter of a larger one, down to a
// third of a mile. So a view finds what is in it, and one entry for each larger cell when there is no room
// for all, always the same ones. Entries whose coordinates are no numbers are left out.
class PositionGrid {
  public:
    explicit PositionGrid(const NavigationTables& tables);

    // A round part of the earth.
    struct Circle {
        Position middle;
        double miles = 0;
    };
    // Asked for each cell with its middle and its height in nautical miles: whether all four quarters are
    // wanted, or one entry stands for all.
    using Wanted = std::function<bool(const Position& middle, double miles)>;

    // The entries of one table in the cells that touch the circle; some may lie a little outside of it.
    std::vector<PlacedEntry> EntriesIn(NavigationTable table, const Circle& circle,
                                       const Wanted& wanted) const;

    // The nearest entries of one table, at most `count`, the nearest first.
    std::vector<PlacedEntry> Nearest(NavigationTable table, const Position& to, std::size_t count) const;

    std::size_t Count() const { return entries_.size(); }

  private:
    std::span<const PlacedEntry> Of(NavigationTable table) const;

    std::vector<PlacedEntry> entries_;
};

}  // namespace tarvex
