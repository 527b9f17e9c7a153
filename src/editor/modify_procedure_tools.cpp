#include "editor/modify_procedure.h"

namespace tarvex {

void ModifyProcedure::ConnectTools() {}

}  // namespace tarvex
