#pragma once

#include <string>
#include <string_view>

#include "geometry/coordinate_rules.h"
#include "toolkit/simple_controls.h"

namespace tarvex {

// What the controls of one axis hold.
struct AxisEntry {
    std::string degrees;
    std::string minutes;
    bool negative = false;  // south or west

    friend bool operator==(const AxisEntry&, const AxisEntry&) = default;
};

// The controls of one axis of a position: boxes for the magnitude in whole degrees and decimal minutes, and
// the hemisphere, of which one option is selected.
struct CoordinateGroup {
    const CoordinateAxis& axis;
    TextBox& degrees;
    TextBox& minutes;
    OptionButton& positive;  // north or east
    OptionButton& negative;  // south or west

    // What is wrong with a box, in the screen's words; empty when it is accepted.
    std::string_view DegreesComplaint() const;
    std::string_view MinutesComplaint() const;

    void Fill(std::string_view degreesText, std::string_view minutesText, bool isNegative) const;
    void Fill(const AxisEntry& entry) const { Fill(entry.degrees, entry.minutes, entry.negative); }
    AxisEntry Entry() const { return {degrees.Text(), minutes.Text(), negative.Value()}; }
    // The text of the degrees with "-" in front for the south and the west.
    std::string SignedDegrees() const;
    bool IsFilled() const { return !degrees.Text().empty() || !minutes.Text().empty(); }
    // The magnitude in decimal degrees, by the numbers that the boxes begin with.
    double Magnitude() const;
    // The same with its sign: south and west are negative.
    double Coordinate() const { return negative.Value() ? -Magnitude() : Magnitude(); }
};

}  // namespace tarvex
