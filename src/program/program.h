#pragma once

#include "startup/shared_state.h"
#include "startup/workplace.h"
#include "toolkit/dialogue.h"
#include "toolkit/form_host.h"
#include "toolkit/platform.h"
#include "toolkit/user_door.h"

namespace tarvex {

class AddARC;
class CreateWaypointForm;
class FindFS2000Form;
class FindWaypointForm;
class InitialLoad;
class LatLongForm;
class ModifyProcedure;
class PickFile;

// One program: the shared state, the services of the machine and the screens, which it connects. Nothing
// below it knows it; a screen is given what it uses.
class Program {
  public:
    explicit Program(const Platform& services);
    ~Program();

    // The start of the run, as one event: shows InitialLoad, whose Form_Load is the start sequence.
    void Start();

    Platform platform;
    SharedState state;
    Dialogue dialogue{platform.messages, state.MessageAnswer};
    FormHost host;
    UserDoor door{host};

    FormSlot<InitialLoad> initialLoad;
    FormSlot<FindFS2000Form> findFS2000Form;
    FormSlot<PickFile> pickFile;
    FormSlot<ModifyProcedure> modifyProcedure;
    FormSlot<FindWaypointForm> findWaypointForm;
    FormSlot<AddARC> addARC;
    FormSlot<CreateWaypointForm> createWaypointForm;
    FormSlot<LatLongForm> latLongForm;

  private:
    std::unique_ptr<PickFile> MakePicker();

    const Workplace workplace_{platform, state,           host,
                               dialogue, initialLoad,     findFS2000Form,
                               pickFile, modifyProcedure, findWaypointForm};
};

}  // namespace tarvex
