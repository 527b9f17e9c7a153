#include "startup/initial_load.h"

#include "geometry/text_rules.h"
#include "procedure/procedure_mode.h"
#include "startup/program.h"
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

InitialLoad::InitialLoad(Program& program) : Form(program.host, "InitialLoad", "Tarvex"), program_(program) {
    CreateDP.OnClick = [this] { CreateDP_Click(); };
    CreateSTAR.OnClick = [this] { CreateSTAR_Click(); };
    CreateIAP.OnClick = [this] { CreateIAP_Click(); };
    ModifyDP.OnClick = [this] { ModifyDP_Click(); };
    ModifySTAR.OnClick = [this] { ModifySTAR_Click(); };
    ModifyIAP.OnClick = [this] { ModifyIAP_Click(); };
    ExitCommand.OnClick = [this] { ExitCommand_Click(); };
}

void InitialLoad::Form_Load() {
    program_.state.ProgramVersion = Version;
    program_.state.SettingsPath = SettingsPathIn(program_.platform.programFolder);
    bool settled = false;
    try {
        settled = ReadSettings();
    } catch (const Failure& failure) {
        program_.Ask(failure.Number() == PathNotFound ? DataNotFound() : UnexpectedError());
        program_.Stop(1, failure.Reason());
    }
    if (settled) program_.LoadNavigationData();
}

void InitialLoad::Form_Unload() {
    program_.Stop(0);
}

bool InitialLoad::ReadSettings() {
    try {
        Take(ReadSettingsFile(program_.platform.files, program_.state.SettingsPath));
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
        settings = ReadSettingsFile(program_.platform.files, program_.state.SettingsPath, ShortSettingsLines);
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
    SharedState& state = program_.state;
    state.SimulatorPath = RegisteredSimulatorFolder(program_.platform.registry);
    if (state.SimulatorPath.empty()) {
        program_.AskForSimulatorFolder();
        return false;
    }
    RewriteSettings({.SimulatorPath = Upper(state.SimulatorPath),
                     .DefaultLatHemisphere = "N",
                     .DefaultLongHemisphere = "W",
                     .MagVarSide = "W"});
    return true;
}

// Writes the settings and reads them back; where they can't be written they count as they are.
void InitialLoad::RewriteSettings(const Settings& settings) {
    FileSystem& files = program_.platform.files;
    const std::string& path = program_.state.SettingsPath;
    try {
        WriteSettingsFile(files, path, settings);
    } catch (const Failure& failure) {
        Take(settings);
        program_.Ask(SettingsNotWritten(path, failure.Reason()));
        return;
    }
    Take(ReadSettingsFile(files, path));
}

void InitialLoad::Take(const Settings& settings) {
    SharedState& state = program_.state;
    state.SimulatorPath = settings.SimulatorPath;
    state.DefaultLatHemisphere = settings.DefaultLatHemisphere;
    state.DefaultLongHemisphere = settings.DefaultLongHemisphere;
    state.MagVarSide = settings.MagVarSide;
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

void InitialLoad::ExitCommand_Click() {
    program_.initialLoad.Unload();
}

void InitialLoad::Create(const MenuAction& action) {
    if (ReturnToEditor()) return;
    SetProcedure(action);
    program_.modifyProcedure.Show();
    ModifyProcedure* editor = program_.modifyProcedure.Get();
    if (editor == nullptr) return;  // it ended itself while it loaded
    if (action.runwaySpecific) editor->RwySpecificCheck.SetEnabled(true);
    editor->RwySpecificCheck.SetValue(0);
    if (!action.runwaySpecific) editor->RwySpecificCheck.SetEnabled(false);
}

void InitialLoad::Modify(const MenuAction& action) {
    if (ReturnToEditor()) return;
    try {
        program_.pickFile.Unload();
        SetProcedure(action);
        program_.pickFile.Show();
    } catch (const Failure& failure) {
        program_.RecoverProcedureFolder(failure);
    }
}

bool InitialLoad::ReturnToEditor() {
    if (!program_.modifyProcedure.IsLoaded()) return false;
    SharedState& state = program_.state;
    state.ProcedureFolder = state.SimulatorPath;
    state.ProcedureFolder += FolderOf(state.ProcedureMode);
    program_.modifyProcedure.Show();
    return true;
}

void InitialLoad::SetProcedure(const MenuAction& action) {
    program_.state.ProcedureFolder = program_.state.SimulatorPath;
    program_.state.ProcedureFolder += action.folder;
    program_.state.ProcedureMode = action.mode;
}

}  // namespace tarvex
