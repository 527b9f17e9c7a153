#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "geometry/fixed_field.h"

namespace tarvex {

// Latitudes and longitudes are texts of signed decimal degrees, north and east positive.

struct FixRecord {
    FixedField<5> FixID;
    FixedField<10> FixLat;
    FixedField<11> FixLong;
};

struct NavaidRecord {
    FixedField<5> NavaidID;
    FixedField<6> NavaidFreq;  // above 120 KHz, else MHz
    FixedField<10> NavaidLat;
    FixedField<11> NavaidLong;
};

// One runway of an airport.
struct AirportRecord {
    FixedField<7> AirportID;  // the ICAO code, and from character 5 on the runway
    FixedField<10> AirportLat;
    FixedField<11> AirportLong;
    std::int16_t AirportElevation = 0;  // feet
};

inline constexpr std::size_t MaxFixes = 190001;
inline constexpr std::size_t MaxNavaids = 20001;
inline constexpr std::size_t MaxAirports = 14401;

// The add-on's navigation data, in the order of its files. A count holds the index of the last entry: -1 in
// an empty table. Entries behind it have no meaning.
struct NavigationTables {
    std::unique_ptr<FixRecord[]> FixTable = std::make_unique_for_overwrite<FixRecord[]>(MaxFixes);
    std::unique_ptr<NavaidRecord[]> NavaidTable = std::make_unique_for_overwrite<NavaidRecord[]>(MaxNavaids);
    std::unique_ptr<AirportRecord[]> AirportTable =
        std::make_unique_for_overwrite<AirportRecord[]>(MaxAirports);
    std::int32_t FixCount = -1;
    std::int16_t NavaidCount = -1;
    std::int32_t AirportCount = -1;
};

}  // namespace tarvex
