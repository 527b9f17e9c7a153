#include "geometry/rhumb_line.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

PositionTexts TextsAt(double lat, double lon, double miles, double course) {
    const auto point =
        RhumbLineStep(RhumbPointAt(lat, lon), miles * RadiansPerNauticalMile, course * RadiansPerDegree);
    EXPECT_TRUE(point.has_value());
    return point ? PositionTextsOf(*point) : PositionTexts{};
}

TEST(RhumbLineTest, PositionsAsTexts) {
    const struct {
        double lat, lon, miles, course;
        std::string latitude, longitude;  // decimal, degrees, minutes
    } cases[] = {
        {33.5, -117.25, 10, 90, "33.5 33 30.", "-117.050133 -117 3.007951"},
        {33.5, -117.25, 10, 180, "33.333333 33 20.", "-117.25 -117 15."},
        {33.5, -179.9, 30, 270, "33.5 33 30.", "179.500398 179 30.023852"},
        {33.5, 179.9, 30, 90, "33.5 33 30.", "-179.500398 -179 30.023852"},
        {33.5, -117.25, 0, 45, "33.5 33 30.", "-117.25 -117 15."},
        {33.5, -117.25, 10, 450, "33.5 33 30.", "-117.050133 -117 3.007951"},
        {33.5, -117.25, -10, 270, "33.5 33 30.", "-117.050133 -117 3.007951"},
        {51, 0, 60, 0, "52. 52 .", "-. -0 ."},
        {51, 180, 60, 0, "52. 52 .", "-180. -179 60."},
        {51, -180, 60, 0, "52. 52 .", "180. 179 60."},
        {0.25, 0.5, 60, 180, "-.75 0 45.", ".5 0 30."},
        {-33.5, 151.25, 15, 180, "-33.75 33 45.", "151.25 151 15."},
        {32.9999999999, 0.9999999999, 0, 0, "33. 32 60.", "1. 0 60."},
    };
    for (const auto& test : cases) {
        const PositionTexts texts = TextsAt(test.lat, test.lon, test.miles, test.course);
        EXPECT_EQ(texts.latDecimal + " " + texts.latDegrees + " " + texts.latMinutes, test.latitude);
        EXPECT_EQ(texts.longDecimal + " " + texts.SignedLongDegrees() + " " + texts.longMinutes,
                  test.longitude);
        EXPECT_EQ(texts.south, test.latitude.starts_with('-'));
        EXPECT_EQ(texts.west, test.longitude.starts_with('-'));
    }
    EXPECT_FALSE(TextsAt(1, 20, 60, 180).south) << "the equator shows as north";
    EXPECT_EQ(PositiveModulus(-6, 3), 3);
}

TEST(RhumbLineTest, PolesEndTheLine) {
    const struct {
        double lat, miles, course;
        bool reached;
    } cases[] = {
        {89.9, 5.9, 0, true},    {89.9, 6, 0, false},    {89.9, 9999, 0, false}, {-89.9, 6, 180, false},
        {-89.9, 5.9, 180, true}, {89.9, 9999, 90, true}, {90, 0, 0, false},      {-90, 10, 0, false},
        {90, 10, 180, false},    {10, 9999, 180, false}, {89.9, 7, 45, true},    {std::nan(""), 1, 0, false},
    };
    for (const auto& test : cases) {
        const auto point = RhumbLineStep(RhumbPointAt(test.lat, 20), test.miles * RadiansPerNauticalMile,
                                         test.course * RadiansPerDegree);
        EXPECT_EQ(point.has_value(), test.reached) << test.lat << " " << test.miles << " " << test.course;
        EXPECT_LE(std::fabs(point.value_or(RhumbPoint{}).longitude), Pi);
    }
}

TEST(RhumbLineTest, Legs) {
    const struct {
        Position from, to;
        double course, miles;
    } cases[] = {
        {{33.5, -117.25}, {33.5, -117.25}, 0, 0},
        {{0, 179.5}, {0, -179.5}, 90, 60},
        {{0, -179.5}, {0, 179.5}, 270, 60},
        {{60, 10}, {60, 12}, 90, 60},
        {{0, -90}, {0, 90}, 90, 10800},  // as long westward
        {{0, 90}, {0, -90}, 90, 10800},
        {{89, 10}, {90, 100}, 0, 60},
        {{-90, 10}, {-89, -100}, 0, 60},
        {{90, 0}, {-90, 50}, 180, 10800},
        {{90, 0}, {90, 50}, 90, 0},
    };
    for (const auto& test : cases) {
        const RhumbLeg leg = RhumbLegBetween(test.from, test.to);
        EXPECT_NEAR(leg.course, test.course, 1e-12) << test.from.latitude << " " << test.from.longitude;
        EXPECT_NEAR(leg.miles, test.miles, 1e-9) << test.from.latitude << " " << test.from.longitude;
        if (std::fabs(test.from.latitude) + std::fabs(test.to.latitude) > 178) continue;
        const Position end = RhumbPointBetween(test.from, test.to, 1);
        EXPECT_NEAR(end.latitude, test.to.latitude, 1e-9);
        EXPECT_NEAR(end.longitude, test.to.longitude, 1e-9);
    }
}

// As far as the direct problem has digits.
TEST(RhumbLineTest, LegsLeadBack) {
    for (const double latitude : {-75.0, -33.5, 0.0, 1e-9, 51.25, 80.0}) {
        for (const double longitude : {-180.0, -179.95, 0.0, 117.25, 179.99}) {
            for (const double course : {0.0, 30.0, 90.0, 135.5, 180.0, 270.0, 359.5}) {
                for (const double miles : {0.5, 10.0, 500.0}) {
                    const auto end = RhumbLineStep(RhumbPointAt(latitude, longitude),
                                                   miles * RadiansPerNauticalMile, course * RadiansPerDegree);
                    ASSERT_TRUE(end);
                    const RhumbLeg leg = RhumbLegBetween(
                        {latitude, longitude},
                        {end->latitude * DegreesPerRadian, -end->longitude * DegreesPerRadian});
                    EXPECT_NEAR(leg.miles, miles, 1e-7);
                    EXPECT_NEAR(std::remainder(leg.course - course, 360), 0, 1e-7)
                        << latitude << " " << longitude << " " << course << " " << miles;
                }
            }
        }
    }
}

}  // namespace
}  // namespace tarvex
