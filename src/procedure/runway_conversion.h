#pragma once

#include "navigation/navigation_tables.h"
#include "procedure/waypoint_record.h"

namespace tarvex {

// Turns a row of an older approach file whose name is an airport's code with a runway behind it, by its
// characters 5 and 6 being a number, into a runway waypoint: "KXYZ27L" becomes "RW27L" of the type "15",
// without a restriction, at the elevation of the first airport entry of the old name. Without an entry the
// altitude stays. Other rows stay as they are.
void ConvertRunway(WaypointRecord& row, const NavigationTables& navigation);

}  // namespace tarvex
