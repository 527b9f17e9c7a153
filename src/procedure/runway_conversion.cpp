#include "procedure/runway_conversion.h"

#include <algorithm>
#include <string>

#include "geometry/text_rules.h"

namespace tarvex {

void ConvertRunway(WaypointRecord& row, const NavigationTables& navigation) {
    const std::string name = row.WaypointID.Text();
    if (!IsNumberText(Mid(name, 5, 2))) return;

    row.WaypointType = "15";
    const AirportRecord* begin = navigation.AirportTable.get();
    const AirportRecord* end = begin + navigation.AirportCount + 1;
    const auto airport = std::find_if(begin, end, [id = RightTrim(name)](const AirportRecord& entry) {
        return RightTrim(entry.AirportID) == id;
    });
    if (airport != end) row.Altitude1 = NumberText(airport->AirportElevation);
    row.RestrictionType = "0";
    row.WaypointID = "RW" + std::string(Mid(name, 5, 3));
}

}  // namespace tarvex
