#include "geometry/text_rules.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

#include "geometry/fixed_field.h"
#include "toolkit/failure.h"

namespace tarvex {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();

template <typename Operation>
int FailureOf(Operation operation) {
    try {
        operation();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

TEST(LeadingNumberTest, ReadsWhatTheTextBeginsWith) {
    const struct {
        std::string_view text;
        double number;
    } cases[] = {
        {"33.5", 33.5},
        {"33.0.5", 33},
        {"12abc", 12},
        {"-.5", -0.5},
        {"+7.", 7},
        {".", 0},
        {"", 0},
        {"abc", 0},
        {"      ", 0},
        {"1 2", 12},
        {"- 33", -33},
        {" \t1\n.\t5 ", 1.5},
        {"1\r2", 1},
        {"--5", 0},
        {"5-3", 5},
        {"1,234", 1},
        {"'33", 0},
        {"1e3", 1000},
        {"1D+2x", 100},
        {"1 e - 2", 0.01},
        {"1e", 1},
        {"1e+", 1},
        {".e5", 0},
        {"e5", 0},
        {"&HfF", 255},
        {"&o17", 15},
        {"& H 1 0", 16},
        {"&O8", 0},
        {"&H", 0},
        {"&5", 0},
        {"inf", 0},
        {"nan", 0},
        {"0x10", 0},
        {"117.0501325094", 117.0501325094},
        {"1e400", Infinity},
        {"-1d99999999999999999999", -Infinity},
        {"1e-99999999999999999999", 0},
        {"0e99999999999999999999", 0},
        {"\xE9"
         "1",
         0},
    };
    for (const auto& test : cases) EXPECT_EQ(LeadingNumber(test.text), test.number) << test.text;

    EXPECT_FALSE(std::signbit(LeadingNumber("-0")));
    EXPECT_EQ(LeadingNumber(std::string(400, '9') + "e-400"), 1);
    EXPECT_EQ(LeadingNumber("." + std::string(400, '0') + "1e401"), 1);
    EXPECT_EQ(LeadingNumber("&H" + std::string(400, 'F')), Infinity);
}

TEST(StrictNumberTest, TakesWholeTextsOnly) {
    const struct {
        std::string_view text;
        double number;
    } accepted[] = {
        {"33.5", 33.5},  {" 12", 12},        {"12  ", 12},  {"1e3", 1000}, {"1d-2", 0.01},
        {"5.", 5},       {".5", 0.5},        {"-.5", -0.5}, {"12-", -12},  {"12+", 12},
        {"1,234", 1234}, {"1,2,3.5", 123.5}, {"1e-400", 0}, {"-0", 0},     {"1e3-", -1000},
    };
    for (const auto& test : accepted) {
        EXPECT_TRUE(IsNumberText(test.text)) << test.text;
        EXPECT_EQ(StrictNumber(test.text), test.number) << test.text;
    }
    const std::string_view refused[] = {"",      " ",    ".",  "-",   "+-1", "-12-", "- 3",  "1 2",
                                        "1\t",   "1..2", "1e", "e5",  ",1",  "1,",   "1,,2", "1.2,3",
                                        "12abc", "&H10", "$1", "(1)", "nan", "inf",  "1,e3"};
    for (std::string_view text : refused) {
        EXPECT_FALSE(IsNumberText(text)) << text;
        EXPECT_EQ(FailureOf([&] { StrictNumber(text); }), NotANumber) << text;
    }
    EXPECT_FALSE(IsNumberText("1e999"));
    EXPECT_EQ(FailureOf([] { StrictNumber("1e999"); }), Overflow);
}

TEST(NumberTextTest, LaysOutPlainAndSignedTexts) {
    const struct {
        double number;
        std::string plain;
        std::string withSign;
    } cases[] = {
        {33.5, "33.5", " 33.5"},
        {0.5, "0.5", " .5"},
        {-0.5, "-0.5", "-.5"},
        {-117.25, "-117.25", "-117.25"},
        {33, "33", " 33"},
        {0, "0", " 0"},
        {-0.0, "0", " 0"},
        {0.1 + 0.2, "0.3", " .3"},
        {1.0 / 3, "0.333333333333333", " .333333333333333"},
        {.000012, "0.000012", " .000012"},
        {1e-7, "0.0000001", " .0000001"},
        {-2.5e-8, "-2.5E-08", "-2.5E-08"},
        {999999999999999, "999999999999999", " 999999999999999"},
        {1234567890123456, "1.23456789012346E+15", " 1.23456789012346E+15"},
        {-1e300, "-1E+300", "-1E+300"},
        {32767, "32767", " 32767"},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(NumberText(test.number), test.plain);
        EXPECT_EQ(SignedNumberText(test.number), test.withSign);
        EXPECT_EQ(SignedNumberText(test.plain), test.withSign);
    }
    EXPECT_EQ(FailureOf([] { NumberText(Infinity); }), Overflow);
    EXPECT_EQ(FailureOf([] { SignedNumberText(""); }), NotANumber);
    EXPECT_EQ(WholeDegreesText(117.99), "117");
    EXPECT_EQ(WholeDegreesText(0.99), "0");
}

TEST(PatternFormatTest, KeepsThePointAndDropsZeros) {
    const struct {
        double number;
        std::string plain;
        std::string negated;  // empty where the pattern isn't used
    } cases[] = {
        {33.5, "33.5", "-33.5"},
        {33, "33.", "-33."},
        {0.5, ".5", "-.5"},
        {0, ".", "-."},
        {-33.5, "-33.5", ""},
        {-0.5, "-.5", ""},
        {59.9999999, "60.", "-60."},
        {117.0501325094, "117.050133", "-117.050133"},
        {1234.5, "1234.5", "-1234.5"},
        {0.0000001, ".", "-."},
        {-0.0000004, ".", ""},
        {0.0000005, ".000001", "-.000001"},  // a little below the half in binary
        {0.9999995, "1.", "-1."},
        {2.0000025, "2.000003", "-2.000003"},
        {1e20, "100000000000000000000.", "-100000000000000000000."},
    };
    for (const auto& test : cases) {
        for (std::string_view pattern : {TwoDigitPattern, ThreeDigitPattern, FourDigitPattern}) {
            EXPECT_EQ(PatternFormat(test.number, pattern), test.plain);
        }
        if (!test.negated.empty()) {
            EXPECT_EQ(PatternFormat(test.number, NegatedThreeDigitPattern), test.negated);
        }
    }
    EXPECT_EQ(PatternFormat(" 33.25 ", FourDigitPattern), "33.25");
    EXPECT_EQ(FailureOf([] { PatternFormat(".", FourDigitPattern); }), NotANumber);
}

TEST(RoundingTest, TiesGoToEvenOnFifteenDigits) {
    EXPECT_EQ(RoundEven(30.7407005, 6), 30.7407);
    EXPECT_EQ(RoundEven(30.7407015, 6), 30.740702);
    EXPECT_EQ(RoundEven(30.74070150001, 6), 30.740702);
    EXPECT_EQ(RoundEven(30.74070050001, 6), 30.740701);
    EXPECT_EQ(RoundEven(0.0000005, 6), 0);
    EXPECT_EQ(RoundEven(0.0000015, 6), 0.000002);
    EXPECT_EQ(RoundEven(59.9999995, 6), 60);
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
        EXPECT_EQ(FailureOf([&] { WholeNumber16(tooLarge); }), Overflow);
    }
    EXPECT_EQ(FailureOf([] { WholeNumber32(2147483647.5); }), Overflow);
}

TEST(TextPartsTest, CutTrimAndFind) {
    EXPECT_EQ(Trim("  a b \t "), "a b \t");
    EXPECT_EQ(LeftTrim("  a "), "a ");
    EXPECT_EQ(RightTrim(" a  "), " a");
    EXPECT_EQ(Trim("    "), "");

    EXPECT_EQ(Left("ABC", 2), "AB");
    EXPECT_EQ(Left("ABC", 9), "ABC");
    EXPECT_EQ(Right("ABC", 2), "BC");
    EXPECT_EQ(Right("ABC", 9), "ABC");
    EXPECT_EQ(Mid("ABC", 2), "BC");
    EXPECT_EQ(Mid("ABC", 2, 1), "B");
    EXPECT_EQ(Mid("ABC", 4), "");
    EXPECT_EQ(Mid("ABC", 9, 2), "");
    EXPECT_EQ(FailureOf([] { Left("ABC", -1); }), BadArgument);
    EXPECT_EQ(FailureOf([] { Mid("ABC", 0); }), BadArgument);
    EXPECT_EQ(FailureOf([] { Mid("ABC", 1, -1); }), BadArgument);

    EXPECT_EQ(Find(1, "KJFK-A-B", "-"), 5);
    EXPECT_EQ(Find(6, "KJFK-A-B", "-"), 7);
    EXPECT_EQ(Find(8, "KJFK-A-B", "-"), 0);
    EXPECT_EQ(Find(99, "KJFK-A-B", "-"), 0);

    const FixedField<10> field("ABC");
    EXPECT_EQ(field.View(), "ABC       ");
    EXPECT_NE(field.View(), "ABC");
    EXPECT_EQ(RightTrim(field), "ABC");
    EXPECT_EQ(FixedField<2>("15").View(), "15");
    EXPECT_EQ(FixedField<2>("0").View(), "0 ");
    EXPECT_EQ(FixedField<2>("123").View(), "12");
}

TEST(UpperTest, CoversTheCodePageAndLeavesUtf8Alone) {
    const struct {
        std::string_view text;
        std::string_view upper;
    } cases[] = {
        {"kjfk-4 \\{[", "KJFK-4 \\{["},
        {"\xE0 \xFE \xF7 \xFF \xB5 \xDF", "\xC0 \xDE \xF7 \x9F \xB5 \xDF"},
        {"\x9A\x9C\x9E", "\x8A\x8C\x8E"},
        {"c:\\\xC3\xA9t\xC3\xA9", "C:\\\xC3\xA9T\xC3\xA9"},                  // UTF-8 of e acute
        {"\xE2\x82\xAC \xF0\x9F\x9B\xA9", "\xE2\x82\xAC \xF0\x9F\x9B\xA9"},  // of the euro and of a plane
        {"\xE2\x82 \xE0\x82\xAC", "\xC2\x82 \xC0\x82\xAC"},                  // cut short, overlong: code page
    };
    for (const auto& test : cases) EXPECT_EQ(Upper(test.text), test.upper);
}

TEST(NumberPropertyTest, WhatIsWrittenReadsBack) {
    std::mt19937_64 random(20001);
    std::uniform_real_distribution<double> mantissa(-1, 1);
    std::uniform_int_distribution<int> exponent(-12, 20);
    for (int run = 0; run < 20000; ++run) {
        const double number = mantissa(random) * std::pow(10, exponent(random));
        const std::string text = NumberText(number);
        const double back = LeadingNumber(text);
        ASSERT_NEAR(back, number, std::fabs(number) * 5e-15);
        ASSERT_EQ(NumberText(back), text);
        ASSERT_EQ(LeadingNumber(SignedNumberText(number)), back);
        ASSERT_EQ(StrictNumber(text), back);
        if (std::fabs(number) < 1e6) {
            const std::string pattern = PatternFormat(number, TwoDigitPattern);
            ASSERT_NEAR(LeadingNumber(pattern), number, 5.00001e-7) << pattern;
            ASSERT_EQ(IsNumberText(pattern), pattern != ".");
            ASSERT_NEAR(RoundEven(number, 6), number, 5.00001e-7);
        }
    }
}

TEST(NumberPropertyTest, AnyTextIsTakenOrRefused) {
    constexpr std::string_view Alphabet = "0123456789012345678900..,+-eEdD&hHoO \t\n\rx\xE9";
    std::mt19937 random(20002);
    std::uniform_int_distribution<std::size_t> pick(0, Alphabet.size() - 1);
    for (int run = 0; run < 50000; ++run) {
        std::string text(pick(random) % 12, ' ');
        for (char& character : text) character = Alphabet[pick(random)];
        const double leading = LeadingNumber(text);
        const int failure = FailureOf([&] { StrictNumber(text); });
        ASSERT_EQ(IsNumberText(text), failure == 0) << text;
        const std::string_view trimmed = Trim(text);
        const bool trailingSign = !trimmed.empty() && (trimmed.back() == '-' || trimmed.back() == '+');
        if (failure == 0 && !trailingSign && text.find(',') == std::string::npos) {
            ASSERT_EQ(StrictNumber(text), leading) << text;
        }
    }
}

}  // namespace
}  // namespace tarvex
