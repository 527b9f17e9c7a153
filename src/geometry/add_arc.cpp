#include "geometry/add_arc.h"

#include "startup/program.h"

namespace tarvex {

AddARC::AddARC(Program& program) : Form(program.host, "AddARC", "ARC Designer"), program_(program) {}

void AddARC::Form_Load() {}

}  // namespace tarvex
