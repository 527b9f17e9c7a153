#pragma once

#include <cstdint>
#include <string>

#include "geometry/fixed_field.h"
#include "toolkit/form.h"
#include "toolkit/list_box.h"
#include "toolkit/simple_controls.h"

namespace tarvex {

class Program;

// The search over one navigation table, for the caller that SearchKind names.
class FindWaypointForm : public Form {
  public:
    explicit FindWaypointForm(Program& program);

    TextBox SearchText{*this, "SearchText", 5, 0};
    Button SearchCommand{*this, "SearchCommand", "Start Search", 1};
    ListBox WaypointListBox{*this, "WaypointListBox", 2};
    ListBox PointerListBox{*this, "PointerListBox",
                           Control::NoTabIndex};  // never shown: table indexes of the hits
    Button AddWaypoint{*this, "AddWaypoint", "Transfer Waypoint Data", 3};
    Button GoBackCommand{*this, "GoBackCommand", "   Oops    Go Back", 4};
    Label Label1{*this, "Label1", "Search       For :"};
    Label Label3{*this, "Label3", ""};
    Frame Frame1{*this, "Frame1", ""};
    Label LatText{*this, "LatText", ""};
    Label LongText{*this, "LongText", ""};
    Label FreqLabel{*this, "FreqLabel", "Frequency"};
    Label FreqText{*this, "FreqText", ""};

    void Form_Load() override;
    Button* WayOut() override { return &GoBackCommand; }
    std::vector<Shortcut> Shortcuts() override { return {{ShortcutKey::Enter, &SearchText, &SearchCommand}}; }
    void SearchCommand_Click();
    void WaypointListBox_Click();
    void AddWaypoint_Click();
    void GoBackCommand_Click();

  private:
    Program& program_;

    // The result of the last click.
    std::int32_t SelectedRow = 0;  // table index
    std::string LatDegreesText;
    std::string LongDegreesText;
    FixedField<9> LatMinutesText;
    FixedField<9> LongMinutesText;
    std::string LatHemisphere;   // "N" or "S"
    std::string LongHemisphere;  // "E" or "W"
};

}  // namespace tarvex
