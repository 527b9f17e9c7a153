#include "editor/modify_procedure.h"
#include "geometry/coordinate_rules.h"
#include "geometry/text_rules.h"
#include "startup/program.h"

namespace tarvex {

namespace {

void PutIntoCapitals(TextBox& box) {
    box.SetText(Upper(box.Text()));
}

void RequireNumber(Program& program, TextBox& box) {
    program.Complain(NumberComplaint(box.Text()), box);
}

void ShowOneAltitude(ModifyProcedure& form) {
    form.Alt2Text.SetBackColor(Grey);
    form.Alt2Text.SetText("");
    form.Alt2Text.SetEnabled(false);
    form.Alt2Label.SetEnabled(false);
    form.Alt1Label.SetCaption("      Altitude");
}

}  // namespace

void ModifyProcedure::ConnectFields() {
    FixNameText.OnLostFocus = [this] { FixNameText_lostfocus(); };
    NAVIDText.OnLostFocus = [this] { NAVIDText_LostFocus(); };
    FreqText.OnLostFocus = [this] { FreqText_LostFocus(); };
    Alt1Text.OnLostFocus = [this] { Alt1Text_LostFocus(); };
    Alt2Text.OnLostFocus = [this] { Alt2Text_LostFocus(); };
    AirspeedText.OnChange = [this] { AirspeedText_Change(); };
    NoRestrictionOption.OnClick = [this] { NorestrictionOption_Click(); };
    AtOption.OnClick = [this] { AtOption_Click(); };
    AtBelowOption.OnClick = [this] { AtBelowOption_Click(); };
    AtAboveOption.OnClick = [this] { AtAboveOption_Click(); };
    AtAboveAtBelowOption.OnClick = [this] { AtAboveAtBelowOption_Click(); };
    RwySpecificCheck.OnClick = [this] { RwySpecificCheck_Click(); };
}

void ModifyProcedure::FixNameText_lostfocus() {
    PutIntoCapitals(FixNameText);
}

void ModifyProcedure::NAVIDText_LostFocus() {
    PutIntoCapitals(NAVIDText);
}

void ModifyProcedure::FreqText_LostFocus() {
    RequireNumber(program_, FreqText);
}

void ModifyProcedure::Alt1Text_LostFocus() {
    RequireNumber(program_, Alt1Text);
}

void ModifyProcedure::Alt2Text_LostFocus() {
    RequireNumber(program_, Alt2Text);
}

void ModifyProcedure::AirspeedText_Change() {
    RequireNumber(program_, AirspeedText);
}

void ModifyProcedure::NorestrictionOption_Click() {
    ShowOneAltitude(*this);
}

void ModifyProcedure::AtOption_Click() {
    ShowOneAltitude(*this);
}

void ModifyProcedure::AtBelowOption_Click() {
    ShowOneAltitude(*this);
}

void ModifyProcedure::AtAboveOption_Click() {
    ShowOneAltitude(*this);
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
