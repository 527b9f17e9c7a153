#pragma once

#include <optional>
#include <span>
#include <string>

#include "findings/findings.h"

namespace tarvex {

// A procedure with what several rules ask of it.
struct Subject : Examined {
    explicit Subject(const Examined& procedure);

    const RoutePoint& Point(std::size_t row) const { return route.points[row]; }
    bool FliesIn() const;  // an arrival or an approach
    // Up to this row, and not at it, an approach comes down: the last runway, or behind all rows. What
    // follows is the missed approach.
    std::size_t landing;
    double usualLeg;  // nautical miles: the leg in the middle of all by length; 0 for fewer than four
    std::optional<double> elevation;  // feet: of that runway, without one the lowest of the airport
};

// What a rule says of a row, or of the whole; nothing where it has nothing to say.
using RowRule = std::optional<std::string> (*)(const Subject& subject, std::size_t row);
using WholeRule = std::optional<std::string> (*)(const Subject& subject);

std::span<const RowRule> PositionRules();
std::span<const RowRule> AltitudeRules();
std::span<const RowRule> NameRules();
std::span<const WholeRule> WholeRules();

// Whether the table holds a runway end of that name, "27L", at the airport; nothing for an airport that it
// has not.
std::optional<bool> HasRunway(const Subject& subject, std::string_view runway);
// The runway that a row is called for, "27L" of "RW27L"; empty for any other name.
std::string_view RunwayInName(std::string_view name);

}  // namespace tarvex
