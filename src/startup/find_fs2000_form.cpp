#include "startup/find_fs2000_form.h"

#include "geometry/text_rules.h"
#include "startup/settings_file.h"
#include "startup/simulator_folder.h"
#include "startup/startup_messages.h"

namespace tarvex {

namespace {

constexpr std::ptrdiff_t DriveLength = 3;  // "C:\"

}  // namespace

FindFS2000Form::FindFS2000Form(const Workplace& workplace)
    : Form(workplace.host, "FindFS2000Form", ""),
      Drive1(*this, "Drive1", 0, workplace.platform.files),
      Dir1(*this, "Dir1", 1, workplace.platform.files),
      workplace_(workplace) {
    for (Control* control : Controls()) {
        if (control != &Frame1) control->PutInto(Frame1);
    }
    Drive1.OnChange = [this] { Drive1_Change(); };
    Dir1.OnChange = [this] { Dir1_Change(); };
    Dir1.OnClick = [this] { Dir1_Click(); };
    FindDoneCommand.OnClick = [this] { FindDoneCommand_Click(); };
}

void FindFS2000Form::Form_Load() {
    Choose(RegisteredSimulatorFolder(workplace_.platform.registry));
    if (SimulatorPath.empty()) return;
    try {
        Drive1.SetDrive(Left(SimulatorPath, DriveLength));
    } catch (const Failure&) {
        // The drive is gone: the lists stay where they are.
    }
}

void FindFS2000Form::Form_Unload() {
    if (done_) return;
    if (workplace_.host.Visible().size() <= 1) {
        workplace_.initialLoad.Unload();
    } else if (!workplace_.modifyProcedure.IsLoaded()) {
        workplace_.initialLoad.Show();
    }
}

void FindFS2000Form::Drive1_Change() {
    Dir1.SetPath(Drive1.Drive());
}

void FindFS2000Form::Dir1_Change() {
    Choose(Dir1.Path());
}

void FindFS2000Form::Dir1_Click() {
    const std::string clicked = Dir1.List(Dir1.ListIndex());
    // A click on the open folder chooses nothing, and what is chosen stays selected.
    Choose(clicked != Dir1.Path() ? clicked : std::string(SimulatorPath));
}

void FindFS2000Form::FindDoneCommand_Click() {
    SharedState& state = workplace_.state;
    state.SettingsPath = SettingsPathIn(workplace_.platform.programFolder);
    FileSystem& files = workplace_.platform.files;
    try {
        WriteSettingsFile(files, state.SettingsPath,
                          {.SimulatorPath = files.UpperCase(SimulatorPath),
                           .DefaultLatHemisphere = "N",
                           .DefaultLongHemisphere = "W",
                           .MagVarSide = {}},
                          ShortSettingsLines);
    } catch (const Failure& failure) {
        workplace_.dialogue.Ask(FolderNotKept(state.SettingsPath, failure.Reason()));
        return;
    }
    state.SimulatorPath = SimulatorPath;
    state.DefaultLatHemisphere = "N";
    state.DefaultLongHemisphere = "W";
    state.MagVarSide = "W";
    LoadTables();
    done_ = true;
    Unload();
    workplace_.initialLoad.Show();
}

void FindFS2000Form::LoadTables() {
    try {
        workplace_.FillNavigationTables();
    } catch (const Failure& failure) {
        workplace_.dialogue.Ask(NavigationDataNotRead(workplace_.state.SimulatorPath, failure.Reason()));
    }
}

void FindFS2000Form::Choose(const std::string& folder) {
    SimulatorPath = folder;
    Dir1.ShowChosen(folder);
    if (folder.empty()) {
        DataHintLabel.SetCaption(NoFolderHint());
    } else if (HasNavigationData(workplace_.platform.files, folder)) {
        DataHintLabel.SetCaption(DataFoundHint(folder));
    } else {
        DataHintLabel.SetCaption(NoDataHint(folder));
    }
}

}  // namespace tarvex
