#include "editor/modify_procedure.h"

namespace tarvex {

void ModifyProcedure::ConnectRows() {}

}  // namespace tarvex
