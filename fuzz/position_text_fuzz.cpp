// Sources: geometry/position_text.cpp
// Any text as a position; its first bytes, as a position, in every form and back.

#include <cmath>
#include <cstdio>
#include <cstring>
#include <optional>
#include <string>

#include "geometry/position_text.h"
#include "target.h"

namespace tarvex::fuzzing {
namespace {

void RequireNear(const std::string& text, double latitude, double longitude, double degrees) {
    const auto read = ReadPosition(text);
    Require(read.has_value(), "a position is read", {text});
    Require(
        std::abs(read->latitude - latitude) <= degrees && std::abs(read->longitude - longitude) <= degrees,
        "and is where it was", {text});
}

std::string Print(const char* form, double a, double b, double c, double d, double e, double f) {
    char text[200];
    std::snprintf(text, sizeof text, form, a, b, c, d, e, f);
    return text;
}

// A magnitude in hundredths of seconds, in whole numbers.
struct Parts {
    explicit Parts(double degrees) : hundredths(std::lround(std::abs(degrees) * 360'000)) {}
    double Degrees() const { return static_cast<double>(hundredths / 360'000); }
    double Minutes() const { return static_cast<double>(hundredths / 6000 % 60); }
    double Seconds() const { return static_cast<double>(hundredths % 6000) / 100; }
    long hundredths;
};

void CheckForms(double latitude, double longitude) {
    constexpr double HalfAThousandth = 0.00051 / 60;
    constexpr double HalfAHundredth = 0.0051 / 3600;
    const Position position{latitude, longitude};
    RequireNear(PositionText(position), latitude, longitude, HalfAThousandth);
    RequireNear(Print("%.9f %.9f", latitude, longitude, 0, 0, 0, 0), latitude, longitude, 1e-9);
    const Parts lat(latitude), lon(longitude);
    const char* forms[] = {"N%02.0f%02.0f%05.2fW%03.0f%02.0f%05.2f", "%.0f:%.0f:%.2fN, %.0f:%.0f:%.2fW",
                           "%.0f\xC2\xB0%.0f'%.2f\"n %.0f\xC2\xB0%.0f'%.2f\"w"};
    for (std::string form : forms) {
        for (char& c : form) {
            if (latitude >= 0 || (c != 'N' && c != 'n')) continue;
            c = 'S';
        }
        for (char& c : form) {
            if (longitude >= 0 && (c == 'W' || c == 'w')) c = 'E';
        }
        std::string text = Print(form.c_str(), lat.Degrees(), lat.Minutes(), lat.Seconds(), lon.Degrees(),
                                 lon.Minutes(), lon.Seconds());
        // The form of digits alone has no point.
        if (form.starts_with("N%02") || form.starts_with("S%02")) std::erase(text, '.');
        RequireNear(text, latitude, longitude, HalfAHundredth);
    }
}

}  // namespace

void TryInput(std::string_view input) {
    if (const auto position = ReadPosition(input)) {
        Require(std::abs(position->latitude) <= 90 && std::abs(position->longitude) <= 180,
                "it is on the earth", {input});
        RequireNear(PositionText(*position), position->latitude, position->longitude, 0.00051 / 60);
    }
    std::uint32_t places[2];
    if (input.size() < sizeof places) return;
    std::memcpy(places, input.data(), sizeof places);
    CheckForms(places[0] / 4294967295.0 * 180 - 90, places[1] / 4294967295.0 * 360 - 180);
}

}  // namespace tarvex::fuzzing
