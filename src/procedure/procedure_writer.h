#pragma once

#include <span>
#include <string>
#include <string_view>

#include "procedure/waypoint_record.h"
#include "toolkit/file_system.h"

namespace tarvex {

// Replaces the file at `path`, silently, by the rows as they are held. `before` is what the file holds; it
// comes back, if the file system lets it, when the write fails. BadArgument (5), with nothing written, for a
// row that the format can't hold; else the failures of the file system.
void WriteProcedureFile(FileSystem& files, const std::string& path, std::span<const WaypointRecord> rows,
                        std::string_view version, std::string_view before);

// The text that WriteProcedureFile writes.
std::string RewrittenProcedure(const std::string& path, std::span<const WaypointRecord> rows,
                               std::string_view version);

}  // namespace tarvex
