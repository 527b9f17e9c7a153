#include "geometry/rhumb_line.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

PositionTexts TextsAt(double lat, double lon, double miles, double course) {
    const auto point =
        RhumbDestination(RhumbPointAt(lat, lon), miles * RadiansPerNauticalMile, course * RadiansPerDegree);
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
        const auto point = RhumbDestination(RhumbPointAt(test.lat, 20), test.miles * RadiansPerNauticalMile,
                                            test.course * RadiansPerDegree);
        EXPECT_EQ(point.has_value(), test.reached) << test.lat << " " << test.miles << " " << test.course;
        EXPECT_LE(std::fabs(point.value_or(RhumbPoint{}).longitude), Pi);
    }
}

}  // namespace
}  // namespace tarvex
