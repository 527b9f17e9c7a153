#include "geometry/position_text.h"

#include <gtest/gtest.h>

namespace tarvex::testing {
namespace {

TEST(PositionTextTest, ReadsWholePositions) {
    const struct {
        const char* texts;  // with bars between them
        double latitude, longitude;
    } cases[] = {
        {"33.9425 -118.408|33.9425,-118.408|+33.9425 / -118.408|33,9425; -118,408|N33.9425 W118.408"
         "|33.9425N118.408W|n 33.9425, w 118.408|W118.408 N33.9425|118.408W;33.9425N|N33.9425,118.408W"
         "|33,9425 −118,408|\r\n 33.9425\t-118.408\r\n|N33 56.550 W118 24.480|33 56.550 N 118 24.480 W"
         "|33 56,55 -118 24,48|N33°56.55' W118°24.48'|33°56.55'-118°24.48'|33 ° 56.55 ′, -118° 24.48"
         "|N33:56.55W118:24.48|N33 56.550\r\nW118 24.480|33°56′33″N/118°24′28.8″W|33º56’33’’N 118º24’28.8’’W"
         "|N33 56 33 W118 24 28.8|33:56:33 -118:24:28.8|33-56-33.0N 118-24-28.8W|335633.00N1182428.80W"
         "|3356.55N11824.48W|N33563300W118242880|33\xC2\xA0"
         "56\xE2\x80\xAF"
         "33 -118 24 28.8",
         33.9425, -118.408},
        {"3356N11824W|n3356w11824|33 56 N 118 24 W", 33 + 56 / 60., -118.4},
        {"335633N1182428W|N335633 W1182428", 33.9425, -(118 + 24 / 60. + 28 / 3600.)},
        {"33N118W|33 -118|33,-118|33° -118°|33°N 118°00'W", 33, -118},
        {"33 118|33,118|33° 118°|33 00 118 00|+33 +118|118E33N", 33, 118},
        {"S0 30 W0 15|-0.5 -.25|-0:30:00 -0:15:00|s00°30'00'' w000°15'00\"", -0.5, -0.25},
        {"-90 180.|S90 00 00 E180 0 0|S90000000E180000000", -90, 180},
        {"0 0|-0 -0|S0 W0", 0, 0},
    };
    for (const auto& [texts, latitude, longitude] : cases) {
        for (std::string_view rest = texts; !rest.empty();) {
            const auto text = rest.substr(0, rest.find('|'));
            rest.remove_prefix(std::min(text.size() + 1, rest.size()));
            const auto position = ReadPosition(text);
            ASSERT_TRUE(position) << text;
            EXPECT_NEAR(position->latitude, latitude, 1e-12) << text;
            EXPECT_NEAR(position->longitude, longitude, 1e-12) << text;
        }
    }
}

TEST(PositionTextTest, RefusesWhatIsNoPosition) {
    for (const char* text : {"",
                             " ",
                             "33.9425",
                             "hello",
                             "N",
                             "NE",
                             "N W",
                             ", ",
                             "N33",
                             "33 118 24",
                             "N33 N34",
                             "E118 W118",
                             "91 0",
                             "0 181",
                             "90.0001 0",
                             "90 0.1 0 0",
                             "N90 00 01 E0 0 0",
                             "0 0 180 1",
                             "33 60 118 0",
                             "33 0 60 118 0 0",
                             "-33N 118W",
                             "N-33 W118",
                             "33N -118",
                             "N33, 118",
                             "- 33 118",
                             "33 - 118",
                             "33.5 56 118.4 24",
                             "3356 11824",
                             "335633 1182428",
                             "3356N118W",
                             "33N11824W",
                             "N335633W118242880",
                             "33563300N118242880W",
                             "N33563300.5W118242880.5",
                             "N333W118",
                             "N33W1182",
                             "33'56 118'24",
                             "33°56\" 118°24\"",
                             "33°56°118°24°",
                             "33-56 118-24",
                             "33.9425-118.408",
                             "33,9425,118,408",
                             "33,9,118.4",
                             "33,,118",
                             "33; ;118",
                             "33,118,",
                             "33:56:118:24",
                             ":33 118",
                             "33: 118:",
                             "33°:56 118°:24",
                             "N33 56 33 1 W118 24 28 1",
                             "33..5 118",
                             "33.5.5 118",
                             ". .",
                             "033 118",
                             "33 1180",
                             "N33 056 W118 24",
                             "33S. 118E",
                             "1e5 118",
                             "(33, 118)",
                             "33 118 x",
                             "N33W118N",
                             "N33N 118W",
                             "33\xB0 118\xB0",
                             "33 56' 118' 24"}) {
        EXPECT_FALSE(ReadPosition(text)) << text;
    }
    EXPECT_TRUE(ReadPosition("33 118" + std::string(194, ' ')));
    EXPECT_FALSE(ReadPosition("33 118" + std::string(195, ' ')));
}

TEST(PositionTextTest, WritesMinutesToThreeDecimals) {
    const std::pair<Position, const char*> cases[] = {
        {{33.9425, -118.408}, "N33 56.550 W118 24.480"},
        {{-0.5, 0.25}, "S00 30.000 E000 15.000"},
        {{-33.99999999, 9.99999999}, "S34 00.000 E010 00.000"},
        {{-1e-9, -1e-9}, "N00 00.000 E000 00.000"},
        {{90, -180}, "N90 00.000 W180 00.000"},
    };
    for (const auto& [position, text] : cases) EXPECT_EQ(PositionText(position), text);
}

}  // namespace
}  // namespace tarvex::testing
