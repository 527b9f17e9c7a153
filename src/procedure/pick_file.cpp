#include "procedure/pick_file.h"

#include "startup/program.h"

namespace tarvex {

PickFile::PickFile(Program& program)
    : Form(program.host, "PickFile", "Procedure Select"),
      FileList(*this, "FileList", 0, program.platform.files),
      program_(program) {}

void PickFile::Form_Load() {}

}  // namespace tarvex
