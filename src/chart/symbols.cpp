#include "chart/symbols.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tarvex {

namespace {

using Fill = SymbolPart::Fill;

// Shares of the symbol's size, round its middle.
constexpr double Radius = 0.42;
constexpr double Dot = 0.09;
constexpr double LineWidth = 0.085;
constexpr double ThinnestLine = 1;  // in units of the picture

constexpr double Up = -std::numbers::pi / 2;

std::vector<Point> Corners(int count, double turn, double outer, double inner, double below = 0) {
    std::vector<Point> corners;
    for (int i = 0; i < count; ++i) {
        const double angle = 2 * std::numbers::pi * i / count + turn;
        const double radius = i % 2 == 0 ? outer : inner;
        corners.push_back({radius * std::cos(angle), radius * std::sin(angle) + below});
    }
    return corners;
}

std::vector<Point> Arc(double radius, double from, double to) {
    constexpr int Steps = 16;
    std::vector<Point> points;
    for (int i = 0; i <= Steps; ++i) {
        const double angle = from + (to - from) * i / Steps;
        points.push_back({radius * std::cos(angle), radius * std::sin(angle)});
    }
    return points;
}

SymbolPart Stroke(std::vector<Point> points) {
    return {.points = std::move(points), .width = LineWidth};
}

SymbolPart Body(std::vector<Point> points, Fill fill) {
    return {.points = std::move(points), .closed = true, .fill = fill, .width = LineWidth};
}

SymbolPart Circle(double radius, Fill fill, double width = LineWidth, Point at = {}) {
    return {.points = {at}, .radius = radius, .fill = fill, .width = width};
}

SymbolPart Disc(double radius, Point at = {}) {
    return Circle(radius, Fill::Ink, 0, at);
}

std::vector<SymbolPart> NdbParts() {
    std::vector<SymbolPart> parts = {Circle(0.16, Fill::Page), Disc(Dot * 0.8)};
    for (const auto& [dots, radius] : {std::pair{10, 0.30}, {16, 0.44}}) {
        for (const Point& at : Corners(dots, Up, radius, radius)) parts.push_back(Disc(0.045, at));
    }
    return parts;
}

std::vector<SymbolPart> ArrowBack(double mirror) {
    std::vector<Point> bow = Arc(0.30, 0.75 * std::numbers::pi, 2.1 * std::numbers::pi);
    std::vector<Point> head = {{-0.44, -0.02}, {-0.22, 0.30}, {-0.02, -0.02}};
    for (Point& point : bow) point.x *= mirror;
    for (Point& point : head) point.x *= mirror;
    std::reverse(bow.begin(), bow.end());
    return {Stroke(std::move(bow)), Stroke(std::move(head))};
}

// In shares of the size, upright and round nothing.
std::vector<SymbolPart> PlainParts(Glyph glyph, Fill body) {
    switch (glyph) {
        case Glyph::Fix:
            return {Body(Corners(3, Up, Radius, Radius, 0.08), body)};
        case Glyph::Vor:
        case Glyph::Navaid:
            return {Body(Corners(6, 0, Radius, Radius), Fill::Page), Disc(Dot)};
        case Glyph::Ndb:
            return NdbParts();
        case Glyph::Runway:
            return {Body({{-0.11, -0.5}, {0.11, -0.5}, {0.11, 0.5}, {-0.11, 0.5}}, body)};
        case Glyph::Waypoint:
            return {Body(Corners(8, Up, Radius * 1.05, Radius * 0.36), body)};
        case Glyph::Airport:
            return {Circle(Radius, Fill::Page),
                    {.points = {{-0.2, 0.2}, {0.2, -0.2}}, .width = 2 * LineWidth}};
        case Glyph::Plus:
            return {Stroke({{-0.34, 0}, {0.34, 0}}), Stroke({{0, -0.34}, {0, 0.34}})};
        case Glyph::Minus:
            return {Stroke({{-0.34, 0}, {0.34, 0}})};
        case Glyph::Fit:
            return {Stroke({{-0.38, -0.14}, {-0.38, -0.38}, {-0.14, -0.38}}),
                    Stroke({{0.14, -0.38}, {0.38, -0.38}, {0.38, -0.14}}),
                    Stroke({{0.38, 0.14}, {0.38, 0.38}, {0.14, 0.38}}),
                    Stroke({{-0.14, 0.38}, {-0.38, 0.38}, {-0.38, 0.14}}), Disc(0.1)};
        case Glyph::Save:
            return {Stroke({{0, -0.42}, {0, 0.14}}), Stroke({{-0.2, -0.06}, {0, 0.14}, {0.2, -0.06}}),
                    Stroke({{-0.38, 0.16}, {-0.38, 0.38}, {0.38, 0.38}, {0.38, 0.16}})};
        case Glyph::Undo:
            return ArrowBack(1);
        case Glyph::Redo:
            return ArrowBack(-1);
    }
    return {};
}

}  // namespace

std::vector<SymbolPart> PartsOf(const Symbol& symbol) {
    auto parts = PlainParts(symbol.glyph, symbol.hollow ? Fill::Page : Fill::Ink);
    const double sine = std::sin(symbol.turn) * symbol.size;
    const double cosine = std::cos(symbol.turn) * symbol.size;
    for (SymbolPart& part : parts) {
        for (Point& point : part.points) {
            point = {symbol.at.x + point.x * cosine - point.y * sine,
                     symbol.at.y + point.x * sine + point.y * cosine};
        }
        part.radius *= symbol.size;
        if (part.width > 0) part.width = std::max(part.width * symbol.size, ThinnestLine);
    }
    return parts;
}

}  // namespace tarvex
