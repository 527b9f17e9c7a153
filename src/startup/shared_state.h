#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "chart/position_grid.h"
#include "geometry/tool_variables.h"
#include "navigation/name_directory.h"
#include "navigation/navigation_tables.h"
#include "navigation/search_variables.h"
#include "procedure/procedure_rows.h"
#include "procedure/procedure_variables.h"
#include "startup/settings_file.h"

namespace tarvex {

// The one set of variables that all screens and routines of a program share. It lives for the whole run. A
// routine takes the group that it uses.
struct SharedState : Settings, ProcedureVariables, SearchVariables, ArcVariables, StartPointVariables {
    SharedState() = default;
    SharedState(const SharedState&) = delete;
    SharedState& operator=(const SharedState&) = delete;

    std::string ProgramVersion;  // "2.35"; goes into the comment lines of procedure files
    std::string SettingsPath;    // full path of the settings file
    std::string MessageAnswer;   // of the message box shown last: "1" OK, "6" Yes, "7" No

    ProcedureRows Rows;
    const WaypointRows& WaypointTable = Rows.Table();
    const std::int32_t& WaypointCount = Rows.Count();

    NavigationTables Navigation;
    int NavigationLoads = 0;  // how often the tables were filled
    // Where their entries are; made when a picture first needs it, gone when they are filled anew.
    std::unique_ptr<const PositionGrid> Grid;
    // Where the entries of the names that came up are; likewise.
    std::unique_ptr<NameDirectory> Names;
};

}  // namespace tarvex
