#include "chart/plan_route.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string_view>

#include "chart/route_words.h"
#include "navigation/search_hit.h"

namespace tarvex {

namespace {

constexpr double NameSize = 12;
constexpr double NoteSize = 10.5;
constexpr double RowSymbol = 12;
constexpr double SelectedSymbol = 16;
constexpr double ArcSymbol = 8;
constexpr double LineRoom = 3;  // pixels across a line that words keep off
constexpr double Gap = 4;       // between a symbol's edge and its words

// A middle of a line's shown part, and how it runs there.
struct Middle {
    Point at;
    double turn = 0;    // of the line's direction, radians clockwise from rightward
    double length = 0;  // pixels of the shown part
};

Middle MiddleOfShown(const std::vector<Point>& points, const Size& size) {
    std::vector<std::pair<Point, Point>> parts;
    Middle middle;
    const auto lengthOf = [](const auto& part) {
        return std::hypot(part.second.x - part.first.x, part.second.y - part.first.y);
    };
    for (std::size_t i = 1; i < points.size(); ++i) {
        const auto part = Clipped(points[i - 1], points[i], size);
        if (!part || lengthOf(*part) == 0) continue;
        parts.push_back(*part);
        middle.length += lengthOf(*part);
    }
    double left = middle.length / 2;
    for (const auto& part : parts) {
        const double length = lengthOf(part);
        if (left > length) {
            left -= length;
            continue;
        }
        const double share = left / length;
        const auto& [from, to] = part;
        middle.at = {from.x + share * (to.x - from.x), from.y + share * (to.y - from.y)};
        middle.turn = std::atan2(to.y - from.y, to.x - from.x);
        break;
    }
    return middle;
}

// As long as it hardly bends between them, two points are enough.
std::vector<Point> PointsOf(const Projection& map, const Position& from, const Position& to, double miles) {
    constexpr double StraightMiles = 25;
    constexpr int MostSteps = 16;
    const int steps = std::clamp(static_cast<int>(miles / StraightMiles), 1, MostSteps);
    std::vector<Point> points = {map.ToPoint(from)};
    for (int step = 1; step < steps; ++step) {
        points.push_back(map.ToPoint(RhumbPointBetween(from, to, static_cast<double>(step) / steps)));
    }
    points.push_back(map.ToPoint(to));
    return points;
}

Glyph GlyphOf(const RoutePoint& point) {
    if (point.runway) return Glyph::Runway;
    if (point.frequency.empty()) return Glyph::Fix;
    return IsInKilohertz(point.frequency) ? Glyph::Ndb : Glyph::Vor;
}

// An altitude as printed charts have it: lines below and above say from where on and up to where.
void AddAltitude(const AltitudeRestriction& altitude, WordBlock& label, Role role) {
    using enum AltitudeRestriction::Kind;
    const auto add = [&](double feet, bool underlined, bool overlined) {
        label.lines.push_back({{.text = FeetText(feet),
                                .role = role,
                                .size = NoteSize,
                                .underlined = underlined,
                                .overlined = overlined}});
    };
    switch (altitude.kind) {
        case None:
            break;
        case At:
            add(altitude.low, true, true);
            break;
        case AtOrAbove:
            add(altitude.low, true, false);
            break;
        case AtOrBelow:
            add(altitude.high, false, true);
            break;
        case Between:
            add(altitude.high, false, true);
            add(altitude.low, true, false);
            break;
    }
}

WordBlock NameBlock(const RoutePoint& point, Role role, const Target& target) {
    return {{{{.text = point.name, .role = role, .size = NameSize, .bold = true}}}, target};
}

WordBlock WholeBlock(const RoutePoint& point, Role role, Role notes, const Target& target) {
    WordBlock label = NameBlock(point, role, target);
    AddAltitude(point.altitude, label, notes);
    if (point.speed > 0) {
        if (label.lines.size() == 1) label.lines.emplace_back();
        label.lines.back().push_back({.text = FeetText(point.speed) + "K", .role = notes, .size = NoteSize});
    }
    return label;
}

// Beside a symbol of the given size.
bool Place(PlanSketch& sketch, const WordBlock& whole, const WordBlock& name, const Point& at, double size,
           const Point& toward) {
    using enum PictureRoom::Over;
    const double gap = size / 2 + Gap;
    return sketch.PlaceBlock(whole, at, gap, Nothing, toward) ||
           sketch.PlaceBlock(whole, at, gap + 10, Nothing, toward) ||
           sketch.PlaceBlock(whole, at, gap, Symbols, toward) ||
           sketch.PlaceBlock(name, at, gap, Nothing, toward) ||
           sketch.PlaceBlock(name, at, gap, Symbols, toward) ||
           sketch.PlaceBlock(name, at, gap + 24, Symbols, toward);
}

std::string_view StemOf(std::string_view name) {
    return name.substr(0, name.find_last_not_of("0123456789") + 1);
}

// Whether the row is one of an arc's points, neither the first nor the last of them.
bool IsWithinArc(const Route& route, std::size_t row) {
    if (row == 0 || row + 1 >= route.points.size()) return false;
    const std::string& name = route.points[row].name;
    const std::string_view stem = StemOf(name);
    return !stem.empty() && stem.size() < name.size() && StemOf(route.points[row - 1].name) == stem &&
           StemOf(route.points[row + 1].name) == stem;
}

}  // namespace

PlanRoute::PlanRoute(PlanSketch& sketch, const PlanContent& content) : sketch_(sketch), content_(content) {
    const Position* before = nullptr;
    for (const RoutePoint& point : content.route.points) {
        rowPlaces_.push_back(point.position ? std::optional(sketch.Map().ToPoint(*point.position))
                                            : std::nullopt);
        if (rowPlaces_.back()) places_.push_back(*rowPlaces_.back());
        if (point.leg && before != nullptr) AddLeg(*before, *point.position, Role::Route);
        before = point.position ? &*point.position : nullptr;
    }
    AddDrafts();
    for (const Leg& leg : legs_) lines_.push_back(leg.points);
}

void PlanRoute::AddLeg(const Position& from, const Position& to, Role role) {
    const RhumbLeg flown = RhumbLegBetween(from, to);
    legs_.push_back({PointsOf(sketch_.Map(), from, to, flown.miles), flown, role});
}

void PlanRoute::AddDrafts() {
    const PlanDrafts& drafts = content_.drafts;
    if (drafts.derived) AddLeg(drafts.derived->start, drafts.derived->end, Role::Draft);
    for (std::size_t i = 1; i < drafts.arc.size(); ++i) {
        legs_.push_back({PointsOf(sketch_.Map(), drafts.arc[i - 1], drafts.arc[i], 0), {}, Role::Draft});
    }
    if (!drafts.waypoint || !drafts.waypoint->position) return;
    const auto& points = content_.route.points;
    const auto rows = static_cast<int>(points.size());
    const int row = drafts.replaces < 0 ? rows : drafts.replaces;
    for (const auto& [neighbour, leads] : {std::pair{row - 1, true}, {row + 1, false}}) {
        if (neighbour < 0 || neighbour >= rows) continue;
        const auto& other = points[static_cast<std::size_t>(neighbour)].position;
        if (!other) continue;
        const Position& own = *drafts.waypoint->position;
        leads ? AddLeg(*other, own, Role::Draft) : AddLeg(own, *other, Role::Draft);
    }
}

void PlanRoute::DrawLinesAndSymbols() {
    for (const Leg& leg : legs_) DrawLeg(leg);
    const auto selected = static_cast<std::size_t>(content_.selected);
    for (std::size_t row = 0; row < rowPlaces_.size(); ++row) {
        if (row != selected && rowPlaces_[row]) DrawRow(row);
    }
    if (selected < rowPlaces_.size() && rowPlaces_[selected]) DrawRow(selected);
    const PlanDrafts& drafts = content_.drafts;
    const auto draft = [this](Glyph glyph, const Position& position, double size) {
        const Point at = sketch_.Map().ToPoint(position);
        sketch_.AddSymbol(PlanSketch::Layer::Symbols,
                          {.glyph = glyph, .at = at, .size = size, .role = Role::Draft, .hollow = true});
        sketch_.Room().Take({at, {size, size}});
    };
    for (const Position& position : drafts.arc) draft(Glyph::Waypoint, position, ArcSymbol);
    if (drafts.derived) draft(Glyph::Waypoint, drafts.derived->end, RowSymbol);
    if (drafts.waypoint && drafts.waypoint->position) {
        draft(GlyphOf(*drafts.waypoint), *drafts.waypoint->position, RowSymbol);
    }
}

void PlanRoute::DrawLeg(const Leg& leg) {
    constexpr double ShortestWithArrow = 26;  // pixels
    constexpr double Arrow = 4.5;
    const bool draft = leg.role == Role::Draft;
    sketch_.AddLine(PlanSketch::Layer::Lines, leg.points, {.role = leg.role, .dashed = draft});
    for (std::size_t i = 1; i < leg.points.size(); ++i) {
        sketch_.Room().TakeLine(leg.points[i - 1], leg.points[i], LineRoom);
    }
    const Middle middle = MiddleOfShown(leg.points, sketch_.Map().View().size);
    if (middle.length < ShortestWithArrow || leg.flown.miles == 0) return;
    const double along = std::cos(middle.turn) * Arrow;
    const double across = std::sin(middle.turn) * Arrow;
    const Point tip{middle.at.x + along, middle.at.y + across};
    const Point tail{middle.at.x - along, middle.at.y - across};
    sketch_.AddLine(PlanSketch::Layer::Lines,
                    {{tail.x - across * 0.8, tail.y + along * 0.8},
                     tip,
                     {tail.x + across * 0.8, tail.y - along * 0.8},
                     {tail.x - across * 0.8, tail.y + along * 0.8}},
                    {.role = leg.role, .filled = true});
}

double PlanRoute::SizeOf(std::size_t row) const {
    if (content_.selected == static_cast<int>(row)) return SelectedSymbol;
    return IsWithinArc(content_.route, row) ? ArcSymbol : RowSymbol;
}

void PlanRoute::DrawRow(std::size_t row) {
    const RoutePoint& point = content_.route.points[row];
    const bool selected = content_.selected == static_cast<int>(row);
    const double size = SizeOf(row);
    Symbol symbol{.glyph = GlyphOf(point),
                  .at = *rowPlaces_[row],
                  .size = size,
                  .role = selected ? Role::Selected : Role::Route,
                  .target = {Target::Kind::Row, static_cast<int>(row)}};
    if (point.runway && point.leg && rowPlaces_[row - 1]) {
        symbol.turn = std::atan2(symbol.at.y - rowPlaces_[row - 1]->y, symbol.at.x - rowPlaces_[row - 1]->x) +
                      std::numbers::pi / 2;
    }
    sketch_.AddSymbol(PlanSketch::Layer::Symbols, symbol);
    sketch_.Room().Take({symbol.at, {size, size}});
}

void PlanRoute::DrawWords() {
    const auto rows = content_.route.points.size();
    const auto selected = static_cast<std::size_t>(content_.selected);
    if (selected < rows) LabelRow(selected);
    for (std::size_t row = 0; row < rows; ++row) {
        if (row != selected && !IsWithinArc(content_.route, row)) LabelRow(row);
    }
    LabelDraft();
    for (const Leg& leg : legs_) LabelLeg(leg);
    for (std::size_t row = 0; row < rows; ++row) {
        if (row != selected && IsWithinArc(content_.route, row)) LabelRow(row);
    }
}

void PlanRoute::LabelRow(std::size_t row) {
    constexpr double FewestApart = 40;  // pixels between points of an arc that have their names
    if (!rowPlaces_[row] || !sketch_.Map().Shows(*rowPlaces_[row])) return;
    const RoutePoint& point = content_.route.points[row];
    const bool selected = content_.selected == static_cast<int>(row);
    if (!selected && IsWithinArc(content_.route, row)) {
        const auto& before = rowPlaces_[row - 1];
        const Point& at = *rowPlaces_[row];
        if (before && std::hypot(before->x - at.x, before->y - at.y) < FewestApart) return;
    }
    const Role role = selected ? Role::Selected : Role::Route;
    const Target target{Target::Kind::Row, static_cast<int>(row)};
    Place(sketch_, WholeBlock(point, role, selected ? role : Role::Note, target),
          NameBlock(point, role, target), *rowPlaces_[row], SizeOf(row), FreeSide(row));
}

Point PlanRoute::FreeSide(std::size_t row) const {
    const Point& at = *rowPlaces_[row];
    Point side;
    Point along;
    const auto lean = [&](std::size_t neighbour) {
        if (neighbour >= rowPlaces_.size() || !rowPlaces_[neighbour]) return;
        const double x = rowPlaces_[neighbour]->x - at.x;
        const double y = rowPlaces_[neighbour]->y - at.y;
        const double length = std::hypot(x, y);
        if (length == 0) return;
        along = {x / length, y / length};
        side = {side.x - along.x, side.y - along.y};
    };
    if (row > 0) lean(row - 1);
    lean(row + 1);
    constexpr double Straight = 0.3;  // less than this the legs are nearly in line
    if (std::hypot(side.x, side.y) > Straight) return side;
    return along.y < 0 ? Point{-along.y, along.x} : Point{along.y, -along.x};
}

void PlanRoute::LabelLeg(const Leg& leg) {
    constexpr double Spare = 24;  // pixels of a leg beside its words
    constexpr double Off = 11;    // from the line to the words' middle
    if (leg.flown.miles == 0) return;
    const Middle middle = MiddleOfShown(leg.points, sketch_.Map().View().size);
    // Words are never upside down.
    const double upright = std::remainder(middle.turn, std::numbers::pi);
    const std::string course = CourseText(leg.flown.course) + "°";
    for (const std::string& text : {course + "  " + MilesText(leg.flown.miles), course}) {
        Words words{.text = text,
                    .align = Words::Align::Centre,
                    .role = leg.role == Role::Draft ? Role::Draft : Role::Note,
                    .size = NoteSize,
                    .turn = upright};
        const double width = sketch_.WidthOf(words);
        if (middle.length < width + Spare) continue;
        for (const double off : {Off, -Off}) {
            words.at = {middle.at.x + std::sin(upright) * off, middle.at.y - std::cos(upright) * off};
            const TurnedBox box{words.at, {width, words.size + 1}, upright};
            if (!sketch_.Room().IsFree(box, PictureRoom::Over::Symbols)) continue;
            sketch_.Room().Take(box);
            sketch_.AddWords(words);
            return;
        }
    }
}

void PlanRoute::LabelDraft() {
    const auto& draft = content_.drafts.waypoint;
    if (!draft || !draft->position || draft->name.empty()) return;
    const Point at = sketch_.Map().ToPoint(*draft->position);
    Place(sketch_, WholeBlock(*draft, Role::Draft, Role::Draft, {}), NameBlock(*draft, Role::Draft, {}), at,
          RowSymbol, {1, -0.5});
}

}  // namespace tarvex
