#include "program/program.h"

#include "editor/modify_procedure.h"
#include "geometry/add_arc.h"
#include "geometry/create_waypoint_form.h"
#include "geometry/lat_long_form.h"
#include "geometry/text_rules.h"
#include "navigation/find_waypoint_form.h"
#include "procedure/pick_file.h"
#include "startup/find_fs2000_form.h"
#include "startup/guide.h"
#include "startup/initial_load.h"

namespace tarvex {

Program::Program(const Platform& services)
    : platform(services),
      initialLoad(host,
                  [this] {
                      return std::make_unique<InitialLoad>(workplace_, [this](bool usable) {
                          modifyProcedure.Get()->LetChooseRunway(usable);
                      });
                  }),
      findFS2000Form(host, [this] { return std::make_unique<FindFS2000Form>(workplace_); }),
      pickFile(host, [this] { return MakePicker(); }),
      modifyProcedure(host,
                      [this] {
                          const EditorTools tools{findWaypointForm, addARC, createWaypointForm};
                          return std::make_unique<ModifyProcedure>(workplace_, tools);
                      }),
      findWaypointForm(
          host,
          [this] { return std::make_unique<FindWaypointForm>(host, dialogue, state.Navigation, state); }),
      addARC(
          host,
          [this] { return std::make_unique<AddARC>(host, dialogue, state, state.MagVarSide, latLongForm); }),
      createWaypointForm(host,
                         [this] { return std::make_unique<CreateWaypointForm>(host, dialogue, state); }),
      latLongForm(
          host, [this] { return std::make_unique<LatLongForm>(host, dialogue, platform.clipboard, state); }) {
    host.SetHelp([this] { ShowGuide(platform, dialogue); });
    host.SetFailureReport([this](const Failure& failure) {
        dialogue.Ask({.prompt = "The operation could not be finished: " + failure.Reason() + " (error " +
                                NumberText(failure.Number()) + ")."});
    });
}

Program::~Program() = default;

void Program::Start() {
    host.RunEvent([this] { initialLoad.Show(); });
}

std::unique_ptr<PickFile> Program::MakePicker() {
    return std::make_unique<PickFile>(
        host, platform.files, state,
        PickFile::Opener{
            .picked =
                [this](const ProcedureVariables& listed) {
                    // The menu stands beside the picker: it may have fixed another kind of procedure since
                    // the list was read.
                    if (!modifyProcedure.IsLoaded()) {
                        state.ProcedureFolder = listed.ProcedureFolder;
                        state.ProcedureMode = listed.ProcedureMode;
                    }
                    modifyProcedure.Show();
                },
            .failed = [this](const Failure& failure) { workplace_.RecoverProcedureFolder(failure); }});
}

}  // namespace tarvex
