#pragma once

#include <vector>

#include "procedure/procedure_rows.h"

namespace tarvex::testing {

// Changes a row in use as no operation would.
template <class Change>
void Rewrite(ProcedureRows& rows, int index, Change change) {
    WaypointRecord row = rows.InUse()[static_cast<std::size_t>(index)];
    change(row);
    rows.Replace(index, row);
}

// Leaves a row behind those in use, as a delete does.
inline void LeaveBehind(ProcedureRows& rows, const WaypointRecord& row) {
    const std::vector<WaypointRecord> inUse(rows.InUse().begin(), rows.InUse().end());
    auto withRow = inUse;
    withRow.push_back(row);
    rows.Assign(withRow);
    rows.Assign(inUse);
}

}  // namespace tarvex::testing
