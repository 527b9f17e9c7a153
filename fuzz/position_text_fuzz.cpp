// Sources: geometry/position_text.cpp
// Any text as a position; its first bytes, as hundredths of seconds of a position, written in each form and
// read back.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "geometry/position_text.h"
#include "target.h"

namespace tarvex::fuzzing {
namespace {

constexpr std::int32_t InDegree = 360000;  // hundredths of a second

void RequireNear(std::string_view text, const Position& meant, double tolerance) {
    const auto read = ReadPosition(text);
    Require(read && std::abs(read->latitude - meant.latitude) <= tolerance &&
                std::abs(read->longitude - meant.longitude) <= tolerance,
            "a position that was written is read", {text});
}

void CheckRead(std::string_view input) {
    const auto read = ReadPosition(input);
    if (!read) return;
    Require(std::abs(read->latitude) <= 90 && std::abs(read->longitude) <= 180, "it lies on the earth",
            {input});
    const std::string text = PositionText(*read);
    RequireNear(text, *read, 0.5000001 / 60000);
    Require(PositionText(*ReadPosition(text)) == text, "a text read back is the same text", {input, text});
    if (input.size() <= 97) RequireNear(" " + std::string(input) + "\r\n", *read, 0);

    // The other side of the equator by the other letter.
    std::string other(input);
    for (char& c : other) c = std::string_view("NSns").find(c) < 4 ? static_cast<char>(c ^ 'N' ^ 'S') : c;
    if (other != input) RequireNear(other, {-read->latitude, read->longitude}, 0);
}

// An angle in whole hundredths of seconds, so that its parts need no rounding.
struct Angle {
    std::int32_t hundredths;
    int Degrees() const { return std::abs(hundredths) / InDegree; }
    int Minutes() const { return std::abs(hundredths) % InDegree / 6000; }
    int Seconds() const { return std::abs(hundredths) % 6000 / 100; }
    int Rest() const { return std::abs(hundredths) % 100; }
    // Of all minutes, the six digits that 100 / 6 of them need at most, cut.
    int Millionths() const { return static_cast<int>(std::abs(hundredths) % 6000 * 1000000LL / 6000); }
    double Exact() const { return hundredths / double{InDegree}; }
};

// D, M and S are two digits (of degrees three of longitude), c hundredths of seconds, f millionths of a
// minute, d all degrees in decimals, h the letter, - a minus where it is meant.
struct Form {
    std::string_view pattern;
    double resolution;  // degrees
};
constexpr double Second = 1 / 3600., Cut = 1.01e-6 / 60;
constexpr Form Forms[] = {
    {"hD M S.c", 1e-9}, {"D:M:S.ch", 1e-9}, {"-D M S.c", 1e-9},   {"hDMSc", 1e-9},
    {"hD M.f", Cut},    {"D°M.f′ h", Cut},  {"-D°M.f'", Cut},     {"-D M,f", Cut},
    {"hDM.f", Cut},     {"DMSh", Second},   {"hDM", 60 * Second}, {"Dh", 1},
    {"D-M-S.ch", 1e-9}, {"hd", 1e-9},       {"-d", 1e-9},         {"D°M’S.c’’h", 1e-9},
};

std::string Written(std::string_view pattern, const Angle& angle, int width, std::string_view letters) {
    std::string text;
    const auto add = [&text](const char* format, auto... numbers) {
        std::array<char, 40> digits{};
        std::snprintf(digits.data(), digits.size(), format, numbers...);
        text += digits.data();
    };
    for (const char c : pattern) {
        switch (c) {
            case 'D':
                add("%0*d", width, angle.Degrees());
                break;
            case 'M':
                add("%02d", angle.Minutes());
                break;
            case 'S':
                add("%02d", angle.Seconds());
                break;
            case 'c':
                add("%02d", angle.Rest());
                break;
            case 'f':
                add("%06d", angle.Millionths());
                break;
            case 'd':
                add("%.10f", std::abs(angle.Exact()));
                break;
            case 'h':
                text += letters[angle.hundredths < 0 ? 1 : 0];
                break;
            case '-':
                text += pattern.front() != '-' ? "-" : angle.hundredths < 0 ? "-" : "";
                break;
            default:
                text += c;
        }
    }
    return text;
}

void CheckForms(const Angle& latitude, const Angle& longitude) {
    for (const auto& [pattern, resolution] : Forms) {
        const std::string first = Written(pattern, latitude, 2, "NS");
        const std::string second = Written(pattern, longitude, 3, "EW");
        const Position meant{latitude.Exact(), longitude.Exact()};
        for (const char* between : {" ", "; ", " / "})
            RequireNear(first + between + second, meant, resolution);
        if (pattern.find('h') < pattern.size()) RequireNear(second + "/" + first, meant, resolution);
    }
    RequireNear(PositionText({latitude.Exact(), longitude.Exact()}), {latitude.Exact(), longitude.Exact()},
                0.5000001 / 60000);
}

}  // namespace

void TryInput(std::string_view input) {
    CheckRead(input);
    std::array<std::int32_t, 2> bytes{};
    std::memcpy(bytes.data(), input.data(), std::min(input.size(), sizeof bytes));
    CheckForms({bytes[0] % (90 * InDegree + 1)}, {bytes[1] % (180 * InDegree + 1)});
}

}  // namespace tarvex::fuzzing
