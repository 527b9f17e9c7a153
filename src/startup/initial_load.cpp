#include "startup/initial_load.h"

#include "startup/program.h"

namespace tarvex {

InitialLoad::InitialLoad(Program& program) : Form(program.host, "InitialLoad", "Tarvex"), program_(program) {}

void InitialLoad::Form_Load() {}

void InitialLoad::Form_Unload() {
    program_.Stop(0);
}

}  // namespace tarvex
