#include "support/screens_watch.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "geometry/text_rules.h"

namespace tarvex::testing {

namespace {

template <class... Options>
int Selected(const Options&... options) {
    return (0 + ... + (options.Value() ? 1 : 0));
}

NavigationTable TableOf(const FindWaypointForm& search) {
    const std::string& heading = search.Label3.Caption();
    if (heading == "Search for Fix") return NavigationTable::Fixes;
    return heading == "Search for Navaid" ? NavigationTable::Navaids : NavigationTable::Airports;
}

NavigationEntry EntryOf(const Program& program, const FindWaypointForm& search, std::size_t line) {
    return EntryAt(program.state.Navigation, TableOf(search),
                   static_cast<std::int32_t>(LeadingNumber(search.PointerListBox.Lines()[line])));
}

void CheckWindows(const Program& program, Findings& findings) {
    const auto& visible = program.host.Visible();
    findings.Require(!visible.empty(), "nothing is on the screen");
    std::set<std::string> names;
    for (const Form* form : visible) {
        findings.Require(names.insert(form->Name()).second, "a screen stands twice");
        findings.Require(form->Visible(), "a hidden form is on the screen");
    }
    const bool tools = program.findWaypointForm.IsLoaded() || program.addARC.IsLoaded() ||
                       program.createWaypointForm.IsLoaded() || program.latLongForm.IsLoaded();
    findings.Require(!tools || program.modifyProcedure.IsLoaded(), "a tool is open without the editor");
}

void CheckFocus(Program& program, Findings& findings) {
    const Control* focused = program.host.GetFocus().Current();
    findings.Require(focused != nullptr && focused->CanTakeFocus() && focused->Owner().Visible(),
                     "focus lost");
}

void CheckSearch(const Program& program, const FindWaypointForm& search, Findings& findings) {
    const auto& lines = search.WaypointListBox.Lines();
    findings.Require(search.PointerListBox.Lines().size() == lines.size(), "the search's lists differ");
    findings.Require(search.PointerListBox.ListIndex() == search.WaypointListBox.ListIndex(),
                     "the search's selections differ");
    findings.Require(search.SearchCommand.Caption() == "Start Search", "still searching");
    if (!findings.Empty()) return;
    for (std::size_t line = 0; line < lines.size(); ++line) {
        findings.Require(EntryOf(program, search, line).identifier == lines[line], "a hit leads elsewhere");
    }
    const bool clicked = search.AddWaypoint.Enabled();
    for (const Label* position : {&search.LatText, &search.LongText}) {
        findings.Require((position->Visible() && !position->Caption().empty()) == clicked,
                         "a position without its transfer, or a transfer without its position");
    }
    if (!clicked) return;
    findings.Require(search.WaypointListBox.ListIndex() >= 0, "a transfer without a click");
    const auto entry =
        EntryOf(program, search, static_cast<std::size_t>(std::max(search.WaypointListBox.ListIndex(), 0)));
    findings.Require(program.state.TransferLatDecimal == LeadingNumber(entry.latitude) &&
                         program.state.TransferLongDecimal == LeadingNumber(entry.longitude),
                     "the position is not that of the click");
}

void CheckDesigner(const AddARC& designer, Findings& findings) {
    findings.Require(Selected(designer.EastVarOption, designer.WestVarOption) == 1, "variation sides");
    findings.Require(Selected(designer.RightOption, designer.LeftOption) <= 1, "turns");
    findings.Require(designer.ArcLabelText.Locked() &&
                         designer.ArcLabelText.Visible() == designer.Label4.Visible() &&
                         (designer.ArcLabelText.Visible() || designer.ArcLabelText.Text().empty()),
                     "the ARC's label");
}

void CheckDeriving(const Program& program, const CreateWaypointForm& form, Findings& findings) {
    const bool picked = program.state.StartPointSelected != False;
    findings.Require(form.SelectedText.Caption().empty() != picked, "the start point's caption");
    for (const Control* control :
         std::initializer_list<const Control*>{&form.NavaidCommand, &form.FixCommand, &form.RunwayCommand,
                                               &form.Label1, &form.Label2, &form.Label3}) {
        findings.Require(control->Enabled() != picked, "a start point can be picked twice, or never");
    }
}

void CheckPicker(const PickFile& picker, Findings& findings) {
    const std::string& code = picker.PickICAO.Text();
    findings.Require(picker.FileList.Pattern() == code + "*", "the picker's pattern");
    for (const std::string& name : picker.FileList.Lines()) {
        findings.Require(Upper(Left(name, std::ssize(code))) == Upper(code), "the picker shows too much");
    }
}

double Position(const OptionButton& negative, const TextBox& degrees, const TextBox& minutes) {
    const double magnitude = LeadingNumber(degrees.Text()) + LeadingNumber(minutes.Text()) / 60;
    return negative.Value() ? -magnitude : magnitude;
}

}  // namespace

void ScreensWatch::Before(const Program& program) {
    chosen_.reset();
    const FindWaypointForm* search = program.findWaypointForm.Get();
    if (search != nullptr && search->AddWaypoint.Enabled()) {
        const SearchCaller caller = search->Caller();
        if ((caller != SearchCaller::ArcDesigner || program.addARC.IsLoaded()) &&
            (caller != SearchCaller::StartPoint || program.createWaypointForm.IsLoaded())) {
            const SharedState& state = program.state;
            chosen_ = Chosen{caller, TableOf(*search), state.TransferLatDecimal, state.TransferLongDecimal};
        }
    }
    mode_ = program.state.ProcedureMode;
    editorWasOpen_ = program.modifyProcedure.IsLoaded();
    rows_ = program.state.WaypointCount;
    designerWasOpen_ = program.addARC.IsLoaded();
    centreWasOpen_ = program.latLongForm.IsLoaded();
    derivingWasOpen_ = program.createWaypointForm.IsLoaded();
    if (designerWasOpen_) arcLabel_ = program.addARC.Get()->ArcLabelText.Text();
    if (derivingWasOpen_) derivedName_ = program.createWaypointForm.Get()->WaypointIDText.Text();
}

void ScreensWatch::After(Program& program, const RandomUser::Act& act, Findings& findings) {
    CheckWindows(program, findings);
    CheckFocus(program, findings);
    CheckMenu(program, act, findings);
    if (const auto* search = program.findWaypointForm.Get()) CheckSearch(program, *search, findings);
    if (const auto* designer = program.addARC.Get()) CheckDesigner(*designer, findings);
    if (const auto* form = program.createWaypointForm.Get()) CheckDeriving(program, *form, findings);
    if (const auto* picker = program.pickFile.Get()) CheckPicker(*picker, findings);
    if (const auto* centre = program.latLongForm.Get()) {
        findings.Require(Selected(centre->NorthOption, centre->SouthOption) == 1 &&
                             Selected(centre->EastOption, centre->WestOption) == 1,
                         "hemispheres of the centre");
    }
    if (act.on == "AddWaypoint" && !program.findWaypointForm.IsLoaded()) CheckTransfer(program, findings);
    if (act.form == "LatLongForm" && act.on == "DoneCommand") CheckCentre(program, findings);
    if (act.form == "CreateWaypointForm" && act.on == "TransferCommand") CheckDerived(program, findings);
    if (act.form == "AddARC" && act.on == "TransferCommand") CheckArc(program, findings);
}

void ScreensWatch::CheckMenu(const Program& program, const RandomUser::Act& act, Findings& findings) {
    const bool editor = program.modifyProcedure.IsLoaded();
    if (act.on == "FindDoneCommand" && !program.findFS2000Form.IsLoaded()) {
        ++seen_.folders;
        menuMayStand_ = editor;
    }
    if (act.form == "FindFS2000Form" && act.on == "window" && !program.findFS2000Form.IsLoaded()) {
        findings.Require(program.state.SimulatorPath == folder_, "a folder that was not taken is kept");
    }
    if (!program.findFS2000Form.IsLoaded()) folder_ = program.state.SimulatorPath;
    if (!editor) menuMayStand_ = false;
    findings.Require(!editor || !editorWasOpen_ || program.state.ProcedureMode == mode_,
                     "the open procedure changed its kind");
    const InitialLoad* menu = program.initialLoad.Get();
    findings.Require(menu != nullptr, "the menu is gone");
    if (menu == nullptr || program.findFS2000Form.IsLoaded()) return;
    findings.Require(!menu->Visible() || !editor || menuMayStand_, "the menu stands beside the editor");
    findings.Require(menu->Visible() || editor, "neither menu nor editor is there");
}

void ScreensWatch::CheckTransfer(const Program& program, Findings& findings) {
    if (!chosen_) return;
    ++seen_.transfers;
    const SharedState& state = program.state;
    if (chosen_->caller == SearchCaller::ArcDesigner) {
        findings.Require(LeadingNumber(state.ArcCenterLat) == chosen_->lat &&
                             LeadingNumber(state.ArcCenterLong) == chosen_->lon &&
                             program.addARC.Get()->ArcLabelText.Visible(),
                         "the centre is not what was found");
        return;
    }
    const ModifyProcedure& editor = *program.modifyProcedure.Get();
    constexpr double sixPlaces = 1e-6;
    findings.Require(std::fabs(Position(editor.SLatOption, editor.DDMLatText, editor.DMMLatText) -
                               chosen_->lat) < sixPlaces &&
                         std::fabs(Position(editor.WLongOption, editor.DDMLongText, editor.DMMLongText) -
                                   chosen_->lon) < sixPlaces,
                     "the editor's position is not what was found");
    findings.Require(editor.LatEdited != False && editor.LongEdited != False, "found, and not marked");
    const bool runway = chosen_->caller == SearchCaller::Editor &&
                        chosen_->table == NavigationTable::Airports &&
                        (state.ProcedureMode == "I" || state.ProcedureMode == "J");
    findings.Require((state.RunwayTransfer != False) == runway, "runway, or no runway");
    if (chosen_->caller == SearchCaller::StartPoint) {
        findings.Require(state.StartPointSelected != False && state.StartLat == chosen_->lat &&
                             state.StartLong == chosen_->lon,
                         "the start point is not what was found");
    }
}

void ScreensWatch::CheckCentre(const Program& program, Findings& findings) {
    if (!centreWasOpen_ || program.latLongForm.IsLoaded() || !designerWasOpen_) return;
    ++seen_.centres;
    const AddARC& designer = *program.addARC.Get();
    findings.Require(std::fabs(LeadingNumber(program.state.ArcCenterLat)) <= 90 &&
                         std::fabs(LeadingNumber(program.state.ArcCenterLong)) <= 180,
                     "a centre off the earth");
    findings.Require(designer.ArcLabelText.Text() == "ARC" && !designer.Frame2.Visible(),
                     "the designer does not know its centre");
}

void ScreensWatch::CheckDerived(const Program& program, Findings& findings) {
    findings.Require(program.state.WaypointCount == rows_, "a derived waypoint made a row");
    if (!derivingWasOpen_ || program.createWaypointForm.IsLoaded()) return;
    ++seen_.derived;
    const ModifyProcedure& editor = *program.modifyProcedure.Get();
    findings.Require(editor.FixNameText.Text() == Upper(derivedName_), "a derived waypoint misnamed");
    findings.Require(
        std::fabs(Position(editor.SLatOption, editor.DDMLatText, editor.DMMLatText)) < 90.000001 &&
            std::fabs(Position(editor.WLongOption, editor.DDMLongText, editor.DMMLongText)) < 180.000001,
        "a derived waypoint off the earth");
}

void ScreensWatch::CheckArc(const Program& program, Findings& findings) {
    const std::int32_t made = program.state.WaypointCount - rows_;
    if (!designerWasOpen_ || program.addARC.IsLoaded()) {
        findings.Require(made == 0, "rows of an ARC that was not made");
        return;
    }
    // From -360 to 360 degrees, in steps of less than 16, and the closing point.
    findings.Require(made >= 2 && made <= 48, "rows of an ARC");
    const auto& lines = program.modifyProcedure.Get()->WaypointList.Lines();
    for (std::int32_t i = 0; i < made; ++i) {
        findings.Require(lines[static_cast<std::size_t>(rows_ + i)] == arcLabel_ + std::to_string(i + 1),
                         "lines of an ARC misnumbered");
    }
}

}  // namespace tarvex::testing
