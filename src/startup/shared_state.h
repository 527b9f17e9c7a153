#pragma once

#include <cstdint>
#include <string>

#include "navigation/navigation_tables.h"
#include "procedure/waypoint_record.h"

namespace tarvex {

// The one set of variables that all screens and routines of a program share. It lives for the whole run.
struct SharedState {
    std::string ProgramVersion;         // "2.35"; goes into the comment lines of procedure files
    std::string SettingsPath;           // full path of the settings file
    std::string SimulatorPath;          // settings line 1: the simulator folder, the root of all data paths
    std::string DefaultLatHemisphere;   // settings line 2: "N" or "S"
    std::string DefaultLongHemisphere;  // settings line 3: "E" or "W"
    std::string MagVarSide;             // settings line 4: "W" or "E"
    std::string ProcedureMode;  // "E", "T", "J": creating a DP, a STAR, an IAP; "D", "S", "I": modifying one
    std::string ProcedureFolder;    // folder of the procedure kind in use, with its closing backslash
    std::string ProcedureFileName;  // name, without folder, of the stored file picked for modifying
    std::string MessageAnswer;      // of the message box shown last: "1" OK, "6" Yes, "7" No
    std::int32_t WaypointCount = 0;
    std::string SearchKind;         // "F", "N", "AP", "A", "CW", "CN", "CF" or "CAP"
    std::string TransferID;         // AirportID of the airport row last clicked in the search list
    std::string TransferValue;      // AirportElevation of that row, as digits
    double TransferLatDecimal = 0;  // decimal degrees of the row last clicked in the search list
    double TransferLongDecimal = 0;
    Flag RunwayTransfer = False;  // the last transfer from the search screen was a runway
    double StartLat = 0;          // start point of a derived waypoint, decimal degrees
    double StartLong = 0;
    Flag StartPointSelected = False;
    std::string ArcCenterLat;  // centre of the ARC, decimal degrees
    std::string ArcCenterLong;
    std::int32_t ArcPointNumber = 0;  // running number of the next generated ARC waypoint

    WaypointRows WaypointTable;  // rows behind WaypointCount keep whatever they last held
    NavigationTables Navigation;
};

}  // namespace tarvex
