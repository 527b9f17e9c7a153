#include "desktop/layouts.h"

#include <algorithm>
#include <array>

#include "toolkit/failure.h"
#include "toolkit/form.h"

namespace tarvex {

namespace {

constexpr std::array<ScreenLayout, 8> Layouts = {{
    {"InitialLoad", LayOutMenu, "", false, 0, 0, 0},
    {"FindFS2000Form", LayOutFindFolder, "", false, 6, 0, 0},
    {"PickFile", LayOutPicker, "InitialLoad", false, 10, 0, 0},
    {"ModifyProcedure", LayOutEditor, "", false, 20, 70, 60},
    {"FindWaypointForm", LayOutFindWaypoint, "ModifyProcedure", true, 4, 0, 0},
    {"AddARC", LayOutAddArc, "ModifyProcedure", true, 0, 0, 0},
    {"CreateWaypointForm", LayOutCreateWaypoint, "ModifyProcedure", true, 0, 0, 0},
    {"LatLongForm", LayOutLatLong, "ModifyProcedure", true, 0, 0, 0},
}};

}  // namespace

const ScreenLayout& LayoutOf(const Form& form) {
    const auto found = std::find_if(Layouts.begin(), Layouts.end(), [&form](const ScreenLayout& layout) {
        return layout.form == form.Name();
    });
    if (found == Layouts.end()) throw Failure(BadArgument, "no window is laid out for " + form.Name());
    return *found;
}

}  // namespace tarvex
