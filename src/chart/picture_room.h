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
    void Take(const TurnedBox& box) { Occupy(box, Cell::Taken); }
    void TakeLine(const Point& first, const Point& second, double width) {
        TakeAlong(first, second, width, Cell::Taken);
    }

    // What words had better keep off: a symbol's square, and a line that is no part of the procedure.
    void TakeSymbol(const Point& middle, double size) { Occupy({middle, {size, size}}, Cell::Symbol); }
    void TakeLineAround(const Point& first, const Point& second, double width) {
        TakeAlong(first, second, width, Cell::Line);
    }
    // Whether a point lies on a symbol's square.
    bool HoldsSymbol(const Point& middle) const;

  private:
    enum class Cell : std::uint8_t { Free, Line, Symbol, Taken };

    void Occupy(const TurnedBox& box, Cell with);
    void TakeAlong(const Point& first, const Point& second, double width, Cell with);

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
