#pragma once

#include "toolkit/form.h"
#include "toolkit/simple_controls.h"

namespace tarvex {

class Program;

// Takes the centre of an arc by hand, for the ARC designer. Degrees and minutes are magnitudes; the options
// carry the signs.
class LatLongForm : public Form {
  public:
    explicit LatLongForm(Program& program);

    Label Label1{*this, "Label1", "D       M  Latitude"};
    TextBox DLatCenterText{*this, "DLatCenterText", 2, 0};
    TextBox MLatCenterText{*this, "MLatCenterText", 9, 3};
    Label Label2{*this, "Label2", "D       M  Longitude"};
    TextBox DLongCenterText{*this, "DLongCenterText", 3, 4};
    TextBox MLongCenterText{*this, "MLongCenterText", 10, 5};
    Frame Frame1{*this, "Frame1", ""};
    OptionButton NorthOption{Frame1, "NorthOption", "North Lat", 6};
    OptionButton SouthOption{Frame1, "SouthOption", "South Lat", 7};
    Frame Frame2{*this, "Frame2", ""};
    OptionButton EastOption{Frame2, "EastOption", "East Long", 8};
    OptionButton WestOption{Frame2, "WestOption", "West Long", 9};
    Button DoneCommand{*this, "DoneCommand", "Done", 1};
    Button OopsCommand{*this, "OopsCommand", "  Oops   Exit Back", 2, Boxes::Dropped};

    Button* WayOut() override { return &OopsCommand; }

    void DLatCenterText_LostFocus();
    void MLatCenterText_LostFocus();
    void DLongCenterText_LostFocus();
    void MLongCenterText_LostFocus();
    void DoneCommand_Click();
    void OopsCommand_Click();

  private:
    // Whether all boxes make up a position; shows the first complaint and moves the focus there if not.
    bool PositionIsComplete();

    Program& program_;
};

}  // namespace tarvex
