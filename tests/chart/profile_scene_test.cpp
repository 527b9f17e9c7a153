#include "chart/profile_scene.h"

#include <cmath>
#include <gtest/gtest.h>

#include "chart/even_letters.h"
#include "chart/svg_writer.h"

namespace tarvex {
namespace {

using Kind = AltitudeRestriction::Kind;

using testing::EvenLetters;

RoutePoint At(double latitude, AltitudeRestriction altitude, const char* name) {
    RoutePoint point;
    point.name = name;
    point.position = Position{latitude, -118};
    point.altitude = altitude;
    return point;
}

Route Approach() {
    Route route;
    route.points = {At(34, {Kind::AtOrAbove, 5000, 5000}, "AAA"), At(33.9, {}, "BBB"),
                    At(33.8, {Kind::At, 3000, 3000}, "CCC"), At(33.7, {Kind::Between, 1000, 2000}, "DDD"),
                    At(33.6, {Kind::At, 126, 126}, "RW25L")};
    route.points.back().runway = true;
    ConnectLegs(route);
    return route;
}

class ProfileSceneTest : public ::testing::Test {
  protected:
    void Draw(const Route& route, int selected = -1, Size size = {900, 300}) {
        drawing = ProfileDrawing(route, ProfileView::Whole(route), selected, size, EvenLetters());
    }
    const Words* Find(std::string_view text) {
        for (const DrawnItem& item : drawing.items) {
            const auto* words = std::get_if<Words>(&item);
            if (words != nullptr && words->text == text) return words;
        }
        return nullptr;
    }
    const Symbol* SymbolOf(int row) {
        for (const DrawnItem& item : drawing.items) {
            const auto* symbol = std::get_if<Symbol>(&item);
            if (symbol != nullptr && symbol->target == Target{Target::Kind::Row, row}) return symbol;
        }
        return nullptr;
    }

    Drawing drawing;
};

TEST_F(ProfileSceneTest, BetweenTwoGivenAltitudesStandsTheGradient) {
    Draw(Approach());
    // 2000 feet in 12 miles, then 1500 in 6 to the middle of the band.
    EXPECT_NE(Find("167 ft/NM  1.6°"), nullptr);
    EXPECT_NE(Find("250 ft/NM  2.4°"), nullptr);
    Route level = Approach();
    level.points[2].altitude = level.points[0].altitude;
    Draw(level);
    EXPECT_EQ(Find("0 ft/NM  0.0°"), nullptr);
}

TEST_F(ProfileSceneTest, ARowWithoutAnAltitudeStandsOpenOnTheLine) {
    Draw(Approach(), 2);
    const Symbol* open = SymbolOf(1);
    ASSERT_NE(open, nullptr);
    EXPECT_TRUE(open->hollow);
    EXPECT_NEAR(open->at.y, (SymbolOf(0)->at.y + SymbolOf(2)->at.y) / 2, 0.01);
    EXPECT_NEAR(open->at.x, (SymbolOf(0)->at.x + SymbolOf(2)->at.x) / 2, 0.01);
    EXPECT_EQ(SymbolOf(2)->role, Role::Selected);
    EXPECT_EQ(SymbolOf(0)->role, Role::Route);
}

TEST_F(ProfileSceneTest, AltitudesAreMarkedAsOnPrintedCharts) {
    Draw(Approach());
    const std::tuple<const char*, bool, bool> cases[] = {{"5000", true, false},
                                                         {"3000", true, true},
                                                         {"2000", false, true},
                                                         {"1000", true, false},
                                                         {"elev 126", false, false}};
    for (const auto& [text, under, over] : cases) {
        // The figures of the axis have no line.
        bool found = false;
        for (const DrawnItem& item : drawing.items) {
            const auto* words = std::get_if<Words>(&item);
            if (words == nullptr || words->text != text || words->role == Role::Scale) continue;
            EXPECT_EQ(words->underlined, under) << text;
            EXPECT_EQ(words->overlined, over) << text;
            found = true;
        }
        EXPECT_TRUE(found) << text;
    }
}

TEST_F(ProfileSceneTest, AnElevationStandsClearOfTheClimbBehindIt) {
    Route missed = Approach();
    missed.points.push_back(At(33.5, {Kind::AtOrAbove, 5000, 5000}, "EEE"));
    ConnectLegs(missed);
    Draw(missed);
    const Point elevation = Find("elev 126")->at;
    const Point from = SymbolOf(4)->at;
    const Point to = SymbolOf(5)->at;
    const double line = std::lerp(from.y, to.y, (elevation.x - from.x) / (to.x - from.x));
    EXPECT_LT(line, elevation.y - 5.5) << "above the words";
    EXPECT_LT(elevation.x, from.x + 40);

    Route high = Approach();
    Draw(high);
    EXPECT_EQ(Find("elev 126")->at.x, SymbolOf(4)->at.x + 12);
    high.points.back().altitude = {Kind::At, 13325, 13325};
    Draw(high);
    EXPECT_LE(Find("elev 13325")->at.x + EvenLetters().Width("elev 13325", 11, false), 900)
        << "in the picture";
}

TEST_F(ProfileSceneTest, WhateverTheRowsHoldTheDrawingIsFinite) {
    Route odd = Approach();
    odd.points[1].position.reset();
    ConnectLegs(odd);
    Route one;
    one.points = {At(33, {}, "ONE")};
    Route heap;
    heap.points.assign(201, At(33, {Kind::AtOrBelow, 99999, 99999}, "SAME"));
    ConnectLegs(heap);
    Route between = heap;
    between.points.resize(3);
    between.points[1].altitude = {};
    Route none;
    none.points.resize(3);
    for (const Route& route : {odd, one, heap, between, none, Route()}) {
        for (const Size size : {Size{900, 300}, Size{200, 80}, Size{10, 10}, Size{}}) {
            Draw(route, 0, size);
            const std::string text = SvgText(drawing, LightPalette(), "");
            EXPECT_EQ(text.find("nan"), std::string::npos);
            EXPECT_EQ(text.find("inf"), std::string::npos);
        }
    }
}

TEST_F(ProfileSceneTest, WhatLiesAtThePointerStaysThere) {
    const Route route = Approach();
    const auto x = [&](const ProfileView& view, int row) {
        drawing = ProfileDrawing(route, view, -1, {900, 300}, EvenLetters());
        return SymbolOf(row)->at.x;
    };
    const ProfileView whole = ProfileView::Whole(route);
    const double before = x(whole, 2);
    const ProfileView nearer = whole.Zoomed(2, before, 900);
    EXPECT_NEAR(x(nearer, 2), before, 0.01);
    EXPECT_LT(nearer.miles, whole.miles);
    EXPECT_NEAR(x(nearer.Moved(30, 900), 2), before + 30, 0.01);
}

}  // namespace
}  // namespace tarvex
