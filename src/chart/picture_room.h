#pragma once

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "toolkit/drawing.h"

namespace tarvex {

// The part of the line from `first` to `second` that lies in the picture or at most `margin` pixels outside;
// nothing if none does.
std::optional<std::pair<Point, Point>> Clipped(const Point& first, const Point& second, const Size& size,
                                               double margin = 0);

// Where a line of words stands.
struct TurnedBox {
    Point middle;
    Size size;
    double turn = 0;  // radians clockwise
};

// Which parts of a picture are taken, so that words find a place where they cover nothing.
class PictureRoom {
  public:
    enum class Over { Nothing, Symbols };  // what words may lie upon

    explicit PictureRoom(const Size& size);

    // Never where the box would leave the picture.
    bool IsFree(const TurnedBox& box, Over over = Over::Nothing) const;
    void Take(const TurnedBox& box);
    void TakeLine(const Point& first, const Point& second, double width);

    // A symbol's square: words had better keep off it.
    void TakeSymbol(const Point& middle, double size);
    // Whether a point lies on one.
    bool HoldsSymbol(const Point& middle) const;

  private:
    enum class Cell : std::uint8_t { Free, Symbol, Taken };

    struct Range {
        int left, top, right, bottom;  // inclusive, may lie outside of the picture
    };
    Range RangeOf(const TurnedBox& box) const;
    // Calls `use` with each cell of the picture that the box touches, until it returns false.
    template <class Use>
    void ForEachCell(const TurnedBox& box, Use use) const;

    Size size_;
    int columns_;
    int rows_;
    std::vector<Cell> cells_;
};

}  // namespace tarvex
