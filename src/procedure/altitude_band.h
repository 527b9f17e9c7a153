#pragma once

#include "procedure/waypoint_record.h"

namespace tarvex {

// Whether Altitude2 holds anything but "0". Blanks count as present.
bool HasSecondAltitude(const WaypointRecord& row);

void ExchangeAltitudes(WaypointRecord& row);

// Brings the altitudes of a row that has a second one into the order in which the screen shows them, by
// number: the lower in Altitude1, the higher in Altitude2. Blanks count as 0. Equal ones keep the order that
// the file has them in, through any number of saves.
void OrderAltitudes(WaypointRecord& row);

}  // namespace tarvex
