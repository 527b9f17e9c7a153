#include "procedure/altitude_band.h"

#include <utility>

#include "geometry/text_rules.h"

namespace tarvex {

bool HasSecondAltitude(const WaypointRecord& row) {
    return Trim(row.Altitude2) != "0";
}

void ExchangeAltitudes(WaypointRecord& row) {
    std::swap(row.Altitude1, row.Altitude2);
}

void OrderAltitudes(WaypointRecord& row) {
    if (HasSecondAltitude(row) && LeadingNumber(row.Altitude2) < LeadingNumber(row.Altitude1)) {
        ExchangeAltitudes(row);
    }
}

}  // namespace tarvex
