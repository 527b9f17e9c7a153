#pragma once

#include <optional>
#include <string>

#include "geometry/position.h"

namespace tarvex {

// Rhumb lines, that is lines of constant true course, on a spherical earth.

// Fifteen significant digits each, not the nearest doubles of the exact values: 360 * RadiansPerDegree is
// larger than TwoPi, so an angle that has reached 360 degrees counts as past TwoPi.
inline constexpr double Pi = 3.14159265358979;
inline constexpr double TwoPi = 6.28318530717958;
inline constexpr double RadiansPerDegree = 0.0174532925199433;
inline constexpr double DegreesPerRadian = 57.2957795130824;
inline constexpr double RadiansPerNauticalMile = 0.000290888208665721;  // one minute of arc

// A difference of latitudes below this, in radians, makes a course one due east or west.
inline constexpr double RhumbTolerance = 3.1622776601683795e-08;  // the square root of 1e-15

// A point as the formulas take it, in radians. Longitude is positive WEST, against the rest of the program.
struct RhumbPoint {
    double latitude = 0;   // north positive; strictly between the poles
    double longitude = 0;  // west positive; results lie from -Pi up to Pi
};

// The point at a latitude (north positive) and a longitude (east positive) in degrees.
RhumbPoint RhumbPointAt(double latitudeDegrees, double longitudeDegrees);

// The remainder of y / x for x above 0: from 0 up to x. For a negative y that is a whole multiple of x it's
// x.
double PositiveModulus(double y, double x);

// The point reached from `start` by flying the true course `course` (radians clockwise from north, any value)
// for `distance` (radians of arc; a negative one goes the other way). Nothing if the line starts at a pole,
// or reaches or passes one.
// Source: Aviation Formulary, Ed Williams, "Rhumb line navigation", the direct problem. Toward due east and
// west it divides small differences: over 10 miles and more the change of longitude has 12 good digits far
// off them, 11 at one degree off, one less for each tenth of that, and at the least 7 between 0.001 and
// 0.00001 degrees; due east and west have 13.
std::optional<RhumbPoint> RhumbLineStep(const RhumbPoint& start, double distance, double course);

// A rhumb line from one point to another.
struct RhumbLeg {
    double course = 0;  // degrees true, 0 up to 360; 0 where the points are one
    double miles = 0;   // nautical miles, one of them a minute of arc

    friend bool operator==(const RhumbLeg&, const RhumbLeg&) = default;
};

// The shorter of the rhumb lines between two points, eastward of two that are as long. At a pole every course
// but north and south has turned round it already: a line from or to one runs along a meridian.
// Source: J. P. Snyder, Map Projections: A Working Manual (USGS 1395), chapter 7, the loxodrome on the
// sphere, with the difference of the isometric latitudes as the inverse hyperbolic sine of (sin lat2 - sin
// lat1) / (cos lat1 cos lat2), which keeps its digits toward due east and west and near a pole: 1e-9 of the
// distance and 1e-9 degrees.
RhumbLeg RhumbLegBetween(const Position& from, const Position& to);

// The point of that line at a share of its way, 0 to 1.
Position RhumbPointBetween(const Position& from, const Position& to, double share);

// A point in the texts of waypoints and boxes. Whole degrees and minutes are magnitudes. All but the whole
// degrees are laid out by patterns: "33.5", "34.", ".5", ".".
struct PositionTexts {
    std::string latDecimal;  // degrees, "-" for south
    std::string latDegrees;
    std::string latMinutes;   // may be "60.": the minutes aren't carried
    std::string longDecimal;  // degrees, "-" for west
    std::string longDegrees;
    std::string longMinutes;
    bool south = false;  // false for what shows as 0
    bool west = false;   // true on the zero meridian

    // The degrees of longitude as a waypoint keeps them: "-" for west.
    std::string SignedLongDegrees() const { return (west ? "-" : "") + longDegrees; }
};

PositionTexts PositionTextsOf(const RhumbPoint& point);

}  // namespace tarvex
