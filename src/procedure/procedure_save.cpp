#include "procedure/procedure_save.h"

#include <algorithm>

#include "procedure/altitude_band.h"

namespace tarvex {

ComposedProcedure ComposeProcedure(std::span<const WaypointRecord> rows, std::string_view date,
                                   std::string_view version) {
    ComposedProcedure composed;
    composed.lines.resize(rows.size());
    std::transform(rows.begin(), rows.end(), composed.lines.begin(), ItemsForSave);
    composed.unstorable = FindUnstorableItem(composed.lines);
    if (!composed.unstorable) composed.text = ProcedureText(CommentOfSave(date, version), composed.lines);
    return composed;
}

void ExchangeBands(ProcedureRows& rows) {
    for (int index = 0; index < rows.Count(); ++index) {
        WaypointRecord row = rows.InUse()[static_cast<std::size_t>(index)];
        if (!HasSecondAltitude(row)) continue;
        ExchangeAltitudes(row);
        rows.Replace(index, row);
    }
}

}  // namespace tarvex
