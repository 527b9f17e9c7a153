#include "geometry/add_arc.h"

#include <string>
#include <string_view>

#include "geometry/coordinate_rules.h"
#include "geometry/rhumb_line_step.h"
#include "geometry/text_rules.h"
#include "startup/program.h"

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

std::string TooManyRows(std::size_t needed, std::size_t free) {
    return "This ARC needs " + std::to_string(needed) + " rows, and only " + std::to_string(free) + " of " +
           std::to_string(MaxWaypoints) + " are free.";
}

std::string_view RadialComplaint(std::string_view text) {
    return LeadingNumber(text) > 360 ? RadialTooLarge : NumberComplaint(text);
}

}  // namespace

AddARC::AddARC(Program& program) : Form(program.host, "AddARC", "ARC Designer"), program_(program) {
    MagVarText.PutInto(Frame2);
    ArcLabelText.SetLocked(true);
    ArcLabelText.SetVisible(false);
    Label4.SetVisible(false);
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
    (program_.state.MagVarSide == "W" ? WestVarOption : EastVarOption).Select();
    NavaidCenter = true;
}

void AddARC::ArcStartText_LostFocus() {
    program_.Complain(RadialComplaint(ArcStartText.Text()), ArcStartText);
}

void AddARC::ArcEndText_LostFocus() {
    program_.Complain(RadialComplaint(ArcEndText.Text()), ArcEndText);
}

void AddARC::ArcRadiusText_LostFocus() {
    program_.Complain(NumberComplaint(ArcRadiusText.Text()), ArcRadiusText);
}

void AddARC::MagVarText_LostFocus() {
    program_.Complain(NumberComplaint(MagVarText.Text()), MagVarText);
}

void AddARC::Command1_Click() {
    OpenSearch(program_, "A");
}

void AddARC::LatLongCommand_Click() {
    program_.latLongForm.Show();
    NavaidCenter = false;
}

void AddARC::TransferCommand_Click() {
    if (!BoxesAreFilled() || !VariationIsMeant() || !TurnIsChosen()) return;
    const ArcLayout arc = LayOutArc(Request());
    if (!Accept(arc)) return;

    program_.state.ArcPointNumber = 1;
    for (const ArcPoint& point : arc.points) {
        DeliverPosition(program_, point.position, StepDelivery::NewRow);
    }
    program_.state.MagVarSide = WestVarOption.Value() ? "W" : "E";
    program_.addARC.Unload();
}

void AddARC::ExitCommand_Click() {
    program_.addARC.Unload();
}

bool AddARC::BoxesAreFilled() {
    if (ArcLabelText.Text().empty()) return !program_.Complain(NoCenterpoint, ArcStartText);
    for (const TextBox* box : {&ArcStartText, &ArcEndText, &ArcRadiusText}) {
        if (box->Text().empty()) return !program_.Complain(BoxesMissing, ArcStartText);
    }
    return true;
}

bool AddARC::VariationIsMeant() {
    if (!MagVarText.Text().empty() || !NavaidCenter) return true;
    const MessageAnswer answer =
        program_.Ask({.prompt = std::string(IsVariationZero), .buttons = MessageButtons::YesNo});
    if (answer == MessageAnswer::Yes) {
        MagVarText.SetText("0");
        return true;
    }
    MagVarText.SetFocus();
    return false;
}

bool AddARC::TurnIsChosen() {
    if (RightOption.Value() || LeftOption.Value()) return true;
    return !program_.Complain(NoTurnDirection, MagVarText);
}

bool AddARC::Accept(const ArcLayout& arc) {
    if (arc.fault == ArcFault::NoLength) return !program_.Complain(NoLength, ArcEndText);
    if (arc.fault == ArcFault::ReachesPole) {
        program_.Ask({.prompt = std::string(ReachesPole)});
        return false;
    }
    const auto free = static_cast<std::size_t>(MaxWaypoints - program_.state.WaypointCount);
    if (arc.points.size() <= free) return true;
    program_.Ask({.prompt = TooManyRows(arc.points.size(), free)});
    return false;
}

ArcRequest AddARC::Request() const {
    return {
        .centerLat = LeadingNumber(program_.state.ArcCenterLat),
        .centerLong = LeadingNumber(program_.state.ArcCenterLong),
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
