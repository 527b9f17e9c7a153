#pragma once

#include <functional>
#include <optional>

#include "navigation/search_hit.h"
#include "navigation/search_kinds.h"
#include "toolkit/dialogue.h"
#include "toolkit/form.h"
#include "toolkit/list_box.h"
#include "toolkit/simple_controls.h"

namespace tarvex {

// The search over one navigation table, of the kind that SearchKind names as the screen opens. What was found
// goes to whoever opened it.
class FindWaypointForm : public Form {
  public:
    FindWaypointForm(FormHost& host, Dialogue& dialogue, const NavigationTables& tables,
                     SearchVariables& variables);

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
        // Behind a search that found what can be transferred, the same key transfers it.
        const bool found = !searched_.empty() && AddWaypoint.Usable() && SearchText.Text() == searched_;
        return {{ShortcutKey::Enter, &SearchText, found ? &AddWaypoint : &SearchCommand},
                {ShortcutKey::Enter, &WaypointListBox, &AddWaypoint}};
    }
    void SearchCommand_Click();
    void WaypointListBox_Click();
    void AddWaypoint_Click();
    void GoBackCommand_Click() { Unload(); }

    // The table that is searched.
    NavigationTable Table() const { return kind_->table; }

    // Takes the hit that is transferred.
    std::function<void(const SearchHit&)> OnTransfer;

  private:
    void HidePosition();
    void ShowHit();

    Dialogue& dialogue_;
    const NavigationTables& tables_;
    SearchVariables& variables_;
    const SearchKindEntry* kind_ = nullptr;  // from the load on
    std::optional<SearchHit> hit_;           // of the last click
    std::string searched_;                   // what was looked for last
};

}  // namespace tarvex
