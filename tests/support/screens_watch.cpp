#include "support/screens_watch.h"

#include <algorithm>
#include <set>

#include "geometry/text_rules.h"

namespace tarvex::testing {

namespace {

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

void CheckPicker(const PickFile& picker, Findings& findings) {
    const std::string& code = picker.PickICAO.Text();
    findings.Require(picker.FileList.Pattern() == code + "*", "the picker's pattern");
    for (const std::string& name : picker.FileList.Lines()) {
        findings.Require(Upper(Left(name, std::ssize(code))) == Upper(code), "the picker shows too much");
    }
}

}  // namespace

void ScreensWatch::Before(const Program& program) {
    mode_ = program.state.ProcedureMode;
    editorWasOpen_ = program.modifyProcedure.IsLoaded();
}

void ScreensWatch::After(Program& program, const RandomUser::Act& act, Findings& findings) {
    CheckWindows(program, findings);
    CheckFocus(program, findings);
    CheckMenu(program, act, findings);
    if (const auto* search = program.findWaypointForm.Get()) CheckSearch(program, *search, findings);
    if (const auto* picker = program.pickFile.Get()) CheckPicker(*picker, findings);
    if (act.on == "AddWaypoint" && !program.findWaypointForm.IsLoaded()) ++seen_.transfers;
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

}  // namespace tarvex::testing
