#include "startup/initial_load.h"

#include "procedure/procedure_mode.h"
#include "startup/simulator_folder.h"
#include "startup/startup_messages.h"

namespace tarvex {

namespace {

constexpr std::string_view Version = "2.35";

// Below the simulator folder.
std::string_view FolderOf(std::string_view mode) {
    if (IsDeparture(mode)) return "\\Giostam\\navdata\\Sids\\";
    return IsApproach(mode) ? "\\Giostam\\navdata\\Approaches\\" : "\\Giostam\\navdata\\Stars\\";
}

}  // namespace

InitialLoad::InitialLoad(const Workplace& workplace, std::function<void(bool)> letChooseRunway)
    : Form(workplace.host, "InitialLoad", "Tarvex"),
      workplace_(workplace),
      state_(workplace.state),
      letChooseRunway_(std::move(letChooseRunway)) {
    CreateDP.OnClick = [this] { CreateDP_Click(); };
    CreateSTAR.OnClick = [this] { CreateSTAR_Click(); };
    CreateIAP.OnClick = [this] { CreateIAP_Click(); };
    ModifyDP.OnClick = [this] { ModifyDP_Click(); };
    ModifySTAR.OnClick = [this] { ModifySTAR_Click(); };
    ModifyIAP.OnClick = [this] { ModifyIAP_Click(); };
    ExitCommand.OnClick = [this] { ExitCommand_Click(); };
}

void InitialLoad::Form_Load() {
    state_.ProgramVersion = Version;
    state_.SettingsPath = SettingsPathIn(workplace_.platform.programFolder);
    bool settled = false;
    try {
        settled = ReadSettings();
    } catch (const Failure& failure) {
        workplace_.dialogue.Ask(failure.Number() == PathNotFound ? DataNotFound() : UnexpectedError());
        StopProgram(1, failure.Reason());
    }
    if (!settled) return;
    try {
        workplace_.FillNavigationTables();
    } catch (const Failure& failure) {
        StopProgram(1, failure.Reason());
    }
}

void InitialLoad::Form_Unload() {
    StopProgram(0);
}

bool InitialLoad::ReadSettings() {
    try {
        static_cast<Settings&>(state_) = ReadSettingsFile(workplace_.platform.files, state_.SettingsPath);
        return true;
    } catch (const Failure& failure) {
        if (failure.Number() == FileNotFound) return RecoverMissingSettings();
        if (failure.Number() == PastEndOfFile) return RecoverShortSettings();
        throw;
    }
}

bool InitialLoad::RecoverShortSettings() {
    Settings settings;
    try {
        settings = ReadSettingsFile(workplace_.platform.files, state_.SettingsPath, ShortSettingsLines);
    } catch (const Failure& failure) {
        // Too short even for this recovery: no better than none.
        if (failure.Number() == PastEndOfFile) return RecoverMissingSettings();
        throw;
    }
    settings.MagVarSide = "W";
    RewriteSettings(settings);
    return true;
}

bool InitialLoad::RecoverMissingSettings() {
    state_.SimulatorPath = RegisteredSimulatorFolder(workplace_.platform.registry);
    if (state_.SimulatorPath.empty()) {
        workplace_.AskForSimulatorFolder();
        return false;
    }
    RewriteSettings({.SimulatorPath = workplace_.platform.files.UpperCase(state_.SimulatorPath),
                     .DefaultLatHemisphere = "N",
                     .DefaultLongHemisphere = "W",
                     .MagVarSide = "W"});
    return true;
}

// Writes the settings and reads them back; where they can't be written they count as they are.
void InitialLoad::RewriteSettings(const Settings& settings) {
    FileSystem& files = workplace_.platform.files;
    Settings& kept = state_;
    try {
        WriteSettingsFile(files, state_.SettingsPath, settings);
    } catch (const Failure& failure) {
        kept = settings;
        workplace_.dialogue.Ask(SettingsNotWritten(state_.SettingsPath, failure.Reason()));
        return;
    }
    kept = ReadSettingsFile(files, state_.SettingsPath);
}

void InitialLoad::Create(std::string_view mode) {
    if (ReturnToEditor()) return;
    SetProcedure(mode);
    workplace_.modifyProcedure.Show();
    // The editor may have ended itself while it loaded.
    if (workplace_.modifyProcedure.IsLoaded()) letChooseRunway_(IsDeparture(mode));
}

void InitialLoad::Modify(std::string_view mode) {
    if (ReturnToEditor()) return;
    try {
        workplace_.pickFile.Unload();
        SetProcedure(mode);
        workplace_.pickFile.Show();
    } catch (const Failure& failure) {
        workplace_.RecoverProcedureFolder(failure);
    }
}

bool InitialLoad::ReturnToEditor() {
    if (!workplace_.modifyProcedure.IsLoaded()) return false;
    SetProcedure(std::string(state_.ProcedureMode));
    workplace_.modifyProcedure.Show();
    return true;
}

void InitialLoad::SetProcedure(std::string_view mode) {
    state_.ProcedureFolder = state_.SimulatorPath;
    state_.ProcedureFolder += FolderOf(mode);
    state_.ProcedureMode = mode;
}

}  // namespace tarvex
