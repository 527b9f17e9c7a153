#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "chart/route.h"
#include "navigation/name_directory.h"
#include "navigation/navigation_tables.h"
#include "procedure/procedure_file_name.h"
#include "procedure/waypoint_record.h"

namespace tarvex {

// What is worth a second look in a procedure.
struct Finding {
    static constexpr int Whole = -1;

    int row;            // of the table; Whole: of the procedure as a whole
    std::string words;  // in UTF-8

    friend bool operator==(const Finding&, const Finding&) = default;
};

// A procedure as it is looked at. `lines`, `route` and `rows` have one entry for each row in use.
struct Examined {
    std::string_view mode;  // of the procedure, as in ProcedureVariables
    std::span<const WaypointRecord> rows;
    std::span<const std::string> lines;  // of the list of waypoints
    const Route& route;
    const ProcedureName&
        name;  // as it stands in the name of the file; its ICAO code is empty while there is none
    const NavigationTables& tables;
    const NameDirectory& places;  // has learned the names of all rows
};

// Everything that the rules find, by rows, and behind it what they find in the whole.
std::vector<Finding> FindingsOf(const Examined& procedure);

}  // namespace tarvex
