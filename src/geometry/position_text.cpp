#include "geometry/position_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <span>
#include <utility>
#include <vector>

#include "geometry/coordinate_rules.h"
#include "toolkit/characters.h"

namespace tarvex {

namespace {

constexpr std::size_t LongestText = 200;
constexpr std::string_view Digits = "0123456789";
constexpr std::string_view NumberCharacters = "0123456789.";
constexpr std::string_view Letters = "NSEW";
constexpr std::string_view Signs = "+-";
constexpr std::string_view Separators = ",;/";

// Kinds of a token beside the letters, the signs and the marks, which stand for themselves.
constexpr char Number = '0';
constexpr char Colon = ':';
constexpr char Hyphen = '~';  // between digits
constexpr char Separator = '|';
// Of degrees, minutes and seconds.
constexpr std::string_view Marks = "o'\"";

bool IsOneOf(char character, std::string_view characters) {
    return characters.find(character) != std::string_view::npos;
}

constexpr std::pair<char32_t, char> OtherCharacters[] = {
    {U'°', 'o'},  {U'º', 'o'},      {U'˚', 'o'},      {U'’', '\''}, {U'‘', '\''}, {U'′', '\''},
    {U'´', '\''}, {U'”', '"'},      {U'“', '"'},      {U'″', '"'},  {U'−', '-'},  {U'\u00A0', ' '},
    {U'\t', ' '}, {U'\u2009', ' '}, {U'\u202F', ' '}, {U'\r', ' '}, {U'\n', ' '}, {U'n', 'N'},
    {U's', 'S'},  {U'e', 'E'},      {U'w', 'W'},
};

std::optional<char> PlainCharacter(char32_t character) {
    constexpr std::string_view Own = "0123456789.,;/:+-NSEW'\" ";
    if (character < 0x80 && IsOneOf(static_cast<char>(character), Own)) return static_cast<char>(character);
    const auto* other = std::ranges::find(OtherCharacters, character, &std::pair<char32_t, char>::first);
    if (other == std::end(OtherCharacters)) return std::nullopt;
    return other->second;
}

// The text in the few characters that positions are written in; nothing if it has another.
std::optional<std::string> PlainText(std::string_view text) {
    std::string plain;
    while (!text.empty()) {
        auto [character, bytes] = Utf8CharacterAt(text);
        if (bytes == 0) {
            character = static_cast<unsigned char>(text.front());
            bytes = 1;
            if (character >= 0x80) return std::nullopt;
        }
        const auto known = PlainCharacter(character);
        if (!known) return std::nullopt;
        if (*known == '\'' && plain.ends_with('\'')) {
            plain.back() = '"';
        } else {
            plain += *known;
        }
        text.remove_prefix(bytes);
    }
    return plain;
}

bool IsBetweenDigits(std::string_view text, std::size_t index) {
    return index > 0 && index + 1 < text.size() && IsOneOf(text[index - 1], Digits) &&
           IsOneOf(text[index + 1], Digits);
}

struct Token {
    char kind;
    std::string_view digits;  // of a number, with at most one point
    bool apart;               // blanks stand in front
};
using Tokens = std::span<const Token>;

// Nothing if a number has no digit, or two points.
std::optional<std::vector<Token>> TokensOf(std::string_view plain) {
    std::vector<Token> tokens;
    bool apart = false;
    for (std::size_t i = 0; i < plain.size(); ++i) {
        const char character = plain[i];
        if (character == ' ') {
            apart = true;
            continue;
        }
        Token token{character, {}, std::exchange(apart, false)};
        if (IsOneOf(character, NumberCharacters)) {
            const std::size_t end = std::min(plain.find_first_not_of(NumberCharacters, i), plain.size());
            token.kind = Number;
            token.digits = plain.substr(i, end - i);
            const auto points = std::ranges::count(token.digits, '.');
            if (points > 1 || token.digits == ".") return std::nullopt;
            i = end - 1;
        } else if (IsOneOf(character, Separators)) {
            token.kind = Separator;
        } else if (character == '-' && IsBetweenDigits(plain, i)) {
            token.kind = Hyphen;
        }
        tokens.push_back(token);
    }
    return tokens;
}

std::vector<std::size_t> PlacesOf(Tokens tokens, std::string_view kinds) {
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        if (IsOneOf(tokens[i].kind, kinds)) places.push_back(i);
    }
    return places;
}

// Where the first axis ends and the second begins; nothing if nothing tells.
std::optional<std::pair<std::size_t, std::size_t>> BorderOf(Tokens tokens) {
    const auto before = [](std::size_t place) { return std::optional(std::pair(place, place)); };
    if (const auto places = PlacesOf(tokens, {&Separator, 1}); !places.empty()) {
        if (places.size() > 1) return std::nullopt;
        return std::pair(places[0], places[0] + 1);
    }
    if (const auto places = PlacesOf(tokens, Letters); !places.empty()) {
        if (places.size() != 2) return std::nullopt;
        return before(places[0] == 0 ? places[1] : places[0] + 1);
    }
    if (const auto places = PlacesOf(tokens, Signs); !places.empty() && places.back() > 0) {
        return before(places.back());
    }
    if (const auto places = PlacesOf(tokens, Marks.substr(0, 1)); places.size() == 2) {
        return before(places[1] - 1);
    }
    const auto numbers = PlacesOf(tokens, {&Number, 1});
    if (numbers.empty() || numbers.size() % 2 != 0) return std::nullopt;
    return before(numbers[numbers.size() / 2]);
}

// One axis as it is written.
struct Entry {
    char hemisphere = 0;  // a letter or a sign; 0 for neither
    bool letterInFront = false;
    std::array<std::string, 3> parts;
    std::size_t count = 0;
    bool marked = false;
    bool hyphens = false;
    std::size_t packed = 0;  // digits in a row behind those of the degrees

    bool HasLetter() const { return IsOneOf(hemisphere, Letters); }
};

// Takes the letter or the sign off the tokens; false if there are several.
bool TakeHemisphere(Tokens& tokens, Entry& entry) {
    if (tokens.empty()) return false;
    if (IsOneOf(tokens.front().kind, Letters) || IsOneOf(tokens.front().kind, Signs)) {
        entry.hemisphere = tokens.front().kind;
        entry.letterInFront = entry.HasLetter();
        tokens = tokens.subspan(1);
        if (tokens.empty() || (!entry.letterInFront && tokens.front().apart)) return false;
    }
    if (!IsOneOf(tokens.back().kind, Letters)) return true;
    if (entry.hemisphere != 0) return false;
    entry.hemisphere = tokens.back().kind;
    tokens = tokens.first(tokens.size() - 1);
    return true;
}

bool TakeParts(Tokens tokens, Entry& entry) {
    bool more = true;
    while (!tokens.empty() || more) {
        if (tokens.empty() || tokens.front().kind != Number || entry.count == entry.parts.size())
            return false;
        entry.parts[entry.count] = tokens.front().digits;
        tokens = tokens.subspan(1);
        more = !tokens.empty() && (tokens.front().kind == Colon || tokens.front().kind == Hyphen);
        const bool mark = !tokens.empty() && tokens.front().kind == Marks[entry.count];
        if (more && tokens.front().kind == Hyphen) entry.hyphens = true;
        entry.marked = entry.marked || mark;
        if (more || mark) tokens = tokens.subspan(1);
        ++entry.count;
    }
    return true;
}

std::size_t WholeDigits(std::string_view part) {
    return std::min(part.find('.'), part.size());
}

// Parts the digits that stand in a row behind a letter, or in front of one.
bool Unpack(Entry& entry, std::size_t degreeDigits) {
    const std::string row = entry.parts[0];
    const std::size_t whole = WholeDigits(row);
    if (entry.count > 1 || entry.marked || !entry.HasLetter() || whole <= degreeDigits) return true;
    entry.packed = whole - degreeDigits;
    const bool hundredths = entry.packed == 6;
    if (entry.packed != 2 && entry.packed != 4 && !hundredths) return false;
    if (hundredths && (!entry.letterInFront || whole < row.size())) return false;
    entry.count = entry.packed == 2 ? 2 : 3;
    entry.parts[0] = row.substr(0, degreeDigits);
    entry.parts[1] = row.substr(degreeDigits, entry.count == 2 ? std::string::npos : 2);
    if (entry.count == 3) entry.parts[2] = row.substr(degreeDigits + 2);
    if (hundredths) entry.parts[2].insert(2, ".");
    return true;
}

// Nothing for more digits than the axis has, a fraction in front of the last part, 60 minutes or seconds, or
// more degrees than there are.
std::optional<double> MagnitudeOf(const Entry& entry, std::size_t degreeDigits, double mostDegrees) {
    constexpr std::array<double, 3> PartsOfDegree = {1, 60, 3600};
    double magnitude = 0;
    for (std::size_t i = 0; i < entry.count; ++i) {
        const std::string& part = entry.parts[i];
        const std::size_t whole = WholeDigits(part);
        if (whole > (i == 0 ? degreeDigits : 2) || (i + 1 < entry.count && whole < part.size())) {
            return std::nullopt;
        }
        double number = 0;
        std::from_chars(part.data(), part.data() + part.size(), number);
        if (i > 0 && number >= 60) return std::nullopt;
        magnitude += number / PartsOfDegree[i];
    }
    return magnitude <= mostDegrees ? std::optional(magnitude) : std::nullopt;
}

// An axis that was read.
struct Coordinate {
    bool latitude;
    double degrees;  // north and east positive
    Entry entry;
};

std::optional<Coordinate> ReadCoordinate(Tokens tokens, bool first) {
    Entry entry;
    if (!TakeHemisphere(tokens, entry) || !TakeParts(tokens, entry)) return std::nullopt;
    if (entry.hyphens && !entry.HasLetter()) return std::nullopt;
    const bool latitude = entry.HasLetter() ? IsOneOf(entry.hemisphere, "NS") : first;
    const std::size_t degreeDigits = latitude ? 2 : 3;
    if (!Unpack(entry, degreeDigits)) return std::nullopt;
    const CoordinateAxis& axis = latitude ? LatitudeAxis : LongitudeAxis;
    const auto magnitude = MagnitudeOf(entry, degreeDigits, axis.mostDegrees);
    if (!magnitude) return std::nullopt;
    const bool negative = *magnitude > 0 && IsOneOf(entry.hemisphere, "SW-");
    return Coordinate{latitude, negative ? -*magnitude : *magnitude, entry};
}

bool AreOfOneForm(const Entry& a, const Entry& b) {
    if (a.HasLetter() != b.HasLetter() || a.packed != b.packed) return false;
    return a.HasLetter() || a.count == b.count;
}

std::optional<Position> PositionIn(std::string_view plain) {
    const auto tokens = TokensOf(plain);
    if (!tokens) return std::nullopt;
    const auto border = BorderOf(*tokens);
    if (!border) return std::nullopt;
    const auto first = ReadCoordinate(Tokens(*tokens).first(border->first), true);
    const auto second = ReadCoordinate(Tokens(*tokens).subspan(border->second), false);
    if (!first || !second || first->latitude == second->latitude ||
        !AreOfOneForm(first->entry, second->entry)) {
        return std::nullopt;
    }
    return first->latitude ? Position{first->degrees, second->degrees}
                           : Position{second->degrees, first->degrees};
}

std::string WithDecimalPoints(std::string text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == ',' && IsBetweenDigits(text, i)) text[i] = '.';
    }
    return text;
}

std::string AxisText(double degrees, std::string_view letters, int degreeDigits) {
    constexpr long Thousandths = 60000;  // of a minute, in a degree
    const long all = std::lround(std::fabs(degrees) * Thousandths);
    char text[32];
    std::snprintf(text, sizeof text, "%c%0*ld %02ld.%03ld", letters[degrees < 0 && all > 0 ? 1 : 0],
                  degreeDigits, all / Thousandths, all % Thousandths / 1000, all % 1000);
    return text;
}

}  // namespace

std::optional<Position> ReadPosition(std::string_view text) {
    if (text.size() > LongestText) return std::nullopt;
    const auto plain = PlainText(text);
    if (!plain) return std::nullopt;
    const auto position = PositionIn(*plain);
    if (position || plain->find('.') != std::string::npos) return position;
    return PositionIn(WithDecimalPoints(*plain));
}

std::string PositionText(const Position& position) {
    return AxisText(position.latitude, "NS", 2) + " " + AxisText(position.longitude, "EW", 3);
}

}  // namespace tarvex
