#include <utility>

#include "editor/modify_procedure.h"

namespace tarvex {

void ModifyProcedure::Connect() {
    using Self = ModifyProcedure;
    using Operation = void (Self::*)();
    const auto run = [this](Operation operation) { return [this, operation] { (this->*operation)(); }; };

    for (const auto& [box, operation] : std::initializer_list<std::pair<TextBox&, Operation>>{
             {AptNameText, &Self::AptNameText_LostFocus},
             {BasicNameText, &Self::BasicNameText_LostFocus},
             {TransitionText, &Self::TransitionText_LostFocus},
             {FixNameText, &Self::FixNameText_lostfocus},
             {NAVIDText, &Self::NAVIDText_LostFocus},
             {FreqText, &Self::FreqText_LostFocus},
             {DDMLatText, &Self::DDMLatText_LostFocus},
             {DMMLatText, &Self::DMMLatText_LostFocus},
             {DDMLongText, &Self::DDMLongText_LostFocus},
             {DMMLongText, &Self::DMMLongText_LostFocus},
             {Alt1Text, &Self::Alt1Text_LostFocus},
             {Alt2Text, &Self::Alt2Text_LostFocus},
         }) {
        box.OnLostFocus = run(operation);
    }
    for (const auto& [option, operation] : std::initializer_list<std::pair<OptionButton&, Operation>>{
             {NoRestrictionOption, &Self::NorestrictionOption_Click},
             {AtOption, &Self::AtOption_Click},
             {AtBelowOption, &Self::AtBelowOption_Click},
             {AtAboveOption, &Self::AtAboveOption_Click},
             {AtAboveAtBelowOption, &Self::AtAboveAtBelowOption_Click},
         }) {
        option.OnClick = run(operation);
    }
    for (const auto& [button, operation] : std::initializer_list<std::pair<Button&, Operation>>{
             {OopsCommand, &Self::OopsCommand_Click},
             {SaveCommand, &Self::SaveCommand_Click},
             {ClearDataCommand, &Self::ClearDataCommand_Click},
             {AddWaypointCommand, &Self::AddWaypointCommand_Click},
             {ModifyWaypointCommand, &Self::ModifyWaypointCommand_Click},
             {DeleteWaypointCommand, &Self::DeleteWaypointCommand_Click},
             {MoveUp, &Self::MoveUp_Click},
             {MoveDown, &Self::MoveDown_Click},
             {UndoCommand, &Self::UndoCommand_Click},
             {RedoCommand, &Self::RedoCommand_Click},
             {FindFixCommand, &Self::FindFixCommand_Click},
             {FindNavCommand, &Self::FindNavCommand_Click},
             {FindAirportCommand, &Self::FindAirportCommand_Click},
             {AddArcCommand, &Self::AddArcCommand_Click},
             {CreateWaypointCommand, &Self::CreateWaypointCommand_Click},
         }) {
        button.OnClick = run(operation);
    }
    TellBoxes();
    AirspeedText.OnChange = run(&Self::AirspeedText_Change);
    RwySpecificCheck.OnClick = run(&Self::RwySpecificCheck_Click);
    WaypointList.OnClick = run(&Self::WaypointList_Click);
}

void ModifyProcedure::TellBoxes() {
    SetTips(
        {{AptNameText, "ICAO code of the airport, 4 characters: the file's name begins with it"},
         {BasicNameText, "Name of the procedure: up to 7 characters"},
         {TransitionText, "Name of a transition, or the runway of a runway departure: up to 7 characters"},
         {FixNameText, "Name of the fix: up to 7 characters; empty for a navaid"},
         {NAVIDText, "Identifier of the navaid: up to 4 characters; empty for a fix"},
         {FreqText, "Frequency of the navaid: MHz of a VOR, kHz of an NDB, up to 6 characters"},
         {DDMLatText, "Latitude: whole degrees, 0 to 90"},
         {DMMLatText, "Latitude: minutes below 60, with decimals"},
         {DDMLongText, "Longitude: whole degrees, 0 to 180"},
         {DMMLongText, "Longitude: minutes below 60, with decimals"},
         {Alt1Text, "Altitude, of a band the lower one: feet, up to 99999"},
         {Alt2Text, "Upper altitude of a band: feet, up to 99999"},
         {AirspeedText, "Airspeed at the waypoint: knots, up to 999"}});
}

std::vector<Shortcut> ModifyProcedure::Shortcuts() {
    using enum ShortcutKey;
    const auto page = [this](int index) { return [this, index] { Pictures.GoToPage(index); }; };
    std::vector<Shortcut> keys = {
        {F2, nullptr, &FindFixCommand},
        {F3, nullptr, &FindNavCommand},
        {F4, nullptr, &FindAirportCommand},
        {F5, nullptr, &AddArcCommand},
        {F6, nullptr, &CreateWaypointCommand},
        {F8, nullptr, &ClearDataCommand},
        {Delete, &WaypointList, &DeleteWaypointCommand},
        {CtrlUp, &WaypointList, &MoveUp},
        {CtrlDown, &WaypointList, &MoveDown},
        {Delete, &Pictures.LegsList, nullptr, [this] { DeleteBlock(); }},
        {CtrlUp, &Pictures.LegsList, nullptr, [this] { MoveBlock(-1); }},
        {CtrlDown, &Pictures.LegsList, nullptr, [this] { MoveBlock(1); }},
        {CtrlS, nullptr, &SaveCommand},
        {CtrlZ, nullptr, &UndoCommand},
        {CtrlY, nullptr, &RedoCommand},
        {CtrlShiftZ, nullptr, &RedoCommand},
        {CtrlL, nullptr, nullptr, [this] { WaypointList.SetFocus(); }},
        {Ctrl1, nullptr, nullptr, page(0)},
        {Ctrl2, nullptr, nullptr, page(1)},
        {Ctrl3, nullptr, nullptr, page(2)},
        {Ctrl4, nullptr, nullptr, page(3)},
    };
    // A paste is taken back before the rows are undone.
    const std::vector<Shortcut> ofPosition = positions_.Shortcuts();
    keys.insert(keys.begin(), ofPosition.begin(), ofPosition.end());
    // On the chart it takes what is marked there.
    if (Pictures.PlanPicture.HasFocus() && Pictures.HasMark()) return keys;
    for (Button* command : {&AddWaypointCommand, &ModifyWaypointCommand}) {
        keys.push_back({CtrlEnter, nullptr, command});
    }
    return keys;
}

}  // namespace tarvex
