#include "chart/plan_sketch.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "geometry/rhumb_line.h"

namespace tarvex {

namespace {

constexpr double PieceGap = 5;  // pixels between the pieces of a line
constexpr double LineGap = 1.5;
constexpr double SymbolMargin = 12;

double LineWidth(const std::vector<Words>& pieces, const PlanSketch& sketch) {
    double width = -PieceGap;
    for (const Words& piece : pieces) width += sketch.WidthOf(piece) + PieceGap;
    return width;
}

double LineHeight(const std::vector<Words>& pieces) {
    double height = 0;
    for (const Words& piece : pieces) height = std::max(height, piece.size);
    return height + LineGap;
}

Size SizeOf(const WordBlock& label, const PlanSketch& sketch) {
    Size size;
    for (const auto& pieces : label.lines) {
        size.width = std::max(size.width, LineWidth(pieces, sketch));
        size.height += LineHeight(pieces);
    }
    return size;
}

constexpr int Sides = 8;

// The sides of a point, that toward a direction first and its opposite last.
std::array<Point, Sides> SidesFrom(const Point& toward) {
    std::array<Point, Sides> sides{{{1, 0}, {-1, 0}, {1, -1}, {1, 1}, {-1, -1}, {-1, 1}, {0, -1}, {0, 1}}};
    const auto agreement = [&](const Point& side) {
        return (side.x * toward.x + side.y * toward.y) / std::hypot(side.x, side.y);
    };
    std::stable_sort(sides.begin(), sides.end(),
                     [&](const Point& a, const Point& b) { return agreement(a) > agreement(b) + 1e-9; });
    return sides;
}

Words::Align AlignAt(const Point& side) {
    return side.x > 0 ? Words::Align::Left : side.x < 0 ? Words::Align::Right : Words::Align::Centre;
}

}  // namespace

PlanSketch::PlanSketch(const PlanView& view, const TextMeasure& measure)
    : map_(view), room_(view.size), measure_(measure) {}

void PlanSketch::AddLine(Layer layer, const std::vector<Point>& points, const Line& style) {
    constexpr double Leap = 0.4;  // radians
    const double leap = map_.View().scale / RadiansPerNauticalMile * Leap;
    Line shown = style;
    const auto end = [&] {
        if (shown.points.size() > 1) ItemsOf(layer).emplace_back(shown);
        shown.points.clear();
    };
    for (std::size_t i = 1; i < points.size(); ++i) {
        const Point& from = points[i - 1];
        const Point& to = points[i];
        const auto part = std::hypot(to.x - from.x, to.y - from.y) < leap
                              ? Clipped(from, to, map_.View().size)
                              : std::nullopt;
        if (!part || (!shown.points.empty() && shown.points.back() != part->first)) end();
        if (!part) continue;
        if (shown.points.empty()) shown.points.push_back(part->first);
        shown.points.push_back(part->second);
    }
    end();
}

void PlanSketch::AddRing(const Point& middle, double radius, Role role) {
    constexpr int Corners = 24;
    std::vector<Point> points;
    for (int i = 0; i <= Corners; ++i) {
        const double angle = 2 * std::numbers::pi * i / Corners;
        points.push_back({middle.x + radius * std::cos(angle), middle.y + radius * std::sin(angle)});
    }
    AddLine(Layer::Symbols, points, {.role = role});
}

void PlanSketch::AddSymbol(Layer layer, const Symbol& symbol) {
    if (map_.Shows(symbol.at, SymbolMargin)) ItemsOf(layer).emplace_back(symbol);
}

void PlanSketch::AddWords(const Words& words) {
    ItemsOf(Layer::Words).emplace_back(words);
}

bool PlanSketch::PlaceBlock(const WordBlock& label, const Point& point, double gap, PictureRoom::Over over,
                            const Point& toward) {
    constexpr double Apart = 3;  // from other words on the same height
    const Size size = SizeOf(label, *this);
    for (const Point& side : SidesFrom(toward)) {
        // Above and below it may begin beside the point.
        const double across = side.y == 0 ? gap : gap * 0.3;
        const TurnedBox box{
            {point.x + side.x * (across + size.width / 2), point.y + side.y * (gap + size.height / 2)}, size};
        if (!room_.IsFree({box.middle, {size.width + Apart, size.height}}, over)) continue;
        room_.Take(box);
        AddBlock(label, box, AlignAt(side));
        return true;
    }
    return false;
}

void PlanSketch::AddBlock(const WordBlock& label, const TurnedBox& box, Words::Align align) {
    double top = box.middle.y - box.size.height / 2;
    for (const auto& pieces : label.lines) {
        const double spare = box.size.width - LineWidth(pieces, *this);
        const double share = align == Words::Align::Left ? 0 : align == Words::Align::Right ? 1 : 0.5;
        double left = box.middle.x - box.size.width / 2 + spare * share;
        const double height = LineHeight(pieces);
        for (const Words& piece : pieces) {
            Words words = piece;
            words.at = {left, top + height / 2};
            words.align = Words::Align::Left;
            words.target = label.target;
            left += WidthOf(words) + PieceGap;
            AddWords(words);
        }
        top += height;
    }
}

Drawing PlanSketch::Finish() const {
    Drawing drawing{map_.View().size, {}};
    for (const auto& layer : layers_) drawing.items.insert(drawing.items.end(), layer.begin(), layer.end());
    return drawing;
}

}  // namespace tarvex
