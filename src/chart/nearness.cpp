#include "chart/nearness.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "chart/picture_room.h"

namespace tarvex {

namespace {

constexpr double TileSize = 18;  // pixels
constexpr double Margin = 240;   // pixels outside of the picture in which lines count
constexpr double MostPixels = 8192;
constexpr float Far = 1e6F;

int TilesOver(double pixels) {
    return static_cast<int>((std::min(pixels, MostPixels) + 2 * Margin) / TileSize) + 1;
}

int TileAt(double pixel) {
    return static_cast<int>((pixel + Margin) / TileSize);
}

}  // namespace

Nearness::Nearness(const Size& size)
    : size_(size),
      columns_(TilesOver(size.width)),
      rows_(TilesOver(size.height)),
      tiles_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_), Far) {}

float& Nearness::Tile(int column, int row) {
    return tiles_[static_cast<std::size_t>(std::clamp(row, 0, rows_ - 1)) *
                      static_cast<std::size_t>(columns_) +
                  static_cast<std::size_t>(std::clamp(column, 0, columns_ - 1))];
}

void Nearness::Mark(const Point& first, const Point& second) {
    const auto part = Clipped(first, second, size_, Margin);
    if (!part) return;
    const auto& [from, to] = *part;
    const int steps = static_cast<int>(std::hypot(to.x - from.x, to.y - from.y) / TileSize) + 1;
    for (int step = 0; step <= steps; ++step) {
        const double share = static_cast<double>(step) / steps;
        Tile(TileAt(from.x + share * (to.x - from.x)), TileAt(from.y + share * (to.y - from.y))) = 0;
    }
}

// Two passes over the tiles, each of which hands on the distance of its neighbours that were passed.
void Nearness::Spread() {
    constexpr float Diagonal = std::numbers::sqrt2_v<float>;
    const auto take = [this](std::ptrdiff_t at, std::ptrdiff_t step) {
        float* const tile = tiles_.data() + at;
        const float* const before = tile - step * columns_;
        *tile = std::min(
            {*tile, tile[-step] + 1, *before + 1, before[-step] + Diagonal, before[step] + Diagonal});
    };
    // The outermost tiles are neighbours only.
    for (std::ptrdiff_t row = 1; row < rows_ - 1; ++row) {
        for (std::ptrdiff_t column = 1; column < columns_ - 1; ++column) take(row * columns_ + column, 1);
    }
    for (std::ptrdiff_t row = rows_ - 2; row > 0; --row) {
        for (std::ptrdiff_t column = columns_ - 2; column > 0; --column) take(row * columns_ + column, -1);
    }
}

double Nearness::PixelsTo(const Point& point) const {
    if (!(std::fabs(point.x) < MostPixels && std::fabs(point.y) < MostPixels)) return Far;
    const int column = TileAt(point.x);
    const int row = TileAt(point.y);
    if (column < 0 || column >= columns_ || row < 0 || row >= rows_) return Far;
    return static_cast<double>(tiles_[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
                                      static_cast<std::size_t>(column)]) *
           TileSize;
}

}  // namespace tarvex
