#pragma once

#include <array>
#include <string>

#include "geometry/fixed_field.h"
#include "geometry/flag.h"

namespace tarvex {

// One waypoint of a procedure. All numbers are held as text; "0" means none. Coordinates exist twice: as
// decimal degrees, north and east positive, and as whole degrees and decimal minutes. CoordinatesEdited tells
// which form is current.
struct WaypointRecord {
    FixedField<10> WaypointID{};
    FixedField<2> WaypointType{};  // "15" for a runway waypoint, "0" for every other
    std::string LatDecimal{};
    std::string LatDegrees{};        // may carry a leading "-"
    std::string LatMinutes{};        // never signed
    Flag CoordinatesEdited = False;  // True: degrees and minutes are newer than the decimals
    std::string LongDecimal{};
    std::string LongDegrees{};
    std::string LongMinutes{};
    FixedField<10> Frequency{};
    FixedField<11> Airspeed{};
    FixedField<6> Altitude2{};  // the upper altitude of a band
    FixedField<6> Altitude1{};  // the single altitude, or the lower altitude of a band
    FixedField<1> RestrictionType{};

    friend bool operator==(const WaypointRecord&, const WaypointRecord&) = default;
};

inline constexpr int MaxWaypoints = 201;

// Rows 0 to 200; the first WaypointCount of them are the procedure in flying order.
using WaypointRows = std::array<WaypointRecord, MaxWaypoints>;

}  // namespace tarvex
