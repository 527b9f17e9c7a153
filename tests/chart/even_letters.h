#pragma once

#include <string>

#include "toolkit/drawing.h"

namespace tarvex::testing {

// A font whose letters are all as wide.
struct EvenLetters : TextMeasure {
    double Width(const std::string& text, double size, bool) const override {
        return 0.55 * size * static_cast<double>(text.size());
    }
};

}  // namespace tarvex::testing
