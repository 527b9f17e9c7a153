#include "procedure/procedure_writer.h"

#include <algorithm>
#include <vector>

#include "geometry/text_rules.h"
#include "procedure/procedure_lines.h"
#include "toolkit/failure.h"

namespace tarvex {

std::string RewrittenProcedure(const std::string& path, std::span<const WaypointRecord> rows,
                               std::string_view version) {
    std::vector<WaypointItems> lines(rows.size());
    std::transform(rows.begin(), rows.end(), lines.begin(), ItemsAsHeld);
    if (const auto unstorable = FindUnstorableItem(lines)) {
        throw Failure(BadArgument,
                      path + ": item " + NumberText(static_cast<double>(unstorable->column + 1)) +
                          " of waypoint " + NumberText(static_cast<double>(unstorable->row + 1)) +
                          " holds a comma, a quote or a line end");
    }
    return ProcedureText(CommentOfRewrite(version), lines);
}

void WriteProcedureFile(FileSystem& files, const std::string& path, std::span<const WaypointRecord> rows,
                        std::string_view version, std::string_view before) {
    const std::string text = RewrittenProcedure(path, rows, version);
    try {
        files.Write(path, text);
    } catch (const Failure&) {
        try {
            files.Write(path, before);
        } catch (const Failure&) {
            // The first failure tells all there is to tell.
        }
        throw;
    }
}

}  // namespace tarvex
