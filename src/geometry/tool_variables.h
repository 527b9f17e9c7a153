#pragma once

#include <cstdint>
#include <string>

#include "geometry/flag.h"

namespace tarvex {

// Groups of the shared variables.

// What an ARC is laid out round.
struct ArcVariables {
    std::string ArcCenterLat;  // decimal degrees
    std::string ArcCenterLong;
    std::int32_t ArcPointNumber = 0;  // running number of the next generated ARC waypoint
};

// What a waypoint is derived from.
struct StartPointVariables {
    double StartLat = 0;  // decimal degrees
    double StartLong = 0;
    Flag StartPointSelected = False;
};

}  // namespace tarvex
