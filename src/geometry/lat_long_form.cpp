#include "geometry/lat_long_form.h"

#include <string>
#include <string_view>

#include "geometry/coordinate_rules.h"
#include "geometry/text_rules.h"
#include "startup/program.h"

namespace tarvex {

namespace {

constexpr std::string_view NoLatDegrees =
    "You must type in the Latitude degrees.\r\n                  Please correct.";
constexpr std::string_view NoLongDegrees =
    "You must type in the Longitude degrees.\r\n                   Please correct.";
constexpr std::string_view Negative = "Enter positive numbers and select the hemisphere please.";

// Unlike the minutes of longitude, those of latitude are not left empty, and must be a number above all.
std::string_view LatMinutesComplaint(std::string_view degrees, std::string_view minutes) {
    if (!IsNumberText(minutes)) return EnterOnlyNumbers;
    return MinutesComplaint(LatitudeAxis, degrees, minutes);
}

// What keeps a pair of boxes from being taken; empty minutes count as 0.
struct PairComplaint {
    std::string_view degrees;
    std::string_view minutes;
};

PairComplaint ComplaintOf(const CoordinateAxis& axis, std::string_view degrees, std::string_view minutes,
                          std::string_view whenEmpty) {
    const auto orNegative = [](std::string_view complaint, std::string_view text) {
        return complaint.empty() && LeadingNumber(text) < 0 ? Negative : complaint;
    };
    if (degrees.empty()) return {whenEmpty, {}};
    return {orNegative(DegreesComplaint(axis, degrees), degrees),
            orNegative(MinutesComplaint(axis, degrees, minutes), minutes)};
}

std::string DecimalDegrees(const TextBox& degrees, const TextBox& minutes, bool negative) {
    const std::string decimal =
        NumberText(LeadingNumber(degrees.Text()) + LeadingNumber(minutes.Text()) / 60);
    return negative ? "-" + decimal : decimal;
}

}  // namespace

LatLongForm::LatLongForm(Program& program)
    : Form(program.host, "LatLongForm", "Lat/Long Centerpoint"), program_(program) {
    NorthOption.SelectAtFirst();
    EastOption.SelectAtFirst();
    DLatCenterText.OnLostFocus = [this] { DLatCenterText_LostFocus(); };
    MLatCenterText.OnLostFocus = [this] { MLatCenterText_LostFocus(); };
    DLongCenterText.OnLostFocus = [this] { DLongCenterText_LostFocus(); };
    MLongCenterText.OnLostFocus = [this] { MLongCenterText_LostFocus(); };
    DoneCommand.OnClick = [this] { DoneCommand_Click(); };
    OopsCommand.OnClick = [this] { OopsCommand_Click(); };
}

void LatLongForm::DLatCenterText_LostFocus() {
    program_.Complain(DegreesComplaint(LatitudeAxis, DLatCenterText.Text()), DLatCenterText);
}

void LatLongForm::MLatCenterText_LostFocus() {
    program_.Complain(LatMinutesComplaint(DLatCenterText.Text(), MLatCenterText.Text()), MLatCenterText);
}

void LatLongForm::DLongCenterText_LostFocus() {
    program_.Complain(DegreesComplaint(LongitudeAxis, DLongCenterText.Text()), DLongCenterText);
}

void LatLongForm::MLongCenterText_LostFocus() {
    program_.Complain(MinutesComplaint(LongitudeAxis, DLongCenterText.Text(), MLongCenterText.Text()),
                      MLongCenterText);
}

void LatLongForm::DoneCommand_Click() {
    AddARC* designer = program_.addARC.Get();
    if (designer != nullptr) {
        if (!PositionIsComplete()) return;
        program_.state.ArcCenterLat = DecimalDegrees(DLatCenterText, MLatCenterText, SouthOption.Value());
        program_.state.ArcCenterLong = DecimalDegrees(DLongCenterText, MLongCenterText, WestOption.Value());
        designer->ArcLabelText.SetText("ARC");
        designer->Label4.SetVisible(true);
        designer->ArcLabelText.SetVisible(true);
        designer->Frame2.SetVisible(false);
    }
    program_.latLongForm.Unload();
}

void LatLongForm::OopsCommand_Click() {
    program_.latLongForm.Unload();
}

bool LatLongForm::PositionIsComplete() {
    const PairComplaint lat =
        ComplaintOf(LatitudeAxis, DLatCenterText.Text(), MLatCenterText.Text(), NoLatDegrees);
    const PairComplaint lon =
        ComplaintOf(LongitudeAxis, DLongCenterText.Text(), MLongCenterText.Text(), NoLongDegrees);
    return !program_.Complain(lat.degrees, DLatCenterText) &&
           !program_.Complain(lat.minutes, MLatCenterText) &&
           !program_.Complain(lon.degrees, DLongCenterText) &&
           !program_.Complain(lon.minutes, MLongCenterText);
}

}  // namespace tarvex
