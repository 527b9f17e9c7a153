#pragma once

#include <string>

#include "geometry/flag.h"

namespace tarvex {

// What a search leaves behind. A group of the shared variables.
struct SearchVariables {
    std::string SearchKind;         // "F", "N", "AP", "A", "CW", "CN", "CF" or "CAP"
    std::string TransferID;         // AirportID of the airport row last clicked in the search list
    std::string TransferValue;      // AirportElevation of that row, as digits
    double TransferLatDecimal = 0;  // decimal degrees of the row last clicked in the search list
    double TransferLongDecimal = 0;
    Flag RunwayTransfer = False;  // the last transfer was a runway
};

}  // namespace tarvex
