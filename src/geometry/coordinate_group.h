#pragma once

#include <string>
#include <string_view>

#include "geometry/coordinate_rules.h"
#include "toolkit/simple_controls.h"

namespace tarvex {

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
    // The text of the degrees with "-" in front for the south and the west.
    std::string SignedDegrees() const;
    bool IsFilled() const { return !degrees.Text().empty() || !minutes.Text().empty(); }
    // The magnitude in decimal degrees, by the numbers that the boxes begin with.
    double Magnitude() const;
    double Coordinate() const { return negative.Value() ? -Magnitude() : Magnitude(); }
};

}  // namespace tarvex
