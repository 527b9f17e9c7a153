#include "chart/graticule.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <numeric>
#include <string>

#include "geometry/rhumb_line.h"
#include "geometry/text_rules.h"

namespace tarvex {

namespace {

constexpr double FewestPixelsApart = 90;
constexpr int FewestSteps = 24;  // of a line's points
constexpr double DegreesOfAStep = 2;
constexpr double MeridiansAtAPole = 30;

// Minutes of arc between lines.
constexpr std::array<double, 15> Distances = {1.0 / 60, 5.0 / 60, 0.25, 1,   2,   5,   10,  15,
                                              30,       60,       120,  300, 600, 900, 1800};

double DistanceOf(double pixelsPerMinute) {
    const auto found = std::find_if(Distances.begin(), Distances.end(), [=](double minutes) {
        return minutes * pixelsPerMinute >= FewestPixelsApart;
    });
    return (found == Distances.end() ? Distances.back() : *found) / 60;
}

// The parallels and meridians of a view, in degrees.
struct Lines {
    double south, north, parallels;
    double west, east, meridians;
};

Lines LinesOf(const PlanView& view) {
    const double reach = std::hypot(view.size.width, view.size.height) / 2 / view.scale / 60;
    const double latitude = view.middle.latitude;
    const double longitude = view.middle.longitude;
    Lines lines{
        std::max(latitude - reach, -90.0), std::min(latitude + reach, 90.0), DistanceOf(view.scale), 0, 0, 0};
    const bool holdsPole = lines.south <= -90 || lines.north >= 90;
    const double cosine = std::cos(latitude * RadiansPerDegree);
    lines.meridians = holdsPole ? MeridiansAtAPole : DistanceOf(view.scale * cosine);
    const double half =
        holdsPole ? 180
                  : std::asin(std::min(std::sin(reach * RadiansPerDegree) / cosine, 1.0)) * DegreesPerRadian;
    lines.west = longitude - half;
    lines.east = longitude + half;
    return lines;
}

// Calls `use` with each multiple of `distance` from `low` to `high`.
template <class Use>
void ForEachMultiple(double low, double high, double distance, Use use) {
    const double first = std::ceil(low / distance - 1e-9);
    const auto steps = static_cast<int>(std::floor(high / distance + 1e-9) - first);
    for (int step = 0; step <= steps; ++step) use((first + step) * distance);
}

// The way between two positions of a parallel or meridian, finer where the map stretches it, near the rim.
void AddWay(std::vector<Point>& points, const Projection& map, Position from, Position to, int halvings) {
    constexpr double LongestPiece = 0.1;  // radians of the map
    const Point point = map.ToPoint(to);
    const double length = std::hypot(point.x - points.back().x, point.y - points.back().y);
    if (halvings == 0 || length < LongestPiece / RadiansPerNauticalMile * map.View().scale) {
        points.push_back(point);
        return;
    }
    const Position middle{std::midpoint(from.latitude, to.latitude),
                          std::midpoint(from.longitude, to.longitude)};
    AddWay(points, map, from, middle, halvings - 1);
    AddWay(points, map, middle, to, halvings - 1);
}

std::vector<Point> PointsOn(const Projection& map, Position from, Position to) {
    constexpr int MostHalvings = 6;
    std::vector<Point> points = {map.ToPoint(from)};
    const double span = std::max(to.latitude - from.latitude, to.longitude - from.longitude);
    const int steps = FewestSteps + static_cast<int>(span / DegreesOfAStep);
    const auto at = [&](int step) {
        const double share = static_cast<double>(step) / steps;
        return Position{std::lerp(from.latitude, to.latitude, share),
                        std::lerp(from.longitude, to.longitude, share)};
    };
    for (int step = 1; step <= steps; ++step) AddWay(points, map, at(step - 1), at(step), MostHalvings);
    return points;
}

void DrawRim(PlanSketch& sketch) {
    const PlanView& view = sketch.Map().View();
    const double radius = view.scale / RadiansPerNauticalMile * std::numbers::pi;
    if (radius > std::hypot(view.size.width, view.size.height) / 2) return;
    std::vector<Point> points;
    for (int i = 0; i <= 120; ++i) {
        const double angle = 2 * std::numbers::pi * i / 120;
        points.push_back({view.size.width / 2 + radius * std::cos(angle),
                          view.size.height / 2 + radius * std::sin(angle)});
    }
    sketch.AddLine(PlanSketch::Layer::Ground, points, {.role = Role::Grid});
}

// "N33°30'", with seconds only where lines lie so close.
std::string Figure(double degrees, const char* hemispheres, double distance) {
    const double seconds = std::round(std::fabs(degrees) * 3600);
    std::string text(1, hemispheres[degrees < -1e-9 ? 1 : 0]);
    text += NumberText(std::floor(seconds / 3600)) + "°";
    const double minutes = std::floor(std::fmod(seconds, 3600) / 60);
    const auto twoDigits = [](double number) { return (number < 10 ? "0" : "") + NumberText(number); };
    if (distance < 1) text += twoDigits(minutes) + "'";
    if (distance < 1.0 / 60) text += twoDigits(std::fmod(seconds, 60)) + "\"";
    return text;
}

// Where the line through `points` first crosses the upright (or level) line through `place`.
std::optional<Point> Crossing(const std::vector<Point>& points, bool upright, double place) {
    for (std::size_t i = 1; i < points.size(); ++i) {
        const Point& from = points[i - 1];
        const Point& to = points[i];
        const double before = (upright ? from.x : from.y) - place;
        const double after = (upright ? to.x : to.y) - place;
        if (before * after > 0 || before == after) continue;
        const double share = before / (before - after);
        return Point{from.x + share * (to.x - from.x), from.y + share * (to.y - from.y)};
    }
    return std::nullopt;
}

void PutFigure(PlanSketch& sketch, const std::string& text, const std::optional<Point>& at,
               Words::Align align) {
    if (!at) return;
    Words words{.text = text, .at = *at, .align = align, .role = Role::Scale, .size = 9};
    const double width = sketch.WidthOf(words);
    const TurnedBox box{{at->x + (align == Words::Align::Left ? width / 2 : 0), at->y}, {width, words.size}};
    if (!sketch.Room().IsFree(box, PictureRoom::Over::Nothing)) return;
    sketch.Room().Take(box);
    sketch.AddWords(words);
}

double LengthOfBar(double scale) {
    constexpr double LongestBar = 110;
    constexpr double Leads[] = {1, 2, 5};
    double length = 0;
    for (int power = -2; power <= 4; ++power) {
        for (const double lead : Leads) {
            const double miles = lead * std::pow(10, power);
            if (miles * scale <= LongestBar) length = miles;
        }
    }
    return length;
}

}  // namespace

void DrawGraticule(PlanSketch& sketch) {
    const Projection& map = sketch.Map();
    const Lines lines = LinesOf(map.View());
    const Line style{.role = Role::Grid};
    DrawRim(sketch);
    ForEachMultiple(lines.south, lines.north, lines.parallels, [&](double latitude) {
        sketch.AddLine(PlanSketch::Layer::Ground,
                       PointsOn(map, {latitude, lines.west}, {latitude, lines.east}), style);
    });
    ForEachMultiple(lines.west, lines.east, lines.meridians, [&](double longitude) {
        sketch.AddLine(PlanSketch::Layer::Ground,
                       PointsOn(map, {lines.south, longitude}, {lines.north, longitude}), style);
    });
}

void DrawGraticuleFigures(PlanSketch& sketch) {
    constexpr double Inset = 4;  // pixels from the edges
    constexpr double Above = 7;  // the line that a figure stands for
    const Projection& map = sketch.Map();
    const Lines lines = LinesOf(map.View());
    ForEachMultiple(lines.south, lines.north, lines.parallels, [&](double latitude) {
        auto at = Crossing(PointsOn(map, {latitude, lines.west}, {latitude, lines.east}), true, Inset);
        if (at) at->y -= Above;
        PutFigure(sketch, Figure(latitude, "NS", lines.parallels), at, Words::Align::Left);
    });
    ForEachMultiple(lines.west, lines.east, lines.meridians, [&](double longitude) {
        auto at =
            Crossing(PointsOn(map, {lines.south, longitude}, {lines.north, longitude}), false, Inset + 6);
        if (at) at->x += Inset;
        PutFigure(sketch, Figure(std::remainder(longitude, 360), "EW", lines.meridians), at,
                  Words::Align::Left);
    });
}

void DrawScaleBar(PlanSketch& sketch) {
    constexpr double Inset = 12;  // pixels from the picture's edges
    constexpr double Tick = 4;
    constexpr double Gap = 6;  // between the bar and its words
    const PlanView& view = sketch.Map().View();
    const double miles = LengthOfBar(view.scale);
    Words words{.text = NumberText(miles) + " NM", .role = Role::Scale, .size = 10};
    const double length = miles * view.scale;
    const double width = length + Gap + sketch.WidthOf(words);
    const double right = view.size.width - Inset - width;
    const double bottom = view.size.height - Inset;
    for (const Point& left :
         {Point{Inset, bottom}, {right, bottom}, {right, 2 * Inset}, {Inset, 2 * Inset}}) {
        const TurnedBox box{{left.x + width / 2, left.y - Tick / 2}, {width, words.size + 2}};
        if (!sketch.Room().IsFree(box, PictureRoom::Over::Symbols)) continue;
        sketch.Room().Take(box);
        const double end = left.x + length;
        sketch.AddFigure(PlanSketch::Layer::Symbols,
                         {.points = {{left.x, left.y - Tick}, left, {end, left.y}, {end, left.y - Tick}},
                          .role = Role::Scale});
        words.at = {end + Gap, left.y - Tick / 2};
        sketch.AddWords(words);
        return;
    }
}

}  // namespace tarvex
