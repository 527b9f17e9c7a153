#include "geometry/position_text.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr double North = 33 + 56.0 / 60 + 33.0 / 3600;
constexpr double West = -(118 + 24.0 / 60 + 28.8 / 3600);

TEST(PositionText, IsReadInEveryForm) {
    const std::tuple<const char*, double, double> cases[] = {
        {"33.9425 -118.408", North, West},
        {" +33.9425 , -118.408\r\n", North, West},
        {"33.9425;-118.408", North, West},
        {"33.9425/-118.408", North, West},
        {"33.9425N 118.408W", North, West},
        {"w118.408 n33.9425", North, West},
        {"118.408 W, 33.9425 N", North, West},
        {"N33 56.550 W118 24.480", North, West},
        {"33 56.550 -118 24.480", North, West},
        {"33 30, 118 45", 33.5, 118.75},
        {"N 33\xC2\xB0"
         "56.550' / W 118\xC2\xB0"
         "24.480'",
         North, West},
        {"33\xC2\xBA"
         "56\xE2\x80\xB2"
         "33\xE2\x80\xB3N 118\xC2\xBA"
         "24\xE2\x80\x99"
         "28.8\xE2\x80\x9DW",
         North, West},
        {"33 56 33 N, 118 24 28.8 W", North, West},
        {"33:56:33 \xE2\x88\x92"
         "118:24:28.8",
         North, West},
        {"33\xC2\xB0 56' 33'' -118\xC2\xB0 24' 28.8''", North, West},
        {"33,9425 -118,408", North, West},
        {"33,9425N 118,408W", North, West},
        {"33-56-33.0N / 118-24-28.8W", North, West},
        {"335633.00N1182428.80W", North, West},
        {"3356,55N11824,48W", North, West},
        {"33\xC2\xB0"
         "56.55'-118\xC2\xB0"
         "24.48'",
         North, West},
        {"33\xC2\xB0"
         "56\xE2\x80\x99"
         "33\xE2\x80\x99\xE2\x80\x99N\xE2\x80\xAF"
         "118 24 28.8W",
         North, West},
        {"3356N11824W", 33 + 56.0 / 60, -118.4},
        {"33N118W", 33, -118},
        {"N3356 W11824", 33 + 56.0 / 60, -118.4},
        {"335633N1182428W", North, -(118 + 24.0 / 60 + 28.0 / 3600)},
        {"N33563300W118242880", North, West},
        {"S90E180", -90, 180},
        {"33\xC2\xB0"
         "56\xE2\x80\xB2"
         "33\xE2\x80\xB2\xE2\x80\xB2N 118\xCB\x9A"
         "24\xE2\x80\xB2"
         "28.8''W",
         North, West},
        {"33 N 118 24 W", 33, -118.4},
        {"-33 118", -33, 118},
        {"-0.5 0", -0.5, 0},
        {"5S 7E", -5, 7},
    };
    for (const auto& [text, latitude, longitude] : cases) {
        const auto position = ReadPosition(text);
        ASSERT_TRUE(position) << text;
        EXPECT_NEAR(position->latitude, latitude, 1e-9) << text;
        EXPECT_NEAR(position->longitude, longitude, 1e-9) << text;
    }
}

TEST(PositionText, IsNotGuessedFrom) {
    for (const char* text : {"",
                             "33.9425",
                             "N33.9425 -118.408",
                             "33.9425N 118.408",
                             "-33.9425N 118.408W",
                             "N33 S34",
                             "N33E1W2",
                             "33.5 56.5 N 118 24 W",
                             "N33 60 W118 24",
                             "N33 56 60 W118 24 0",
                             "91 118",
                             "45 181",
                             "N90 0.1 E0 0",
                             "335N118W",
                             "3356N118W",
                             "33N11824W",
                             "335633N11824W",
                             "N33563300.5W118242880.5",
                             "33-56 118-24",
                             "33-N 118-W",
                             "33563N1182428W",
                             "3356330000N118W",
                             "33 56 118",
                             "33'56 118'24",
                             "33\" 118\"",
                             "33: 118:",
                             "N33 W118 x",
                             "xN33 W118",
                             "33.9425-118.408",
                             "1e1 1e1",
                             ".5 .5",
                             "5. 5. 5",
                             "33,9425,118,408",
                             "N33,W118,",
                             "nan inf",
                             "33 d118",
                             "33,N 118,W",
                             "1 2 3 4 5 6 7 8",
                             "33N 118W.",
                             "--33 118",
                             "48,5 9",
                             "33, 118 24",
                             "33 56; 118",
                             "33d56 118d24",
                             "1/2",
                             "12;34",
                             "33 118"}) {
        EXPECT_FALSE(ReadPosition(text)) << text;
    }
    EXPECT_FALSE(ReadPosition("33" + std::string(200, ' ') + "118"));
}

TEST(PositionText, IsWrittenInMinutes) {
    const std::pair<Position, const char*> cases[] = {
        {{North, West}, "N33 56.550 W118 24.480"},
        {{-0.25, 5.5}, "S00 15.000 E005 30.000"},
        {{9.99999999, -179.999999999}, "N10 00.000 W180 00.000"},
        {{-1e-9, -1e-9}, "N00 00.000 E000 00.000"},
    };
    for (const auto& [position, text] : cases) EXPECT_EQ(PositionText(position), text);
}

}  // namespace
}  // namespace tarvex
