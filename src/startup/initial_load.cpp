#include "startup/initial_load.h"

#include "geometry/text_rules.h"
#include "procedure/procedure_mode.h"
#include "startup/simulator_folder.h"
#include "startup/startup_messages.h"

namespace tarvex {

// What an action of the menu fixes for the kind of procedure.
struct MenuAction {
    std::string_view mode;
    std::string_view folder;      // below the simulator folder
    bool runwaySpecific = false;  // whether RwySpecificCheck can be used in the new procedure
};

namespace {

constexpr std::string_view Version = "2.35";

constexpr std::string_view Departures = "\\Giostam\\navdata\\Sids\\";
constexpr std::string_view Arrivals = "\\Giostam\\navdata\\Stars\\";
constexpr std::string_view Approaches = "\\Giostam\\navdata\\Approaches\\";

constexpr MenuAction CreateDPAction{.mode = "E", .folder = Departures, .runwaySpecific = true};
constexpr MenuAction ModifyDPAction{.mode = "D", .folder = Departures};
constexpr MenuAction CreateSTARAction{.mode = "T", .folder = Arrivals};
constexpr MenuAction ModifySTARAction{.mode = "S", .folder = Arrivals};
constexpr MenuAction CreateIAPAction{.mode = "J", .folder = Approaches};
constexpr MenuAction ModifyIAPAction{.mode = "I", .folder = Approaches};

std::string_view FolderOf(std::string_view mode) {
    if (IsDeparture(mode)) return Departures;
    return IsApproach(mode) ? Approaches : Arrivals;
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
    RewriteSettings({.SimulatorPath = Upper(state_.SimulatorPath),
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

void InitialLoad::CreateDP_Click() {
    Create(CreateDPAction);
}

void InitialLoad::CreateSTAR_Click() {
    Create(CreateSTARAction);
}

void InitialLoad::CreateIAP_Click() {
    Create(CreateIAPAction);
}

void InitialLoad::ModifyDP_Click() {
    Modify(ModifyDPAction);
}

void InitialLoad::ModifySTAR_Click() {
    Modify(ModifySTARAction);
}

void InitialLoad::ModifyIAP_Click() {
    Modify(ModifyIAPAction);
}

void InitialLoad::Create(const MenuAction& action) {
    if (ReturnToEditor()) return;
    SetProcedure(action);
    workplace_.modifyProcedure.Show();
    // The editor may have ended itself while it loaded.
    if (workplace_.modifyProcedure.IsLoaded()) letChooseRunway_(action.runwaySpecific);
}

void InitialLoad::Modify(const MenuAction& action) {
    if (ReturnToEditor()) return;
    try {
        workplace_.pickFile.Unload();
        SetProcedure(action);
        workplace_.pickFile.Show();
    } catch (const Failure& failure) {
        workplace_.RecoverProcedureFolder(failure);
    }
}

bool InitialLoad::ReturnToEditor() {
    if (!workplace_.modifyProcedure.IsLoaded()) return false;
    state_.ProcedureFolder = state_.SimulatorPath;
    state_.ProcedureFolder += FolderOf(state_.ProcedureMode);
    workplace_.modifyProcedure.Show();
    return true;
}

void InitialLoad::SetProcedure(const MenuAction& action) {
    state_.ProcedureFolder = state_.SimulatorPath;
    state_.ProcedureFolder += action.folder;
    state_.ProcedureMode = action.mode;
}

}  // namespace tarvex
