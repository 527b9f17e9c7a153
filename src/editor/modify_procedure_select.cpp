#include "editor/modify_procedure.h"

namespace tarvex {

void ModifyProcedure::WaypointList_Click() {}

}  // namespace tarvex
