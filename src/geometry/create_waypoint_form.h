#pragma once

#include "toolkit/form.h"
#include "toolkit/simple_controls.h"

namespace tarvex {

class Program;

// Derives a waypoint from a known point, a true course and a distance. The result goes into the editor's
// boxes; the editor's add button makes the row.
class CreateWaypointForm : public Form {
  public:
    explicit CreateWaypointForm(Program& program);

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

    void NavaidCommand_Click();
    void FixCommand_Click();
    void RunwayCommand_Click();
    void TrueCourseText_LostFocus();
    void DistText_LostFocus();
    void TransferCommand_Click();
    void Command1_Click();

  private:
    // Shows its message and moves the focus when it fails.
    bool InputIsComplete();

    Program& program_;
};

}  // namespace tarvex
