#include "support/editor_watch.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include "geometry/text_rules.h"

namespace tarvex::testing {

namespace {

// As a reader of items takes it: tabs in front go too.
std::string TrimAll(std::string_view text) {
    const auto start = text.find_first_not_of(" \t");
    return start == std::string_view::npos ? std::string() : std::string(Trim(text.substr(start)));
}

double Degrees(const std::string& degrees, const std::string& minutes) {
    const double magnitude = std::fabs(LeadingNumber(degrees)) + LeadingNumber(minutes) / 60;
    return TrimAll(degrees).starts_with('-') ? -magnitude : magnitude;
}

bool Near(double a, double b) {
    constexpr double sixPlaces = 1.1e-6;
    return std::fabs(a - b) <= std::max(sixPlaces, std::fabs(a) * 1e-12);
}

}  // namespace

void EditorWatch::Before(const Program& program) {
    const ModifyProcedure* editor = program.modifyProcedure.Get();
    wasOpen_ = editor != nullptr;
    if (!wasOpen_) return;
    selected_ = editor->WaypointList.ListIndex();
    fix_ = editor->FixNameText.Text();
    navaid_ = editor->NAVIDText.Text();
}

void EditorWatch::After(const Program& program, const RandomUser::Act& act, Findings& findings) {
    CheckSaved(program, findings);
    if (program.modifyProcedure.IsLoaded() && !program.host.Stopped()) CheckRows(program, act, findings);
}

void EditorWatch::CheckRows(const Program& program, const RandomUser::Act& act, Findings& findings) {
    const ModifyProcedure& editor = *program.modifyProcedure.Get();
    const auto count = program.state.WaypointCount;
    findings.Require(count >= 0 && count <= MaxWaypoints, "count out of range");
    findings.Require(count == editor.WaypointList.ListCount(), "list and count differ");
    if (!findings.Empty()) return;
    if (wasOpen_) {
        Expect(program, act, findings);
        findings.Require(MatchesShadow(program), "rows and lines are not what the act makes of them");
    } else {
        CheckOpened(program, findings);
    }
    CheckControls(editor, findings);
    seen_.most = std::max(seen_.most, count);
}

EditorWatch::Pair EditorWatch::PairAt(const Program& program, std::size_t index) {
    return {program.modifyProcedure.Get()->WaypointList.Lines()[index], program.state.WaypointTable[index]};
}

bool EditorWatch::MatchesShadow(const Program& program) const {
    const auto& lines = program.modifyProcedure.Get()->WaypointList.Lines();
    if (shadow_.size() != lines.size()) return false;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i] != shadow_[i].line || program.state.WaypointTable[i] != shadow_[i].row) return false;
    }
    return true;
}

// Does to the shadow what the act may have done to rows and lines, and nothing more.
void EditorWatch::Expect(const Program& program, const RandomUser::Act& act, Findings& findings) {
    const ModifyProcedure& editor = *program.modifyProcedure.Get();
    const std::size_t count = editor.WaypointList.Lines().size();
    const int now = editor.WaypointList.ListIndex();
    const auto at = static_cast<std::size_t>(std::max(selected_, 0));
    const std::string& on = act.on;
    if (on == "AddWaypointCommand" && count == shadow_.size() + 1) {
        shadow_.push_back(PairAt(program, count - 1));
        CheckAdded(shadow_.back(), findings);
    } else if (on == "TransferCommand" && act.form == "AddARC" && count > shadow_.size()) {
        ++seen_.arcs;
        while (shadow_.size() < count) {
            shadow_.push_back(PairAt(program, shadow_.size()));
            findings.Require(shadow_.back().row.WaypointID == FixedField<10>(shadow_.back().line),
                             "ARC row misnamed");
        }
    } else if ((on == "DeleteWaypointCommand" || on == "Delete") && count + 1 == shadow_.size()) {
        findings.Require(selected_ >= 0, "deleted without a selection");
        shadow_.erase(shadow_.begin() + selected_);
        ++seen_.deleted;
    } else if ((on == "MoveUp" || on == "CtrlUp" || on == "MoveDown" || on == "CtrlDown") &&
               now != selected_) {
        findings.Require(now == selected_ + (on.ends_with("Up") ? -1 : 1), "moved too far");
        std::swap(shadow_[at], shadow_[static_cast<std::size_t>(now)]);
        ++seen_.moved;
    } else if (on == "ModifyWaypointCommand" && selected_ >= 0 &&
               program.state.WaypointTable[at] != shadow_[at].row) {
        const WaypointRecord& row = program.state.WaypointTable[at];
        findings.Require(row.WaypointType == shadow_[at].row.WaypointType, "type modified");
        shadow_[at].row = row;
        ++seen_.modified;
    }
}

void EditorWatch::CheckAdded(const Pair& added, Findings& findings) {
    ++seen_.added;
    const auto& lineSource = fix_.empty() ? navaid_ : fix_;
    const FixedField<10> name = Upper(navaid_.empty() ? fix_ : navaid_);
    findings.Require(Upper(added.line) == Upper(lineSource), "line misnamed");
    findings.Require(Upper(added.row.WaypointID) == name.Text(), "row misnamed");
    findings.Require(added.row.CoordinatesEdited == True, "new row not marked as edited");
}

EditorWatch::SavedRow EditorWatch::AsSaved(const WaypointRecord& row) {
    if (row.CoordinatesEdited == False) {
        return {TrimAll(row.WaypointID), LeadingNumber(row.LatDecimal), LeadingNumber(row.LongDecimal)};
    }
    return {TrimAll(row.WaypointID), Degrees(row.LatDegrees, row.LatMinutes),
            Degrees(row.LongDegrees, row.LongMinutes)};
}

bool EditorWatch::CameBack(const Pair& read, const SavedRow& saved) {
    return Trim(read.line) == saved.name && Near(LeadingNumber(read.row.LatDecimal), saved.lat) &&
           Near(LeadingNumber(read.row.LongDecimal), saved.lon);
}

void EditorWatch::CheckOpened(const Program& program, Findings& findings) {
    const ModifyProcedure& editor = *program.modifyProcedure.Get();
    shadow_.clear();
    everSelected_ = false;
    for (std::size_t i = 0; i < editor.WaypointList.Lines().size(); ++i) {
        shadow_.push_back(PairAt(program, i));
        findings.Require(shadow_.back().line == shadow_.back().row.WaypointID.Text(),
                         "line is not its row's name");
    }
    if (editor.AptNameText.Enabled()) {
        findings.Require(shadow_.empty(), "a new procedure has rows");
        return;
    }
    const auto stored = saved_.find(program.state.ProcedureFolder + program.state.ProcedureFileName);
    if (stored == saved_.end() || files_.Failed() != nullptr) return;
    ++seen_.reopened;
    const auto& saved = stored->second;
    findings.Require(shadow_.size() == saved.size(), "more or fewer rows come back than were saved");
    if (!findings.Empty()) return;
    for (std::size_t i = 0; i < saved.size(); ++i) {
        const WaypointRecord& row = shadow_[i].row;
        findings.Require(CameBack(shadow_[i], saved[i]),
                         "saved " + saved[i].name + " " + NumberText(saved[i].lat) + " " +
                             NumberText(saved[i].lon) + ", read " + row.WaypointID.Text() + row.LatDecimal +
                             " " + row.LongDecimal);
    }
}

void EditorWatch::CheckSaved(const Program& program, Findings& findings) {
    for (const auto& done : files_.Operations()) {
        if (done.operation != FaultyFileSystem::Operation::Write) continue;
        if (done.path == program.state.SettingsPath) continue;
        saved_.erase(done.path);
        if (&done == files_.Failed()) {
            // What a failed write leaves is no procedure to go on with.
            stored_.Remove(done.path);
        } else if (wasOpen_ && stored_.Has(done.path)) {  // there is no folder for it, else
            CheckFile(done.path, findings);
        }
    }
}

void EditorWatch::CheckFile(const std::string& path, Findings& findings) {
    ++seen_.saved;
    auto& rows = saved_[path];
    for (const Pair& pair : shadow_) rows.push_back(AsSaved(pair.row));
    std::istringstream lines(stored_.Content(path));
    std::size_t found = 0;
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with("W,")) continue;
        ++found;
        findings.Require(std::count(line.begin(), line.end(), ',') == 11 && line.ends_with(",\r"),
                         "bad line saved");
    }
    findings.Require(found == shadow_.size(), "rows lost in the save");
}

void EditorWatch::CheckControls(const ModifyProcedure& editor, Findings& findings) {
    const bool selected = editor.WaypointList.ListIndex() != ListBox::NoSelection;
    everSelected_ = everSelected_ || selected;
    const bool buttons = editor.AddWaypointCommand.Enabled() == !selected &&
                         editor.ModifyWaypointCommand.Enabled() == selected &&
                         editor.DeleteWaypointCommand.Enabled() == selected &&
                         editor.MoveUp.Enabled() == everSelected_ &&
                         editor.MoveDown.Enabled() == everSelected_ && editor.ClearDataCommand.Enabled() &&
                         editor.SaveCommand.Enabled();
    findings.Require(buttons, "a button is in use that should not be, or the reverse");

    const bool band = editor.AtAboveAtBelowOption.Value();
    findings.Require(editor.Alt2Text.Enabled() == band && editor.Alt2Label.Enabled() == band &&
                         editor.Alt2Text.BackColor() == (band ? White : Grey),
                     "upper altitude");
    const auto chosen = [](std::initializer_list<const OptionButton*> options) {
        return std::count_if(options.begin(), options.end(),
                             [](const auto* option) { return option->Value(); });
    };
    findings.Require(chosen({&editor.NoRestrictionOption, &editor.AtOption, &editor.AtBelowOption,
                             &editor.AtAboveOption, &editor.AtAboveAtBelowOption}) == 1 &&
                         chosen({&editor.NLatOption, &editor.SLatOption}) == 1 &&
                         chosen({&editor.ELongOption, &editor.WLongOption}) == 1,
                     "none or two options of a group");
    for (const TextBox* box : {&editor.FixNameText, &editor.NAVIDText, &editor.FreqText}) {
        findings.Require(selected || box->Enabled(), "a name box stays closed");
        findings.Require(box->BackColor() == (box->Enabled() ? White : Grey), "a name box's colour");
    }
}

}  // namespace tarvex::testing
