#pragma once

#include <cstdint>
#include <string_view>

#include "navigation/navigation_tables.h"
#include "procedure/procedure_rows.h"
#include "procedure/procedure_variables.h"
#include "toolkit/failure.h"
#include "toolkit/file_system.h"

namespace tarvex {

// A procedure file with a record whose last item isn't empty: it has lost data, or has too much. The run must
// end with it.
class ProcedureDataError : public Failure {
  public:
    using Failure::Failure;
};

// Fills the rows from the file in ProcedureFolder named ProcedureFileName, all or nothing, and returns their
// count. A file whose latitudes have surplus characters is mended, and an approach
// of an older version, in mode "I", gets its runway waypoints converted; either is written back before the
// table is filled.
//
// ProcedureDataError for such a record; PastEndOfFile (62) for a file that ends inside a record; BadArgument
// (5) for a coordinate too short to be mended; Overflow (6) for more waypoints than the table holds or a
// coordinate out of range; else the failures of the file system and of WriteProcedureFile. On a failure the
// table and, as far as the file system lets it, the file are as they were.
std::int32_t ReadProcedureFile(FileSystem& files, const ProcedureVariables& procedure,
                               std::string_view version, const NavigationTables& navigation,
                               ProcedureRows& rows);

}  // namespace tarvex
