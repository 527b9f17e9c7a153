#include <algorithm>
#include <cmath>
#include <limits>

#include "chart/route_words.h"
#include "findings/rules.h"
#include "geometry/rhumb_line.h"
#include "geometry/text_rules.h"

namespace tarvex {

namespace {

using Words = std::optional<std::string>;
using Kind = AltitudeRestriction::Kind;

constexpr double Endless = std::numeric_limits<double>::infinity();

// The least and the most that a restriction allows, in feet.
double Least(const AltitudeRestriction& altitude) {
    return altitude.kind == Kind::AtOrBelow ? 0 : altitude.low;
}
double Most(const AltitudeRestriction& altitude) {
    return altitude.kind == Kind::AtOrAbove ? Endless : altitude.high;
}

bool HasAltitude(const RoutePoint& point) {
    return point.altitude.kind != Kind::None;
}

// Of the rows in front of this one with an altitude the one that demands most of a rule; null for none, for a
// row without an altitude, and behind the landing.
template <class Demand>
const RoutePoint* MostDemanding(const Subject& subject, std::size_t row, Demand demand) {
    if (!HasAltitude(subject.Point(row)) || row > subject.landing) return nullptr;
    const RoutePoint* most = nullptr;
    for (std::size_t other = 0; other < row; ++other) {
        const RoutePoint& point = subject.Point(other);
        if (HasAltitude(point) && (most == nullptr || demand(point) > demand(*most))) most = &point;
    }
    return most;
}

Words BandUpsideDown(const Subject& subject, std::size_t row) {
    const WaypointRecord& record = subject.rows[row];
    const double lower = LeadingNumber(record.Altitude1);
    const double upper = LeadingNumber(record.Altitude2);
    if (record.RestrictionType != "3" || upper <= 0 || lower <= upper) return {};
    return "The lower altitude, " + FeetText(lower) + ", is above the upper one, " + FeetText(upper) + ".";
}

Words RestrictionWithoutAltitude(const Subject& subject, std::size_t row) {
    const WaypointRecord& record = subject.rows[row];
    const bool first = LeadingNumber(record.Altitude1) > 0;
    const bool second = LeadingNumber(record.Altitude2) > 0;
    switch (record.RestrictionType.View().front()) {
        case '1':
        case '2':
            if (first || second) return {};
            return "A restriction without an altitude.";
        case '3':
            if (first && second) return {};
            return "A restriction to a band without " + std::string(first    ? "its upper altitude."
                                                                    : second ? "its lower altitude."
                                                                             : "altitudes.");
        default:
            return {};
    }
}

// Only what no flight can do counts: what is allowed before against what is wanted here.
Words WrongWay(const Subject& subject, std::size_t row) {
    const AltitudeRestriction& here = subject.Point(row).altitude;
    if (subject.FliesIn()) {
        const RoutePoint* before =
            MostDemanding(subject, row, [](const RoutePoint& point) { return -Most(point.altitude); });
        if (before == nullptr || Least(here) <= Most(before->altitude)) return {};
        return "A climb on the way in: at least " + FeetText(Least(here)) + ", behind " +
               FeetText(Most(before->altitude)) + " at the most at " + before->name + ".";
    }
    const RoutePoint* before =
        MostDemanding(subject, row, [](const RoutePoint& point) { return Least(point.altitude); });
    if (before == nullptr || Most(here) >= Least(before->altitude)) return {};
    return "A descent on the way out: at the most " + FeetText(Most(here)) + ", behind " +
           FeetText(Least(before->altitude)) + " at the least at " + before->name + ".";
}

// Twice the usual three degrees and a bit: an airliner can't come down so and slow down.
Words TooSteep(const Subject& subject, std::size_t row) {
    constexpr double MostDegrees = 7;
    constexpr double FeetPerMile = 6076.12;
    constexpr double LeastMiles = 0.1;
    const RoutePoint& here = subject.Point(row);
    if (!subject.FliesIn()) return {};
    const auto feetFrom = [&](const RoutePoint& point) {
        return Least(point.altitude) - Most(here.altitude);
    };
    // Over a row without a position nobody knows how far it is.
    std::size_t known = row;
    while (known > 0 && subject.Point(known).leg) --known;
    const auto slope = [&](const RoutePoint& point) {
        const double miles = here.distance - point.distance;
        const bool measured = &point >= &subject.Point(known);
        return !measured || miles < LeastMiles ? 0 : feetFrom(point) / (miles * FeetPerMile);
    };
    const RoutePoint* before = MostDemanding(subject, row, slope);
    if (before == nullptr) return {};
    const double degrees = std::atan(slope(*before)) * DegreesPerRadian;
    if (degrees <= MostDegrees) return {};
    return "A descent of " + MilesText(degrees) + " degrees: " + FeetText(feetFrom(*before)) +
           " feet in the " + MilesText(here.distance - before->distance) + " miles from " + before->name +
           ".";
}

Words BelowTheRunway(const Subject& subject, std::size_t row) {
    const RoutePoint& here = subject.Point(row);
    if (!HasAltitude(here) || !subject.elevation || here.altitude.low >= *subject.elevation) return {};
    return FeetText(here.altitude.low) + " is below the runway, which lies at " +
           FeetText(*subject.elevation) + ".";
}

Words FasterOnTheWayIn(const Subject& subject, std::size_t row) {
    const RoutePoint& here = subject.Point(row);
    if (!subject.FliesIn() || here.speed == 0 || row > subject.landing) return {};
    const auto& points = subject.route.points;
    const auto before = std::find_if(points.rend() - static_cast<std::ptrdiff_t>(row), points.rend(),
                                     [](const RoutePoint& point) { return point.speed > 0; });
    if (before == points.rend() || here.speed <= before->speed) return {};
    return "Faster on the way in: " + FeetText(here.speed) + " knots, behind " + FeetText(before->speed) +
           " at " + before->name + ".";
}

constexpr RowRule Rules[] = {BandUpsideDown,  RestrictionWithoutAltitude, WrongWay, TooSteep, BelowTheRunway,
                             FasterOnTheWayIn};

}  // namespace

std::span<const RowRule> AltitudeRules() {
    return Rules;
}

}  // namespace tarvex
