#include "editor/modify_procedure.h"

namespace tarvex {

void ModifyProcedure::ConnectCoordinates() {}

}  // namespace tarvex
