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
    AirspeedText.OnChange = run(&Self::AirspeedText_Change);
    RwySpecificCheck.OnClick = run(&Self::RwySpecificCheck_Click);
    WaypointList.OnClick = run(&Self::WaypointList_Click);
}

}  // namespace tarvex
