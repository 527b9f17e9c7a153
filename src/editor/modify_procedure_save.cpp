#include "editor/modify_procedure.h"

namespace tarvex {

void ModifyProcedure::ConnectSave() {}

}  // namespace tarvex
