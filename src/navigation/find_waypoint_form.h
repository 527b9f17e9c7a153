#pragma once

#include <cstdint>
#include <string>

#include "geometry/fixed_field.h"
#include "navigation/search_kinds.h"
#include "toolkit/form.h"
#include "toolkit/list_box.h"
#include "toolkit/simple_controls.h"

namespace tarvex {

class Program;

// The search over one navigation table, for the caller that SearchKind names as the screen opens. A search
// whose caller has closed transfers nothing.
class FindWaypointForm : public Form {
  public:
    explicit FindWaypointForm(Program& program);

    TextBox SearchText{*this, "SearchText", 5, 0};
    Button SearchCommand{*this, "SearchCommand", "Start Search", 1};
    ListBox WaypointListBox{*this, "WaypointListBox", 2};
    ListBox PointerListBox{*this, "PointerListBox",
                           Control::NoTabIndex};  // never shown: table indexes of the hits
    Button AddWaypoint{*this, "AddWaypoint", "Transfer Waypoint Data", 3};
    Button GoBackCommand{*this, "GoBackCommand", "   Oops    Go Back", 4, Boxes::Dropped};
    Label Label1{*this, "Label1", "Search       For :"};
    Label Label3{*this, "Label3", ""};
    Frame Frame1{*this, "Frame1", ""};
    Label LatText{*this, "LatText", ""};
    Label LongText{*this, "LongText", ""};
    Label FreqLabel{*this, "FreqLabel", "Frequency"};
    Label FreqText{*this, "FreqText", ""};

    void Form_Load() override;
    Button* WayOut() override { return &GoBackCommand; }
    std::vector<Shortcut> Shortcuts() override {
        return {{ShortcutKey::Enter, &SearchText, &SearchCommand},
                {ShortcutKey::Enter, &WaypointListBox, &AddWaypoint}};
    }
    void SearchCommand_Click();
    void WaypointListBox_Click();
    void AddWaypoint_Click();
    void GoBackCommand_Click();

    // Whose search this is.
    SearchCaller Caller() const { return kind_->caller; }

  private:
    static constexpr std::int32_t NoEntry = -1;

    void HidePosition();
    void ShowPosition(double latitude, double longitude);
    void ShowFrequency();
    bool CallerIsOpen() const;
    void TransferName();
    void TransferToArcDesigner();
    void TransferStartPoint();
    void FillEditorPosition();
    void CloseStartPhase();

    Program& program_;
    const SearchKindEntry* kind_ = nullptr;  // from the load on

    // The result of the last click.
    std::int32_t SelectedRow = NoEntry;  // table index
    std::string LatDegreesText;
    std::string LongDegreesText;
    FixedField<9> LatMinutesText;
    FixedField<9> LongMinutesText;
    std::string LatHemisphere;   // "N" or "S"
    std::string LongHemisphere;  // "E" or "W"
};

// Opens the search anew for the caller that `kind`, a SearchKind, names, instead of one that may be open. The
// editor's boxes are emptied first if the result is to go there.
void OpenSearch(Program& program, std::string_view kind);

// Closes the search if it is open for this caller.
void CloseSearchOf(Program& program, SearchCaller caller);

}  // namespace tarvex
