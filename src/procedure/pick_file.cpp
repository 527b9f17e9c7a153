#include "procedure/pick_file.h"

#include "startup/program.h"

namespace tarvex {

PickFile::PickFile(Program& program)
    : Form(program.host, "PickFile", "Procedure Select"),
      FileList(*this, "FileList", 0, program.platform.files),
      program_(program),
      folder_(program.state.ProcedureFolder),
      mode_(program.state.ProcedureMode) {
    FileList.OnClick = [this] { FileList_Click(); };
    PickICAO.OnChange = [this] { PickICAO_Change(); };
    DoneCommand.OnClick = [this] { DoneCommand_Click(); };
}

void PickFile::Form_Load() {
    try {
        FileList.SetPath(program_.state.ProcedureFolder);
        program_.state.ProcedureFileName.clear();
    } catch (const Failure& failure) {
        program_.RecoverProcedureFolder(failure);
    }
}

void PickFile::PickICAO_Change() {
    PickICAO.SetFocus();
    FileList.SetPattern(PickICAO.Text() + "*");
}

void PickFile::PickOnlyFile() {
    if (FileList.Lines().size() == 1) FileList.SetListIndex(0);
}

void PickFile::FileList_Click() {
    SharedState& state = program_.state;
    state.ProcedureFileName = FileList.FileName();
    // The menu stands beside the picker: it may have fixed another kind of procedure since the list was read.
    if (!program_.modifyProcedure.IsLoaded()) {
        state.ProcedureFolder = folder_;
        state.ProcedureMode = mode_;
    }
    program_.pickFile.Hide();
    program_.modifyProcedure.Show();
}

void PickFile::DoneCommand_Click() {
    program_.pickFile.Unload();
}

}  // namespace tarvex
