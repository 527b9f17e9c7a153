#include "chart/route_words.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>

namespace tarvex {

namespace {

constexpr std::string_view Headings = "No.\tName\tTrue course\tDistance\tSum\tAltitude\tSpeed\tPosition\r\n";

std::string Fixed(double number, int decimals) {
    char digits[32];
    const auto end = std::to_chars(digits, std::end(digits), number, std::chars_format::fixed, decimals).ptr;
    return {digits, end};
}

std::string Padded(const std::string& digits, std::size_t width) {
    return std::string(width - std::min(width, digits.size()), '0') + digits;
}

// "33°30.00'", the minutes carried into the degrees.
std::string DegreesAndMinutes(double magnitude, std::size_t width) {
    const long hundredths = std::lround(magnitude * 6000);
    return Padded(std::to_string(hundredths / 6000), width) + "°" +
           Padded(Fixed(static_cast<double>(hundredths % 6000) / 100, 2), 5) + "'";
}

LegsLine LineOf(const RoutePoint& point, std::size_t number) {
    LegsLine line;
    line.number = std::to_string(number);
    line.name = point.name;
    if (point.leg) {
        if (point.leg->miles > 0) line.course = CourseText(point.leg->course);
        line.distance = MilesText(point.leg->miles);
    }
    line.sum = MilesText(point.distance);
    line.altitude = AltitudeWords(point.altitude);
    if (point.speed > 0) line.speed = Fixed(point.speed, 0);
    line.position = point.position ? PositionWords(*point.position) : "no position";
    return line;
}

}  // namespace

std::string CourseText(double degrees) {
    const long whole = std::lround(degrees) % 360;
    return Padded(std::to_string(whole == 0 ? 360 : whole), 3);
}

std::string MilesText(double miles) {
    return Fixed(miles, 1);
}

std::string FeetText(double feet) {
    return Fixed(feet, 0);
}

std::string AltitudeWords(const AltitudeRestriction& altitude) {
    using enum AltitudeRestriction::Kind;
    switch (altitude.kind) {
        case None:
            return "";
        case At:
            return "at " + FeetText(altitude.low);
        case AtOrAbove:
            return "at or above " + FeetText(altitude.low);
        case AtOrBelow:
            return "at or below " + FeetText(altitude.low);
        case Between:
            return "between " + FeetText(altitude.low) + " and " + FeetText(altitude.high);
    }
    return "";
}

std::string PositionWords(const Position& position) {
    return (position.latitude < 0 ? "S" : "N") + DegreesAndMinutes(std::fabs(position.latitude), 2) +
           (position.longitude < 0 ? " W" : " E") + DegreesAndMinutes(std::fabs(position.longitude), 3);
}

std::vector<LegsLine> LegsLines(const Route& route) {
    std::vector<LegsLine> lines;
    lines.reserve(route.points.size());
    for (const auto& point : route.points) lines.push_back(LineOf(point, lines.size() + 1));
    return lines;
}

std::string LegsText(const Route& route, const std::vector<int>& rows) {
    std::string text(Headings);
    for (int row = 0; const auto& line : LegsLines(route)) {
        if (!rows.empty() && std::ranges::find(rows, row++) == rows.end()) continue;
        for (const auto* cell : {&line.number, &line.name, &line.course, &line.distance, &line.sum,
                                 &line.altitude, &line.speed}) {
            text += *cell + "\t";
        }
        text += line.position + "\r\n";
    }
    return text;
}

std::string RouteSentence(const Route& route) {
    const auto& points = route.points;
    if (points.empty()) return "no waypoints";
    std::string sentence = points.size() == 1
                               ? "1 waypoint, " + points.front().name
                               : std::to_string(points.size()) + " waypoints, " + MilesText(route.Miles()) +
                                     " miles, from " + points.front().name + " to " + points.back().name;
    const auto lost =
        std::count_if(points.begin(), points.end(), [](const auto& point) { return !point.position; });
    if (lost > 0) sentence += "; " + std::to_string(lost) + " without a position";
    return sentence;
}

}  // namespace tarvex
