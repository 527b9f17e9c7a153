#include "geometry/add_arc.h"

#include <string>
#include <string_view>

#include "geometry/coordinate_rules.h"
#include "geometry/lat_long_form.h"
#include "geometry/text_rules.h"

namespace tarvex {

namespace {

constexpr std::string_view RadialTooLarge =
    "This value must be less than or equal to 360.\r\n                       Please correct.";
constexpr std::string_view NoCenterpoint =
    "You have not selected a centerpoint.\r\n                   Please Correct.";
constexpr std::string_view BoxesMissing =
    "All input boxes are not filled out.\r\n           Please Complete.";
constexpr std::string_view IsVariationZero = "Is the magnetic variation really zero?";
constexpr std::string_view NoTurnDirection =
    "You have not selected a turn direction.\r\n                  Please Correct.";
constexpr std::string_view NoLength = "This ARC has no length.\r\n        Please correct.";
constexpr std::string_view ReachesPole =
    "This ARC reaches or passes a pole.\r\n               Please correct.";

std::string TooManyRows(std::size_t needed, int free) {
    return "This ARC needs " + std::to_string(needed) + " rows, and only " + std::to_string(free) +
           " of 201 are free.";
}

std::string_view RadialComplaint(std::string_view text) {
    return LeadingNumber(text) > 360 ? RadialTooLarge : NumberComplaint(text);
}

}  // namespace

AddARC::AddARC(FormHost& host, Dialogue& dialogue, ArcVariables& variables, std::string& magVarSide,
               FormSlot<LatLongForm>& latLongForm)
    : Form(host, "AddARC", "ARC Designer"),
      dialogue_(dialogue),
      variables_(variables),
      magVarSide_(magVarSide),
      latLongForm_(latLongForm) {
    MagVarText.PutInto(Frame2);
    ArcLabelText.SetLocked(true);
    ArcLabelText.SetVisible(false);
    Label4.SetVisible(false);
    SetTips(
        {{ArcStartText, "Radial from the centre on which the arc begins: degrees magnetic, 0 to 360"},
         {ArcEndText, "Radial from the centre on which the arc ends: degrees magnetic, 0 to 360"},
         {ArcRadiusText, "Radius of the arc: nautical miles, up to 99"},
         {MagVarText, "Magnetic variation at the centre: degrees, up to 4 characters, its side beside it"},
         {ArcLabelText, "What the names of the arc's waypoints begin with; a number follows"}});
    ArcStartText.OnLostFocus = [this] { ArcStartText_LostFocus(); };
    ArcEndText.OnLostFocus = [this] { ArcEndText_LostFocus(); };
    ArcRadiusText.OnLostFocus = [this] { ArcRadiusText_LostFocus(); };
    MagVarText.OnLostFocus = [this] { MagVarText_LostFocus(); };
    Command1.OnClick = [this] { Command1_Click(); };
    LatLongCommand.OnClick = [this] { LatLongCommand_Click(); };
    TransferCommand.OnClick = [this] { TransferCommand_Click(); };
    ExitCommand.OnClick = [this] { ExitCommand_Click(); };
}

void AddARC::Form_Load() {
    (magVarSide_ == "W" ? WestVarOption : EastVarOption).Select();
    NavaidCenter = true;
}

void AddARC::ArcStartText_LostFocus() {
    dialogue_.Complain(RadialComplaint(ArcStartText.Text()), ArcStartText);
}

void AddARC::ArcEndText_LostFocus() {
    dialogue_.Complain(RadialComplaint(ArcEndText.Text()), ArcEndText);
}

void AddARC::ArcRadiusText_LostFocus() {
    dialogue_.Complain(NumberComplaint(ArcRadiusText.Text()), ArcRadiusText);
}

void AddARC::MagVarText_LostFocus() {
    dialogue_.Complain(NumberComplaint(MagVarText.Text()), MagVarText);
}

void AddARC::TakeCenter(std::string_view label, const Position& center) {
    variables_.ArcCenterLat = NumberText(center.latitude);
    variables_.ArcCenterLong = NumberText(center.longitude);
    ShowLabel(label);
}

void AddARC::ShowLabel(std::string_view label) {
    ArcLabelText.SetText(label);
    Label4.SetVisible(true);
    ArcLabelText.SetVisible(true);
}

void AddARC::LatLongCommand_Click() {
    latLongForm_.ShowAsToolOf(*this);
    latLongForm_.Get()->OnDone = [this] {
        ShowLabel("ARC");
        Frame2.SetVisible(false);
    };
    NavaidCenter = false;
}

void AddARC::TransferCommand_Click() {
    if (!BoxesAreFilled() || !VariationIsMeant() || !TurnIsChosen()) return;
    const ArcLayout arc = LayOutArc(Request());
    if (!Accept(arc)) return;

    std::vector<Point> points;
    variables_.ArcPointNumber = 1;
    for (const ArcPoint& point : arc.points) {
        points.push_back(
            {ArcLabelText.Text() + NumberText(variables_.ArcPointNumber), PositionTextsOf(point.position)});
        ++variables_.ArcPointNumber;
    }
    OnPoints(points);
    magVarSide_ = WestVarOption.Value() ? "W" : "E";
    Unload();
}

bool AddARC::BoxesAreFilled() {
    if (ArcLabelText.Text().empty()) return !dialogue_.Complain(NoCenterpoint, ArcStartText);
    for (const TextBox* box : {&ArcStartText, &ArcEndText, &ArcRadiusText}) {
        if (box->Text().empty()) return !dialogue_.Complain(BoxesMissing, ArcStartText);
    }
    return true;
}

bool AddARC::VariationIsMeant() {
    if (!MagVarText.Text().empty() || !NavaidCenter) return true;
    const MessageAnswer answer =
        dialogue_.Ask({.prompt = std::string(IsVariationZero), .buttons = MessageButtons::YesNo});
    if (answer == MessageAnswer::Yes) {
        MagVarText.SetText("0");
        return true;
    }
    MagVarText.SetFocus();
    return false;
}

bool AddARC::TurnIsChosen() {
    if (RightOption.Value() || LeftOption.Value()) return true;
    return !dialogue_.Complain(NoTurnDirection, MagVarText);
}

bool AddARC::Accept(const ArcLayout& arc) {
    if (arc.fault == ArcFault::NoLength) return !dialogue_.Complain(NoLength, ArcEndText);
    if (arc.fault == ArcFault::ReachesPole) {
        dialogue_.Ask({.prompt = std::string(ReachesPole)});
        return false;
    }
    const int free = RoomForPoints();
    if (std::ssize(arc.points) <= free) return true;
    dialogue_.Ask({.prompt = TooManyRows(arc.points.size(), free)});
    return false;
}

ArcRequest AddARC::Request() const {
    return {
        .centerLat = LeadingNumber(variables_.ArcCenterLat),
        .centerLong = LeadingNumber(variables_.ArcCenterLong),
        .start = LeadingNumber(ArcStartText.Text()),
        .end = LeadingNumber(ArcEndText.Text()),
        .radius = LeadingNumber(ArcRadiusText.Text()),
        .variation = LeadingNumber(MagVarText.Text()),
        .side = WestVarOption.Value() ? VariationSide::West : VariationSide::East,
        .turn = RightOption.Value() ? Turn::Right : Turn::Left,
        .closingPoint = NavaidCenter,
    };
}

}  // namespace tarvex
