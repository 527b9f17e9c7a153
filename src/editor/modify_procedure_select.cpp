#include <cmath>

#include "editor/modify_procedure.h"
#include "geometry/text_rules.h"

namespace tarvex {

namespace {

std::string ShownDegrees(const std::string& degrees) {
    const double number = LeadingNumber(degrees);
    return number > 0 ? degrees : SignedNumberText(std::abs(number));
}

// Leaving the box runs its rule, which marks the axis as edited when it accepts what is shown.
void VisitFromList(ModifyProcedure& form, TextBox& box) {
    box.SetFocus();
    form.WaypointList.SetFocus();
}

void ShowCoordinate(ModifyProcedure& form, const CoordinateGroup& group, const std::string& decimal,
                    const std::string& degrees, const std::string& minutes) {
    group.Fill(ShownDegrees(degrees), minutes, LeadingNumber(decimal) < 0);
    VisitFromList(form, group.degrees);
}

void ShowAltitudes(ModifyProcedure& form, const WaypointRecord& row) {
    if (LeadingNumber(row.Altitude1) == 0) {
        form.Alt1Text.SetText("");
    } else {
        form.Alt1Text.SetText(row.Altitude1);
        form.Alt1Text.SetBackColor(White);
    }
    if (LeadingNumber(row.Altitude2) == 0) {
        form.Alt2Text.SetText("");
    } else {
        (form.Alt1Text.Text().empty() ? form.Alt1Text : form.Alt2Text).SetText(row.Altitude2);
    }
}

void ShowFix(ModifyProcedure& form, const WaypointRecord& row) {
    form.FixNameText.SetText(row.WaypointID);
    form.FixNameText.SetEnabled(true);
    form.NAVIDText.SetText("");
    form.FreqText.SetText("");
    form.NAVIDText.SetEnabled(false);
    form.FreqText.SetEnabled(false);
    form.NAVIDText.SetBackColor(Grey);
    form.FreqText.SetBackColor(Grey);
    form.FixNameText.SetBackColor(White);
}

void ShowNavaid(ModifyProcedure& form, const WaypointRecord& row) {
    form.FixNameText.SetText("");
    form.FixNameText.SetEnabled(false);
    form.NAVIDText.SetEnabled(true);
    form.FreqText.SetEnabled(true);
    form.FixNameText.SetBackColor(Grey);
    form.NAVIDText.SetBackColor(White);
    form.FreqText.SetBackColor(White);
    form.NAVIDText.SetText(row.WaypointID);
    form.FreqText.SetText(Left(row.Frequency, 6));
}

// The option that stands for the restriction of a row; null when its code is unknown.
OptionButton* RestrictionOption(ModifyProcedure& form, const WaypointRecord& row) {
    switch (row.RestrictionType.View().front()) {
        case '0':
            return LeadingNumber(row.Altitude1) > 0 ? &form.AtOption : &form.NoRestrictionOption;
        case '1':
            return &form.AtAboveOption;
        case '2':
            return &form.AtBelowOption;
        case '3':
            return &form.AtAboveAtBelowOption;
        default:
            return nullptr;
    }
}

}  // namespace

void ModifyProcedure::WaypointList_Click() {
    if (WaypointList.Text().empty()) return;
    MoveUp.SetEnabled(true);
    MoveDown.SetEnabled(true);
    AddWaypointCommand.SetEnabled(false);
    DeleteWaypointCommand.SetEnabled(true);
    ModifyWaypointCommand.SetEnabled(true);
    ClearDataCommand.SetEnabled(true);

    const auto index = static_cast<std::size_t>(WaypointList.ListIndex());
    const WaypointRecord& row = state_.WaypointTable.at(index);
    ShowCoordinate(*this, Latitude, row.LatDecimal, row.LatDegrees, row.LatMinutes);
    ShowCoordinate(*this, Longitude, row.LongDecimal, row.LongDegrees, row.LongMinutes);
    ShowAltitudes(*this, row);
    AirspeedText.SetText(LeadingNumber(row.Airspeed) == 0 ? std::string_view() : row.Airspeed.View());
    if (LeadingNumber(row.Frequency) == 0) {
        ShowFix(*this, row);
    } else {
        ShowNavaid(*this, row);
    }
    // Last, because the rule of every option but the band's empties the upper altitude.
    if (OptionButton* option = RestrictionOption(*this, row)) option->Select();
    shown_ = HeldByBoxes();
}

}  // namespace tarvex
