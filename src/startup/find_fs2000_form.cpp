#include "startup/find_fs2000_form.h"

#include "startup/program.h"

namespace tarvex {

FindFS2000Form::FindFS2000Form(Program& program)
    : Form(program.host, "FindFS2000Form", ""),
      Drive1(*this, "Drive1", 0, program.platform.files),
      Dir1(*this, "Dir1", 1, program.platform.files),
      program_(program) {}

void FindFS2000Form::Form_Load() {}

}  // namespace tarvex
