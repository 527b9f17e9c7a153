#include "editor/modify_procedure.h"

#include "startup/program.h"

namespace tarvex {

ModifyProcedure::ModifyProcedure(Program& program)
    : Form(program.host, "ModifyProcedure", "Procedure Editor"), program_(program) {
    ConnectScreen();
    ConnectSave();
    ConnectFields();
    ConnectCoordinates();
    ConnectRows();
    ConnectTools();
}

void ModifyProcedure::ConnectScreen() {}

void ModifyProcedure::Form_Load() {}

void ModifyProcedure::Form_Unload() {}

}  // namespace tarvex
