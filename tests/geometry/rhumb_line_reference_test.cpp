#include <GeographicLib/Rhumb.hpp>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

#include "geometry/rhumb_line.h"

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
            const auto point = RhumbDestination(RhumbPointAt(lat, lon), distance, course * RadiansPerDegree);
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

}  // namespace
}  // namespace tarvex
