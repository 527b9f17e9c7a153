#pragma once

#include "startup/shared_state.h"
#include "toolkit/dialogue.h"
#include "toolkit/failure.h"
#include "toolkit/form_host.h"
#include "toolkit/platform.h"

namespace tarvex {

// What the screens of the start and the editor work with: the machine, the shared state, the user, and the
// other screens as far as they are shown and hidden. It is the program without the classes of its screens.
struct Workplace {
    Platform& platform;
    SharedState& state;
    FormHost& host;
    Dialogue& dialogue;
    FormSlotBase& initialLoad;
    FormSlotBase& findFS2000Form;
    FormSlotBase& pickFile;
    FormSlotBase& modifyProcedure;
    FormSlotBase& findWaypointForm;

    // Fills the navigation tables from the simulator folder and tells the user what they had no room for. An
    // open search closes: its lines would point into other tables. The failures of LoadNavigationData, behind
    // which the tables are empty.
    void FillNavigationTables() const;
    // Hides the menu and has the user choose the simulator folder.
    void AskForSimulatorFolder() const;
    // What a failure means while a stored procedure is being chosen: for want of a file (53) the user chooses
    // the folder, for want of a folder (76) the program stops behind a message, any other has no effect.
    void RecoverProcedureFolder(const Failure& failure) const;
};

}  // namespace tarvex
