#pragma once

#include <functional>
#include <optional>
#include <string>

#include "geometry/position.h"
#include "geometry/rhumb_line.h"
#include "geometry/tool_variables.h"
#include "toolkit/dialogue.h"
#include "toolkit/form.h"
#include "toolkit/simple_controls.h"

namespace tarvex {

// Derives a waypoint from a known point, a true course and a distance, for whoever opened it.
class CreateWaypointForm : public Form {
  public:
    CreateWaypointForm(FormHost& host, Dialogue& dialogue, StartPointVariables& variables);

    Frame Frame1{*this, "Frame1", "Starting Point"};
    Button NavaidCommand{*this, "NavaidCommand", "", 2};
    Label Label1{*this, "Label1", "Navaid"};
    Button FixCommand{*this, "FixCommand", "", 3};
    Label Label2{*this, "Label2", "Fix"};
    Button RunwayCommand{*this, "RunwayCommand", "", 4};
    Label Label3{*this, "Label3", "Airport"};
    Label SelectedText{*this, "SelectedText", ""};
    Label Label4{*this, "Label4", "True       Course"};
    TextBox TrueCourseText{*this, "TrueCourseText", 3, 5};  // degrees
    Label Label5{*this, "Label5", "Distance"};
    TextBox DistText{*this, "DistText", 4, 6};  // nautical miles
    Label Label6{*this, "Label6", "Waypoint ID"};
    TextBox WaypointIDText{*this, "WaypointIDText", 5, 7};
    Button TransferCommand{*this, "TransferCommand", "Transfer Waypoint Data", 1};
    Button Command1{*this, "Command1", "    Oops    Go Back", 0, Boxes::Dropped};

    void Form_Load() override;
    Button* WayOut() override { return &Command1; }

    void NavaidCommand_Click() { OnPickStart("CN"); }
    void FixCommand_Click() { OnPickStart("CF"); }
    void RunwayCommand_Click() { OnPickStart("CAP"); }
    void TrueCourseText_LostFocus();
    void DistText_LostFocus();
    void TransferCommand_Click();
    void Command1_Click();

    // A start point is wanted by a search of this kind; TakeStart gets it, once. `picked` is what the screen
    // says of it.
    std::function<void(std::string_view searchKind)> OnPickStart;
    void TakeStart(const Position& start, std::string_view picked);

    // The waypoint is derived, and the other way out is taken.
    std::function<void(const std::string& name, const PositionTexts& position)> OnTransfer;
    std::function<void()> OnGoBack;

    // The point that start, course and distance lead to; nothing while one of them is missing or no number,
    // or where a pole is in the way.
    std::optional<RhumbPoint> Derived() const;

  private:
    // Shows its message and moves the focus when it fails.
    bool InputIsComplete();

    Dialogue& dialogue_;
    StartPointVariables& variables_;
};

}  // namespace tarvex
