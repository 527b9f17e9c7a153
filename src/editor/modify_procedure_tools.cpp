#include <utility>

#include "editor/modify_procedure.h"
#include "geometry/add_arc.h"
#include "geometry/create_waypoint_form.h"
#include "geometry/rhumb_line.h"
#include "geometry/text_rules.h"
#include "navigation/find_waypoint_form.h"
#include "procedure/procedure_mode.h"

namespace tarvex {

void ModifyProcedure::OpenSearch(std::string_view kind, const Form& opener,
                                 std::function<void(const SearchHit&)> take) {
    tools_.findWaypointForm.Unload();
    state_.SearchKind = kind;
    // The boxes are emptied for what is to go there.
    if (SearchKindNamed(kind).caller != SearchCaller::ArcDesigner) ClearDataCommand_Click();
    tools_.findWaypointForm.ShowAsToolOf(opener);
    tools_.findWaypointForm.Get()->OnTransfer = std::move(take);
}

void ModifyProcedure::SearchForBoxes(std::string_view kind) {
    OpenSearch(kind, *this, [this](const SearchHit& hit) { TakeHit(hit); });
}

void ModifyProcedure::TakeHit(const SearchHit& hit) {
    state_.RunwayTransfer = False;
    switch (hit.table) {
        case NavigationTable::Fixes:
            FixNameText.SetText(hit.identifier);
            break;
        case NavigationTable::Navaids:
            NAVIDText.SetText(hit.identifier);
            FreqText.SetText(hit.frequency);
            break;
        case NavigationTable::Airports:
            FixNameText.SetText(hit.identifier);
            if (!IsApproach(state_.ProcedureMode)) break;
            FixNameText.SetText("RW" + std::string(Mid(hit.identifier, 5)));
            Alt1Text.SetText(hit.elevation);
            state_.RunwayTransfer = True;
            break;
    }
    FillPosition(hit);
}

void ModifyProcedure::FillPosition(const SearchHit& hit) {
    Latitude.Fill(hit.LatDegreesText, hit.LatMinutesText, hit.LatHemisphere == "S");
    Longitude.Fill(hit.LongDegreesText, hit.LongMinutesText, hit.LongHemisphere == "W");
    // In this order, so that leaving the minute boxes marks both axes as edited.
    for (TextBox* box : {&DMMLatText, &DMMLongText, &Alt1Text}) box->SetFocus();
}

void ModifyProcedure::AddArcCommand_Click() {
    tools_.addARC.Unload();
    ClearDataCommand_Click();
    tools_.addARC.ShowAsToolOf(*this);
    AddARC& designer = *tools_.addARC.Get();
    designer.OnSelectNavaid = [this] { SearchForCenter(); };
    designer.RoomForPoints = [this] { return state_.Rows.Free(); };
    designer.OnPoints = [this](const std::vector<AddARC::Point>& points) {
        const RowsStep step(state_.Rows, "Add ARC " + points.front().name + " to " + points.back().name);
        for (const auto& [name, position] : points) AppendArcPoint(name, position);
    };
}

void ModifyProcedure::SearchForCenter() {
    OpenSearch("A", *tools_.addARC.Get(), [this](const SearchHit& hit) {
        tools_.addARC.Get()->TakeCenter(hit.identifier, hit.position);
    });
}

void ModifyProcedure::AppendArcPoint(const std::string& name, const PositionTexts& position) {
    state_.Rows.Append(
        {
            .WaypointID = name,
            .WaypointType = "0",
            .LatDecimal = position.latDecimal,
            .LatDegrees = position.latDegrees,
            .LatMinutes = position.latMinutes,
            .CoordinatesEdited = False,
            .LongDecimal = position.longDecimal,
            .LongDegrees = position.SignedLongDegrees(),
            .LongMinutes = position.longMinutes,
            .Frequency = "0",
            .Airspeed = "0",
            .Altitude2 = "0",
            .Altitude1 = "0",
            .RestrictionType = "0",
        },
        name);
}

void ModifyProcedure::CreateWaypointCommand_Click() {
    state_.SearchKind = "CW";
    ClearDataCommand_Click();
    tools_.createWaypointForm.ShowAsToolOf(*this);
    CreateWaypointForm& form = *tools_.createWaypointForm.Get();
    form.OnPickStart = [this](std::string_view kind) { SearchForStart(kind); };
    form.OnTransfer = [this](const std::string& name, const PositionTexts& position) {
        TakeDerived(name, position);
    };
    form.OnGoBack = [this] { ClearDataCommand_Click(); };
}

void ModifyProcedure::SearchForStart(std::string_view kind) {
    OpenSearch(kind, *tools_.createWaypointForm.Get(),
               [this, kind = std::string(kind)](const SearchHit& hit) { TakeStart(kind, hit); });
}

void ModifyProcedure::TakeStart(std::string_view kind, const SearchHit& hit) {
    FillPosition(hit);
    tools_.createWaypointForm.Get()->TakeStart(hit.position, SearchKindNamed(kind).picked);
}

// As the search leaves it behind a click on what it found.
void ModifyProcedure::Chose(std::string_view kind, const SearchHit& hit) {
    state_.SearchKind = kind;
    Remember(hit, state_);
}

void ModifyProcedure::TakeEntry(const SearchHit& hit) {
    ClearDataCommand_Click();
    Chose(SearchKindFor(SearchCaller::Editor, hit.table).name, hit);
    TakeHit(hit);
}

void ModifyProcedure::CenterArcOn(const SearchHit& hit) {
    AddArcCommand_Click();
    Chose(SearchKindFor(SearchCaller::ArcDesigner, hit.table).name, hit);
    tools_.addARC.Get()->TakeCenter(hit.identifier, hit.position);
}

void ModifyProcedure::DeriveFrom(const SearchHit& hit) {
    tools_.createWaypointForm.Unload();
    CreateWaypointCommand_Click();
    const std::string_view kind = SearchKindFor(SearchCaller::StartPoint, hit.table).name;
    Chose(kind, hit);
    TakeStart(kind, hit);
}

void ModifyProcedure::TakeDerived(const std::string& name, const PositionTexts& position) {
    FixNameText.SetText(name);
    Latitude.Fill(position.latDegrees, position.latMinutes, position.south);
    Longitude.Fill(position.longDegrees, position.longMinutes, position.west);
}

}  // namespace tarvex
