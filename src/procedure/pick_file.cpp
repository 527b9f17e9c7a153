#include "procedure/pick_file.h"

#include <utility>

namespace tarvex {

PickFile::PickFile(FormHost& host, FileSystem& files, ProcedureVariables& variables, Opener opener)
    : Form(host, "PickFile", "Procedure Select"),
      FileList(*this, "FileList", 0, files),
      variables_(variables),
      listed_(variables),
      opener_(std::move(opener)) {
    SetTips({{PickICAO, "ICAO code of the airport, or its beginning: up to 4 characters"}});
    FileList.OnClick = [this] { FileList_Click(); };
    PickICAO.OnChange = [this] { PickICAO_Change(); };
    DoneCommand.OnClick = [this] { DoneCommand_Click(); };
}

void PickFile::Form_Load() {
    try {
        FileList.SetPath(variables_.ProcedureFolder);
        variables_.ProcedureFileName.clear();
    } catch (const Failure& failure) {
        opener_.failed(failure);
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
    variables_.ProcedureFileName = FileList.FileName();
    Hide();
    opener_.picked(listed_);
}

}  // namespace tarvex
