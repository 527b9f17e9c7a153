#include "geometry/lat_long_form.h"

#include <string>
#include <string_view>
#include <utility>

#include "geometry/text_rules.h"

namespace tarvex {

namespace {

constexpr std::string_view NoLatDegrees =
    "You must type in the Latitude degrees.\r\n                  Please correct.";
constexpr std::string_view NoLongDegrees =
    "You must type in the Longitude degrees.\r\n                   Please correct.";
constexpr std::string_view Negative = "Enter positive numbers and select the hemisphere please.";

std::string_view OrNegative(std::string_view complaint, const TextBox& box) {
    return complaint.empty() && LeadingNumber(box.Text()) < 0 ? Negative : complaint;
}

// What is wrong with the boxes of an axis, its minutes behind its degrees.
std::pair<std::string_view, TextBox&> ComplaintOf(const CoordinateGroup& group, std::string_view whenEmpty) {
    if (group.degrees.Text().empty()) return {whenEmpty, group.degrees};
    const std::string_view complaint = OrNegative(group.DegreesComplaint(), group.degrees);
    if (!complaint.empty()) return {complaint, group.degrees};
    return {OrNegative(group.MinutesComplaint(), group.minutes), group.minutes};
}

std::string DecimalText(const CoordinateGroup& group) {
    const std::string decimal = NumberText(group.Magnitude());
    return group.negative.Value() ? "-" + decimal : decimal;
}

}  // namespace

LatLongForm::LatLongForm(FormHost& host, Dialogue& dialogue, Clipboard& clipboard, ArcVariables& variables)
    : Form(host, "LatLongForm", "Lat/Long Centerpoint"),
      dialogue_(dialogue),
      variables_(variables),
      positions_(Latitude, Longitude, DoneCommand, clipboard, dialogue, [this] { return HeldPosition(); }) {
    NorthOption.SelectAtFirst();
    EastOption.SelectAtFirst();
    SetTips({{DLatCenterText, "Latitude of the centre: whole degrees, 0 to 90"},
             {MLatCenterText, "Latitude of the centre: minutes below 60, with decimals"},
             {DLongCenterText, "Longitude of the centre: whole degrees, 0 to 180"},
             {MLongCenterText, "Longitude of the centre: minutes below 60, with decimals"}});
    DLatCenterText.OnLostFocus = [this] { DLatCenterText_LostFocus(); };
    MLatCenterText.OnLostFocus = [this] { MLatCenterText_LostFocus(); };
    DLongCenterText.OnLostFocus = [this] { DLongCenterText_LostFocus(); };
    MLongCenterText.OnLostFocus = [this] { MLongCenterText_LostFocus(); };
    DoneCommand.OnClick = [this] { DoneCommand_Click(); };
    OopsCommand.OnClick = [this] { OopsCommand_Click(); };
}

void LatLongForm::MLatCenterText_LostFocus() {
    // Unlike the minutes of longitude, those of latitude are not left empty, and must be a number above all.
    const bool isNumber = IsNumberText(MLatCenterText.Text());
    dialogue_.Complain(isNumber ? Latitude.MinutesComplaint() : EnterOnlyNumbers, MLatCenterText);
}

void LatLongForm::DoneCommand_Click() {
    if (!IsComplete(Latitude, NoLatDegrees) || !IsComplete(Longitude, NoLongDegrees)) return;
    variables_.ArcCenterLat = DecimalText(Latitude);
    variables_.ArcCenterLong = DecimalText(Longitude);
    if (OnDone) OnDone();
    Unload();
}

bool LatLongForm::IsComplete(const CoordinateGroup& group, std::string_view whenEmpty) {
    const auto [complaint, box] = ComplaintOf(group, whenEmpty);
    return !dialogue_.Complain(complaint, box);
}

std::optional<Position> LatLongForm::HeldPosition() const {
    if (!ComplaintOf(Latitude, NoLatDegrees).first.empty()) return std::nullopt;
    if (!ComplaintOf(Longitude, NoLongDegrees).first.empty()) return std::nullopt;
    return Position{Latitude.Coordinate(), Longitude.Coordinate()};
}

}  // namespace tarvex
