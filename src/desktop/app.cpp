#include "desktop/app.h"

#include <cstdio>

#include "desktop/desktop.h"
#include "desktop/native_browser.h"
#include "desktop/native_clipboard.h"
#include "desktop/native_message_box.h"
#include "desktop/native_pictures.h"
#include "toolkit/native_clock.h"
#include "toolkit/native_file_system.h"
#include "toolkit/native_registry.h"

namespace tarvex {

struct App::Run {
    std::unique_ptr<FileSystem> files = MakeNativeFileSystem();
    std::unique_ptr<Registry> registry = MakeNativeRegistry();
    std::unique_ptr<Clock> clock = MakeNativeClock();
    NativeMessageBox messages;
    NativePictures pictures;
    NativeClipboard clipboard;
    NativeBrowser browser;
    Program program{
        Platform{*files, *registry, *clock, messages, pictures, clipboard, browser, NativeProgramFolder()}};
    Desktop desktop{program};
};

App::App() = default;
App::~App() = default;

// There is no command line, so that wxApp's own handling of one is left out.
bool App::OnInit() {
    SetAppName("tarvex");
    SetAppDisplayName("Tarvex");
    SetExitOnFrameDelete(false);
    try {
        run_ = std::make_unique<Run>();
    } catch (const Failure& failure) {
        std::fprintf(stderr, "tarvex: %s\n", failure.what());
        return false;
    }
    // Windows asks before it shuts down. The question alone must close nothing, as wxWidgets would have it:
    // with a procedure open the machine waits for the user, and no rows go with a window closed for it.
    Bind(wxEVT_QUERY_END_SESSION, [this](wxCloseEvent& event) {
        if (event.CanVeto() && run_->program.modifyProcedure.IsLoaded()) event.Veto();
    });
    run_->messages.StandOver(run_->desktop);
    run_->pictures.StandOver(run_->desktop);
    run_->desktop.Start();
    return true;
}

int App::OnRun() {
    wxApp::OnRun();
    const auto& stopped = run_->program.host.Stopped();
    if (!stopped) return 0;
    if (!stopped->reason.empty()) std::fprintf(stderr, "tarvex: %s\n", stopped->reason.c_str());
    return stopped->exitStatus;
}

}  // namespace tarvex
