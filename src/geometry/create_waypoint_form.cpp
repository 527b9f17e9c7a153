#include "geometry/create_waypoint_form.h"

#include "startup/program.h"

namespace tarvex {

CreateWaypointForm::CreateWaypointForm(Program& program)
    : Form(program.host, "CreateWaypointForm", "Create a Waypoint"), program_(program) {}

void CreateWaypointForm::Form_Load() {}

}  // namespace tarvex
