#include <algorithm>
#include <cmath>

#include "chart/route_words.h"
#include "findings/rules.h"
#include "geometry/rhumb_line.h"
#include "geometry/text_rules.h"

namespace tarvex {

namespace {

using Words = std::optional<std::string>;

std::optional<std::string> NoPosition(const Subject& subject, std::size_t row) {
    if (subject.Point(row).position) return {};
    return "No usable position: latitudes go to 90 degrees, longitudes to 180.";
}

const std::optional<Position>& PositionAt(const Subject& subject, std::size_t row) {
    static const std::optional<Position> none;
    return row < subject.route.points.size() ? subject.Point(row).position : none;
}

using SameSide = bool (*)(const Position&, const Position&);

bool SameLatitudeSide(const Position& a, const Position& b) {
    return (a.latitude < 0) == (b.latitude < 0);
}
bool SameLongitudeSide(const Position& a, const Position& b) {
    return (a.longitude < 0) == (b.longitude < 0);
}

double MilesTo(const Position& from, const std::optional<Position>& before,
               const std::optional<Position>& after) {
    return (before ? RhumbLegBetween(*before, from).miles : 0) +
           (after ? RhumbLegBetween(from, *after).miles : 0);
}

// Routes do cross the equator and the meridians of 0 and 180 degrees, at Greenwich also there and back. They
// don't come back at once from so far, and do not end with a leg of that length that is ten times shorter
// with the other sign.
bool IsAcross(const Subject& subject, std::size_t row, const Position& mirrored, SameSide sameSide) {
    constexpr double LeastMiles = 200;  // there and back
    constexpr double LeastOfLastLeg = 150;
    constexpr double LastLegShare = 0.1;
    const auto& here = PositionAt(subject, row);
    const auto& before = PositionAt(subject, row - 1);
    const auto& after = PositionAt(subject, row + 1);
    const auto across = [&](const std::optional<Position>& other) {
        return other && !sameSide(*here, *other);
    };
    if (before && after) {
        return across(before) && across(after) && MilesTo(*here, before, after) > LeastMiles &&
               MilesTo(mirrored, before, after) < MilesTo(*here, before, after);
    }
    // The first or the last, or alone with another: then it is the one that came later.
    if (!across(before) && !across(after)) return false;
    const auto& beyond = PositionAt(subject, before ? row - 2 : row + 2);
    if (beyond ? across(beyond) != across(before ? before : after) : !before) return false;
    return MilesTo(*here, before, after) > LeastOfLastLeg &&
           MilesTo(mirrored, before, after) < LastLegShare * MilesTo(*here, before, after);
}

std::string_view WrongHemisphere(const Subject& subject, std::size_t row) {
    const auto& here = PositionAt(subject, row);
    if (!here) return {};
    if (IsAcross(subject, row, {-here->latitude, here->longitude}, SameLatitudeSide)) {
        return here->latitude < 0 ? "south" : "north";
    }
    if (IsAcross(subject, row, {here->latitude, -here->longitude}, SameLongitudeSide)) {
        return here->longitude < 0 ? "west" : "east";
    }
    return {};
}

// Whether a row, or one beside it, is told to lie in the wrong hemisphere: what follows from that is not told
// again.
bool HemisphereIsTold(const Subject& subject, std::size_t first, std::size_t last) {
    for (std::size_t row = first; row <= last; ++row) {
        if (!WrongHemisphere(subject, row).empty()) return true;
    }
    return false;
}

Words HemisphereLooksWrong(const Subject& subject, std::size_t row) {
    const std::string_view side = WrongHemisphere(subject, row);
    if (side.empty()) return {};
    return "Lies " + std::string(side) + ", the waypoints beside it do not: is the hemisphere right?";
}

// Two waypoints nearer than 120 feet, which is what the fourth decimal of a minute and the fifth of a degree
// leave open, are one place.
Words SamePlace(const Subject& subject, std::size_t row) {
    constexpr double SameMiles = 0.02;
    if (!subject.Point(row).leg || subject.Point(row).leg->miles >= SameMiles) return {};
    return "At the same place as " + subject.Point(row - 1).name + " in front of it.";
}

// No leg of a terminal procedure is longer than MostMiles; one longer than FarMiles is looked at where most
// of the others are much shorter.
Words FarAway(const Subject& subject, std::size_t row) {
    constexpr double MostMiles = 300;
    constexpr double FarMiles = 100;
    constexpr double TimesUsual = 8;
    const auto& leg = subject.Point(row).leg;
    if (!leg || leg->miles <= FarMiles) return {};
    const bool far = subject.usualLeg > 0 && leg->miles > TimesUsual * subject.usualLeg;
    if (leg->miles <= MostMiles && !far) return {};
    if (HemisphereIsTold(subject, row - 1, row)) return {};
    return MilesText(leg->miles) + " miles from " + subject.Point(row - 1).name +
           (leg->miles > MostMiles ? ", more than 300." : ", far more than most of the legs.");
}

Words NameIsElsewhere(const Subject& subject, std::size_t row) {
    constexpr double NearMiles = 1;
    const RoutePoint& point = subject.Point(row);
    if (!point.position) return {};
    const auto& places = subject.places.Find(Trim(subject.rows[row].WaypointID)).all;
    if (places.empty()) return {};
    const auto miles = [&](const Position& place) { return RhumbLegBetween(*point.position, place).miles; };
    const Position nearest =
        *std::min_element(places.begin(), places.end(),
                          [&](const Position& a, const Position& b) { return miles(a) < miles(b); });
    if (miles(nearest) <= NearMiles) return {};
    return "In the tables " + point.name + " is " + MilesText(miles(nearest)) +
           " miles from here: " + PositionWords(nearest);
}

// Nothing but a missed approach turns back so far: a waypoint stands at the wrong place in the list.
Words TurnsBack(const Subject& subject, std::size_t row) {
    constexpr double MostDegrees = 120;
    constexpr double LeastMiles = 0.1;  // a shorter leg has no course worth the name
    if (row + 1 >= subject.route.points.size() || row >= subject.landing) return {};
    const auto& in = subject.Point(row).leg;
    const auto& out = subject.Point(row + 1).leg;
    if (!in || !out || in->miles < LeastMiles || out->miles < LeastMiles) return {};
    const double turn = std::fabs(std::remainder(out->course - in->course, 360));
    if (turn <= MostDegrees || HemisphereIsTold(subject, row - 1, row + 1)) return {};
    return "The route turns by " + FeetText(turn) + " degrees here, back to " + subject.Point(row + 1).name +
           ".";
}

constexpr RowRule Rules[] = {NoPosition, HemisphereLooksWrong, SamePlace,
                             FarAway,    NameIsElsewhere,      TurnsBack};

}  // namespace

std::span<const RowRule> PositionRules() {
    return Rules;
}

}  // namespace tarvex
