#include "editor/modify_procedure.h"

namespace tarvex {

void ModifyProcedure::ConnectFields() {}

}  // namespace tarvex
