#include "geometry/arc_layout.h"

#include <cmath>
#include <gtest/gtest.h>

#include "toolkit/failure.h"

namespace tarvex {
namespace {

ArcRequest RequestOf(double start, double end, Turn turn, double variation = 0,
                     VariationSide side = VariationSide::West) {
    ArcRequest request;
    request.centerLat = 33.5;
    request.centerLong = -117.25;
    request.radius = 10;
    request.start = start;
    request.end = end;
    request.turn = turn;
    request.variation = variation;
    request.side = side;
    return request;
}

// In degrees from 0 up to 360, at six decimals.
std::vector<double> ShownRadials(const ArcRequest& request) {
    std::vector<double> radials;
    for (const ArcPoint& point : LayOutArc(request).points) {
        radials.push_back(std::fmod(std::round(point.radial * DegreesPerRadian * 1e6) + 720e6, 360e6) / 1e6);
    }
    return radials;
}

TEST(ArcLayoutTest, Radials) {
    const auto west = VariationSide::West;
    const auto east = VariationSide::East;
    const std::pair<ArcRequest, std::vector<double>> cases[] = {
        {RequestOf(90, 105, Turn::Right), {90, 105}},
        {RequestOf(90, 106, Turn::Right), {90, 98, 106}},
        {RequestOf(10, 70, Turn::Right, 13, east), {23, 38, 53, 68, 83}},
        {RequestOf(350, 10, Turn::Right), {350, 0, 10}},
        {RequestOf(300, 0, Turn::Right), {300, 315, 330, 345, 0}},
        {RequestOf(300, 360, Turn::Right), {300, 315, 330, 345, 0}},
        {RequestOf(30, 330, Turn::Left), {30, 15, 0, 345, 330}},
        {RequestOf(300, 0, Turn::Right, 10, west), {290, 305, 320, 335, 350}},
        {RequestOf(10, 350, Turn::Left, 20, east), {30, 20, 10}},
        {RequestOf(5, 20, Turn::Right, 10, west), {355, 10}},
        {RequestOf(20, 5, Turn::Left, 10, west), {10, 355}},
        {RequestOf(350, 360, Turn::Right, 15, east), {5, 15}},
    };
    for (const auto& [request, radials] : cases) EXPECT_EQ(ShownRadials(request), radials);

    const auto circle = ShownRadials(RequestOf(100, 100, Turn::Right));
    ASSERT_EQ(circle.size(), 24u);
    EXPECT_EQ(circle[1], 115.652174);
    EXPECT_EQ(circle.back(), 100);
}

TEST(ArcLayoutTest, Faults) {
    const std::pair<ArcRequest, ArcFault> cases[] = {
        {RequestOf(100, 100, Turn::Left), ArcFault::NoLength},
        {RequestOf(0, 360, Turn::Left), ArcFault::NoLength},
        {RequestOf(360, 0, Turn::Right), ArcFault::NoLength},
        {RequestOf(-99, 360, Turn::Left), ArcFault::NoLength},
        {RequestOf(360, 0, Turn::Left), ArcFault::None},
        {RequestOf(0, 360, Turn::Right), ArcFault::None},
    };
    for (const auto& [request, fault] : cases) {
        const ArcLayout arc = LayOutArc(request);
        EXPECT_EQ(arc.fault, fault);
        EXPECT_EQ(arc.points.empty(), fault != ArcFault::None);
    }
    ArcRequest polar = RequestOf(270, 90, Turn::Right);
    polar.centerLat = 89.9;
    EXPECT_EQ(LayOutArc(polar).fault, ArcFault::ReachesPole);
    polar.start = 90;
    polar.end = 180;
    EXPECT_EQ(LayOutArc(polar).fault, ArcFault::None);
    polar.radius = 1;
    polar.end = 185;
    polar.centerLat = 89.99;  // only the closing point, beyond the centre, passes the pole
    EXPECT_EQ(LayOutArc(polar).fault, ArcFault::None);
    polar.closingPoint = true;
    EXPECT_EQ(LayOutArc(polar).fault, ArcFault::ReachesPole);
    EXPECT_THROW(LayOutArc(RequestOf(361, 0, Turn::Left)), Failure);
}

}  // namespace
}  // namespace tarvex
