#pragma once

#include <functional>

#include "geometry/coordinate_group.h"
#include "geometry/position_boxes.h"
#include "geometry/tool_variables.h"
#include "toolkit/dialogue.h"
#include "toolkit/form.h"
#include "toolkit/simple_controls.h"

namespace tarvex {

// Takes the centre of an arc by hand, for whoever opened it.
class LatLongForm : public Form {
  public:
    LatLongForm(FormHost& host, Dialogue& dialogue, Clipboard& clipboard, ArcVariables& variables);

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
    std::vector<Shortcut> Shortcuts() override { return positions_.Shortcuts(); }

    const CoordinateGroup Latitude{LatitudeAxis, DLatCenterText, MLatCenterText, NorthOption, SouthOption};
    const CoordinateGroup Longitude{LongitudeAxis, DLongCenterText, MLongCenterText, EastOption, WestOption};

    void DLatCenterText_LostFocus() { dialogue_.Complain(Latitude.DegreesComplaint(), DLatCenterText); }
    void MLatCenterText_LostFocus();
    void DLongCenterText_LostFocus() { dialogue_.Complain(Longitude.DegreesComplaint(), DLongCenterText); }
    void MLongCenterText_LostFocus() { dialogue_.Complain(Longitude.MinutesComplaint(), MLongCenterText); }
    void DoneCommand_Click();
    void OopsCommand_Click() { Unload(); }

    // The shared variables hold the centre.
    std::function<void()> OnDone;

  private:
    // Whether the boxes make up a coordinate, empty minutes counting as 0; shows the first complaint and
    // moves the focus there if not.
    bool IsComplete(const CoordinateGroup& group, std::string_view whenEmpty);
    // The centre, if the boxes make up one.
    std::optional<Position> HeldPosition() const;

    Dialogue& dialogue_;
    ArcVariables& variables_;
    PositionBoxes positions_;
};

}  // namespace tarvex
