// Sources: chart/route.cpp chart/route_words.cpp chart/plan_view.cpp chart/projection.cpp
// chart/plan_scene.cpp Sources: chart/plan_route.cpp chart/plan_sketch.cpp chart/surroundings.cpp
// chart/graticule.cpp chart/airport.cpp Sources: chart/nearness.cpp chart/picture_room.cpp
// chart/position_grid.cpp chart/target_words.cpp Sources: chart/profile_scene.cpp chart/sheet.cpp
// chart/svg_writer.cpp chart/symbols.cpp Any rows and entries as a chart, a profile and a sheet: numbers are
// finite, and the SVG is well-formed. A line is a row, a draft or an entry, by its first character; its
// fields are parted by commas.

#include <algorithm>
#include <cmath>
#include <expat.h>
#include <optional>
#include <string>
#include <vector>

#include "chart/even_letters.h"
#include "chart/plan_scene.h"
#include "chart/plan_view.h"
#include "chart/profile_scene.h"
#include "chart/route_words.h"
#include "chart/sheet.h"
#include "chart/svg_writer.h"
#include "chart/target_words.h"
#include "geometry/text_rules.h"
#include "target.h"

namespace tarvex::fuzzing {
namespace {

// The parts between the marks; empty ones for what isn't there.
std::vector<std::string_view> Parts(std::string_view text, char mark, std::size_t least) {
    std::vector<std::string_view> parts;
    while (true) {
        const std::size_t end = std::min(text.find(mark), text.size());
        parts.push_back(text.substr(0, end));
        if (end == text.size()) break;
        text.remove_prefix(end + 1);
    }
    parts.resize(std::max(parts.size(), least));
    return parts;
}

using testing::EvenLetters;

struct Input {
    std::vector<WaypointRecord> rows;
    NavigationTables tables;
    PlanDrafts drafts;
    std::optional<PlanView> view;
    Target marked;
};

WaypointRecord RowOf(std::string_view line) {
    const auto part = Parts(line, ',', 14);
    return {.WaypointID = part[1],
            .WaypointType = part[2],
            .LatDecimal = std::string(part[3]),
            .LatDegrees = std::string(part[4]),
            .LatMinutes = std::string(part[5]),
            .CoordinatesEdited = part[6].empty() ? False : True,
            .LongDecimal = std::string(part[7]),
            .LongDegrees = std::string(part[8]),
            .LongMinutes = std::string(part[9]),
            .Frequency = part[10],
            .Airspeed = part[11],
            .Altitude2 = part[12],
            .Altitude1 = part[13],
            .RestrictionType = part.back()};
}

// A number of the earth, whatever stands there.
double Within(std::string_view text, double most) {
    const double number = LeadingNumber(text);
    return std::isfinite(number) ? std::remainder(number, 2 * most) : most;
}

Position PlaceOf(std::string_view latitude, std::string_view longitude) {
    return {Within(latitude, 90), Within(longitude, 180)};
}

void TakeLine(std::string_view line, Input& input) {
    const auto part = Parts(line, ',', 6);
    NavigationTables& tables = input.tables;
    switch (line.front()) {
        case 'W':
            if (input.rows.size() < MaxWaypoints) input.rows.push_back(RowOf(line));
            break;
        case 'F':
            tables.FixTable[static_cast<std::size_t>(++tables.FixCount)] = {part[1], part[2], part[3]};
            break;
        case 'N':
            tables.NavaidTable[static_cast<std::size_t>(++tables.NavaidCount)] = {part[1], part[2], part[3],
                                                                                  part[4]};
            break;
        case 'A':
            tables.AirportTable[static_cast<std::size_t>(++tables.AirportCount)] = {part[1], part[2], part[3],
                                                                                    -7};
            break;
        case 'D':
            input.drafts.waypoint = RoutePointOf(RowOf(line));
            input.drafts.replaces = static_cast<int>(Within(part.back(), 300));
            break;
        case 'C':
            input.drafts.arc.push_back(PlaceOf(part[1], part[2]));
            input.drafts.derived = PlanDrafts::Derived{PlaceOf(part[1], part[2]), PlaceOf(part[3], part[4])};
            break;
        case 'V':
            input.view = PlanView{PlaceOf(part[1], part[2]), 1, {std::fabs(Within(part[4], 2000)), 300}};
            input.view = Zoomed(*input.view, std::exp(Within(part[3], 20)), {10, 10});
            break;
        default:
            break;
    }
}

bool IsFinite(const Point& point) {
    return std::isfinite(point.x) && std::isfinite(point.y);
}
bool IsFinite(const Line& line) {
    return std::all_of(line.points.begin(), line.points.end(),
                       [](const Point& point) { return IsFinite(point); });
}
bool IsFinite(const auto& item) {
    return IsFinite(item.at) && std::isfinite(item.size) && std::isfinite(item.turn);
}

void CheckSvg(const Drawing& drawing) {
    for (const DrawnItem& item : drawing.items) {
        Require(std::visit([](const auto& each) { return IsFinite(each); }, item), "what is drawn is finite");
    }
    const std::string svg = SvgText(drawing, LightPalette(), "fuzz");
    const XML_Parser parser = XML_ParserCreate(nullptr);
    const bool wellFormed =
        XML_Parse(parser, svg.data(), static_cast<int>(svg.size()), XML_TRUE) == XML_STATUS_OK;
    XML_ParserFree(parser);
    Require(wellFormed, "the SVG is well-formed", {svg});
}

void CheckPlan(const PlanView& view, const PlanContent& content) {
    const Drawing plan = PlanScene(view, content, EvenLetters());
    CheckSvg(plan);
    for (const DrawnItem& item : plan.items) {
        const auto* symbol = std::get_if<Symbol>(&item);
        if (!symbol || symbol->target.kind == Target::Kind::None) continue;
        Require(!TargetWords(symbol->target, content.route, content.tables, content.grid,
                             OriginOf(content.route, content.selected))
                     .empty(),
                "what can be pointed at has words");
    }
}

}  // namespace

void TryInput(std::string_view text) {
    constexpr std::size_t MostEntries = 1000;
    static Input input;
    input.rows.clear();
    input.drafts = {};
    input.view.reset();
    input.tables.FixCount = input.tables.NavaidCount = input.tables.AirportCount = -1;
    std::size_t lines = 0;
    for (const auto line : Parts(text, '\n', 0)) {
        if (!line.empty() && ++lines < MostEntries) TakeLine(line, input);
    }
    const Route route = RouteOf(input.rows);
    Require(std::isfinite(route.Miles()) && route.Miles() >= 0, "the sum of all legs is a distance");
    const PositionGrid grid(input.tables);
    const PlanContent content{.route = route,
                              .tables = input.tables,
                              .grid = grid,
                              .selected = static_cast<int>(text.size() % 5) - 1,
                              .drafts = input.drafts};
    CheckPlan(FitView(PositionsOf(route, input.drafts), SheetPlanSize), content);
    if (input.view) CheckPlan(*input.view, content);
    const Drawing plan = PlanScene(FitView(PositionsOf(route), SheetPlanSize), content, EvenLetters());
    const Drawing profile =
        ProfileDrawing(route, ProfileView::Whole(route), content.selected, SheetProfileSize, EvenLetters());
    CheckSvg(SheetDrawing({.title = RouteSentence(route), .plan = plan, .profile = profile, .route = route}));
    Require(std::ranges::count(LegsText(route), '\n') == static_cast<std::ptrdiff_t>(route.points.size()) + 1,
            "each row has its line");
}

}  // namespace tarvex::fuzzing
