#pragma once

#include <vector>

#include "toolkit/drawing.h"

namespace tarvex {

// How far the points of a picture lie from some lines.
class Nearness {
  public:
    explicit Nearness(const Size& size);

    void Mark(const Point& first, const Point& second);
    // Once, when all lines are marked.
    void Spread();

    // Pixels to the nearest line, to some ten of them; large without one or outside of the picture.
    double PixelsTo(const Point& point) const;

  private:
    float& Tile(int column, int row);

    Size size_;
    int columns_;
    int rows_;
    std::vector<float> tiles_;  // distances in tiles
};

}  // namespace tarvex
