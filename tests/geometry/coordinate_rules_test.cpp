#include "geometry/coordinate_rules.h"

#include <gtest/gtest.h>
#include <string>

namespace tarvex {
namespace {

constexpr const char* TooFarNorth =
    "There are no Latitude values greater than 90.\r\n                       Please correct.";
constexpr const char* TooFarEast =
    "There are no Longitude values greater than 180.\r\n                       Please correct.";
constexpr const char* PastThePole =
    "Latitude degrees is 90. Minutes must be zero.\r\n                         Please correct.";
constexpr const char* PastTheDateLine =
    "Longitude degrees is 180. Minutes must be zero.\r\n                         Please correct.";
constexpr const char* SixtyMinutes = "Minutes must be less than 60.\r\n            Please correct.";
constexpr const char* NoNumber = "Enter only numbers please.";

TEST(CoordinateRules, Degrees) {
    const struct {
        const CoordinateAxis& axis;
        const char* degrees;
        const char* complaint;
    } cases[] = {
        {LatitudeAxis, "", ""},
        {LatitudeAxis, "90", ""},
        {LatitudeAxis, "91", TooFarNorth},
        {LatitudeAxis, "99a", TooFarNorth},
        {LatitudeAxis, "12a", NoNumber},
        {LatitudeAxis, " ", NoNumber},
        {LatitudeAxis, " 33", ""},
        {LatitudeAxis, "-99", ""},
        {LongitudeAxis, "180", ""},
        {LongitudeAxis, "181", TooFarEast},
        {LongitudeAxis, "1e3", TooFarEast},
    };
    for (const auto& [axis, degrees, complaint] : cases) {
        EXPECT_EQ(DegreesComplaint(axis, degrees), complaint) << degrees;
    }
}

TEST(CoordinateRules, Minutes) {
    const struct {
        const CoordinateAxis& axis;
        const char* degrees;
        const char* minutes;
        const char* complaint;
    } cases[] = {
        {LatitudeAxis, "90", "", ""},
        {LatitudeAxis, "90", "0", ""},
        {LatitudeAxis, "90", "0.5", PastThePole},
        {LatitudeAxis, "90", "75", PastThePole},
        {LatitudeAxis, "90", "abc", NoNumber},
        {LatitudeAxis, "", "59.999999", ""},
        {LatitudeAxis, "33", "60", SixtyMinutes},
        {LatitudeAxis, "33", "75a", SixtyMinutes},
        {LatitudeAxis, "33", "12a", NoNumber},
        {LatitudeAxis, "180", "5", ""},
        {LongitudeAxis, "180", "1", PastTheDateLine},
        {LongitudeAxis, "90", "1", ""},
    };
    for (const auto& [axis, degrees, minutes, complaint] : cases) {
        EXPECT_EQ(MinutesComplaint(axis, degrees, minutes), complaint) << degrees << " " << minutes;
    }
}

}  // namespace
}  // namespace tarvex
