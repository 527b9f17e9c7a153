#pragma once

#include <functional>
#include <string>
#include <vector>

#include "geometry/arc_layout.h"
#include "geometry/position.h"
#include "geometry/tool_variables.h"
#include "toolkit/dialogue.h"
#include "toolkit/form_host.h"
#include "toolkit/simple_controls.h"

namespace tarvex {

class LatLongForm;

// The ARC designer: lays out an arc around a centre as a chain of waypoints, for whoever opened it. The
// centre is a navaid that its opener finds, or comes from LatLongForm.
class AddARC : public Form {
  public:
    // `magVarSide`: "W" or "E", the side of the variation that was used last.
    AddARC(FormHost& host, Dialogue& dialogue, ArcVariables& variables, std::string& magVarSide,
           FormSlot<LatLongForm>& latLongForm);

    Label Label1{*this, "Label1", "ARC Start"};
    TextBox ArcStartText{*this, "ArcStartText", 3, 0};  // radial, degrees
    Label Label2{*this, "Label2", "ARC End"};
    TextBox ArcEndText{*this, "ArcEndText", 3, 1};
    Label Label3{*this, "Label3", "ARC Radius"};
    TextBox ArcRadiusText{*this, "ArcRadiusText", 2, 2};  // nautical miles
    Frame Frame2{*this, "Frame2", "Magnetic Variation"};
    TextBox MagVarText{*this, "MagVarText", 4, 3};  // degrees
    OptionButton EastVarOption{Frame2, "EastVarOption", "East", 10};
    OptionButton WestVarOption{Frame2, "WestVarOption", "West", 11};
    Frame Frame1{*this, "Frame1", "Turn"};
    OptionButton RightOption{Frame1, "RightOption", "Right", 5};
    OptionButton LeftOption{Frame1, "LeftOption", "Left", 6};
    Button Command1{*this, "Command1", "Select Navaid", 9};
    Button LatLongCommand{*this, "LatLongCommand", "Use Lat/Lon", 12};
    Label Label4{*this, "Label4", "ARC Label Will Be"};
    TextBox ArcLabelText{*this, "ArcLabelText", TextBox::NoLimit, 4};
    Button TransferCommand{*this, "TransferCommand", "Transfer Waypoint Data", 8};
    Button ExitCommand{*this, "ExitCommand", "No ARC Just Exit", 7, Boxes::Dropped};

    void Form_Load() override;
    Button* WayOut() override { return &ExitCommand; }

    void ArcStartText_LostFocus();
    void ArcEndText_LostFocus();
    void ArcRadiusText_LostFocus();
    void MagVarText_LostFocus();
    void Command1_Click() { OnSelectNavaid(); }
    void LatLongCommand_Click();
    void TransferCommand_Click();
    void ExitCommand_Click() { Unload(); }

    struct Point {
        std::string name;
        PositionTexts position;
    };

    // The navaid to be the centre is wanted; TakeCenter gets it.
    std::function<void()> OnSelectNavaid;
    void TakeCenter(std::string_view label, const Position& center);

    // How many points can be taken still, and who takes those of the arc in flying order.
    std::function<int()> RoomForPoints;
    std::function<void(const std::vector<Point>& points)> OnPoints;

    // The arc that the boxes describe as they are, empty ones as 0.
    ArcRequest Request() const;

  private:
    // Each shows its message and moves the focus when it fails.
    bool BoxesAreFilled();
    bool VariationIsMeant();
    bool TurnIsChosen();
    bool Accept(const ArcLayout& arc);

    void ShowLabel(std::string_view label);

    Dialogue& dialogue_;
    ArcVariables& variables_;
    std::string& magVarSide_;
    FormSlot<LatLongForm>& latLongForm_;
    bool NavaidCenter = true;  // false for good once LatLongCommand was pressed
};

}  // namespace tarvex
