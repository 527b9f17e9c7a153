#include "navigation/find_waypoint_form.h"

#include "startup/program.h"

namespace tarvex {

FindWaypointForm::FindWaypointForm(Program& program)
    : Form(program.host, "FindWaypointForm", "Waypoint"), program_(program) {}

void FindWaypointForm::Form_Load() {}

}  // namespace tarvex
