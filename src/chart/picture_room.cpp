#include "chart/picture_room.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tarvex {

namespace {

constexpr double CellSize = 2;       // pixels
constexpr double MostPixels = 8192;  // of a picture's side that are kept account of

int CellAt(double pixel) {
    return static_cast<int>(std::floor(std::clamp(pixel, -MostPixels, 2 * MostPixels) / CellSize));
}

struct Turn {
    double sine;
    double cosine;
};

// Nearly all words are level.
Turn TurnOf(const TurnedBox& box) {
    return box.turn == 0 ? Turn{0, 1} : Turn{std::sin(box.turn), std::cos(box.turn)};
}

}  // namespace

std::optional<std::pair<Point, Point>> Clipped(const Point& first, const Point& second, const Size& size,
                                               double margin) {
    const double x = second.x - first.x;
    const double y = second.y - first.y;
    const double steps[] = {-x, x, -y, y};
    const double rooms[] = {first.x + margin, size.width + margin - first.x, first.y + margin,
                            size.height + margin - first.y};
    double begin = 0;
    double end = 1;
    for (int side = 0; side < 4; ++side) {
        if (steps[side] == 0) {
            if (rooms[side] < 0) return std::nullopt;
        } else if (steps[side] < 0) {
            begin = std::max(begin, rooms[side] / steps[side]);
        } else {
            end = std::min(end, rooms[side] / steps[side]);
        }
    }
    if (begin > end) return std::nullopt;
    return std::pair{Point{first.x + begin * x, first.y + begin * y},
                     Point{first.x + end * x, first.y + end * y}};
}

PictureRoom::PictureRoom(const Size& size)
    : size_(size),
      columns_(CellAt(std::min(size.width, MostPixels))),
      rows_(CellAt(std::min(size.height, MostPixels))),
      cells_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_), Cell::Free) {}

PictureRoom::Range PictureRoom::RangeOf(const TurnedBox& box) const {
    const auto [sine, cosine] = TurnOf(box);
    const double across = (box.size.width * std::fabs(cosine) + box.size.height * std::fabs(sine)) / 2;
    const double down = (box.size.width * std::fabs(sine) + box.size.height * std::fabs(cosine)) / 2;
    return {CellAt(box.middle.x - across), CellAt(box.middle.y - down), CellAt(box.middle.x + across),
            CellAt(box.middle.y + down)};
}

template <class Use>
void PictureRoom::ForEachCell(const TurnedBox& box, Use use) const {
    const Range range = RangeOf(box);
    const auto [sine, cosine] = TurnOf(box);
    // A cell is touched at the latest when its middle is this far off.
    const double reach = CellSize / std::numbers::sqrt2;
    for (int row = std::max(range.top, 0); row <= std::min(range.bottom, rows_ - 1); ++row) {
        for (int column = std::max(range.left, 0); column <= std::min(range.right, columns_ - 1); ++column) {
            const double x = (column + 0.5) * CellSize - box.middle.x;
            const double y = (row + 0.5) * CellSize - box.middle.y;
            if (box.turn != 0 && (std::fabs(x * cosine + y * sine) > box.size.width / 2 + reach ||
                                  std::fabs(y * cosine - x * sine) > box.size.height / 2 + reach)) {
                continue;
            }
            const int cell = row * columns_ + column;
            if (!use(static_cast<std::size_t>(cell))) return;
        }
    }
}

bool PictureRoom::IsFree(const TurnedBox& box, Over over) const {
    const Range range = RangeOf(box);
    if (range.left < 0 || range.top < 0 || range.right >= columns_ || range.bottom >= rows_) return false;
    const Cell most = over == Over::Symbols ? Cell::Symbol : Cell::Free;
    bool free = true;
    ForEachCell(box, [&](std::size_t cell) { return free = cells_[cell] <= most; });
    return free;
}

void PictureRoom::Occupy(const TurnedBox& box, Cell with) {
    ForEachCell(box, [&](std::size_t cell) {
        cells_[cell] = std::max(cells_[cell], with);
        return true;
    });
}

void PictureRoom::TakeAlong(const Point& first, const Point& second, double width, Cell with) {
    const auto shown = Clipped(first, second, size_, width);
    if (!shown) return;
    const auto& [begin, end] = *shown;
    const int steps = static_cast<int>(std::hypot(end.x - begin.x, end.y - begin.y) / CellSize) + 1;
    for (int step = 0; step <= steps; ++step) {
        const double share = static_cast<double>(step) / steps;
        Occupy({{begin.x + share * (end.x - begin.x), begin.y + share * (end.y - begin.y)}, {width, width}},
               with);
    }
}

bool PictureRoom::HoldsSymbol(const Point& middle) const {
    bool held = false;
    ForEachCell({middle, {}}, [&](std::size_t cell) { return !(held = cells_[cell] == Cell::Symbol); });
    return held;
}

}  // namespace tarvex
