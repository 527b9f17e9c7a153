#include "toolkit/display_text.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(DisplayTextTest, BytesAreShownAsTheirCharacters) {
    struct Case {
        std::string_view text;
        std::u32string_view shown;
    };
    const Case cases[] = {
        {"KJFK & Co", U"KJFK & Co"},
        {"\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E\x91\x92\x93",
         U"€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“"},  // Windows Latin-1
        {"\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F\xA0\xE9", U"”•–—˜™š›œžŸ\u00A0é"},
        {"\xC3\xA9\xE2\x82\xAC\xF0\x9F\x9B\xAB", U"\u00E9\u20AC\U0001F6EB"},  // UTF-8
        {"\xC3", U"\u00C3"},                                                  // UTF-8 cut off
        {"\xC0\xAF\xE0\x80\x80", U"\u00C0\u00AF\u00E0\u20AC\u20AC"},          // overlong
        {"\xED\xA0\x80", U"\u00ED\u00A0\u20AC"},                              // a surrogate
        {"\xEE\x80\x80\xED\x9F\xBF", U"\uE000\uD7FF"},                        // and its neighbours
        {std::string_view("a\0\x1B\x7F", 4), U"a\u2400\u241B\u2421"},
    };
    for (const auto& [text, shown] : cases) EXPECT_EQ(ShownText(text), shown) << text;
    EXPECT_EQ(ShownUtf8("A\t\xE9\x80 \xF0\x9F\x9B\xAB"), "A␉é€ 🛫");
}

TEST(DisplayTextTest, TypingKeepsTheBytesThatWereThere) {
    struct Case {
        std::string_view before;
        std::u32string_view shown;
        std::string_view typed;
    };
    const Case cases[] = {
        {"", U"caf\u00E9 \u20AC", "caf\xE9 \x80"},
        {"caf\xC3\xA9", U"caf\u00E9s", "caf\xC3\xA9s"},
        {"\xC3\xA9x\xE9", U"\u00E9\u00E9", "\xC3\xA9\xE9"},
        {"ac\xC3\xA9", U"abc\u00E9", "abc\xC3\xA9"},
        {"aaa", U"aa", "aa"},
        {"abc", U"a\u4E2Dbc", "abc"},  // no such letter in the code page
        {"a\x01z", U"a\u2401yz", "a\x01yz"},
        {"", U"\n", ""},
    };
    for (const auto& [before, shown, typed] : cases) EXPECT_EQ(TypedText(before, shown), typed) << typed;
}

TEST(DisplayTextTest, CaptionsLoseTheBlanksThatCentreThem) {
    EXPECT_EQ(PlainCaption("   Clear All    Input Boxes"), "Clear All Input Boxes");
    EXPECT_EQ(PlainCaption(" Lower\r\n Altitude"), "Lower Altitude");
    EXPECT_EQ(PlainCaption("  "), "");
}

}  // namespace
}  // namespace tarvex
