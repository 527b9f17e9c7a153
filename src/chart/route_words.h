#pragma once

#include <string>
#include <vector>

#include "chart/route.h"

namespace tarvex {

// A procedure in words and figures, in UTF-8.

std::string CourseText(double degrees);  // three digits, 001 to 360: "090"
std::string MilesText(double miles);     // one decimal: "83.4"
std::string FeetText(double feet);       // whole: "5000"

// "at or above 5000", "between 3000 and 5000"; empty without a restriction.
std::string AltitudeWords(const AltitudeRestriction& altitude);

// Degrees and minutes: "N33°30.00' W117°15.00'".
std::string PositionWords(const Position& position);

// The line of a row in the list of legs; empty where the row has nothing to tell.
struct LegsLine {
    std::string number;  // from 1 on
    std::string name;
    std::string course;    // of the leg that leads to the row, true; empty for one without length
    std::string distance;  // of that leg, miles
    std::string sum;       // miles from the first row
    std::string altitude;  // in words
    std::string speed;     // knots
    std::string position;  // in words; "no position" where the row has none

    friend bool operator==(const LegsLine&, const LegsLine&) = default;
};

std::vector<LegsLine> LegsLines(const Route& route);

// The lines of the rows, of all where none are given, behind one of headings, their columns parted by tabs,
// each ended by CR LF.
std::string LegsText(const Route& route, const std::vector<int>& rows = {});

// "6 waypoints, 83.4 miles, from TRM to BASET"; rows without a position are told behind it.
std::string RouteSentence(const Route& route);

}  // namespace tarvex
