#pragma once

#include <optional>
#include <string>
#include <vector>

#include "chart/plan_scene.h"
#include "chart/profile_scene.h"
#include "editor/editor_tools.h"
#include "editor/picture_drafts.h"
#include "editor/procedure_findings.h"
#include "procedure/procedure_rows.h"
#include "toolkit/list_box.h"
#include "toolkit/picture.h"
#include "toolkit/simple_controls.h"
#include "toolkit/tabs.h"

namespace tarvex {

class ModifyProcedure;
struct SharedState;
struct Workplace;

// The pictures of the procedure in the editor: chart, profile, legs and findings, each on its tab. They
// follow the rows, the boxes and the tools. What the user does in them presses what is there anyway: a click
// on a waypoint is a click on its line in the list; an entry of the tables is only marked by a click and goes
// into the boxes as the search would put it there.
class ProcedurePicture {
  public:
    ProcedurePicture(ModifyProcedure& editor, const Workplace& workplace, const EditorTools& tools);

    Picture PlanPicture;
    Picture ProfilePicture;
    ColumnList LegsList;
    ProcedureFindings Findings;
    Tabs PictureTabs;
    Button ZoomInCommand;
    Button ZoomOutCommand;
    Button FitCommand;
    Button SavePictureCommand;
    Label PictureLabel;  // what is pointed at or marked, else what there is to say of the whole

    // Whether an entry of the tables is marked.
    bool HasMark() const { return marked_.kind != Target::Kind::None; }
    // Shows that page and gives the focus to what is on it.
    void GoToPage(int index);
    void RowsChanged(const ProcedureRows::Change& change);
    // What was selected in LegsList moved to these rows, with the one to extend it from, and stays selected.
    void KeepBlock(std::vector<int> rows, int anchor);
    // Brings the pictures in line with everything that they show.
    void Update();

  private:
    // All that the chart, and the profile, depends on.
    struct PlanShown {
        int rows;
        int tables;
        int selected;
        PlanDrafts drafts;
        std::vector<Target> hits;
        Target marked;
        std::optional<PlanView> view;
        friend bool operator==(const PlanShown&, const PlanShown&) = default;
    };
    struct ProfileShown {
        int rows;
        int selected;
        ProfileView view;
        Size room;
        friend bool operator==(const ProfileShown&, const ProfileShown&) = default;
    };

    // Connect the events of the controls (procedure_picture_acts.cpp).
    void ConnectPlan();
    void ConnectProfile();
    void ConnectRest();

    void Choose(const Target& target);
    void ClickRow(int row);
    void ReturnTo(ColumnList& list);
    void Take(bool add);
    std::vector<MenuEntry> MenuFor(const Target& target);
    void Zoom(double steps);
    void SavePictureCommand_Click();
    Drawing Sheet() const;

    // The view of the chart.
    void FollowView();
    void FitPlan();
    void FitProfile();
    bool ShowsNewRows() const;
    void BringIntoView(const Target& target);
    std::optional<Position> AirportInName();

    const PositionGrid& Grid() const;
    int SelectedRow() const;
    PlanContent Content() const;
    void ShowPlan();
    void ShowProfile();
    void ShowLegs();
    void ShowFindings();
    void ShowSelected();
    void ShowWords();
    std::string WordsOf(const Target& target) const;
    std::string Words() const;

    ModifyProcedure& editor_;
    const Workplace& workplace_;
    SharedState& state_;
    EditorTools tools_;

    Route route_;
    int rows_ = 0;                // counts the changes of the rows
    std::optional<int> routeOf_;  // which of them the route shows
    std::vector<int> newRows_;    // since the last update
    std::vector<int> block_;      // to be selected in LegsList by the next update ...
    int anchor_ = 0;              // ... and extended from there
    PlanDrafts drafts_;
    SearchTargets found_;
    Target marked_;
    Target pointed_;
    std::optional<int> tables_;

    std::optional<PlanView> view_;  // none as long as there is nothing to show
    bool moved_ = false;            // by the user
    ProfileView profileView_;
    bool profileMoved_ = false;
    std::string airportName_;
    std::optional<Position> airport_;

    std::optional<PlanShown> planShown_;
    std::optional<ProfileShown> profileShown_;
};

}  // namespace tarvex
