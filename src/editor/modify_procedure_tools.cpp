#include "editor/modify_procedure.h"
#include "startup/program.h"

namespace tarvex {

void ModifyProcedure::ConnectTools() {
    FindFixCommand.OnClick = [this] { FindFixCommand_Click(); };
    FindNavCommand.OnClick = [this] { FindNavCommand_Click(); };
    FindAirportCommand.OnClick = [this] { FindAirportCommand_Click(); };
    AddArcCommand.OnClick = [this] { AddArcCommand_Click(); };
    CreateWaypointCommand.OnClick = [this] { CreateWaypointCommand_Click(); };
}

void ModifyProcedure::FindFixCommand_Click() {
    OpenSearch(program_, "F");
}

void ModifyProcedure::FindNavCommand_Click() {
    OpenSearch(program_, "N");
}

void ModifyProcedure::FindAirportCommand_Click() {
    OpenSearch(program_, "AP");
}

void ModifyProcedure::AddArcCommand_Click() {
    // What an earlier designer had opened must not reach the new one.
    CloseSearchOf(program_, SearchCaller::ArcDesigner);
    program_.latLongForm.Unload();
    program_.addARC.Unload();
    ClearDataCommand_Click();
    program_.addARC.Show();
}

void ModifyProcedure::CreateWaypointCommand_Click() {
    if (!program_.createWaypointForm.IsLoaded()) CloseSearchOf(program_, SearchCaller::StartPoint);
    program_.state.SearchKind = "CW";
    ClearDataCommand_Click();
    program_.createWaypointForm.Show();
}

}  // namespace tarvex
