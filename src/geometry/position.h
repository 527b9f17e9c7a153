#pragma once

namespace tarvex {

// A point of the earth in decimal degrees: latitude north positive, longitude east positive.
struct Position {
    double latitude = 0;   // -90 to 90
    double longitude = 0;  // -180 to 180

    friend bool operator==(const Position&, const Position&) = default;
};

}  // namespace tarvex
