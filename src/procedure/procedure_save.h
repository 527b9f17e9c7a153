#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "procedure/procedure_lines.h"
#include "procedure/procedure_rows.h"

namespace tarvex {

// The plain steps of the user's save.

// A procedure composed for its file: the whole text, or what keeps it from being one.
struct ComposedProcedure {
    std::vector<WaypointItems> lines;
    std::optional<UnstorableItem> unstorable;
    std::string text;  // empty where an item is unstorable
};

// `date` in the short form of the system. The failures of ItemsForSave.
ComposedProcedure ComposeProcedure(std::span<const WaypointRecord> rows, std::string_view date,
                                   std::string_view version);

// Brings the altitudes of all rows that have a second one into the order in which the file has them.
void ExchangeBands(ProcedureRows& rows);

}  // namespace tarvex
