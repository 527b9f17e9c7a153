#include "startup/program.h"

#include <functional>
#include <memory>
#include <utility>

#include "geometry/text_rules.h"
#include "startup/startup_messages.h"

namespace tarvex {

namespace {

template <class T>
std::function<std::unique_ptr<T>()> Maker(Program& program) {
    return [&program] { return std::make_unique<T>(program); };
}

}  // namespace

Program::Program(const Platform& services)
    : platform(services),
      door(host),
      initialLoad(host, Maker<InitialLoad>(*this)),
      findFS2000Form(host, Maker<FindFS2000Form>(*this)),
      pickFile(host, Maker<PickFile>(*this)),
      modifyProcedure(host, Maker<ModifyProcedure>(*this)),
      findWaypointForm(host, Maker<FindWaypointForm>(*this)),
      addARC(host, Maker<AddARC>(*this)),
      createWaypointForm(host, Maker<CreateWaypointForm>(*this)),
      latLongForm(host, Maker<LatLongForm>(*this)) {
    host.SetFailureReport([this](const Failure& failure) {
        Ask({.prompt = "The operation could not be finished: " + failure.Reason() + " (error " +
                       NumberText(failure.Number()) + ")."});
    });
}

void Program::Start() {
    host.RunEvent([this] { initialLoad.Show(); });
}

void Program::FillNavigationTables() {
    const auto leftOut = tarvex::LoadNavigationData(platform.files, state.SimulatorPath, state.Navigation);
    if (!leftOut.empty()) Ask(EntriesLeftOut(leftOut));
}

void Program::LoadNavigationData() {
    try {
        FillNavigationTables();
    } catch (const Failure& failure) {
        Stop(1, failure.Reason());
    }
}

void Program::AskForSimulatorFolder() {
    initialLoad.Hide();
    findFS2000Form.Show();
}

void Program::RecoverProcedureFolder(const Failure& failure) {
    if (failure.Number() == FileNotFound) {
        AskForSimulatorFolder();
    } else if (failure.Number() == PathNotFound) {
        Ask(DataNotFoundIn(state.SimulatorPath));
        Stop(1, failure.Reason());
    }
}

MessageAnswer Program::Ask(Message message) {
    if (message.title.empty()) message.title = ProgramTitle;
    const MessageAnswer answer = platform.messages.Show(message);
    state.MessageAnswer = NumberText(static_cast<int>(answer));
    return answer;
}

bool Program::Complain(std::string_view complaint, Control& control) {
    if (complaint.empty()) return false;
    Ask({.prompt = std::string(complaint)});
    control.SetFocus();
    return true;
}

void Program::Stop(int exitStatus, std::string reason) {
    throw ProgramStopped{exitStatus, std::move(reason)};
}

}  // namespace tarvex
