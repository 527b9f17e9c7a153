#include "editor/modify_procedure.h"
#include "geometry/text_rules.h"

namespace tarvex {

void ModifyProcedure::PutIntoCapitals(TextBox& box) {
    box.SetText(Upper(box.Text()));
}

void ModifyProcedure::RequireNumber(TextBox& box) {
    dialogue_.Complain(NumberComplaint(box.Text()), box);
}

void ModifyProcedure::LeaveCoordinate(TextBox& box, std::string_view complaint, Flag& edited) {
    if (!dialogue_.Complain(complaint, box) && !box.Text().empty()) edited = True;
}

void ModifyProcedure::ShowOneAltitude() {
    Alt2Text.SetBackColor(Grey);
    Alt2Text.SetText("");
    Alt2Text.SetEnabled(false);
    Alt2Label.SetEnabled(false);
    Alt1Label.SetCaption("      Altitude");
}

void ModifyProcedure::AtAboveAtBelowOption_Click() {
    Alt2Text.SetBackColor(White);
    Alt2Text.SetEnabled(true);
    Alt2Label.SetEnabled(true);
    Alt2Label.SetForeColor(Black);
    Alt1Label.SetCaption(" Lower\r\n Altitude");
    Alt2Label.SetCaption(" Upper\r\n Altitude");
}

void ModifyProcedure::RwySpecificCheck_Click() {
    TransitionLabel1.SetCaption(RwySpecificCheck.Value() == 1 ? "Runway" : "Transition");
}

}  // namespace tarvex
