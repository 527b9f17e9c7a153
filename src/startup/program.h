#pragma once

#include <string>
#include <string_view>

#include "editor/modify_procedure.h"
#include "geometry/add_arc.h"
#include "geometry/create_waypoint_form.h"
#include "geometry/lat_long_form.h"
#include "navigation/find_waypoint_form.h"
#include "procedure/pick_file.h"
#include "startup/find_fs2000_form.h"
#include "startup/initial_load.h"
#include "startup/shared_state.h"
#include "toolkit/form_host.h"
#include "toolkit/platform.h"
#include "toolkit/user_door.h"

namespace tarvex {

inline constexpr std::string_view ProgramTitle = "Tarvex 2.35";

// One program: the shared state, the services of the machine and the screens. Any screen reaches all of it.
class Program {
  public:
    explicit Program(const Platform& services);

    // The start of the run, as one event: shows InitialLoad, whose Form_Load is the start sequence.
    void Start();

    // Fills the navigation tables from the simulator folder and tells the user what they had no room for. The
    // failures of tarvex::LoadNavigationData, behind which the tables are empty.
    void FillNavigationTables();
    // The same; a failure stops the program without a message.
    void LoadNavigationData();

    // Hides the menu and has the user choose the simulator folder.
    void AskForSimulatorFolder();
    // What a failure means while a stored procedure is being chosen: for want of a file (53) the user chooses
    // the folder, for want of a folder (76) the program stops behind a message, any other has no effect.
    void RecoverProcedureFolder(const Failure& failure);

    // Shows a message and keeps its answer in MessageAnswer. A message without a title gets the program's.
    MessageAnswer Ask(Message message);
    // Shows the complaint, if it isn't empty, and gives the focus to `control`. Whether there was one.
    bool Complain(std::string_view complaint, Control& control);
    // Ends the run at once from any depth. `reason`, one line, goes to the terminal.
    [[noreturn]] void Stop(int exitStatus, std::string reason = {});

    Platform platform;
    SharedState state;
    FormHost host;
    UserDoor door;

    // Any routine may show, hide or unload any screen.
    FormSlot<InitialLoad> initialLoad;
    FormSlot<FindFS2000Form> findFS2000Form;
    FormSlot<PickFile> pickFile;
    FormSlot<ModifyProcedure> modifyProcedure;
    FormSlot<FindWaypointForm> findWaypointForm;
    FormSlot<AddARC> addARC;
    FormSlot<CreateWaypointForm> createWaypointForm;
    FormSlot<LatLongForm> latLongForm;
};

}  // namespace tarvex
