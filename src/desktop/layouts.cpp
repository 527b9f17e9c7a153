#include "desktop/layouts.h"

#include <algorithm>
#include <array>

#include "toolkit/form.h"

namespace tarvex {

namespace {

constexpr std::array<ScreenLayout, 8> Layouts = {{
    {"InitialLoad", LayOutMenu, "", false},
    {"FindFS2000Form", LayOutFindFolder, "", false},
    {"PickFile", LayOutPicker, "InitialLoad", false},
    {"ModifyProcedure", LayOutEditor, "", false},
    {"FindWaypointForm", LayOutFindWaypoint, "ModifyProcedure", true},
    {"AddARC", LayOutAddArc, "ModifyProcedure", true},
    {"CreateWaypointForm", LayOutCreateWaypoint, "ModifyProcedure", true},
    {"LatLongForm", LayOutLatLong, "ModifyProcedure", true},
}};

}  // namespace

const ScreenLayout& LayoutOf(const Form& form) {
    return *std::find_if(Layouts.begin(), Layouts.end(),
                         [&form](const ScreenLayout& layout) { return layout.form == form.Name(); });
}

}  // namespace tarvex
