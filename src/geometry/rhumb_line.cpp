#include "geometry/rhumb_line.h"

#include <cmath>

#include "geometry/position.h"
#include "geometry/text_rules.h"

namespace tarvex {

namespace {

// Rounding of the sum of a latitude and a distance must not carry a line that ends at a pole past this.
constexpr double PoleMargin = 1e-12;

bool IsBetweenPoles(double latitude) {
    return std::fabs(latitude) < Pi / 2 - PoleMargin;
}

// Exact at a pole, and good to all digits beside it.
double CosineOfLatitude(double degrees) {
    return std::sin((90 - std::fabs(degrees)) * RadiansPerDegree);
}

// East positive, above -180 up to 180. Over the date line each half is exact.
double LongitudeChange(double from, double to) {
    const double change = to - from;
    if (change > 180) return (to - 180) - (from + 180);
    if (change <= -180) return (to + 180) - (from - 180);
    return change;
}

// A difference of latitudes as a Mercator map stretches it, in degrees; infinite from or to a pole.
double StretchedLatitudes(double from, double to) {
    if (from == to) return 0;
    const double sines = 2 * CosineOfLatitude((from + to) / 2) * std::sin((to - from) / 2 * RadiansPerDegree);
    return std::asinh(sines / (CosineOfLatitude(from) * CosineOfLatitude(to))) * DegreesPerRadian;
}

}  // namespace

RhumbPoint RhumbPointAt(double latitudeDegrees, double longitudeDegrees) {
    return {latitudeDegrees * RadiansPerDegree, -longitudeDegrees * RadiansPerDegree};
}

double PositiveModulus(double y, double x) {
    if (y >= 0) return y - Int(y / x) * x;
    return (Int(-y / x) + 1) * x + y;
}

std::optional<RhumbPoint> RhumbLineStep(const RhumbPoint& start, double distance, double course) {
    const double lat1 = start.latitude;
    const double lat = std::cos(course) * distance + lat1;
    if (!IsBetweenPoles(lat1) || !IsBetweenPoles(lat)) return std::nullopt;

    const double t1 = std::tan(lat1 / 2 + Pi / 4);
    const double t2 = std::tan(lat / 2 + Pi / 4);
    const double dphi = std::log(t2 / t1);
    const double q = std::fabs(lat - lat1) < RhumbTolerance ? std::cos(lat1) : (lat - lat1) / dphi;
    const double dlon = -distance * std::sin(course) / q;
    return RhumbPoint{lat, PositiveModulus(dlon + start.longitude + Pi, TwoPi) - Pi};
}

RhumbLeg RhumbLegBetween(const Position& from, const Position& to) {
    const double north = to.latitude - from.latitude;
    const double east = LongitudeChange(from.longitude, to.longitude);
    const double stretched = StretchedLatitudes(from.latitude, to.latitude);
    const double narrowing = north == 0 ? CosineOfLatitude(from.latitude) : north / stretched;
    const double course = std::atan2(east, stretched) * DegreesPerRadian;
    return {course < 0 ? std::fmod(course + 360, 360) : course, std::hypot(north, narrowing * east) * 60};
}

Position RhumbPointBetween(const Position& from, const Position& to, double share) {
    const double latitude = from.latitude + share * (to.latitude - from.latitude);
    const double whole = StretchedLatitudes(from.latitude, to.latitude);
    const double part = StretchedLatitudes(from.latitude, latitude);
    const double eastShare = whole == 0 || !std::isfinite(whole) ? share : part / whole;
    const double east = LongitudeChange(from.longitude, to.longitude) * eastShare;
    return {latitude, std::remainder(from.longitude + east, 360)};
}

PositionTexts PositionTextsOf(const RhumbPoint& point) {
    const double latDeg = point.latitude * DegreesPerRadian;
    const double lonDeg = point.longitude * DegreesPerRadian;
    PositionTexts texts;
    texts.latDecimal = PatternFormat(latDeg, TwoDigitPattern);
    texts.latDegrees = WholeDegreesText(std::fabs(latDeg));
    texts.latMinutes = PatternFormat(SplitDegrees(std::fabs(latDeg)).minutes, TwoDigitPattern);
    texts.south = latDeg < 0 && !(texts.latDegrees == "0" && texts.latMinutes == ".");
    texts.west = lonDeg >= 0;
    texts.longDecimal =
        PatternFormat(std::fabs(lonDeg), texts.west ? NegatedThreeDigitPattern : ThreeDigitPattern);
    texts.longDegrees = WholeDegreesText(std::fabs(lonDeg));
    texts.longMinutes = PatternFormat(SplitDegrees(std::fabs(lonDeg)).minutes, TwoDigitPattern);
    return texts;
}

}  // namespace tarvex
