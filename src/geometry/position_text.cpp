#include "geometry/position_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>
#include <vector>

namespace tarvex {

namespace {

constexpr std::size_t MostLength = 100;  // of a text that can be a position at all
constexpr char DegreeSign = '\x01';      // no character that can be typed

// The signs of degrees, minutes and seconds in one form each, letters in upper case, all blanks the same.
std::string Simplified(std::string_view text) {
    constexpr std::pair<std::string_view, std::string_view> forms[] = {{"\xC2\xB0", "\x01"},
                                                                       {"\xC2\xBA", "\x01"},
                                                                       {"\xCB\x9A", "\x01"},
                                                                       {"\xE2\x80\xB2", "'"},
                                                                       {"\xE2\x80\x99", "'"},
                                                                       {"\xE2\x80\xB3", "\""},
                                                                       {"\xE2\x80\x9D", "\""},
                                                                       {"\xE2\x88\x92", "-"},
                                                                       {"\xC2\xA0", " "},
                                                                       {"\xE2\x80\x89", " "},
                                                                       {"\xE2\x80\xAF", " "},
                                                                       {"\t", " "},
                                                                       {"\r", " "},
                                                                       {"\n", " "},
                                                                       {"n", "N"},
                                                                       {"s", "S"},
                                                                       {"e", "E"},
                                                                       {"w", "W"}};
    std::string simple;
    while (!text.empty()) {
        const auto form = std::find_if(std::begin(forms), std::end(forms),
                                       [text](const auto& entry) { return text.starts_with(entry.first); });
        const bool known = form != std::end(forms);
        const std::string_view put = known ? form->second : text.substr(0, 1);
        if (put == "'" && simple.ends_with('\'')) {
            simple.back() = '"';
        } else {
            simple += put;
        }
        text.remove_prefix(known ? form->first.size() : 1);
    }
    return simple;
}

std::string_view Stripped(std::string_view text, std::string_view characters) {
    const std::size_t first = text.find_first_not_of(characters);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(characters) - first + 1);
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// One axis: what stands for it in the text, and the letter that goes with it; 0 for none.
struct Half {
    std::string_view text;
    char letter = 0;
};

// A magnitude as its numbers stand: degrees, minutes, seconds.
std::optional<double> Joined(const std::vector<double>& numbers) {
    double degrees = 0;
    for (std::size_t i = numbers.size(); i-- > 0;) {
        if (i > 0 && numbers[i] >= 60) return std::nullopt;
        degrees = degrees / 60 + numbers[i];
    }
    return degrees;
}

// Digits in a row: how many there are in front of a point; none for a text that has anything else.
std::size_t RowLength(std::string_view text) {
    const std::size_t length = std::min(text.find('.'), text.size());
    const std::string_view fraction = text.substr(std::min(length + 1, text.size()));
    const bool all = std::all_of(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(length), IsDigit) &&
                     std::all_of(fraction.begin(), fraction.end(), IsDigit);
    return all ? length : 0;
}

// Numbers of digits in a row: two for the degrees, three of a longitude, two for minutes and for seconds, two
// for hundredths of these; a fraction belongs to the last.
std::optional<double> FromDigits(std::string_view text, std::size_t degreeDigits) {
    const std::string_view digits = text.substr(0, RowLength(text));
    const std::string_view fraction = text.substr(digits.size());
    if ((digits.size() - degreeDigits) % 2 != 0 ||
        digits.size() > degreeDigits + (fraction.empty() ? 6 : 4)) {
        return std::nullopt;
    }
    std::vector<double> numbers = {0};
    for (const char digit : digits.substr(0, degreeDigits)) numbers[0] = numbers[0] * 10 + (digit - '0');
    for (std::size_t at = degreeDigits; at < digits.size(); at += 2) {
        const double pair = (digits[at] - '0') * 10 + (digits[at + 1] - '0');
        if (numbers.size() == 3) {
            numbers.back() += pair / 100;
        } else {
            numbers.push_back(pair);
        }
    }
    if (fraction.size() > 1) {
        double part = 0;
        std::from_chars(fraction.data(), fraction.data() + fraction.size(), part, std::chars_format::fixed);
        numbers.back() += part;
    }
    return Joined(numbers);
}

// Numbers with what parts them: 33°56'33", 33 56.5, 33:56:33.
std::optional<double> FromNumbers(std::string_view text) {
    constexpr std::array<char, 3> signs = {DegreeSign, '\'', '"'};
    std::vector<double> numbers;
    bool fraction = false;
    while (!text.empty()) {
        if (numbers.size() == signs.size() || fraction) return std::nullopt;
        const std::size_t length = std::min(text.find_first_not_of("0123456789."), text.size());
        double number = 0;
        const auto read =
            std::from_chars(text.data(), text.data() + length, number, std::chars_format::fixed);
        if (read.ec != std::errc() || read.ptr != text.data() + length || text[0] == '.') return std::nullopt;
        fraction = text.substr(0, length).find('.') != std::string_view::npos;
        text = text.substr(length);
        const std::string_view rest = Stripped(text, " ");
        const bool apart = rest.size() < text.size() || rest.empty();
        text = rest;
        if (!text.empty() && (text[0] == signs[numbers.size()] || (text[0] == ':' && text.size() > 1))) {
            text = Stripped(text.substr(1), " ");
        } else if (!apart) {
            return std::nullopt;
        }
        numbers.push_back(number);
    }
    return numbers.empty() ? std::nullopt : Joined(numbers);
}

std::optional<double> ReadHalf(Half half, bool latitude) {
    std::string_view text = Stripped(half.text, " ");
    const bool sign = !text.empty() && (text[0] == '-' || text[0] == '+');
    if (sign && half.letter != 0) return std::nullopt;
    const bool negative = half.letter == 'S' || half.letter == 'W' || (sign && text[0] == '-');
    if (sign) text.remove_prefix(1);
    std::string pointed(text);
    // A comma that was left here is none that parts.
    if (std::count(pointed.begin(), pointed.end(), ',') == 1) {
        const std::size_t comma = pointed.find(',');
        if (comma == 0 || comma + 1 == pointed.size() || !IsDigit(pointed[comma - 1]) ||
            !IsDigit(pointed[comma + 1])) {
            return std::nullopt;
        }
        pointed[comma] = '.';
    }
    // Between digits beside a letter a hyphen is no sign.
    for (std::size_t i = 1; half.letter != 0 && i + 1 < pointed.size(); ++i) {
        if (pointed[i] == '-' && IsDigit(pointed[i - 1]) && IsDigit(pointed[i + 1])) pointed[i] = ':';
    }
    const std::size_t degreeDigits = latitude ? 2 : 3;
    const bool digits = half.letter != 0 && RowLength(pointed) > degreeDigits;
    const auto magnitude = digits ? FromDigits(pointed, degreeDigits) : FromNumbers(pointed);
    if (!magnitude || *magnitude > (latitude ? 90 : 180)) return std::nullopt;
    return negative ? -*magnitude : *magnitude;
}

using Halves = std::optional<std::pair<Half, Half>>;

constexpr std::string_view Parting = " ,;/";

Halves SplitByLetters(std::string_view text) {
    constexpr std::string_view letters = "NSEW";
    const std::size_t first = text.find_first_of(letters);
    const std::size_t second = text.find_first_of(letters, first + 1);
    if (second == std::string_view::npos ||
        text.find_first_of(letters, second + 1) != std::string_view::npos) {
        return std::nullopt;
    }
    if (first == 0) {
        return {{{Stripped(text.substr(1, second - 1), Parting), text[first]},
                 {Stripped(text.substr(second + 1), " "), text[second]}}};
    }
    if (second + 1 != text.size()) return std::nullopt;
    return {{{Stripped(text.substr(0, first), " "), text[first]},
             {Stripped(text.substr(first + 1, second - first - 1), Parting), text[second]}}};
}

// In the middle of the numbers, in front of the sign of the second.
Halves SplitByNumbers(std::string_view text) {
    std::vector<std::size_t> begins;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool within = i > 0 && (IsDigit(text[i - 1]) || text[i - 1] == '.' || text[i - 1] == ',');
        if (IsDigit(text[i]) && !within) begins.push_back(i);
    }
    if (begins.size() < 2 || begins.size() % 2 != 0) return std::nullopt;
    std::size_t middle = begins[begins.size() / 2];
    if (text[middle - 1] == '-' || text[middle - 1] == '+') --middle;
    const bool signBehindMark =
        !IsDigit(text[middle]) && std::string_view("\x01'\"").find(text[middle - 1]) < 3;
    if (text[middle - 1] != ' ' && !signBehindMark) return std::nullopt;
    return {{{text.substr(0, middle)}, {text.substr(middle)}}};
}

// How many numbers stand there; a comma is taken as one of decimals.
std::ptrdiff_t NumbersIn(std::string_view text) {
    std::ptrdiff_t numbers = 0;
    bool within = false;
    for (const char c : text) {
        const bool is = IsDigit(c) || (within && (c == '.' || c == ','));
        numbers += is && !within;
        within = is;
    }
    return numbers;
}

// Without letters it must be plain that these are two halves of one position, and not just two numbers.
bool IsPlain(const std::pair<Half, Half>& halves) {
    const std::ptrdiff_t numbers = NumbersIn(halves.first.text);
    if (numbers != NumbersIn(halves.second.text)) return false;
    return numbers > 1 || (halves.first.text.find_first_of(".,-+") != std::string_view::npos ||
                           halves.second.text.find_first_of(".,-+") != std::string_view::npos);
}

Halves Split(std::string_view text) {
    if (text.find_first_of("NS") != std::string_view::npos) return SplitByLetters(text);
    for (const char parting : {';', '/', ','}) {
        const std::size_t at = text.find(parting);
        if (at == std::string_view::npos) continue;
        if (text.find(parting, at + 1) == std::string_view::npos) {
            return {{{text.substr(0, at)}, {text.substr(at + 1)}}};
        }
    }
    return SplitByNumbers(text);
}

std::string Digits(long number, std::size_t width) {
    const std::string digits = std::to_string(number);
    return std::string(width - std::min(width, digits.size()), '0') + digits;
}

std::string AxisText(double coordinate, char positive, char negative, std::size_t degreeDigits) {
    const long thousandths = std::lround(std::fabs(coordinate) * 60'000);
    return (coordinate < 0 && thousandths > 0 ? negative : positive) +
           Digits(thousandths / 60'000, degreeDigits) + " " + Digits(thousandths % 60'000 / 1000, 2) + "." +
           Digits(thousandths % 1000, 3);
}

}  // namespace

std::optional<Position> ReadPosition(std::string_view text) {
    if (text.size() > MostLength) return std::nullopt;
    const std::string simple = Simplified(text);
    auto halves = Split(Stripped(simple, " "));
    if (!halves || (halves->first.letter == 0 && !IsPlain(*halves))) return std::nullopt;
    const auto isLongitude = [](char letter) { return letter == 'E' || letter == 'W'; };
    if (isLongitude(halves->first.letter)) std::swap(halves->first, halves->second);
    if (isLongitude(halves->first.letter) ||
        isLongitude(halves->second.letter) != (halves->first.letter != 0)) {
        return std::nullopt;
    }
    // A shorter row is one that was cut off.
    const std::size_t rows[] = {RowLength(Stripped(halves->first.text, " ")),
                                RowLength(Stripped(halves->second.text, " "))};
    if (halves->first.letter != 0 && (rows[0] > 2 || rows[1] > 3) && rows[0] + 1 != rows[1]) {
        return std::nullopt;
    }
    const auto latitude = ReadHalf(halves->first, true);
    const auto longitude = ReadHalf(halves->second, false);
    if (!latitude || !longitude) return std::nullopt;
    return Position{*latitude, *longitude};
}

std::string PositionText(const Position& position) {
    return AxisText(position.latitude, 'N', 'S', 2) + " " + AxisText(position.longitude, 'E', 'W', 3);
}

}  // namespace tarvex
