#include <algorithm>
#include <span>

#include "editor/editor_messages.h"
#include "editor/modify_procedure.h"
#include "procedure/altitude_band.h"
#include "procedure/procedure_file_name.h"
#include "procedure/procedure_lines.h"
#include "procedure/procedure_mode.h"
#include "startup/program.h"
#include "startup/settings_file.h"
#include "startup/startup_messages.h"

namespace tarvex {

namespace {

std::span<WaypointRecord> RowsInUse(SharedState& state) {
    return std::span(state.WaypointTable).first(static_cast<std::size_t>(state.WaypointCount));
}

// The altitudes into the order in which the file has them.
void ExchangeBands(std::span<WaypointRecord> rows) {
    for (WaypointRecord& row : rows) {
        if (HasSecondAltitude(row)) ExchangeAltitudes(row);
    }
}

// No file of Windows has one of these in its name, and one of them would lead into another folder.
bool CanNameFile(std::string_view name) {
    return std::none_of(name.begin(), name.end(), [](char c) {
        return static_cast<unsigned char>(c) < ' ' ||
               editor_messages::NoFileNameCharacters.find(c) != std::string_view::npos;
    });
}

}  // namespace

void ModifyProcedure::ConnectSave() {
    AptNameText.OnLostFocus = [this] { AptNameText_LostFocus(); };
    BasicNameText.OnLostFocus = [this] { BasicNameText_LostFocus(); };
    TransitionText.OnLostFocus = [this] { TransitionText_LostFocus(); };
    SaveCommand.OnClick = [this] { SaveCommand_Click(); };
}

void ModifyProcedure::AptNameText_LostFocus() {
    BuildFilename();
}

void ModifyProcedure::BasicNameText_LostFocus() {
    BuildFilename();
}

void ModifyProcedure::TransitionText_LostFocus() {
    BuildFilename();
}

void ModifyProcedure::BuildFilename() {
    const bool runway = RwySpecificCheck.Value() == 1;
    const ProcedureName name{
        .icao = AptNameText.Text(),
        .basicName = BasicNameText.Text(),
        .secondName = TransitionText.Text(),
        .kind = runway ? ProcedureName::Kind::Runway : ProcedureName::Kind::Transition,
    };
    FilenameText.SetCaption(BuildProcedureFileName(name, program_.state.ProcedureMode));
}

void ModifyProcedure::SaveCommand_Click() {
    try {
        if (!NameCanBeSaved() || !MayReplaceStoredFile() || !WriteProcedure()) return;
        KeepHemispheres();
        // Not before both files are written: a save that failed can be tried again from the same rows.
        ExchangeBands(RowsInUse(program_.state));
        program_.modifyProcedure.Unload();
    } catch (const Failure& failure) {
        SaveFailed(failure);
    }
}

bool ModifyProcedure::NameCanBeSaved() {
    if (AptNameText.Text().empty() || BasicNameText.Text().empty()) {
        program_.Ask(editor_messages::FilenameMissing);
        return false;
    }
    BuildFilename();
    // A stored name has shown that it can name a file, whatever is in it.
    const bool stored = ModifiesProcedure(program_.state.ProcedureMode);
    if (stored || CanNameFile(FilenameText.Caption())) return true;
    program_.Ask(editor_messages::FilenameUnusable(FilenameText.Caption()));
    AptNameText.SetFocus();
    return false;
}

bool ModifyProcedure::MayReplaceStoredFile() {
    if (!CreatesProcedure(program_.state.ProcedureMode)) return true;
    const std::string& name = FilenameText.Caption();
    const auto stored = program_.platform.files.FindFile(program_.state.ProcedureFolder + name);
    if (stored != name || program_.Ask(editor_messages::OverwriteFile) != MessageAnswer::No) return true;
    AptNameText.SetFocus();
    return false;
}

bool ModifyProcedure::WriteProcedure() {
    SharedState& state = program_.state;
    const std::span<const WaypointRecord> rows = RowsInUse(state);
    std::vector<WaypointItems> lines(rows.size());
    std::transform(rows.begin(), rows.end(), lines.begin(), ItemsForSave);
    if (const auto item = FindUnstorableItem(lines)) {
        program_.Ask(editor_messages::ItemUnstorable(item->row + 1, lines[item->row][item->column]));
        return false;
    }
    const std::string comment = CommentOfSave(program_.platform.clock.ShortDate(), state.ProgramVersion);
    program_.platform.files.Write(state.ProcedureFolder + FilenameText.Caption(),
                                  ProcedureText(comment, lines));
    return true;
}

void ModifyProcedure::KeepHemispheres() {
    SharedState& state = program_.state;
    state.DefaultLatHemisphere = NLatOption.Value() ? "N" : "S";
    state.DefaultLongHemisphere = ELongOption.Value() ? "E" : "W";
    WriteSettingsFile(program_.platform.files, state.SettingsPath,
                      {.SimulatorPath = state.SimulatorPath,
                       .DefaultLatHemisphere = state.DefaultLatHemisphere,
                       .DefaultLongHemisphere = state.DefaultLongHemisphere,
                       .MagVarSide = state.MagVarSide});
}

void ModifyProcedure::SaveFailed(const Failure& failure) {
    if (failure.Number() == FileNotFound) {
        program_.AskForSimulatorFolder();
        return;
    }
    program_.Ask(failure.Number() == PathNotFound ? DataNotFound() : editor_messages::UnknownSaveError);
    program_.Stop(1, failure.Reason());
}

}  // namespace tarvex
