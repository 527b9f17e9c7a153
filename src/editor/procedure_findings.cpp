#include "editor/procedure_findings.h"

#include <set>
#include <utility>

#include "editor/modify_procedure.h"
#include "geometry/text_rules.h"

namespace tarvex {

namespace {

std::string LineOf(const Finding& finding, const Route& route) {
    if (finding.row == Finding::Whole) return "\t\t" + finding.words;
    return std::to_string(finding.row + 1) + "\t" + route.points[static_cast<std::size_t>(finding.row)].name +
           "\t" + finding.words;
}

}  // namespace

ProcedureFindings::ProcedureFindings(ModifyProcedure& editor, SharedState& state)
    : FindingsList(editor, "FindingsList", {{"No.", true}, {"Name"}, {"Finding"}}, 72),
      editor_(editor),
      state_(state) {
    FindingsList.OnClick = [this] {
        const int line = FindingsList.ListIndex();
        if (line == ListBox::NoSelection) return;
        const int row = findings_[static_cast<std::size_t>(line)].row;
        if (row != Finding::Whole) OnRow(row);
    };
}

// As the file was last named: while a name is being typed there is nothing to say of it.
ProcedureName ProcedureFindings::Name() const {
    if (editor_.FilenameText.Caption().empty()) return {};
    return {.icao = Upper(editor_.AptNameText.Text()),
            .basicName = Upper(editor_.BasicNameText.Text()),
            .secondName = Upper(editor_.TransitionText.Text()),
            .kind = editor_.RwySpecificCheck.Value() == 1 ? ProcedureName::Kind::Runway
                                                          : ProcedureName::Kind::Transition};
}

void ProcedureFindings::Update(const Route& route, int changes) {
    Seen now{changes, state_.NavigationLoads, editor_.FilenameText.Caption()};
    if (now == seen_) return;
    seen_ = std::move(now);
    Look(route);
}

void ProcedureFindings::Look(const Route& route) {
    if (!state_.Names) state_.Names = std::make_unique<NameDirectory>(state_.Navigation);
    std::set<std::string_view> names;
    for (const WaypointRecord& row : state_.Rows.InUse()) names.insert(Trim(row.WaypointID));
    state_.Names->Learn(names);
    const ProcedureName name = Name();
    std::vector<Finding> found = FindingsOf({.mode = state_.ProcedureMode,
                                             .rows = state_.Rows.InUse(),
                                             .lines = state_.Rows.Lines(),
                                             .route = route,
                                             .name = name,
                                             .tables = state_.Navigation,
                                             .places = *state_.Names});
    std::vector<std::string> lines;
    lines.reserve(found.size());
    for (const Finding& finding : found) lines.push_back(LineOf(finding, route));
    findings_ = std::move(found);
    if (lines != FindingsList.Lines()) FindingsList.SetLines(std::move(lines));
}

}  // namespace tarvex
