#include "geometry/create_waypoint_form.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "geometry/coordinate_rules.h"
#include "geometry/rhumb_line_step.h"
#include "geometry/text_rules.h"
#include "startup/program.h"

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

CreateWaypointForm::CreateWaypointForm(Program& program)
    : Form(program.host, "CreateWaypointForm", "Create a Waypoint"), program_(program) {
    for (Control* control : std::initializer_list<Control*>{&NavaidCommand, &Label1, &FixCommand, &Label2,
                                                            &RunwayCommand, &Label3}) {
        control->PutInto(Frame1);
    }
    NavaidCommand.OnClick = [this] { NavaidCommand_Click(); };
    FixCommand.OnClick = [this] { FixCommand_Click(); };
    RunwayCommand.OnClick = [this] { RunwayCommand_Click(); };
    TrueCourseText.OnLostFocus = [this] { TrueCourseText_LostFocus(); };
    DistText.OnLostFocus = [this] { DistText_LostFocus(); };
    TransferCommand.OnClick = [this] { TransferCommand_Click(); };
    Command1.OnClick = [this] { Command1_Click(); };
}

void CreateWaypointForm::Form_Load() {
    program_.state.StartPointSelected = False;
}

void CreateWaypointForm::NavaidCommand_Click() {
    OpenSearch(program_, "CN");
}

void CreateWaypointForm::FixCommand_Click() {
    OpenSearch(program_, "CF");
}

void CreateWaypointForm::RunwayCommand_Click() {
    OpenSearch(program_, "CAP");
}

void CreateWaypointForm::TrueCourseText_LostFocus() {
    program_.Complain(CourseComplaint(TrueCourseText.Text()), TrueCourseText);
}

void CreateWaypointForm::DistText_LostFocus() {
    program_.Complain(NumberComplaint(DistText.Text(), NumbersOnly), DistText);
}

void CreateWaypointForm::TransferCommand_Click() {
    if (!InputIsComplete()) return;
    const SharedState& state = program_.state;
    const RhumbPoint start = RhumbPointAt(state.StartLat, state.StartLong);
    const double distance = StrictNumber(DistText.Text()) * RadiansPerNauticalMile;
    const double course = StrictNumber(TrueCourseText.Text()) * RadiansPerDegree;
    if (!RhumbLineStep(program_, start.latitude, start.longitude, distance, course,
                       StepDelivery::EditorBoxes)) {
        program_.Ask({.prompt = std::string(ReachesPole)});
        return;
    }
    program_.modifyProcedure.Get()->FixNameText.SetText(Upper(WaypointIDText.Text()));
    program_.createWaypointForm.Unload();
}

void CreateWaypointForm::Command1_Click() {
    program_.modifyProcedure.Get()->ClearDataCommand_Click();
    program_.createWaypointForm.Unload();
}

bool CreateWaypointForm::InputIsComplete() {
    const std::pair<TextBox*, std::string_view> boxes[] = {
        {&TrueCourseText, NoCourse}, {&DistText, NoDistance}, {&WaypointIDText, NoWaypointID}};
    for (const auto& [box, complaint] : boxes) {
        if (box->Text().empty()) return !program_.Complain(complaint, *box);
    }
    if (program_.state.StartPointSelected != False) return true;
    program_.Ask({.prompt = std::string(NoStartPoint)});
    return false;
}

}  // namespace tarvex
