#include "geometry/text_rules.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "geometry/fixed_field.h"
#include "support/failure_of.h"

namespace tarvex::testing {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();

using Reading = std::pair<std::string_view, double>;

TEST(LeadingNumberTest, ReadsWhatTheTextBeginsWith) {
    const Reading cases[] = {
        {"33.5", 33.5},      {"33.0.5", 33}, {"12abc", 12},        {"-.5", -0.5},     {"+7.", 7},
        {"1 2", 12},         {"- 33", -33},  {" \t1\n.\t5 ", 1.5}, {"1\r2", 1},       {"5-3", 5},
        {"1,234", 1},        {"1e3", 1000},  {"1D+2x", 100},       {"1 e - 2", 0.01}, {"1e", 1},
        {"1e+", 1},          {"&HfF", 255},  {"&o17", 15},         {"& H 1 0", 16},   {"117.0501", 117.0501},
        {"1e400", Infinity},
    };
    for (const auto& [text, number] : cases) EXPECT_EQ(LeadingNumber(text), number) << text;
    for (const char* none : {"", ".", "abc", "     ", "--5", "'33", ".e5", "e5", "&O8", "&H", "&5", "inf",
                             "nan", "0x10", "\3511", "1e-99999999999999999999", "0e99999999999999999999"}) {
        EXPECT_EQ(LeadingNumber(none), 0) << none;
    }
    EXPECT_FALSE(std::signbit(LeadingNumber("-0")));
    EXPECT_EQ(LeadingNumber("-1d99999999999999999999"), -Infinity);
    EXPECT_EQ(LeadingNumber(std::string(400, '9') + "e-400"), 1);
    EXPECT_EQ(LeadingNumber("." + std::string(400, '0') + "1e401"), 1);
    EXPECT_EQ(LeadingNumber("." + std::string(400, '0') + "1e50"), 0);
    EXPECT_EQ(LeadingNumber("&H" + std::string(400, 'F')), Infinity);
}

TEST(StrictNumberTest, TakesWholeTextsOnly) {
    const Reading accepted[] = {
        {"33.5", 33.5},  {" 12", 12},        {"12  ", 12},  {"1e3", 1000}, {"1d-2", 0.01},
        {"5.", 5},       {".5", 0.5},        {"-.5", -0.5}, {"12-", -12},  {"12+", 12},
        {"1,234", 1234}, {"1,2,3.5", 123.5}, {"1e-400", 0}, {"-0", 0},     {"1e3-", -1000},
    };
    for (const auto& [text, number] : accepted) {
        EXPECT_TRUE(IsNumberText(text)) << text;
        EXPECT_EQ(StrictNumber(text), number) << text;
    }
    const std::string_view refused[] = {"",      " ",    ".",  "-",   "+-1", "-12-", "- 3",  "1 2",
                                        "1\t",   "1..2", "1e", "e5",  ",1",  "1,",   "1,,2", "1.2,3",
                                        "12abc", "&H10", "$1", "(1)", "nan", "inf",  "1,e3"};
    for (std::string_view text : refused) {
        EXPECT_FALSE(IsNumberText(text)) << text;
        EXPECT_EQ(NumberOf([&] { StrictNumber(text); }), NotANumber) << text;
    }
    EXPECT_FALSE(IsNumberText("1e999"));
    EXPECT_EQ(NumberOf([] { StrictNumber("1e999"); }), Overflow);
}

TEST(NumberTextTest, LaysOutPlainAndSignedTexts) {
    const struct {
        double number;
        std::string plain, withSign;
    } cases[] = {
        {33.5, "33.5", " 33.5"},
        {0.5, "0.5", " .5"},
        {-0.5, "-0.5", "-.5"},
        {33, "33", " 33"},
        {-0.0, "0", " 0"},
        {0.1 + 0.2, "0.3", " .3"},
        {.000012, "0.000012", " .000012"},
        {1e-7, "0.0000001", " .0000001"},
        {1.0 / 3, "0.333333333333333", " .333333333333333"},
        {-2.5e-8, "-2.5E-08", "-2.5E-08"},
        {-1e300, "-1E+300", "-1E+300"},
        {999999999999999, "999999999999999", " 999999999999999"},
        {1234567890123456, "1.23456789012346E+15", " 1.23456789012346E+15"},
    };
    for (const auto& [number, plain, withSign] : cases) {
        EXPECT_EQ(NumberText(number), plain);
        EXPECT_EQ(SignedNumberText(number), withSign);
        EXPECT_EQ(SignedNumberText(plain), withSign);
    }
    EXPECT_EQ(NumberOf([] { NumberText(Infinity); }), Overflow);
    EXPECT_EQ(NumberOf([] { SignedNumberText(""); }), NotANumber);
    EXPECT_EQ(WholeDegreesText(117.99) + WholeDegreesText(0.99), "1170");
}

TEST(PatternFormatTest, KeepsThePointAndDropsZeros) {
    const std::pair<double, std::string> cases[] = {
        {33.5, "33.5"},
        {33, "33."},
        {0.5, ".5"},
        {0, "."},
        {59.9999999, "60."},
        {117.0501325094, "117.050133"},
        {1234.5, "1234.5"},
        {0.0000001, "."},
        {0.0000005, ".000001"},  // a little below the half in binary
        {0.9999995, "1."},
        {2.0000025, "2.000003"},
        {1e20, "100000000000000000000."},
        {-33.5, "-33.5"},
        {-0.5, "-.5"},
        {-0.0000004, "."},
    };
    for (const auto& [number, text] : cases) {
        for (std::string_view pattern : {TwoDigitPattern, ThreeDigitPattern, FourDigitPattern}) {
            EXPECT_EQ(PatternFormat(number, pattern), text);
        }
        if (number >= 0) {
            EXPECT_EQ(PatternFormat(number, NegatedThreeDigitPattern), "-" + text);
        }
    }
    EXPECT_EQ(PatternFormat(" 33.25 ", FourDigitPattern), "33.25");
    EXPECT_EQ(NumberOf([] { PatternFormat(".", FourDigitPattern); }), NotANumber);
}

TEST(RoundingTest, TiesGoToEvenOnFifteenDigits) {
    const std::pair<double, double> cases[] = {{30.7407005, 30.7407},
                                               {30.7407015, 30.740702},
                                               {30.74070150001, 30.740702},
                                               {30.74070050001, 30.740701},
                                               {0.0000005, 0},
                                               {0.0000015, 0.000002},
                                               {59.9999995, 60}};
    for (const auto& [number, rounded] : cases) EXPECT_EQ(RoundEven(number, 6), rounded) << number;
    EXPECT_EQ(RoundEven(-2.5, 0), -2);
    EXPECT_EQ(RoundEven(-0.5000001, 0), -1);
    EXPECT_EQ(RoundEven(0.04, 0), 0);
    EXPECT_EQ(RoundEven(1250, -2), 1200);
}

TEST(RoundingTest, WholeNumbers) {
    EXPECT_EQ(Fix(-2.7), -2);
    EXPECT_EQ(Int(-2.7), -3);
    EXPECT_EQ(WholeNumber16(2.5), 2);
    EXPECT_EQ(WholeNumber16(-3.5), -4);
    EXPECT_EQ(WholeNumber16(32767.4), 32767);
    EXPECT_EQ(WholeNumber32(-2147483648.0), std::numeric_limits<std::int32_t>::min());
    for (double tooLarge : {32767.5, -32768.6, Infinity, std::nan("")}) {
        EXPECT_EQ(NumberOf([&] { WholeNumber16(tooLarge); }), Overflow);
    }
    EXPECT_EQ(NumberOf([] { WholeNumber32(2147483647.5); }), Overflow);
}

TEST(TextPartsTest, CutTrimAndFind) {
    EXPECT_EQ(Trim("  a b \t "), "a b \t");
    EXPECT_EQ(Trim("    "), "");
    EXPECT_EQ(Left("ABC", 2), "AB");
    EXPECT_EQ(Left("ABC", 9), "ABC");
    EXPECT_EQ(Right("ABC", 2), "BC");
    EXPECT_EQ(Right("ABC", 9), "ABC");
    EXPECT_EQ(Mid("ABC", 2, 1), "B");
    EXPECT_EQ(Mid("ABC", 4), "");
    EXPECT_EQ(Mid("ABC", 9, 2), "");
    EXPECT_EQ(NumberOf([] { Left("ABC", -1); }), BadArgument);
    EXPECT_EQ(FailureOf([] { Mid("ABC", 0); }).Reason(), "positions in a text count from 1");
    EXPECT_EQ(FailureOf([] { Mid("ABC", 1, -1); }).Reason(),
              "a part of a text cannot have a negative length");
    const std::pair<std::ptrdiff_t, std::ptrdiff_t> dashes[] = {{1, 5}, {6, 7}, {8, 0}, {99, 0}};
    for (const auto& [start, place] : dashes) EXPECT_EQ(Find(start, "KJFK-A-B", "-"), place);

    const FixedField<10> field("ABC");
    EXPECT_EQ(field.View(), "ABC       ");
    EXPECT_TRUE(field == std::string("ABC       ") && field == FixedField<10>("ABC"));
    EXPECT_FALSE(field == "ABC" || "ABC        " == field) << "a text has to have the width";
    EXPECT_EQ(RightTrim(field), "ABC");
    EXPECT_EQ(FixedField<2>("123").View(), "12");
}

TEST(UpperTest, CoversTheCodePageAndLeavesUtf8Alone) {
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"kjfk-4 \\{[", "KJFK-4 \\{["},
        {"\xE0 \xFE \xF7 \xFF \xB5 \xDF", "\xC0 \xDE \xF7 \x9F \xB5 \xDF"},
        {"\x9A\x9C\x9E", "\x8A\x8C\x8E"},
        {"c:\\\xC3\xA9t\xC3\xA9", "C:\\\xC3\xA9T\xC3\xA9"},                  // UTF-8 of e acute
        {"\xE2\x82\xAC \xF0\x9F\x9B\xA9", "\xE2\x82\xAC \xF0\x9F\x9B\xA9"},  // of the euro and of a plane
        {"\xE2\x82 \xE0\x82\xAC", "\xC2\x82 \xC0\x82\xAC"},                  // cut short, overlong: code page
    };
    for (const auto& [text, upper] : cases) EXPECT_EQ(Upper(text), upper);
}

}  // namespace
}  // namespace tarvex::testing
