#include <GeographicLib/Rhumb.hpp>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <iomanip>
#include <random>

#include "geometry/arc_layout.h"

namespace tarvex {
namespace {

// Courses of a random start, in degrees.
double AnyCourse(std::mt19937_64& random) {
    return std::uniform_real_distribution<double>(0, 360)(random);
}
double WholeCourse(std::mt19937_64& random) {
    return std::uniform_int_distribution<int>(0, 360)(random);
}
double CourseOffEastAndWest(std::mt19937_64& random) {
    const double course = AnyCourse(random);
    return std::fabs(std::remainder(course - 90, 180)) > 1 ? course : CourseOffEastAndWest(random);
}
double CourseNearEastAndWest(std::mt19937_64& random) {
    const double off = std::pow(10, std::uniform_real_distribution<double>(-10, 0)(random));
    return (random() % 2 ? 90 : 270) + (random() % 2 ? off : -off);
}

// The formula against an independent solution on the same sphere. Toward east and west it divides two small
// differences and loses digits, and where it takes the course for due east or west it leaves out the change
// of latitude on the way: tolerances there grow with distance and latitude.
TEST(RhumbLineReferenceTest, AgreesWithGeographicLib) {
    const struct {
        const char* name;
        double (*course)(std::mt19937_64&);
        double mostLatitude;  // of both ends, degrees
        double mostMiles;
        double tolerance;  // of both coordinates, degrees
    } cases[] = {
        {"off east and west", CourseOffEastAndWest, 80, 9999, 1e-9},
        {"off east and west, arc radii", CourseOffEastAndWest, 89, 99, 1e-9},
        {"whole degrees", WholeCourse, 89, 9999, 1e-6},
        {"any course, arc radii", AnyCourse, 85, 99, 1e-6},
        {"near east and west", CourseNearEastAndWest, 60, 500, 1e-6},
        {"near east and west, arc radii", CourseNearEastAndWest, 80, 99, 1e-6},
    };
    const GeographicLib::Rhumb reference(1, 0);
    for (const auto& test : cases) {
        std::mt19937_64 random(40003);
        std::uniform_real_distribution<double> latitude(-test.mostLatitude, test.mostLatitude);
        std::uniform_real_distribution<double> longitude(-180, 180);
        std::uniform_real_distribution<double> miles(0, test.mostMiles);
        int compared = 0;
        double worst = 0;
        for (int run = 0; run < 20000; ++run) {
            const double lat = latitude(random);
            const double lon = longitude(random);
            const double distance = miles(random) * RadiansPerNauticalMile;
            const double course = test.course(random);
            const auto point = RhumbLineStep(RhumbPointAt(lat, lon), distance, course * RadiansPerDegree);
            double expectedLat = 0;
            double expectedLon = 0;
            reference.Direct(lat, lon, course, distance, expectedLat, expectedLon);
            if (!point || std::fabs(expectedLat) > test.mostLatitude) continue;
            ++compared;
            worst = std::max(
                {worst, std::fabs(point->latitude * DegreesPerRadian - expectedLat),
                 std::fabs(std::remainder(-point->longitude * DegreesPerRadian - expectedLon, 360))});
        }
        EXPECT_GT(compared, 5000) << test.name;
        EXPECT_LT(worst, test.tolerance) << test.name;
    }
}

double WithinLimits(double value, double limit) {
    return std::clamp(value, -limit, limit);
}

// Both ends anywhere, and the second far off, near, on the parallel, on the meridian or over the date line.
TEST(RhumbLineReferenceTest, LegsAgreeWithGeographicLib) {
    const GeographicLib::Rhumb reference(1, 0);
    std::mt19937_64 random(40005);
    const auto any = [&](double most) { return std::uniform_real_distribution<double>(-most, most)(random); };
    const auto small = [&] { return std::copysign(std::pow(10, any(1.5) - 1.5), any(1)); };
    for (int run = 0; run < 60000; ++run) {
        const double mostLatitude = run % 3 ? 89 : 89.999999;
        const Position from{run % 5 ? any(mostLatitude) : WithinLimits(90 - small(), mostLatitude),
                            run % 7 ? any(180) : std::copysign(180 - std::fabs(small()), any(1))};
        Position to{any(mostLatitude), any(180)};
        if (run % 2) to.latitude = WithinLimits(from.latitude + (run % 4 == 1 ? small() : 0), mostLatitude);
        if (run % 11 > 4) to.longitude = std::remainder(from.longitude + (run % 11 > 5 ? small() : 0), 360);
        double miles = 0;
        double course = 0;
        reference.Inverse(from.latitude, from.longitude, to.latitude, to.longitude, miles, course);
        miles /= RadiansPerNauticalMile;
        const RhumbLeg leg = RhumbLegBetween(from, to);
        SCOPED_TRACE(testing::Message() << std::setprecision(17) << from.latitude << " " << from.longitude
                                        << " to " << to.latitude << " " << to.longitude);
        ASSERT_NEAR(leg.miles, miles, miles * 1e-9);
        ASSERT_NEAR(std::remainder(leg.course - course, 360), 0, 1e-9);
        ASSERT_TRUE(leg.course >= 0 && leg.course < 360) << leg.course;
    }
}

// A point at each step of the turn from the true start on, at the radius, and the closing point on the last
// radial.
TEST(RhumbLineReferenceTest, ArcsAreEvenOnTheirRadius) {
    const GeographicLib::Rhumb reference(1, 0);
    std::mt19937_64 random(40004);
    const auto pick = [&](int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); };
    for (int run = 0; run < 1000; ++run) {
        SCOPED_TRACE(run);
        const int start = pick(0, 359);
        const int sweep = pick(1, 359);
        const int variation = pick(-60, 60);  // east positive
        const int radius = pick(1, 99);
        const int turn = pick(0, 1) ? 1 : -1;
        const bool closes = pick(0, 1);
        const ArcRequest request{.centerLat = pick(-75000, 75000) / 1000.0,
                                 .centerLong = pick(-180000, 180000) / 1000.0,
                                 .start = 1.0 * start,
                                 .end = 1.0 * ((start + turn * sweep + 360) % 360),
                                 .radius = 1.0 * radius,
                                 .variation = std::fabs(variation),
                                 .side = variation < 0 ? VariationSide::West : VariationSide::East,
                                 .turn = turn > 0 ? Turn::Right : Turn::Left,
                                 .closingPoint = closes};
        const auto points = LayOutArc(request).points;
        const int steps = sweep / 16 + 1;
        ASSERT_EQ(points.size(), static_cast<std::size_t>(steps + (closes ? 2 : 1)));
        int index = 0;
        for (const ArcPoint& point : points) {
            const double radial = start + variation + 1.0 * turn * sweep * std::min(index, steps) / steps;
            const int miles = index > steps ? radius - 2 : radius;
            double lat = 0;
            double lon = 0;
            reference.Direct(request.centerLat, request.centerLong, radial, miles * RadiansPerNauticalMile,
                             lat, lon);
            ASSERT_NEAR(point.position.latitude * DegreesPerRadian, lat, 1e-9);
            ASSERT_NEAR(std::remainder(-point.position.longitude * DegreesPerRadian - lon, 360), 0, 1e-6);
            ++index;
        }
    }
}

}  // namespace
}  // namespace tarvex
