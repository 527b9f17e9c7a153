#include <algorithm>

#include "editor/editor_messages.h"
#include "editor/modify_procedure.h"
#include "procedure/procedure_file_name.h"
#include "procedure/procedure_mode.h"
#include "procedure/procedure_save.h"
#include "startup/startup_messages.h"

namespace tarvex {

namespace {

// No file of Windows has one of these in its name, and one of them would lead into another folder.
bool CanNameFile(std::string_view name) {
    return std::none_of(name.begin(), name.end(), [](char c) {
        return static_cast<unsigned char>(c) < ' ' ||
               editor_messages::NoFileNameCharacters.find(c) != std::string_view::npos;
    });
}

}  // namespace

void ModifyProcedure::BuildFilename() {
    const bool runway = RwySpecificCheck.Value() == 1;
    const ProcedureName name{
        .icao = AptNameText.Text(),
        .basicName = BasicNameText.Text(),
        .secondName = TransitionText.Text(),
        .kind = runway ? ProcedureName::Kind::Runway : ProcedureName::Kind::Transition,
    };
    FilenameText.SetCaption(BuildProcedureFileName(name, state_.ProcedureMode, workplace_.platform.files));
}

void ModifyProcedure::SaveCommand_Click() {
    try {
        if (!NameCanBeSaved() || !MayReplaceStoredFile() || !WriteProcedure()) return;
        KeepHemispheres();
        // Not before both files are written: a save that failed can be tried again from the same rows.
        ExchangeBands(state_.Rows);
        Unload();
    } catch (const Failure& failure) {
        SaveFailed(failure);
    }
}

bool ModifyProcedure::NameCanBeSaved() {
    if (AptNameText.Text().empty() || BasicNameText.Text().empty()) {
        dialogue_.Ask(editor_messages::FilenameMissing);
        return false;
    }
    BuildFilename();
    // A stored name has shown that it can name a file, whatever is in it.
    const bool stored = ModifiesProcedure(state_.ProcedureMode);
    if (stored || CanNameFile(FilenameText.Caption())) return true;
    dialogue_.Ask(editor_messages::FilenameUnusable(FilenameText.Caption()));
    AptNameText.SetFocus();
    return false;
}

bool ModifyProcedure::MayReplaceStoredFile() {
    if (!CreatesProcedure(state_.ProcedureMode)) return true;
    const std::string& name = FilenameText.Caption();
    const auto stored = workplace_.platform.files.FindFile(state_.ProcedureFolder + name);
    if (stored != name || dialogue_.Ask(editor_messages::OverwriteFile) != MessageAnswer::No) return true;
    AptNameText.SetFocus();
    return false;
}

bool ModifyProcedure::WriteProcedure() {
    const ComposedProcedure composed =
        ComposeProcedure(state_.Rows.InUse(), workplace_.platform.clock.ShortDate(), state_.ProgramVersion);
    if (const auto& item = composed.unstorable) {
        dialogue_.Ask(
            editor_messages::ItemUnstorable(item->row + 1, composed.lines[item->row][item->column]));
        return false;
    }
    workplace_.platform.files.Write(state_.ProcedureFolder + FilenameText.Caption(), composed.text);
    return true;
}

void ModifyProcedure::KeepHemispheres() {
    state_.DefaultLatHemisphere = NLatOption.Value() ? "N" : "S";
    state_.DefaultLongHemisphere = ELongOption.Value() ? "E" : "W";
    WriteSettingsFile(workplace_.platform.files, state_.SettingsPath, state_);
}

void ModifyProcedure::SaveFailed(const Failure& failure) {
    if (failure.Number() == FileNotFound) {
        workplace_.AskForSimulatorFolder();
        return;
    }
    dialogue_.Ask(failure.Number() == PathNotFound ? DataNotFound() : editor_messages::UnknownSaveError);
    StopProgram(1, failure.Reason());
}

}  // namespace tarvex
