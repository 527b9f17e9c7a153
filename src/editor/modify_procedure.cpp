#include "editor/modify_procedure.h"

#include <algorithm>
#include <iterator>

#include "editor/editor_messages.h"
#include "procedure/altitude_band.h"
#include "procedure/procedure_file_name.h"
#include "procedure/procedure_mode.h"
#include "procedure/procedure_reader.h"
#include "startup/program.h"

namespace tarvex {

namespace {

struct ModeCaptions {
    std::string_view mode;
    std::string_view form;
    std::string_view action;
};

constexpr ModeCaptions Captions[] = {
    {"D", "Modify a Procedure", "Modify a Departure Procedure"},
    {"E", "Create a Procedure", "Create a Departure Procedure"},
    {"S", "Modify a Procedure", "Modify a Standard Terminal Arrival Procedure"},
    {"T", "Create a Procedure", "Create a Standard Terminal Arrival Procedure"},
    {"I", "Modify a Procedure", "Modify an Instrument Approach Procedure"},
    {"J", "Create a Procedure", "Create an Instrument Approach Procedure"},
};

}  // namespace

ModifyProcedure::ModifyProcedure(Program& program)
    : Form(program.host, "ModifyProcedure", "Procedure Editor"), program_(program) {
    BasicNameText.SetLocked(true);
    TransitionText.SetLocked(true);
    RwySpecificCheck.SetEnabled(false);
    NLatOption.SelectAtFirst();
    WLongOption.SelectAtFirst();
    Alt2Label.SetEnabled(false);
    Alt2Text.SetEnabled(false);
    Alt2Text.SetBackColor(Grey);
    NoRestrictionOption.SelectAtFirst();
    for (Button* button : {&ModifyWaypointCommand, &DeleteWaypointCommand, &MoveUp, &MoveDown}) {
        button->SetEnabled(false);
    }

    ConnectScreen();
    ConnectSave();
    ConnectFields();
    ConnectCoordinates();
    ConnectRows();
    ConnectTools();
}

void ModifyProcedure::ConnectScreen() {
    OopsCommand.OnClick = [this] { OopsCommand_Click(); };
    ClearDataCommand.OnClick = [this] { ClearDataCommand_Click(); };
}

void ModifyProcedure::Form_Load() {
    program_.initialLoad.Hide();
    LatEdited = False;
    LongEdited = False;
    SharedState& state = program_.state;
    const bool stored = ModifiesProcedure(state.ProcedureMode);
    OpenNameBoxes(!stored);
    const auto captions = std::find_if(std::begin(Captions), std::end(Captions), [&state](const auto& entry) {
        return entry.mode == state.ProcedureMode;
    });
    if (captions != std::end(Captions)) {
        SetCaption(captions->form);
        ActionLabel.SetCaption(captions->action);
    }
    (state.DefaultLatHemisphere == "N" ? NLatOption : SLatOption).Select();
    (state.DefaultLongHemisphere == "E" ? ELongOption : WLongOption).Select();
    if (stored) {
        LoadStoredProcedure();
    } else {
        state.WaypointCount = 0;
    }
}

void ModifyProcedure::OpenNameBoxes(bool open) {
    for (TextBox* box : {&AptNameText, &BasicNameText, &TransitionText}) {
        box->SetEnabled(open);
        if (open) {
            box->SetLocked(false);
        } else {
            box->SetBackColor(LightGrey);
        }
    }
    if (open) WaypointList.Clear();
}

void ModifyProcedure::LoadStoredProcedure() {
    Program& program = program_;
    try {
        ShowStoredName();
        ReadProcedureFile(program.platform.files, program.state);
        ShowStoredRows();
    } catch (const ProcedureDataError& error) {
        program.Ask(editor_messages::FatalData(program.state.ProcedureFileName));
        program.Stop(1, error.Reason());
    } catch (const Failure& failure) {
        program.modifyProcedure.Unload();
        program.Ask(editor_messages::NotOpened(program.state.ProcedureFileName, failure.Reason()));
    }
}

void ModifyProcedure::ShowStoredName() {
    const std::string& fileName = program_.state.ProcedureFileName;
    FilenameText.SetCaption(fileName);
    const ProcedureName name = SplitProcedureFileName(fileName);
    AptNameText.SetText(name.icao);
    BasicNameText.SetText(name.basicName);
    TransitionText.SetText(name.secondName);
    const bool runway = name.kind == ProcedureName::Kind::Runway;
    TransitionLabel1.SetCaption(runway ? "Runway" : "Transition");
    RwySpecificCheck.SetValue(runway ? 1 : 0);
}

void ModifyProcedure::ShowStoredRows() {
    WaypointRecord* rows = program_.state.WaypointTable.data();
    std::vector<std::string> lines;
    for (WaypointRecord* row = rows; row != rows + program_.state.WaypointCount; ++row) {
        // The screen has the lower altitude of a band in Altitude1, the file in the column of Altitude2.
        OrderAltitudes(*row);
        lines.push_back(row->WaypointID.Text());
    }
    WaypointList.SetLines(std::move(lines));
}

void ModifyProcedure::Form_Unload() {
    // Off the screen first, so that no rule of a box complains while the focus moves to the menu.
    program_.modifyProcedure.Hide();
    program_.findWaypointForm.Unload();
    program_.addARC.Unload();
    program_.latLongForm.Unload();
    program_.createWaypointForm.Unload();
    program_.initialLoad.Show();
}

void ModifyProcedure::OopsCommand_Click() {
    FilenameText.SetCaption("");
    program_.modifyProcedure.Unload();
}

void ModifyProcedure::ClearDataCommand_Click() {
    WaypointList.SetListIndex(ListBox::NoSelection);
    FixNameText.SetEnabled(true);
    FixNameText.SetFocus();
    LatEdited = False;
    LongEdited = False;
    ModifyWaypointCommand.SetEnabled(false);
    DeleteWaypointCommand.SetEnabled(false);
    AddWaypointCommand.SetEnabled(true);
    for (TextBox* box : {&FixNameText, &DDMLatText, &DMMLatText, &DDMLongText, &DMMLongText, &Alt1Text,
                         &Alt2Text, &AirspeedText, &FreqText, &NAVIDText}) {
        box->SetText("");
    }
    FreqText.SetEnabled(true);
    NAVIDText.SetEnabled(true);
    for (TextBox* box : {&FixNameText, &NAVIDText, &FreqText, &AirspeedText, &Alt1Text}) {
        box->SetBackColor(White);
    }
    NoRestrictionOption.Select();
}

}  // namespace tarvex
