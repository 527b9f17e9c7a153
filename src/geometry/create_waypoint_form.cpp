#include "geometry/create_waypoint_form.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "geometry/coordinate_rules.h"
#include "geometry/text_rules.h"

namespace tarvex {

namespace {

constexpr std::string_view NumbersOnly =
    "Enter only numbers please.\r\n                       Please correct.";
constexpr std::string_view CourseTooLarge =
    "Magnetic course must be no more than 360.\r\n                       Please correct.";
constexpr std::string_view NoCourse = "You must type in a Ture Course.\r\n                Please correct.";
constexpr std::string_view NoDistance = "You must type in a Distance.\r\n          Please correct.";
constexpr std::string_view NoWaypointID = "You must type in a Waypoint ID.\r\n            Please correct.";
constexpr std::string_view NoStartPoint = "You must pick a starting point.\r\n            Please correct.";
constexpr std::string_view ReachesPole =
    "This distance reaches or passes a pole.\r\n                  Please correct.";

std::string_view CourseComplaint(std::string_view text) {
    const bool tooLarge = IsNumberText(text) && StrictNumber(text) > 360;
    return tooLarge ? CourseTooLarge : NumberComplaint(text, NumbersOnly);
}

}  // namespace

CreateWaypointForm::CreateWaypointForm(FormHost& host, Dialogue& dialogue, StartPointVariables& variables)
    : Form(host, "CreateWaypointForm", "Create a Waypoint"), dialogue_(dialogue), variables_(variables) {
    for (Control* control : std::initializer_list<Control*>{&NavaidCommand, &Label1, &FixCommand, &Label2,
                                                            &RunwayCommand, &Label3}) {
        control->PutInto(Frame1);
    }
    SetTips({{TrueCourseText, "Course from the starting point: degrees true, 0 to 360"},
             {DistText, "Distance from the starting point: nautical miles, up to 9999"},
             {WaypointIDText, "Name of the new waypoint: up to 5 characters"}});
    NavaidCommand.OnClick = [this] { NavaidCommand_Click(); };
    FixCommand.OnClick = [this] { FixCommand_Click(); };
    RunwayCommand.OnClick = [this] { RunwayCommand_Click(); };
    TrueCourseText.OnLostFocus = [this] { TrueCourseText_LostFocus(); };
    DistText.OnLostFocus = [this] { DistText_LostFocus(); };
    TransferCommand.OnClick = [this] { TransferCommand_Click(); };
    Command1.OnClick = [this] { Command1_Click(); };
}

void CreateWaypointForm::Form_Load() {
    variables_.StartPointSelected = False;
}

void CreateWaypointForm::TakeStart(const Position& start, std::string_view picked) {
    variables_.StartLat = LeadingNumber(NumberText(start.latitude));
    variables_.StartLong = LeadingNumber(NumberText(start.longitude));
    variables_.StartPointSelected = True;
    SelectedText.SetCaption(picked);
    for (Control* control : std::initializer_list<Control*>{&Label1, &Label2, &Label3, &NavaidCommand,
                                                            &FixCommand, &RunwayCommand}) {
        control->SetEnabled(false);
    }
    TrueCourseText.SetFocus();
}

void CreateWaypointForm::TrueCourseText_LostFocus() {
    dialogue_.Complain(CourseComplaint(TrueCourseText.Text()), TrueCourseText);
}

void CreateWaypointForm::DistText_LostFocus() {
    dialogue_.Complain(NumberComplaint(DistText.Text(), NumbersOnly), DistText);
}

void CreateWaypointForm::TransferCommand_Click() {
    if (!InputIsComplete()) return;
    const std::optional<RhumbPoint> derived = Derived();
    if (!derived) {
        dialogue_.Ask({.prompt = std::string(ReachesPole)});
        return;
    }
    OnTransfer(Upper(WaypointIDText.Text()), PositionTextsOf(*derived));
    Unload();
}

std::optional<RhumbPoint> CreateWaypointForm::Derived() const {
    const bool complete = variables_.StartPointSelected != False && IsNumberText(DistText.Text()) &&
                          IsNumberText(TrueCourseText.Text());
    if (!complete) return std::nullopt;
    return RhumbLineStep(RhumbPointAt(variables_.StartLat, variables_.StartLong),
                         StrictNumber(DistText.Text()) * RadiansPerNauticalMile,
                         StrictNumber(TrueCourseText.Text()) * RadiansPerDegree);
}

void CreateWaypointForm::Command1_Click() {
    OnGoBack();
    Unload();
}

bool CreateWaypointForm::InputIsComplete() {
    const std::pair<TextBox*, std::string_view> boxes[] = {
        {&TrueCourseText, NoCourse}, {&DistText, NoDistance}, {&WaypointIDText, NoWaypointID}};
    for (const auto& [box, complaint] : boxes) {
        if (box->Text().empty()) return !dialogue_.Complain(complaint, *box);
    }
    if (variables_.StartPointSelected != False) return true;
    dialogue_.Ask({.prompt = std::string(NoStartPoint)});
    return false;
}

}  // namespace tarvex
