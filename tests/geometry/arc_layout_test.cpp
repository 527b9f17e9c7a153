#include "geometry/arc_layout.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

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
double ShownRadial(const ArcPoint& point) {
    return std::fmod(std::round(point.radial * DegreesPerRadian * 1e6) + 720e6, 360e6) / 1e6;
}

std::vector<double> ShownRadials(const ArcLayout& arc) {
    std::vector<double> radials;
    for (const ArcPoint& point : arc.points) radials.push_back(ShownRadial(point));
    return radials;
}

TEST(ArcLayoutTest, PositionsOfAQuarterCircle) {
    struct Row {
        std::string lat, lon;
        bool operator==(const Row&) const = default;
    };
    const std::vector<Row> radiusRows = {
        {"33.5", "-117.050133"},      {"33.456863", "-117.056991"}, {"33.416667", "-117.076993"},
        {"33.382149", "-117.108768"}, {"33.355662", "-117.150149"}, {"33.339012", "-117.198318"},
        {"33.333333", "-117.25"},
    };
    const auto rowsOf = [](ArcRequest request) {
        request.closingPoint = true;
        std::vector<Row> rows;
        for (const ArcPoint& point : LayOutArc(request).points) {
            const PositionTexts texts = PositionTextsOf(point.position);
            rows.push_back({texts.latDecimal, texts.longDecimal});
        }
        return rows;
    };
    std::vector<Row> expected = radiusRows;
    expected.push_back({"33.366667", "-117.25"});
    EXPECT_EQ(rowsOf(RequestOf(90, 180, Turn::Right)), expected);

    expected.assign(radiusRows.rbegin(), radiusRows.rend());
    expected.push_back({"33.5", "-117.090106"});
    EXPECT_EQ(rowsOf(RequestOf(180, 90, Turn::Left)), expected);
}

TEST(ArcLayoutTest, Radials) {
    const auto west = VariationSide::West;
    const auto east = VariationSide::East;
    const struct {
        ArcRequest request;
        std::vector<double> radials;
    } cases[] = {
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
    for (const auto& test : cases) EXPECT_EQ(ShownRadials(LayOutArc(test.request)), test.radials);

    const ArcLayout circle = LayOutArc(RequestOf(100, 100, Turn::Right));
    ASSERT_EQ(circle.points.size(), 24u);
    EXPECT_EQ(ShownRadial(circle.points[1]), 115.652174);
    EXPECT_EQ(ShownRadial(circle.points.back()), 100);
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

// The rhumb line from one point to another by the inverse formula: radians, course clockwise from north.
struct Line {
    double distance, course;
};
Line LineBetween(const RhumbPoint& from, const RhumbPoint& to) {
    const double dlat = to.latitude - from.latitude;
    const double dlon = std::remainder(from.longitude - to.longitude, TwoPi);
    const double dphi = std::asinh(std::tan(to.latitude)) - std::asinh(std::tan(from.latitude));
    const double q = std::fabs(dlat) < 1e-7 ? std::cos((from.latitude + to.latitude) / 2) : dlat / dphi;
    return {std::hypot(dlat, q * dlon), std::atan2(q * dlon, dlat)};
}

double AngleBetween(double a, double b) {
    return std::fabs(std::remainder(a - b, TwoPi));
}

TEST(ArcLayoutTest, AnyArcIsEvenOnItsRadius) {
    std::mt19937 random(40004);
    const auto pick = [&](int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); };
    for (int run = 0; run < 1000; ++run) {
        ArcRequest request = RequestOf(pick(0, 359), pick(0, 359), pick(0, 1) ? Turn::Right : Turn::Left,
                                       pick(0, 60), pick(0, 1) ? VariationSide::East : VariationSide::West);
        request.centerLat = pick(-75000, 75000) / 1000.0;
        request.centerLong = pick(-180000, 180000) / 1000.0;
        request.radius = pick(1, 99);
        request.closingPoint = pick(0, 1);
        SCOPED_TRACE(run);

        const bool right = request.turn == Turn::Right;
        int sweep =
            (static_cast<int>(right ? request.end - request.start : request.start - request.end) + 360) % 360;
        if (sweep == 0 && right) sweep = 360;
        const ArcLayout arc = LayOutArc(request);
        if (sweep == 0) {
            EXPECT_EQ(arc.fault, ArcFault::NoLength);
            continue;
        }
        const std::size_t steps = static_cast<std::size_t>(sweep) / 16 + 1;
        ASSERT_EQ(arc.points.size(), steps + (request.closingPoint ? 2 : 1));

        const RhumbPoint center = RhumbPointAt(request.centerLat, request.centerLong);
        const double variation = request.side == VariationSide::East ? request.variation : -request.variation;
        for (std::size_t index = 0; index < arc.points.size(); ++index) {
            const bool closing = index > steps;
            const double travelled =
                sweep * static_cast<double>(std::min(index, steps)) / static_cast<double>(steps);
            const double radial = request.start + variation + (right ? travelled : -travelled);
            const double miles = request.radius - (closing ? 2 : 0);
            const Line line = LineBetween(center, arc.points[index].position);
            ASSERT_NEAR(line.distance, std::fabs(miles) * RadiansPerNauticalMile, 5e-9);
            ASSERT_LT(AngleBetween(arc.points[index].radial, radial * RadiansPerDegree), 1e-12);
            if (miles != 0) {
                ASSERT_LT(AngleBetween(line.course, radial * RadiansPerDegree + (miles < 0 ? Pi : 0)), 1e-6);
            }
        }
        ASSERT_LT(AngleBetween(arc.points.back().radial, (request.end + variation) * RadiansPerDegree),
                  1e-12);
    }
}

}  // namespace
}  // namespace tarvex
