#include "editor/modify_procedure.h"

namespace tarvex {

void ModifyProcedure::ShowSteps() {
    const auto show = [this](Button& button, const std::string& act, std::string_view step) {
        button.SetEnabled(!step.empty());
        button.SetTip(step.empty() ? act : act + " " + std::string(step));
    };
    show(UndoCommand, "Undo", state_.Rows.History().LastStep());
    show(RedoCommand, "Redo", state_.Rows.History().NextStep());
}

void ModifyProcedure::Retrace(std::optional<int> (ProcedureRows::*step)()) {
    const bool selected = WaypointList.ListIndex() != ListBox::NoSelection;
    const std::optional<int> came = (state_.Rows.*step)();
    if (!came) {
        if (selected) ClearDataCommand_Click();
        return;
    }
    // A line that is selected already is shown again too.
    WaypointList.SetListIndex(ListBox::NoSelection);
    WaypointList.SetListIndex(*came);
}

}  // namespace tarvex
