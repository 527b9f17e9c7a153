#include "editor/modify_procedure.h"

#include <algorithm>
#include <iterator>

#include "editor/editor_messages.h"
#include "procedure/altitude_band.h"
#include "procedure/procedure_file_name.h"
#include "procedure/procedure_mode.h"
#include "procedure/procedure_reader.h"

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

ModifyProcedure::ModifyProcedure(const Workplace& workplace, const EditorTools& tools)
    : Form(workplace.host, "ModifyProcedure", "Procedure Editor"),
      Pictures(*this, workplace, tools),
      workplace_(workplace),
      state_(workplace.state),
      dialogue_(workplace.dialogue),
      tools_(tools),
      positions_(Latitude, Longitude, Alt1Text, workplace.platform.clipboard, workplace.dialogue,
                 [this] { return HeldPosition(); }) {
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
    for (Button* button : {&MoveUp, &MoveDown, &UndoCommand, &RedoCommand}) button->SetRepeats();
    for (const auto& [button, label] :
         std::initializer_list<std::pair<Button&, const Label&>>{{FindNavCommand, Label7},
                                                                 {FindFixCommand, Label5},
                                                                 {FindAirportCommand, Label8},
                                                                 {CreateWaypointCommand, Label9}}) {
        button.SetTip(label.Caption());
    }
    Connect();
    state_.Rows.Observe(*this);
    ShowRowsInUse();
    ShowSteps();
}

ModifyProcedure::~ModifyProcedure() {
    state_.Rows.EndObservation(*this);
}

void ModifyProcedure::Form_Load() {
    workplace_.initialLoad.Hide();
    LatEdited = False;
    LongEdited = False;
    const bool stored = ModifiesProcedure(state_.ProcedureMode);
    OpenNameBoxes(!stored);
    const auto captions = std::find_if(std::begin(Captions), std::end(Captions), [this](const auto& entry) {
        return entry.mode == state_.ProcedureMode;
    });
    if (captions != std::end(Captions)) {
        SetCaption(captions->form);
        ActionLabel.SetCaption(captions->action);
    }
    (state_.DefaultLatHemisphere == "N" ? NLatOption : SLatOption).Select();
    (state_.DefaultLongHemisphere == "E" ? ELongOption : WLongOption).Select();
    if (stored) {
        LoadStoredProcedure();
    } else {
        state_.Rows.Assign({});
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
}

void ModifyProcedure::LoadStoredProcedure() {
    try {
        ShowStoredName();
        ReadProcedureFile(workplace_.platform.files, state_, state_.ProgramVersion, state_.Navigation,
                          state_.Rows);
        OrderStoredAltitudes();
    } catch (const ProcedureDataError& error) {
        dialogue_.Ask(editor_messages::FatalData(state_.ProcedureFileName));
        StopProgram(1, error.Reason());
    } catch (const Failure& failure) {
        Unload();
        dialogue_.Ask(editor_messages::NotOpened(state_.ProcedureFileName, failure.Reason()));
    }
}

void ModifyProcedure::ShowStoredName() {
    FilenameText.SetCaption(state_.ProcedureFileName);
    const ProcedureName name = SplitProcedureFileName(state_.ProcedureFileName);
    AptNameText.SetText(name.icao);
    BasicNameText.SetText(name.basicName);
    TransitionText.SetText(name.secondName);
    const bool runway = name.kind == ProcedureName::Kind::Runway;
    TransitionLabel1.SetCaption(runway ? "Runway" : "Transition");
    RwySpecificCheck.SetValue(runway ? 1 : 0);
}

// The screen has the lower altitude of a band in Altitude1, the file in the column of Altitude2.
void ModifyProcedure::OrderStoredAltitudes() {
    for (int index = 0; index < state_.Rows.Count(); ++index) {
        WaypointRecord row = state_.Rows.InUse()[static_cast<std::size_t>(index)];
        OrderAltitudes(row);
        state_.Rows.Replace(index, row);
    }
}

void ModifyProcedure::RowsChanged(const ProcedureRows::Change& change) {
    positions_.Settle();
    const auto& lines = state_.Rows.Lines();
    const auto line = [&lines](int index) -> const std::string& {
        return lines[static_cast<std::size_t>(index)];
    };
    switch (change.kind) {
        case ProcedureRows::Change::Kind::Appended:
        case ProcedureRows::Change::Kind::Inserted:
            WaypointList.AddItem(line(change.row), change.row);
            break;
        case ProcedureRows::Change::Kind::Replaced:
            break;
        case ProcedureRows::Change::Kind::Erased:
            WaypointList.RemoveItem(change.row);
            break;
        case ProcedureRows::Change::Kind::Exchanged:
        case ProcedureRows::Change::Kind::Arranged:
        case ProcedureRows::Change::Kind::Assigned:
            WaypointList.SetLines(lines);
            break;
    }
    ShowRowsInUse();
    Pictures.RowsChanged(change);
}

void ModifyProcedure::EventEnded() {
    const Control* focused = Host().GetFocus().Current();
    ShowSteps();
    ShowPending();
    Pictures.Update();
    // A button that had the focus may be of no use any longer.
    if (focused != nullptr && Host().GetFocus().Current() == nullptr) WaypointList.SetFocus();
}

void ModifyProcedure::LetChooseRunway(bool usable) {
    if (usable) RwySpecificCheck.SetEnabled(true);
    RwySpecificCheck.SetValue(0);
    if (!usable) RwySpecificCheck.SetEnabled(false);
}

void ModifyProcedure::Form_Unload() {
    state_.Rows.EndObservation(*this);
    state_.Rows.ForgetSteps();
    // Off the screen first, so that no rule of a box complains while the focus moves to the menu.
    Hide();
    workplace_.initialLoad.Show();
}

void ModifyProcedure::OopsCommand_Click() {
    FilenameText.SetCaption("");
    Unload();
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
