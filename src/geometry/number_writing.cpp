#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

#include "geometry/text_rules.h"
#include "toolkit/failure.h"

namespace tarvex {

namespace {

constexpr int SignificantDigits = 15;
constexpr int PatternPlaces = 6;

// A number by its decimal digits: 0.DIGITS times ten to the power of `point`.
struct Decimal {
    bool negative = false;
    std::string digits;  // neither leading nor trailing zeros; empty for 0
    int point = 0;

    bool IsZero() const { return digits.empty(); }
};

enum class Ties { AwayFromZero, ToEven };

void DropTrailingZeros(Decimal& decimal) {
    decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
    if (decimal.IsZero()) decimal = {};
}

Decimal DecimalOf(double number) {
    if (!std::isfinite(number)) throw Failure(Overflow, "the number is too large to be written");
    std::array<char, 32> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(number),
                                   std::chars_format::scientific, SignificantDigits - 1)
                         .ptr;
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const std::size_t mark = text.find('e');
    std::string_view exponentText = text.substr(mark + 1);
    if (exponentText.starts_with('+')) exponentText.remove_prefix(1);
    int exponent = 0;
    std::from_chars(exponentText.data(), exponentText.data() + exponentText.size(), exponent);

    Decimal decimal{number < 0, std::string(text.substr(0, 1)), exponent + 1};
    decimal.digits.append(text.substr(2, mark - 2));
    DropTrailingZeros(decimal);
    return decimal;
}

bool RoundsUp(const Decimal& decimal, std::size_t kept, Ties ties) {
    const char next = decimal.digits[kept];
    const bool tie = next == '5' && kept + 1 == decimal.digits.size();
    if (tie && ties == Ties::ToEven) return kept > 0 && (decimal.digits[kept - 1] - '0') % 2 == 1;
    return next >= '5';
}

void AddOneToLastDigit(Decimal& decimal) {
    const std::size_t last = decimal.digits.find_last_not_of('9');
    decimal.digits.erase(last + 1);
    if (last != std::string::npos) {
        ++decimal.digits[last];
    } else {
        decimal.digits = "1";
        ++decimal.point;
    }
}

Decimal Rounded(Decimal decimal, int places, Ties ties) {
    const std::ptrdiff_t kept = std::ptrdiff_t{decimal.point} + places;
    if (kept >= std::ssize(decimal.digits)) return decimal;
    if (kept < 0) return {};
    const auto count = static_cast<std::size_t>(kept);
    const bool up = RoundsUp(decimal, count, ties);
    decimal.digits.erase(count);
    if (up) AddOneToLastDigit(decimal);
    DropTrailingZeros(decimal);
    return decimal;
}

std::size_t Count(int number) {
    return number > 0 ? static_cast<std::size_t>(number) : 0;
}

// The digits in front of the point and behind it, each empty if there are none.
std::pair<std::string, std::string> Parts(const Decimal& decimal) {
    const std::size_t front = std::min(Count(decimal.point), decimal.digits.size());
    std::string whole = decimal.digits.substr(0, front);
    whole.resize(Count(decimal.point), '0');
    return {whole, std::string(Count(-decimal.point), '0') + decimal.digits.substr(front)};
}

// Without a sign and without a zero in front of the point.
std::string Magnitude(const Decimal& decimal) {
    constexpr int LowestPlainPoint = -6;  // 1e-7
    if (decimal.IsZero()) return "0";
    if (decimal.point >= LowestPlainPoint && decimal.point <= SignificantDigits) {
        const auto [whole, decimals] = Parts(decimal);
        return decimals.empty() ? whole : whole + "." + decimals;
    }
    const int exponent = decimal.point - 1;
    const std::string exponentDigits = std::to_string(std::abs(exponent));
    std::string text = decimal.digits.substr(0, 1);
    if (decimal.digits.size() > 1) text.append(".").append(decimal.digits, 1);
    text.append(exponent < 0 ? "E-" : "E+");
    if (exponentDigits.size() < 2) text += '0';
    return text + exponentDigits;
}

template <typename Whole>
Whole WholeNumber(double number) {
    const double nearest = std::nearbyint(number);
    if (!(nearest >= std::numeric_limits<Whole>::min() && nearest <= std::numeric_limits<Whole>::max())) {
        throw Failure(Overflow, "a number does not fit " + std::to_string(8 * sizeof(Whole)) + " bits");
    }
    return static_cast<Whole>(nearest);
}

}  // namespace

std::string NumberText(double number) {
    const Decimal decimal = DecimalOf(number);
    const std::string magnitude = Magnitude(decimal);
    const std::string zero = magnitude.starts_with('.') ? "0" : "";
    return (decimal.negative ? "-" : "") + zero + magnitude;
}

std::string SignedNumberText(double number) {
    const Decimal decimal = DecimalOf(number);
    return (decimal.negative ? "-" : " ") + Magnitude(decimal);
}

std::string SignedNumberText(std::string_view text) {
    return SignedNumberText(StrictNumber(text));
}

std::string WholeDegreesText(double number) {
    return std::string(LeftTrim(SignedNumberText(Fix(number))));
}

std::string PatternFormat(double number, std::string_view pattern) {
    const Decimal decimal = Rounded(DecimalOf(number), PatternPlaces, Ties::AwayFromZero);
    const auto [whole, decimals] = Parts(decimal);
    const std::string literal = pattern.starts_with("\\-") ? "-" : "";
    return literal + (decimal.negative ? "-" : "") + whole + "." + decimals;
}

std::string PatternFormat(std::string_view text, std::string_view pattern) {
    return PatternFormat(StrictNumber(text), pattern);
}

double RoundEven(double number, int places) {
    const Decimal decimal = Rounded(DecimalOf(number), places, Ties::ToEven);
    return StrictNumber((decimal.negative ? "-" : "") + Magnitude(decimal));
}

double Fix(double number) {
    return std::trunc(number);
}

double Int(double number) {
    return std::floor(number);
}

std::int16_t WholeNumber16(double number) {
    return WholeNumber<std::int16_t>(number);
}

std::int32_t WholeNumber32(double number) {
    return WholeNumber<std::int32_t>(number);
}

}  // namespace tarvex
