#include "toolkit/drawing.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarvex {

namespace {

constexpr double Reach = 8;              // of the pointer round a symbol's middle
constexpr double CharacterShare = 0.58;  // of the size of words: the width of a character, by and large
constexpr double Far = std::numeric_limits<double>::infinity();

double DistanceTo(const Line&, Point) {
    return Far;
}

double DistanceTo(const Symbol& symbol, Point point) {
    const double distance = std::hypot(point.x - symbol.at.x, point.y - symbol.at.y);
    return distance <= std::max(Reach, symbol.size / 2) ? distance : Far;
}

// The words of a symbol stand for it, but less than the symbol itself.
double DistanceTo(const Words& words, Point point) {
    const double width = CharacterShare * words.size * static_cast<double>(words.text.size());
    const double left = words.at.x - width * static_cast<double>(words.align) / 2;
    const bool inside =
        point.x >= left && point.x <= left + width && std::abs(point.y - words.at.y) <= words.size / 2;
    return inside ? Reach : Far;
}

Target TargetOf(const Line&) {
    return {};
}

Target TargetOf(const auto& item) {
    return item.target;
}

}  // namespace

Target TargetAt(const Drawing& drawing, Point point) {
    Target nearest;
    double least = Far;
    for (const DrawnItem& item : drawing.items) {
        const Target target = std::visit([](const auto& each) { return TargetOf(each); }, item);
        if (target.kind == Target::Kind::None) continue;
        const double distance =
            std::visit([point](const auto& each) { return DistanceTo(each, point); }, item);
        if (distance == Far) continue;
        const bool row = target.kind == Target::Kind::Row;
        const bool nearestIsRow = nearest.kind == Target::Kind::Row;
        if (row == nearestIsRow ? distance > least : nearestIsRow) continue;
        nearest = target;
        least = distance;
    }
    return nearest;
}

}  // namespace tarvex
