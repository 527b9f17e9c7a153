#include "chart/position_grid.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "geometry/rhumb_line.h"
#include "navigation/entry_position.h"

namespace tarvex {

namespace {

constexpr int Levels = 15;  // halvings of the earth's latitudes and longitudes
constexpr int TableShift = 2 * Levels;
constexpr double MilesAround = 21600;

// The bits of a number of 15 with a gap of one behind each.
std::uint32_t Spread(std::uint32_t bits) {
    bits = (bits | bits << 8) & 0x00FF00FF;
    bits = (bits | bits << 4) & 0x0F0F0F0F;
    bits = (bits | bits << 2) & 0x33333333;
    return (bits | bits << 1) & 0x55555555;
}

// Which of the finest cells a coordinate lies in, counted from the least of them.
std::uint32_t Share(double coordinate, double most) {
    constexpr double Cells = 1 << Levels;
    return static_cast<std::uint32_t>(std::min((coordinate + most) / (2 * most) * Cells, Cells - 1));
}

std::uint32_t CellOf(NavigationTable table, const Position& position) {
    return static_cast<std::uint32_t>(table) << TableShift | Spread(Share(position.latitude, 90)) << 1 |
           Spread(Share(position.longitude, 180));
}

// Half of those that lie even further from 0 than any chart can show a difference.
std::int32_t Millionths(double degrees) {
    return static_cast<std::int32_t>(degrees * 1e6 + std::copysign(0.5, degrees));
}

// Least significant digits first, so entries of one cell stay in the order of their table.
void SortByCell(std::vector<PlacedEntry>& entries) {
    constexpr int DigitBits = 11;
    constexpr std::uint32_t Digits = 1 << DigitBits;
    std::vector<PlacedEntry> sorted(entries.size());
    for (int shift = 0; shift < 32; shift += DigitBits) {
        const auto digit = [shift](const PlacedEntry& entry) { return entry.cell >> shift & (Digits - 1); };
        std::array<std::uint32_t, Digits + 1> ends{};
        for (const auto& entry : entries) ++ends[digit(entry) + 1];
        for (std::size_t i = 1; i < ends.size(); ++i) ends[i] += ends[i - 1];
        for (const auto& entry : entries) sorted[ends[digit(entry)]++] = entry;
        entries.swap(sorted);
    }
}

// Distances from one point.
class Centre {
  public:
    explicit Centre(const Position& middle)
        : sine_(std::sin(middle.latitude * RadiansPerDegree)),
          cosine_(std::cos(middle.latitude * RadiansPerDegree)),
          longitude_(middle.longitude) {}

    double RadiansTo(const Position& position) const {
        const double latitude = position.latitude * RadiansPerDegree;
        const double east = (position.longitude - longitude_) * RadiansPerDegree;
        const double cosine = sine_ * std::sin(latitude) + cosine_ * std::cos(latitude) * std::cos(east);
        return std::acos(std::clamp(cosine, -1.0, 1.0));
    }

  private:
    double sine_;
    double cosine_;
    double longitude_;
};

using Entries = std::span<const PlacedEntry>;

// One walk through the cells that touch a circle.
class Walk {
  public:
    Walk(const PositionGrid::Circle& circle, const PositionGrid::Wanted& wanted,
         std::vector<PlacedEntry>& found)
        : centre_(circle.middle),
          radius_(circle.miles * RadiansPerNauticalMile),
          wanted_(wanted),
          found_(found) {}

    // A cell of the level `level`, its southern and western edge in degrees, and the entries within.
    void Visit(Entries entries, int level, double south, double west) {
        if (entries.empty()) return;
        const double height = 180.0 / (1 << level);
        const double width = 2 * height;
        const Position middle{south + height / 2, west + width / 2};
        if (!Touches(middle, height)) return;
        if (level == Levels) {
            found_.insert(found_.end(), entries.begin(), entries.end());
        } else if (!wanted_(middle, height * 60) || entries.size() == 1) {
            found_.push_back(entries.front());
        } else {
            VisitQuarters(entries, level + 1, south, west);
        }
    }

  private:
    bool Touches(const Position& middle, double height) const {
        // To a corner along the parallel, which may be longer nearer to the equator, and the meridian.
        const double nearest = std::max(std::fabs(middle.latitude) - height / 2, 0.0);
        const double reach = height / 2 + height * std::cos(nearest * RadiansPerDegree);
        return centre_.RadiansTo(middle) <= radius_ + reach * RadiansPerDegree;
    }

    void VisitQuarters(Entries entries, int level, double south, double west) {
        const int shift = 2 * (Levels - level);
        const double height = 180.0 / (1 << level);
        for (std::uint32_t quarter = 0; quarter < 4; ++quarter) {
            const auto end = std::partition_point(entries.begin(), entries.end(), [=](const auto& entry) {
                return (entry.cell >> shift & 3) <= quarter;
            });
            const auto count = static_cast<std::size_t>(end - entries.begin());
            Visit(entries.first(count), level, south + (quarter & 2 ? height : 0),
                  west + (quarter & 1 ? 2 * height : 0));
            entries = entries.subspan(count);
        }
    }

    Centre centre_;
    double radius_;
    const PositionGrid::Wanted& wanted_;
    std::vector<PlacedEntry>& found_;
};

}  // namespace

PositionGrid::PositionGrid(const NavigationTables& tables) {
    const auto place = [&](NavigationTable table, std::int32_t last) {
        for (std::int32_t index = 0; index <= last; ++index) {
            const auto position = PositionOf(EntryAt(tables, table, index));
            if (!position) continue;
            entries_.push_back({CellOf(table, *position), Millionths(position->latitude),
                                Millionths(position->longitude), index});
        }
    };
    const std::int32_t entries = tables.FixCount + tables.NavaidCount + tables.AirportCount + 3;
    entries_.reserve(static_cast<std::size_t>(entries));
    place(NavigationTable::Fixes, tables.FixCount);
    place(NavigationTable::Navaids, tables.NavaidCount);
    place(NavigationTable::Airports, tables.AirportCount);
    SortByCell(entries_);
}

std::span<const PlacedEntry> PositionGrid::Of(NavigationTable table) const {
    const auto number = static_cast<std::uint32_t>(table);
    const auto starts = [](const PlacedEntry& entry, std::uint32_t wanted) {
        return entry.cell >> TableShift < wanted;
    };
    const auto begin = std::lower_bound(entries_.begin(), entries_.end(), number, starts);
    return {begin, std::lower_bound(begin, entries_.end(), number + 1, starts)};
}

std::vector<PlacedEntry> PositionGrid::EntriesIn(NavigationTable table, const Circle& circle,
                                                 const Wanted& wanted) const {
    std::vector<PlacedEntry> found;
    Walk(circle, wanted, found).Visit(Of(table), 0, -90, -180);
    return found;
}

std::vector<PlacedEntry> PositionGrid::Nearest(NavigationTable table, const Position& to,
                                               std::size_t count) const {
    constexpr double FirstMiles = 40;
    std::vector<PlacedEntry> found;
    const Centre centre(to);
    const auto distance = [&](const PlacedEntry& entry) { return centre.RadiansTo(entry.At()); };
    double miles = FirstMiles;
    while (miles < MilesAround) {
        found = EntriesIn(table, {to, miles}, [](const Position&, double) { return true; });
        std::erase_if(found,
                      [&](const auto& entry) { return distance(entry) > miles * RadiansPerNauticalMile; });
        if (found.size() >= count) break;
        miles *= 2;
    }
    std::stable_sort(found.begin(), found.end(),
                     [&](const auto& a, const auto& b) { return distance(a) < distance(b); });
    found.resize(std::min(count, found.size()));
    return found;
}

}  // namespace tarvex
