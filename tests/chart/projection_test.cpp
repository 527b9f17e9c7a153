#include "chart/projection.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <random>

#include "chart/plan_view.h"

namespace tarvex {
namespace {

constexpr double Degree = std::numbers::pi / 180;
constexpr Size Picture{750, 240};

// By the cosine law, which is another road than the projection's.
double MilesBetween(const Position& a, const Position& b) {
    const double cosine = std::sin(a.latitude * Degree) * std::sin(b.latitude * Degree) +
                          std::cos(a.latitude * Degree) * std::cos(b.latitude * Degree) *
                              std::cos((b.longitude - a.longitude) * Degree);
    return std::acos(std::clamp(cosine, -1.0, 1.0)) / Degree * 60;
}

TEST(ProjectionTest, DistanceFromTheMiddleIsTrueAndEveryPointLeadsBack) {
    std::mt19937 random(2);
    std::uniform_real_distribution<double> latitude(-90, 90);
    std::uniform_real_distribution<double> longitude(-180, 180);
    for (int run = 0; run < 2000; ++run) {
        const Position middle{run % 5 ? latitude(random) : 90, run % 3 ? longitude(random) : 180};
        const Position position{latitude(random), longitude(random)};
        const Projection map({middle, 0.5, Picture});
        const Point point = map.ToPoint(position);
        EXPECT_NEAR(std::hypot(point.x - 375, point.y - 120) / 0.5, MilesBetween(middle, position), 1e-3);
        const Position back = map.ToPosition(point);
        EXPECT_LT(MilesBetween(back, position), 1e-3);
        EXPECT_TRUE(back.longitude >= -180 && back.longitude <= 180);
    }
}

TEST(ProjectionTest, NorthIsUpAndTheDateLineIsNoCase) {
    const Projection map({{33.5, 179.9}, 10, Picture});
    const struct {
        Position position;
        double x, y;
    } cases[] = {
        {{33.5, 179.9}, 375, 120},
        {{34.5, 179.9}, 375, 120 - 600},
        {{33.5, -179.9}, 375 + 100.1, 120},
        {{-33.5, -0.1}, 375, 120 - 108000},  // opposite
    };
    for (const auto& test : cases) {
        EXPECT_NEAR(map.ToPoint(test.position).x, test.x, 0.1) << test.position.longitude;
        EXPECT_NEAR(map.ToPoint(test.position).y, test.y, 0.1) << test.position.longitude;
    }
    EXPECT_EQ(map.ToPosition({375, 120}), (Position{33.5, 179.9}));
    EXPECT_NEAR(map.ToPosition({1e9, 120}).latitude, -33.5, 1e-6) << "past the rim";
}

TEST(PlanViewTest, FitsWhatItIsGiven) {
    const std::vector<std::vector<Position>> cases = {
        {{33.5, -117}},
        {{33.5, -117}, {33.5, -117}, {33.5, -117}},
        {{50, 178}, {51.5, 179.4}, {52, -179.5}, {49.2, -176}},
        {{88, 10}, {89.5, 60}, {89, 180}, {88.5, -120}},
        {{0, 0}, {0, 90}, {0, 180}, {0, -90}, {90, 0}, {-90, 0}},
        {{10, 20}, {-10, -160}},
        {{33, -118}, {34, -118}},
        {{33, -119}, {33, -117}},
    };
    for (const auto& positions : cases) {
        const PlanView view = FitView(positions, Picture);
        const Projection map(view);
        double most = 0;  // share of the picture that is used
        for (const auto& position : positions) {
            const Point point = map.ToPoint(position);
            EXPECT_TRUE(map.Shows(point)) << position.latitude << " " << point.x << " " << point.y;
            most = std::max({most, std::fabs(point.x / 375 - 1), std::fabs(point.y / 120 - 1)});
        }
        EXPECT_LT(most, 0.9) << "names need a margin";
        const bool spread = positions.size() > 1 && positions[1] != positions[0];
        EXPECT_GT(most, spread ? 0.5 : -1) << positions[0].latitude;
    }
    EXPECT_EQ(FitView({}, Picture).scale, LeastScale(Picture));
    EXPECT_GT(FitView({}, {0, 0}).scale, 0);
}

TEST(PlanViewTest, ZoomKeepsWhatLiesUnderThePointerAndPanMovesIt) {
    for (const Position& middle : {Position{33.5, -117}, {0, 179.99}, {-75, 20}}) {
        const PlanView view{middle, 8, Picture};
        const Point pointer{600, 40};
        const Position place = Projection(view).ToPosition(pointer);
        for (const double factor : {0.5, 1.25, 40.0}) {
            const PlanView zoomed = Zoomed(view, factor, pointer);
            EXPECT_DOUBLE_EQ(zoomed.scale, 8 * factor);
            EXPECT_NEAR(Projection(zoomed).ToPoint(place).x, pointer.x, 0.01);
            EXPECT_NEAR(Projection(zoomed).ToPoint(place).y, pointer.y, 0.01);
        }
        const PlanView panned = Panned(view, {375, 120}, {300, 140});
        EXPECT_NEAR(Projection(panned).ToPoint(middle).x, 300, 0.01);
        EXPECT_NEAR(Projection(panned).ToPoint(middle).y, 140, 0.01);
        EXPECT_EQ(Zoomed(view, 1e9, pointer).scale, MostScale);
        EXPECT_EQ(Zoomed(view, 1e-9, pointer).scale, LeastScale(Picture));
    }
}

}  // namespace
}  // namespace tarvex
