#pragma once

#include <array>
#include <vector>

#include "chart/picture_room.h"
#include "chart/projection.h"
#include "toolkit/drawing.h"

namespace tarvex {

// Lines of words one below the other, beside a point.
struct WordBlock {
    std::vector<std::vector<Words>> lines;  // the pieces of each line, from left to right
    Target target;
};

// A chart in the making: what is drawn so far, layer upon layer, and where room is left.
class PlanSketch {
  public:
    enum class Layer { Ground, Around, Lines, Symbols, Words };

    PlanSketch(const PlanView& view, const TextMeasure& measure);

    const Projection& Map() const { return map_; }
    PictureRoom& Room() { return room_; }

    // A line that is none of the earth, all of it within the picture.
    void AddFigure(Layer layer, const Line& line) { ItemsOf(layer).emplace_back(line); }
    // The parts of a line within the picture, drawn like `style`. Where it leaps from one side of the earth's
    // rim to the other it's broken.
    void AddLine(Layer layer, const std::vector<Point>& points, const Line& style);
    void AddRing(const Point& middle, double radius, Role role);
    // Unless it lies outside of the picture.
    void AddSymbol(Layer layer, const Symbol& symbol);
    void AddWords(const Words& words);

    double WidthOf(const Words& words) const { return measure_.Width(words.text, words.size, words.bold); }

    // Puts the label beside a point, `gap` pixels off, where it covers nothing, if there is room in the
    // direction `toward`, and takes the room. False if there is none all around.
    bool PlaceBlock(const WordBlock& label, const Point& point, double gap, PictureRoom::Over over,
                    const Point& toward);

    Drawing Finish() const;

  private:
    std::vector<DrawnItem>& ItemsOf(Layer layer) { return layers_[static_cast<std::size_t>(layer)]; }
    void AddBlock(const WordBlock& label, const TurnedBox& box, Words::Align align);

    Projection map_;
    PictureRoom room_;
    const TextMeasure& measure_;
    std::array<std::vector<DrawnItem>, 5> layers_;
};

// The middle between two points.
inline Point Between(const Point& first, const Point& second) {
    return {(first.x + second.x) / 2, (first.y + second.y) / 2};
}

}  // namespace tarvex
