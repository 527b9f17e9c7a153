#include "navigation/find_waypoint_form.h"

#include <cmath>
#include <initializer_list>
#include <utility>
#include <vector>

#include "geometry/text_rules.h"
#include "startup/program.h"

namespace tarvex {

namespace {

constexpr std::string_view NoUsablePosition =
    "The navigation data hold no usable position for this waypoint.\r\n"
    "                              It can not be transferred.";

// Places of the frame, in twips: as designed, and with room for the frequency.
constexpr std::pair<int, int> DesignedFrame{1320, 795};
constexpr std::pair<int, int> TallFrame{1080, 1395};

constexpr double MostMegahertz = 120;

// Splits `coordinate`, decimal degrees, into the texts of its magnitude; the minutes are cut, not rounded.
void Split(double coordinate, std::string& degrees, FixedField<9>& minutes) {
    const double magnitude = std::fabs(coordinate);
    degrees = WholeDegreesText(magnitude);
    minutes.Assign(LeftTrim(SignedNumberText((magnitude - Fix(magnitude)) * 60)));
}

std::string WithUnit(std::string_view frequency) {
    return std::string(frequency) + (LeadingNumber(frequency) > MostMegahertz ? " KHz" : " MHz");
}

}  // namespace

FindWaypointForm::FindWaypointForm(Program& program)
    : Form(program.host, "FindWaypointForm", "Waypoint"), program_(program) {
    for (Control* control : {&LatText, &LongText, &FreqLabel, &FreqText}) control->PutInto(Frame1);
    Frame1.SetPlace(DesignedFrame.first, DesignedFrame.second);
    PointerListBox.SetVisible(false);
    FreqLabel.SetVisible(false);
    SearchCommand.OnClick = [this] { SearchCommand_Click(); };
    WaypointListBox.OnClick = [this] { WaypointListBox_Click(); };
    AddWaypoint.OnClick = [this] { AddWaypoint_Click(); };
    GoBackCommand.OnClick = [this] { GoBackCommand_Click(); };
}

void FindWaypointForm::Form_Load() {
    kind_ = &SearchKindNamed(program_.state.SearchKind);
    AddWaypoint.SetEnabled(false);
    Label3.SetCaption(kind_->heading);
    SetCaption(kind_->caption);
    if (kind_->tallFrame) Frame1.SetPlace(TallFrame.first, TallFrame.second);
    WaypointListBox.Clear();
}

void FindWaypointForm::SearchCommand_Click() {
    SearchText.SetFocus();
    AddWaypoint.SetEnabled(false);
    HidePosition();
    SearchCommand.SetCaption("Searching");
    WaypointListBox.Clear();
    PointerListBox.Clear();
    SearchText.SetText(Upper(SearchText.Text()));

    const NavigationTables& tables = program_.state.Navigation;
    std::vector<std::string> identifiers;
    std::vector<std::string> pointers;
    for (const std::int32_t index : FindEntries(tables, kind_->table, SearchText.Text())) {
        identifiers.emplace_back(EntryAt(tables, kind_->table, index).identifier);
        pointers.push_back(NumberText(index));
    }
    PointerListBox.SetLines(std::move(pointers));
    WaypointListBox.SetLines(std::move(identifiers));

    SearchCommand.SetCaption("Start Search");
    if (WaypointListBox.ListCount() == 1) WaypointListBox.SetListIndex(0);
}

void FindWaypointForm::WaypointListBox_Click() {
    AddWaypoint.SetEnabled(true);
    if (WaypointListBox.ListIndex() == ListBox::NoSelection) return;
    PointerListBox.SetListIndex(WaypointListBox.ListIndex());
    SelectedRow = WholeNumber32(LeadingNumber(PointerListBox.Text()));

    SharedState& state = program_.state;
    const NavigationEntry entry = EntryAt(state.Navigation, kind_->table, SelectedRow);
    if (!IsNumberText(entry.latitude) || !IsNumberText(entry.longitude)) {
        AddWaypoint.SetEnabled(false);
        HidePosition();
        program_.Ask({.prompt = std::string(NoUsablePosition)});
        return;
    }
    state.TransferLatDecimal = StrictNumber(entry.latitude);
    state.TransferLongDecimal = StrictNumber(entry.longitude);
    if (kind_->showsFrequency) ShowFrequency();
    if (kind_->table == NavigationTable::Airports) {
        const auto& airport = state.Navigation.AirportTable[static_cast<std::size_t>(SelectedRow)];
        state.TransferID = airport.AirportID.Text();
        state.TransferValue = NumberText(airport.AirportElevation);
    }
    ShowPosition(LeadingNumber(entry.latitude), LeadingNumber(entry.longitude));
}

void FindWaypointForm::AddWaypoint_Click() {
    if (SelectedRow != NoEntry && CallerIsOpen()) {
        program_.state.RunwayTransfer = False;
        switch (kind_->caller) {
            case SearchCaller::Editor:
                TransferName();
                FillEditorPosition();
                break;
            case SearchCaller::ArcDesigner:
                TransferToArcDesigner();
                break;
            case SearchCaller::StartPoint:
                TransferStartPoint();
                FillEditorPosition();
                CloseStartPhase();
                break;
        }
    }
    program_.findWaypointForm.Unload();
}

void FindWaypointForm::GoBackCommand_Click() {
    program_.findWaypointForm.Unload();
}

void FindWaypointForm::HidePosition() {
    LatText.SetVisible(false);
    LongText.SetVisible(false);
    FreqText.SetCaption("");
    FreqLabel.SetVisible(false);
}

void FindWaypointForm::ShowPosition(double latitude, double longitude) {
    LatHemisphere = latitude < 0 ? "S" : "N";
    LongHemisphere = longitude < 0 ? "W" : "E";
    Split(latitude, LatDegreesText, LatMinutesText);
    Split(longitude, LongDegreesText, LongMinutesText);
    LatText.SetCaption(LatHemisphere + LatDegreesText + " " + LatMinutesText.Text() + " Latitude");
    LongText.SetCaption(LongHemisphere + LongDegreesText + " " + LongMinutesText.Text() + " Longitude");
    LatText.SetVisible(true);
    LongText.SetVisible(true);
}

void FindWaypointForm::ShowFrequency() {
    const auto& navaid = program_.state.Navigation.NavaidTable[static_cast<std::size_t>(SelectedRow)];
    FreqText.SetVisible(true);
    FreqLabel.SetVisible(true);
    FreqText.SetCaption(WithUnit(navaid.NavaidFreq));
}

bool FindWaypointForm::CallerIsOpen() const {
    if (kind_->caller == SearchCaller::ArcDesigner) return program_.addARC.IsLoaded();
    return program_.modifyProcedure.IsLoaded() &&
           (kind_->caller == SearchCaller::Editor || program_.createWaypointForm.IsLoaded());
}

void FindWaypointForm::TransferName() {
    SharedState& state = program_.state;
    ModifyProcedure& editor = *program_.modifyProcedure.Get();
    switch (kind_->table) {
        case NavigationTable::Fixes:
            editor.FixNameText.SetText(SearchText.Text());
            break;
        case NavigationTable::Navaids:
            editor.NAVIDText.SetText(SearchText.Text());
            editor.FreqText.SetText(
                state.Navigation.NavaidTable[static_cast<std::size_t>(SelectedRow)].NavaidFreq);
            break;
        case NavigationTable::Airports:
            editor.FixNameText.SetText(state.TransferID);
            if (state.ProcedureMode != "I" && state.ProcedureMode != "J") break;
            editor.FixNameText.SetText("RW" + std::string(Mid(state.TransferID, 5)));
            editor.Alt1Text.SetText(state.TransferValue);
            state.RunwayTransfer = True;
            break;
    }
}

void FindWaypointForm::TransferToArcDesigner() {
    AddARC& designer = *program_.addARC.Get();
    designer.ArcLabelText.SetText(SearchText.Text());
    program_.state.ArcCenterLat = NumberText(program_.state.TransferLatDecimal);
    program_.state.ArcCenterLong = NumberText(program_.state.TransferLongDecimal);
    designer.Label4.SetVisible(true);
    designer.ArcLabelText.SetVisible(true);
}

void FindWaypointForm::TransferStartPoint() {
    SharedState& state = program_.state;
    state.StartLat = LeadingNumber(NumberText(state.TransferLatDecimal));
    state.StartLong = LeadingNumber(NumberText(state.TransferLongDecimal));
    state.StartPointSelected = True;
}

void FindWaypointForm::FillEditorPosition() {
    ModifyProcedure& editor = *program_.modifyProcedure.Get();
    editor.DDMLatText.SetText(LatDegreesText);
    editor.DMMLatText.SetText(LatMinutesText);
    editor.DDMLongText.SetText(LongDegreesText);
    editor.DMMLongText.SetText(LongMinutesText);
    (LongHemisphere == "W" ? editor.WLongOption : editor.ELongOption).Select();
    (LatHemisphere == "N" ? editor.NLatOption : editor.SLatOption).Select();
    // In this order, so that leaving the minute boxes marks both axes as edited.
    for (TextBox* box : {&editor.DMMLatText, &editor.DMMLongText, &editor.Alt1Text}) box->SetFocus();
}

// A start point is picked once.
void FindWaypointForm::CloseStartPhase() {
    CreateWaypointForm& form = *program_.createWaypointForm.Get();
    form.SelectedText.SetCaption(kind_->picked);
    for (Control* control :
         std::initializer_list<Control*>{&form.Label1, &form.Label2, &form.Label3, &form.NavaidCommand,
                                         &form.FixCommand, &form.RunwayCommand}) {
        control->SetEnabled(false);
    }
    form.TrueCourseText.SetFocus();
}

void OpenSearch(Program& program, std::string_view kind) {
    program.findWaypointForm.Unload();
    program.state.SearchKind = kind;
    if (SearchKindNamed(kind).caller != SearchCaller::ArcDesigner && program.modifyProcedure.IsLoaded()) {
        program.modifyProcedure.Get()->ClearDataCommand_Click();
    }
    program.findWaypointForm.Show();
}

void CloseSearchOf(Program& program, SearchCaller caller) {
    const FindWaypointForm* search = program.findWaypointForm.Get();
    if (search != nullptr && search->Caller() == caller) program.findWaypointForm.Unload();
}

}  // namespace tarvex
