// Sources: geometry/text_rules.cpp geometry/number_reading.cpp geometry/number_writing.cpp
// Sources: geometry/text_file.cpp geometry/coordinate_rules.cpp
// Any text through the rules of texts and numbers; its first bytes, as doubles and positions, back to texts.

#include <algorithm>
#include <cmath>
#include <cstring>
#include <optional>
#include <string>
#include <vector>

#include "geometry/coordinate_rules.h"
#include "geometry/text_file.h"
#include "geometry/text_rules.h"
#include "procedure/edited_coordinate.h"
#include "target.h"
#include "toolkit/failure.h"

namespace tarvex::fuzzing {
namespace {

constexpr double LastPlace = 0.500001e-6;  // of a number rounded to six places

bool IsClose(double a, double b, double tolerance) {
    return a == b || std::abs(a - b) <= tolerance;
}

// The number of the whole text; nothing if it is none.
std::optional<double> Strict(std::string_view text) {
    try {
        return StrictNumber(text);
    } catch (const Failure& failure) {
        Require(failure.Number() == NotANumber || failure.Number() == Overflow, "one of two refusals",
                {text});
        return std::nullopt;
    }
}

void CheckTextOfNumber(double x) {
    const std::string text = NumberText(x);
    const double back = LeadingNumber(text);
    Require(Strict(text) == back, "a number's text is a number", {text});
    Require(IsClose(x, back, std::abs(x) * 5.1e-15), "15 digits come back", {text});
    Require(NumberText(back) == text, "a number read back has the same text", {text});
    Require(text.find(' ') == std::string::npos, "no blank", {text});
    const std::string with = SignedNumberText(x);
    Require(LeadingNumber(with) == back && SignedNumberText(text) == with, "both texts are one number",
            {with});
    Require(with.starts_with(back < 0 ? '-' : ' '), "a place for the sign", {with});
    if (x >= 0)
        Require(LeadingNumber(WholeDegreesText(x)) == LeadingNumber(NumberText(Fix(x))), "whole degrees");
}

void CheckPattern(double x) {
    const std::string text = PatternFormat(x, TwoDigitPattern);
    const std::size_t point = text.find('.');
    Require(point != std::string::npos && text.size() - point <= 7, "a point and six decimals", {text});
    Require(!text.ends_with('0') || text.size() == point, "no trailing zeros", {text});
    Require(!text.starts_with('0') && !text.starts_with("-0"), "no leading zeros", {text});
    Require(text != "-.", "zero has no sign", {text});
    Require(PatternFormat(x, NegatedThreeDigitPattern) == "-" + text, "the negated pattern puts a sign",
            {text});
    const double back = LeadingNumber(text);
    const double tolerance = LastPlace + std::abs(x) * 5.1e-15;  // the 15 digits come first
    Require(IsClose(x, back, tolerance), "six places come back", {text});
    if (std::abs(x) >= 1e9) return;  // past it 15 digits don't reach six places
    Require(PatternFormat(back, TwoDigitPattern) == text, "a pattern read back has the same text", {text});
    const double rounded = RoundEven(x, 6);
    Require(IsClose(x, rounded, tolerance), "rounded to six places", {text});
    Require(RoundEven(rounded, 6) == rounded, "rounded once is rounded");
}

template <class Whole>
void CheckWhole(double x, Whole (*rounded)(double)) {
    try {
        Require(IsClose(x, rounded(x), 0.5), "the nearest whole number");
    } catch (const Failure& failure) {
        const double limit = std::ldexp(1, 8 * sizeof(Whole) - 1);
        Require(failure.Number() == Overflow && !(x >= -limit && x < limit - 0.5),
                "only too large is refused");
    }
}

void CheckNumber(double x) {
    CheckWhole(x, WholeNumber16);
    CheckWhole(x, WholeNumber32);
    if (!std::isfinite(x)) return;
    // Outside, 15 digits are past a double's range or more than it has.
    if (x != 0 && (std::abs(x) > 1e300 || std::abs(x) < 1e-300)) return;
    Require(Int(x) <= x && x - Int(x) <= 1 && Int(x) == std::trunc(Int(x)), "the whole number below");
    Require(std::abs(Fix(x)) <= std::abs(x) && Fix(x) == (x < 0 ? -Int(-x) : Int(x)), "the whole part");
    CheckTextOfNumber(x);
    CheckPattern(x);
}

void CheckNumberIn(std::string_view text) {
    const double leading = LeadingNumber(text);
    Require(!std::isnan(leading), "a text begins with a number", {text});
    const auto strict = Strict(text);
    Require(IsNumberText(text) == strict.has_value(), "a number's text is one that can be taken", {text});
    if (strict) {
        Require(std::isfinite(*strict), "a number is finite", {text});
        const bool plain = text.find(',') == std::string_view::npos && !Trim(text).ends_with('-');
        Require(!plain || *strict == leading, "a number is what its text begins with", {text});
        CheckNumber(*strict);
    }
    CheckNumber(leading);
}

void CheckItems(std::string_view text) {
    TextReader reader(text, "file");
    std::size_t items = 0;
    std::size_t line = 1;
    while (!reader.AtEndOfFile()) {
        const std::string item = reader.ReadItem();
        Require(++items <= text.size() + 1, "each item takes something", {text});
        Require(reader.LineNumber() >= line, "reading goes forward", {text});
        line = reader.LineNumber();
        Require(item.size() <= text.size() && item.find('"') != 0, "an item is a part of the text", {item});
    }
}

void CheckLines(std::string_view text) {
    std::vector<std::string> lines;
    std::string written;
    for (TextReader reader(text, "file"); !reader.AtEndOfFile();) {
        lines.emplace_back(reader.ReadTextLine());
        WriteTextLine(written, {lines.back()});
    }
    TextReader again(written, "file");
    for (const auto& line : lines) {
        Require(!again.AtEndOfFile() && again.ReadTextLine() == line, "lines come back", {text, line});
    }
    Require(again.AtEndOfFile(), "no line comes in", {text});
}

// Boxes whose texts are accepted give a position that a file can hold.
void CheckCoordinate(std::string_view degrees, std::string_view minutes) {
    const auto accepted = [&](const CoordinateAxis& axis) {
        return DegreesComplaint(axis, degrees).empty() && MinutesComplaint(axis, degrees, minutes).empty() &&
               LeadingNumber(degrees) >= -180 && LeadingNumber(minutes) >= 0;
    };
    if (accepted(LatitudeAxis)) {
        const std::string text = EditedLatitude(degrees, minutes);
        Require(IsNumberText(text) && std::abs(LeadingNumber(text)) <= 181, "a latitude is a number", {text});
    }
    if (accepted(LongitudeAxis)) {
        const double magnitude = std::abs(LeadingNumber(degrees)) + LeadingNumber(minutes) / 60;
        const std::string text = EditedLongitude(degrees, minutes);
        Require(IsClose(std::abs(LeadingNumber(text)), magnitude, LastPlace), "a longitude is its boxes",
                {text});
    }
}

}  // namespace

void TryInput(std::string_view input) {
    CheckNumberIn(input);
    CheckItems(input);
    CheckLines(input);
    const std::size_t comma = std::min(input.find(','), input.size());
    CheckCoordinate(input.substr(0, comma), input.substr(std::min(comma + 1, input.size())));

    double number = 0;
    std::memcpy(&number, input.data(), std::min(input.size(), sizeof number));
    CheckNumber(number);
    CheckNumber(std::fmod(number, 1000));
}

}  // namespace tarvex::fuzzing
