#include "chart/plan_scene.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <random>

#include "chart/airport.h"
#include "chart/even_letters.h"
#include "chart/picture_room.h"
#include "chart/plan_view.h"
#include "chart/target_words.h"

namespace tarvex {
namespace {

using testing::EvenLetters;
using Kind = AltitudeRestriction::Kind;

RoutePoint PointAt(std::string name, double latitude, double longitude) {
    RoutePoint point;
    point.name = std::move(name);
    point.position = Position{latitude, longitude};
    return point;
}

// Around 33.9 N 118.4 W: an airport with one runway, two navaids, a fix on the way and some far from it.
class PlanSceneTest : public ::testing::Test {
  protected:
    PlanSceneTest() {
        tables.AirportTable[0] = {"KLAX07L", "33.9358", "-118.4190", 126};
        tables.AirportTable[1] = {"KLAX25R", "33.9399", "-118.3796", 94};
        tables.AirportCount = 1;
        tables.NavaidTable[0] = {"LAX", "113.60", "33.9333", "-118.4317"};
        tables.NavaidTable[1] = {"CPM", "378.00", "33.8886", "-118.2375"};
        tables.NavaidCount = 1;
        tables.FixTable[0] = {"ONWAY", "33.9200", "-118.1010"};
        for (const double latitude : {32.6, 33.2, 34.6, 35.1}) {
            tables.FixTable[static_cast<std::size_t>(++tables.FixCount) + 1] = {
                "OFF", std::to_string(latitude), "-118.2"};
        }
        ++tables.FixCount;
        route.points = {PointAt("FUELR", 33.95, -118.0), PointAt("LIMMA", 33.92, -118.2),
                        PointAt("RW25R", 33.9399, -118.3796)};
        route.points[0].altitude = {Kind::Between, 6000, 8000};
        route.points[1].altitude = {Kind::AtOrAbove, 1900, 1900};
        route.points[1].speed = 180;
        route.points[2].runway = true;
        ConnectLegs(route);
    }

    void Draw() { Draw(FitView(PositionsOf(route, drafts), {1000, 600})); }
    void Draw(const PlanView& view) {
        const PositionGrid grid(tables);
        drawing = PlanScene(view,
                            {.route = route,
                             .tables = tables,
                             .grid = grid,
                             .selected = selected,
                             .drafts = drafts,
                             .hits = hits,
                             .marked = marked},
                            EvenLetters());
    }

    template <class Item>
    std::vector<Item> All() const {
        std::vector<Item> found;
        for (const auto& each : drawing.items) {
            if (const auto* item = std::get_if<Item>(&each)) found.push_back(*item);
        }
        return found;
    }
    std::optional<Words> Find(std::string_view text) const {
        for (const auto& words : All<Words>()) {
            if (words.text == text) return words;
        }
        return std::nullopt;
    }
    std::optional<Symbol> SymbolOf(const Target& target) const {
        for (const auto& symbol : All<Symbol>()) {
            if (symbol.target == target) return symbol;
        }
        return std::nullopt;
    }
    std::size_t LinesIn(Role role, bool dashed = false) const {
        const auto lines = All<Line>();
        return static_cast<std::size_t>(std::count_if(lines.begin(), lines.end(), [=](const Line& line) {
            return line.role == role && line.dashed == dashed && !line.filled;
        }));
    }

    NavigationTables tables;
    Route route;
    int selected = -1;
    PlanDrafts drafts;
    std::vector<Target> hits;
    Target marked;
    Drawing drawing;
};

TEST_F(PlanSceneTest, ProcedureByTheConventionsOfCharts) {
    selected = 1;
    Draw();
    const struct {
        const char* text;
        Role role;
        bool underlined, overlined;
    } words[] = {
        {"FUELR", Role::Route, false, false},    {"8000", Role::Note, false, true},
        {"6000", Role::Note, true, false},       {"LIMMA", Role::Selected, false, false},
        {"1900", Role::Selected, true, false},   {"180K", Role::Selected, false, false},
        {"RW25R", Role::Route, false, false},    {"260°  10.1", Role::Note, false, false},
        {"278°  9.0", Role::Note, false, false},
    };
    for (const auto& expected : words) {
        const auto found = Find(expected.text);
        ASSERT_TRUE(found) << expected.text;
        EXPECT_EQ(found->role, expected.role) << expected.text;
        EXPECT_EQ(found->underlined, expected.underlined) << expected.text;
        EXPECT_EQ(found->overlined, expected.overlined) << expected.text;
    }
    EXPECT_LT(Find("8000")->at.y, Find("6000")->at.y);
    const auto runway = SymbolOf({Target::Kind::Row, 2});
    ASSERT_TRUE(runway);
    EXPECT_EQ(runway->glyph, Glyph::Runway);
    EXPECT_GT(SymbolOf({Target::Kind::Row, 1})->size, SymbolOf({Target::Kind::Row, 0})->size);
    EXPECT_EQ(LinesIn(Role::Route), 2U);

    route.points[1].altitude = {Kind::At, 1900, 1900};
    route.points[2].altitude = {Kind::AtOrBelow, 126, 126};
    Draw();
    EXPECT_TRUE(Find("1900")->underlined && Find("1900")->overlined);
    EXPECT_TRUE(!Find("126")->underlined && Find("126")->overlined);
}

TEST_F(PlanSceneTest, RowWithoutPositionBreaksTheLine) {
    route.points[1].position.reset();
    ConnectLegs(route);
    Draw();
    EXPECT_EQ(LinesIn(Role::Route), 0U);
    EXPECT_FALSE(SymbolOf({Target::Kind::Row, 1}));
    EXPECT_TRUE(Find("FUELR"));
}

TEST_F(PlanSceneTest, TablesAroundTheProcedure) {
    Draw({{33.92, -118.25}, 40, {1200, 600}});
    EXPECT_EQ(SymbolOf({Target::Kind::Navaid, 0})->glyph, Glyph::Vor);
    EXPECT_EQ(SymbolOf({Target::Kind::Navaid, 1})->glyph, Glyph::Ndb);
    EXPECT_TRUE(SymbolOf({Target::Kind::Fix, 0}));
    EXPECT_EQ(LinesIn(Role::Runway), 1U) << "both ends of a runway are joined";
    EXPECT_TRUE(SymbolOf({Target::Kind::Runway, 0}) && SymbolOf({Target::Kind::Runway, 1}));
    EXPECT_TRUE(Find("KLAX") && Find("07L"));
    EXPECT_FALSE(Find("25R") && Find("25R")->target.kind == Target::Kind::Row);

    // From afar runways are one symbol, and the fixes off the procedure go first.
    Draw({{33.9, -118.2}, 3, {1000, 600}});
    EXPECT_TRUE(SymbolOf({Target::Kind::Runway, 0}) && !SymbolOf({Target::Kind::Runway, 1}));
    EXPECT_EQ(SymbolOf({Target::Kind::Runway, 0})->glyph, Glyph::Airport);
    EXPECT_TRUE(SymbolOf({Target::Kind::Fix, 0}));
    EXPECT_FALSE(SymbolOf({Target::Kind::Fix, 1}));
    Draw({{33.9, -118.2}, 6, {1000, 1200}});
    EXPECT_TRUE(SymbolOf({Target::Kind::Fix, 1}));
    Draw({{33.9, -118.2}, 0.2, {1000, 600}});
    EXPECT_FALSE(SymbolOf({Target::Kind::Navaid, 0}));
}

TEST_F(PlanSceneTest, HitsAndMarksShowAtAnyScale) {
    hits = {{Target::Kind::Fix, 1}};
    marked = {Target::Kind::Navaid, 0};
    Draw({{33.9, -118.2}, 0.5, {1000, 600}});
    EXPECT_EQ(LinesIn(Role::Mark), 2U);
    EXPECT_EQ(Find("LAX")->role, Role::Mark);
    EXPECT_EQ(Find("OFF")->target, hits[0]);
}

TEST_F(PlanSceneTest, DraftsAreDashedAndHollow) {
    drafts.waypoint = PointAt("NEW", 33.8, -118.3);
    Draw();
    EXPECT_EQ(LinesIn(Role::Draft, true), 1U) << "behind the last row";
    EXPECT_EQ(Find("NEW")->role, Role::Draft);
    drafts.replaces = 1;
    Draw();
    EXPECT_EQ(LinesIn(Role::Draft, true), 2U) << "between its neighbours";
    drafts.waypoint->position.reset();
    Draw();
    EXPECT_EQ(LinesIn(Role::Draft, true), 0U);

    drafts = {};
    drafts.arc = {{34.0, -118.1}, {34.05, -118.15}, {34.1, -118.15}};
    drafts.derived = PlanDrafts::Derived{{33.8, -118}, {33.8, -118.2}};
    Draw();
    EXPECT_EQ(LinesIn(Role::Draft, true), 3U);
    EXPECT_TRUE(Find("270°  10.0"));
    const auto symbols = All<Symbol>();
    EXPECT_EQ(std::count_if(symbols.begin(), symbols.end(),
                            [](const Symbol& each) { return each.role == Role::Draft && each.hollow; }),
              4);
    EXPECT_EQ(PositionsOf(route, drafts).size(), 8U);
}

TEST_F(PlanSceneTest, PointingFindsTheNearestSymbol) {
    Draw();
    const Point at = SymbolOf({Target::Kind::Row, 0})->at;
    EXPECT_EQ(TargetAt(drawing, {at.x + 5, at.y - 5}), (Target{Target::Kind::Row, 0}));
    EXPECT_EQ(TargetAt(drawing, {at.x + 300, at.y - 250}), Target{});
    const Point navaid = SymbolOf({Target::Kind::Navaid, 1})->at;
    EXPECT_EQ(TargetAt(drawing, navaid), (Target{Target::Kind::Navaid, 1}));
}

TEST_F(PlanSceneTest, TargetsInWords) {
    route.points[2].altitude = {Kind::At, 94, 94};
    tables.FixTable[1] = {"BAD", "95", "x"};
    const PositionGrid grid(tables);
    const struct {
        Target target;
        int selected;
        const char* words;
    } cases[] = {
        {{}, 0, ""},
        {{Target::Kind::Fix, 1}, 0, ""},
        {{Target::Kind::Fix, 0}, 0, "ONWAY, fix, N33°55.20' W118°06.06', 250° 5.3 NM from FUELR"},
        {{Target::Kind::Navaid, 0},
         -1,
         "LAX, VOR 113.60 MHz, N33°56.00' W118°25.90', 261° 2.6 NM from RW25R"},
        {{Target::Kind::Navaid, 1}, 1, "CPM, NDB 378.00 KHz, N33°53.32' W118°14.25', 225° 2.7 NM from LIMMA"},
        {{Target::Kind::Runway, 0},
         1,
         "KLAX 07L, runway, elevation 126 ft, N33°56.15' W118°25.14', 275° 10.9 NM from LIMMA"},
        {{Target::Kind::Row, 1},
         1,
         "LIMMA, waypoint 2, at or above 1900, 180K, N33°55.20' W118°12.00'; 045° 2.7 NM from CPM 378.00 "
         "KHz; "
         "094° 11.6 NM from LAX 113.60 MHz"},
        {{Target::Kind::Row, 2},
         2,
         "RW25R, waypoint 3, runway, at 94, N33°56.39' W118°22.78'; 081° 2.6 NM from LAX 113.60 MHz; "
         "294° 7.7 NM from CPM 378.00 KHz"},
        {{Target::Kind::Row, 3}, 2, ""},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(TargetWords(test.target, route, tables, grid, OriginOf(route, test.selected)), test.words);
    }
    route.points[0].position = Position{33.9333, -118.4317};
    EXPECT_TRUE(TargetWords({Target::Kind::Row, 0}, route, tables, grid, {})
                    .ends_with("W118°25.90'; 286° 10.0 NM from CPM 378.00 KHz"))
        << TargetWords({Target::Kind::Row, 0}, route, tables, grid, {})
        << ": a navaid is not told from itself";
    EXPECT_FALSE(OriginOf({}, -1));
}

// The corners of a line of words, `inset` pixels within.
std::vector<Point> CornersOf(const Words& words, double inset) {
    const double width = EvenLetters().Width(words.text, words.size, words.bold);
    const double left = words.align == Words::Align::Left    ? 0
                        : words.align == Words::Align::Right ? -width
                                                             : -width / 2;
    std::vector<Point> corners;
    for (const auto& [x, y] : {std::pair{left + inset, -words.size / 2 + inset},
                               {left + width - inset, -words.size / 2 + inset},
                               {left + width - inset, words.size / 2 - inset},
                               {left + inset, words.size / 2 - inset}}) {
        corners.push_back({words.at.x + x * std::cos(words.turn) - y * std::sin(words.turn),
                           words.at.y + x * std::sin(words.turn) + y * std::cos(words.turn)});
    }
    return corners;
}

// Of convex shapes, by a line of `a` or `b` that parts them. A shape of two points is a line.
bool Overlap(const std::vector<Point>& a, const std::vector<Point>& b) {
    for (const auto* shape : {&a, &b}) {
        for (std::size_t i = 0; i < shape->size(); ++i) {
            const Point& from = (*shape)[i];
            const Point& to = (*shape)[(i + 1) % shape->size()];
            const auto range = [&](const std::vector<Point>& points) {
                std::pair<double, double> found{1e300, -1e300};
                for (const Point& point : points) {
                    const double side =
                        (point.x - from.x) * (to.y - from.y) - (point.y - from.y) * (to.x - from.x);
                    found = {std::min(found.first, side), std::max(found.second, side)};
                }
                return found;
            };
            const auto ofA = range(a);
            const auto ofB = range(b);
            if (ofA.second <= ofB.first || ofB.second <= ofA.first) return false;
        }
    }
    return true;
}

// Whatever is drawn, at any scale: numbers are finite, words lie in the picture and cover neither each other
// nor the procedure.
TEST_F(PlanSceneTest, WordsCoverNothing) {
    std::mt19937 random(5);
    const auto any = [&](double least, double most) {
        return std::uniform_real_distribution<double>(least, most)(random);
    };
    for (std::size_t i = 0; i < 3000; ++i) {
        tables.FixTable[i] = {"FIX" + std::to_string(i % 90), std::to_string(any(32, 36)),
                              std::to_string(any(-120, -116))};
    }
    tables.FixCount = 2999;
    for (int run = 0; run < 60; ++run) {
        route.points.clear();
        for (int row = 0; row < (run % 4 ? 12 : 201); ++row) {
            route.points.push_back(PointAt("ROW" + std::to_string(row), any(33, 35), any(-119, -117)));
            route.points.back().altitude = {Kind::Between, 3000, 12000};
            route.points.back().speed = 250;
        }
        if (run % 7 == 0) route.points[2].position = Position{-33, any(-180, 180)};
        ConnectLegs(route);
        selected = run % 5;
        drafts.waypoint = PointAt("DRAFT", 34, -118);
        Draw({{any(33, 35), any(-119, -117)}, std::pow(10, any(-2, 2.5)), {any(100, 1400), any(80, 900)}});
        const auto words = All<Words>();
        const Projection map({{}, 1, drawing.size});
        for (std::size_t i = 0; i < words.size(); ++i) {
            const auto corners = CornersOf(words[i], 0.2);
            for (const Point& corner : corners) EXPECT_TRUE(map.Shows(corner)) << words[i].text;
            for (std::size_t other = i + 1; other < words.size(); ++other) {
                EXPECT_FALSE(Overlap(corners, CornersOf(words[other], 0.2)))
                    << words[i].text << " " << words[other].text << " run " << run;
            }
            for (const auto& line : All<Line>()) {
                if ((line.role != Role::Route && line.role != Role::Draft) || line.filled) continue;
                for (std::size_t at = 1; at < line.points.size(); ++at) {
                    ASSERT_TRUE(std::isfinite(line.points[at].x) && std::isfinite(line.points[at].y));
                    EXPECT_FALSE(Overlap(corners, {line.points[at - 1], line.points[at]})) << words[i].text;
                }
            }
        }
    }
}

TEST(PictureRoomTest, IsTakenUpToItsEdges) {
    PictureRoom room({100, 60});
    for (const Point& edge : {Point{50, 1}, {50, 59}, {1, 30}, {99, 30}}) {
        const TurnedBox box{edge, {0.5, 0.5}};
        EXPECT_TRUE(room.IsFree(box)) << edge.x << " " << edge.y;
        room.Take(box);
        EXPECT_FALSE(room.IsFree(box)) << edge.x << " " << edge.y;
    }
    for (const Point& outside : {Point{50, -1}, {50, 61}, {-1, 30}, {101, 30}}) {
        EXPECT_FALSE(room.IsFree({outside, {0.5, 0.5}})) << outside.x << " " << outside.y;
    }
}

TEST(AirportTest, RunwayHasAnOppositeEnd) {
    const std::pair<const char*, const char*> ends[] = {{"07L", "25R"}, {"25R", "07L"}, {"36", "18"},
                                                        {"01C", "19C"}, {"18", "36"},   {"37", ""},
                                                        {"0", ""},      {"H1", ""}};
    for (const auto& [end, opposite] : ends) EXPECT_EQ(OppositeEnd(end), opposite) << end;
}

}  // namespace
}  // namespace tarvex
