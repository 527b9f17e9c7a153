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
    if (!HasSecondAltitude(row)) return;
    const double first = LeadingNumber(row.Altitude1);
    const double second = LeadingNumber(row.Altitude2);
    // The save exchanges them too: equal ones that stayed would change places with every save.
    const bool equalBand = first == second && Trim(row.Altitude1) != "0";
    if (second < first || equalBand) ExchangeAltitudes(row);
}

}  // namespace tarvex
