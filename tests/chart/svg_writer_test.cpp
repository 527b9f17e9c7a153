#include "chart/svg_writer.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

std::string BodyOf(const DrawnItem& item) {
    const std::string text = SvgText({{40, 30}, {item}}, LightPalette(), "");
    const auto begin = text.find("\"/>\n") + 4;
    return text.substr(begin, text.rfind("</svg>") - begin);
}

TEST(SvgWriterTest, ADrawingIsAFileOfItsOwn) {
    EXPECT_EQ(SvgText({{40.5, 30}, {}}, LightPalette(), "A & B"),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"40.5\" height=\"30\" "
              "viewBox=\"0 0 40.5 30\" font-family=\"sans-serif\" stroke-linejoin=\"round\" "
              "stroke-linecap=\"round\" xml:space=\"preserve\">\n"
              "<title>A &amp; B</title>\n"
              "<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n"
              "</svg>\n");
}

TEST(SvgWriterTest, EachItemHasItsPlaceItsInkAndItsShape) {
    const Line dashed{.points = {{1, 2}, {3.456, -0.001}}, .role = Role::Draft, .dashed = true, .weight = 2};
    EXPECT_EQ(BodyOf(dashed),
              "<polyline points=\"1,2 3.46,0\" stroke=\"#7b3fb5\" stroke-width=\"3\" fill=\"none\" "
              "stroke-dasharray=\"12 9\"/>\n");
    const Line area{.points = {{0, 0}, {8, 0}, {8, 8}}, .role = Role::Shade, .filled = true};
    EXPECT_EQ(BodyOf(area), "<polygon points=\"0,0 8,0 8,8\" fill=\"#2f6db5\" fill-opacity=\"0.14\"/>\n");
    // A line without any point is none.
    EXPECT_EQ(BodyOf(Line{}), "");
    const Symbol bar{
        .glyph = Glyph::Runway, .at = {10, 10}, .role = Role::Runway, .turn = 1.5707963267948966};
    EXPECT_EQ(BodyOf(bar),
              "<polygon points=\"15,8.9 15,11.1 5,11.1 5,8.9\" fill=\"#4a4f55\" stroke=\"#4a4f55\" "
              "stroke-width=\"1\"/>\n");
    const Words both{.text = "5000",
                     .at = {10, 10},
                     .align = Words::Align::Centre,
                     .size = 10,
                     .underlined = true,
                     .overlined = true};
    EXPECT_EQ(BodyOf(both),
              "<text x=\"10\" y=\"13.5\" font-size=\"10\" text-anchor=\"middle\" fill=\"#1d2733\" "
              "text-decoration=\"underline overline\">5000</text>\n");
}

TEST(SvgWriterTest, WordsAreWellFormedWhateverTheyHold) {
    const std::pair<const char*, const char*> cases[] = {
        {"<A&B>", "&lt;A&amp;B&gt;"},
        {"\xC3\xA9\xE2\x90\x80\xF0\x9F\x9B\xA9", "\xC3\xA9\xE2\x90\x80\xF0\x9F\x9B\xA9"},
        {"a\x01z\x7F", "a\xEF\xBF\xBDz\x7F"},
        {"\xE9z", "\xEF\xBF\xBDz"},                // begun, not ended
        {"\xC0\x80", "\xEF\xBF\xBD\xEF\xBF\xBD"},  // longer than need be
        {"\xED\xA0\x80", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
        {"\xEF\xBF\xBF", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
    };
    for (const auto& [text, written] : cases) {
        const std::string body = BodyOf(Words{.text = text});
        const auto begin = body.find('>') + 1;
        EXPECT_EQ(body.substr(begin, body.rfind("</text>") - begin), written);
    }
}

}  // namespace
}  // namespace tarvex
