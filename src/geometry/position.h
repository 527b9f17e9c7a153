#pragma once

#include <cmath>

namespace tarvex {

// A point of the earth in decimal degrees: latitude north positive, longitude east positive.
struct Position {
    double latitude = 0;   // -90 to 90
    double longitude = 0;  // -180 to 180

    friend bool operator==(const Position&, const Position&) = default;
};

// A magnitude of degrees as whole degrees and decimal minutes.
struct SplitAngle {
    double degrees = 0;
    double minutes = 0;
};

inline SplitAngle SplitDegrees(double magnitude) {
    const double degrees = std::trunc(magnitude);
    return {degrees, (magnitude - degrees) * 60};
}

constexpr double JoinDegrees(const SplitAngle& split) {
    return split.degrees + split.minutes / 60;
}

}  // namespace tarvex
