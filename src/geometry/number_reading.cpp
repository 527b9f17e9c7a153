#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "geometry/text_rules.h"
#include "toolkit/failure.h"

namespace tarvex {

namespace {

constexpr std::string_view Digits = "0123456789";
constexpr std::string_view SkippedCharacters = " \t\n";

// The unsigned number that a text begins with, apart in its pieces.
struct ScannedNumber {
    std::string_view mantissa;  // digits with at most one point; empty if there is no digit
    std::string_view exponent;  // with its sign; empty if there is none
    std::size_t length = 0;     // characters of the whole number
};

std::size_t DigitsFrom(std::string_view text, std::size_t index) {
    return std::min(text.find_first_not_of(Digits, index), text.size()) - index;
}

bool HasOneOf(std::string_view text, std::size_t index, std::string_view characters) {
    return index < text.size() && characters.find(text[index]) != std::string_view::npos;
}

// Where the digits of the exponent that starts at `index` end; nothing if none starts there.
std::optional<std::size_t> ExponentEnd(std::string_view text, std::size_t index) {
    if (!HasOneOf(text, index, "EeDd")) return std::nullopt;
    const std::size_t digits = index + (HasOneOf(text, index + 1, "+-") ? 2 : 1);
    if (!HasOneOf(text, digits, Digits)) return std::nullopt;
    return digits + DigitsFrom(text, digits);
}

ScannedNumber ScanNumber(std::string_view text) {
    const std::size_t wholeDigits = DigitsFrom(text, 0);
    std::size_t end = wholeDigits;
    std::size_t decimals = 0;
    if (HasOneOf(text, end, ".")) {
        decimals = DigitsFrom(text, end + 1);
        end += 1 + decimals;
    }
    if (wholeDigits + decimals == 0) return {};
    ScannedNumber number{text.substr(0, end), {}, end};
    if (const auto exponentEnd = ExponentEnd(text, end)) {
        number.exponent = text.substr(end + 1, *exponentEnd - end - 1);
        number.length = *exponentEnd;
    }
    return number;
}

// Whether a number past the range of a double is so because it's large, not because it's small.
bool IsLarge(const ScannedNumber& number) {
    constexpr std::ptrdiff_t FarExponent = std::numeric_limits<std::ptrdiff_t>::max() / 4;
    const bool negative = number.exponent.starts_with('-');
    const std::string_view digits = number.exponent.substr(HasOneOf(number.exponent, 0, "+-") ? 1 : 0);
    std::ptrdiff_t exponent = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
    if (read.ec == std::errc::result_out_of_range) exponent = FarExponent;
    exponent = std::min(exponent, FarExponent);

    const std::size_t point = std::min(number.mantissa.find('.'), number.mantissa.size());
    const std::size_t first = number.mantissa.find_first_not_of("0.");
    const auto place = static_cast<std::ptrdiff_t>(point) - static_cast<std::ptrdiff_t>(first);
    return (negative ? -exponent : exponent) + place > 0;
}

// The nearest double; infinity past the range, 0 below it.
double ValueOf(const ScannedNumber& number) {
    if (number.mantissa.find_first_not_of("0.") == std::string_view::npos) return 0;
    std::string joined;
    std::string_view digits = number.mantissa;
    if (!number.exponent.empty()) {
        joined.append(number.mantissa).append("e").append(number.exponent);
        digits = joined;
    }
    double value = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (read.ec != std::errc::result_out_of_range) return value;
    return IsLarge(number) ? std::numeric_limits<double>::infinity() : 0;
}

int DigitValue(char character) {
    if (character >= '0' && character <= '9') return character - '0';
    if (character >= 'A' && character <= 'F') return character - 'A' + 10;
    if (character >= 'a' && character <= 'f') return character - 'a' + 10;
    return std::numeric_limits<int>::max();
}

double LeadingWholeNumber(std::string_view text, int base) {
    double value = 0;
    for (char character : text) {
        const int digit = DigitValue(character);
        if (digit >= base) break;
        value = value * base + digit;
    }
    return value;
}

double LeadingNumberOfCompact(std::string_view text) {
    if (HasOneOf(text, 0, "&")) {
        if (HasOneOf(text, 1, "Hh")) return LeadingWholeNumber(text.substr(2), 16);
        if (HasOneOf(text, 1, "Oo")) return LeadingWholeNumber(text.substr(2), 8);
    }
    const bool negative = text.starts_with('-');
    if (HasOneOf(text, 0, "+-")) text.remove_prefix(1);
    const double value = ValueOf(ScanNumber(text));
    return negative && value != 0 ? -value : value;
}

// Without the commas that stand between two digits in front of the point.
std::string WithoutGrouping(std::string_view text) {
    std::string result;
    const std::size_t wholeEnd = std::min(text.find_first_not_of("0123456789,"), text.size());
    for (std::size_t index = 0; index < text.size(); ++index) {
        const bool grouping = index < wholeEnd && text[index] == ',' && index > 0 &&
                              HasOneOf(text, index - 1, Digits) && HasOneOf(text, index + 1, Digits);
        if (!grouping) result += text[index];
    }
    return result;
}

// Nothing if the text is no number; infinity past the range of a double.
std::optional<double> WholeTextNumber(std::string_view text) {
    text = Trim(text);
    bool negative = false;
    if (HasOneOf(text, 0, "+-")) {
        negative = text.front() == '-';
        text.remove_prefix(1);
    } else if (!text.empty() && HasOneOf(text, text.size() - 1, "+-")) {
        negative = text.back() == '-';
        text.remove_suffix(1);
    }
    const std::string plain = WithoutGrouping(text);
    const ScannedNumber number = ScanNumber(plain);
    if (number.mantissa.empty() || number.length != plain.size()) return std::nullopt;
    const double value = ValueOf(number);
    return negative && value != 0 ? -value : value;
}

// A plain whole number between blanks, which most fields of the navigation tables hold.
std::optional<double> PlainWholeNumber(std::string_view text) {
    text = Trim(text);
    std::uint32_t number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size()) return std::nullopt;
    return number;
}

}  // namespace

double LeadingNumber(std::string_view text) {
    if (const auto plain = PlainWholeNumber(text)) return *plain;
    const std::size_t start = text.find_first_not_of(SkippedCharacters);
    if (start == std::string_view::npos) return 0;
    text = text.substr(start, text.find_last_not_of(SkippedCharacters) + 1 - start);
    if (text.find_first_of(SkippedCharacters) == std::string_view::npos) return LeadingNumberOfCompact(text);

    std::string compact;
    std::copy_if(text.begin(), text.end(), std::back_inserter(compact),
                 [](char character) { return SkippedCharacters.find(character) == std::string_view::npos; });
    return LeadingNumberOfCompact(compact);
}

double StrictNumber(std::string_view text) {
    const std::optional<double> number = WholeTextNumber(text);
    if (!number) throw Failure(NotANumber, "\"" + std::string(text) + "\" is not a number");
    if (std::isinf(*number)) throw Failure(Overflow, "\"" + std::string(text) + "\" is too large a number");
    return *number;
}

bool IsNumberText(std::string_view text) {
    const std::optional<double> number = WholeTextNumber(text);
    return number && !std::isinf(*number);
}

}  // namespace tarvex
