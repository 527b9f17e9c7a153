#include "startup/workplace.h"

#include "startup/startup_messages.h"

namespace tarvex {

void Workplace::FillNavigationTables() const {
    findWaypointForm.Unload();
    state.Grid.reset();
    state.Names.reset();
    ++state.NavigationLoads;
    const auto leftOut = LoadNavigationData(platform.files, state.SimulatorPath, state.Navigation);
    if (!leftOut.empty()) dialogue.Ask(EntriesLeftOut(leftOut));
}

void Workplace::AskForSimulatorFolder() const {
    initialLoad.Hide();
    findFS2000Form.Show();
}

void Workplace::RecoverProcedureFolder(const Failure& failure) const {
    if (failure.Number() == FileNotFound) {
        AskForSimulatorFolder();
    } else if (failure.Number() == PathNotFound) {
        dialogue.Ask(DataNotFoundIn(state.SimulatorPath));
        StopProgram(1, failure.Reason());
    }
}

}  // namespace tarvex
