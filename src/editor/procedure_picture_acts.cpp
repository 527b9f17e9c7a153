#include <cmath>

#include "chart/plan_view.h"
#include "chart/route_words.h"
#include "chart/sheet.h"
#include "chart/svg_writer.h"
#include "chart/target_words.h"
#include "editor/editor_messages.h"
#include "editor/modify_procedure.h"
#include "geometry/position_text.h"
#include "geometry/text_rules.h"
#include "procedure/procedure_mode.h"
#include "startup/workplace.h"
#include "toolkit/display_text.h"

namespace tarvex {

namespace {

constexpr double ZoomStep = 1.25;

std::string KindWords(std::string_view mode) {
    if (IsApproach(mode)) return "Approach";
    return mode == "E" || mode == "D" ? "Departure" : "Arrival";
}

}  // namespace

void ProcedurePicture::ConnectPlan() {
    PlanPicture.OnPoint = [this](Target target) { pointed_ = target; };
    PlanPicture.OnChoose = [this](Target target) { Choose(target); };
    PlanPicture.OnTake = [this](bool add) { Take(add); };
    PlanPicture.OnZoom = [this](double steps, Point at) {
        if (!view_) return;
        view_ = Zoomed(*view_, std::pow(ZoomStep, steps), at);
        moved_ = true;
    };
    PlanPicture.OnPan = [this](double x, double y) {
        if (!view_) return;
        view_ = Panned(*view_, {0, 0}, {x, y});
        moved_ = true;
    };
    PlanPicture.OnFit = [this] { FitPlan(); };
}

void ProcedurePicture::ConnectProfile() {
    ProfilePicture.OnPoint = [this](Target target) { pointed_ = target; };
    ProfilePicture.OnChoose = [this](Target target) {
        if (target.kind == Target::Kind::Row) ClickRow(target.index);
    };
    ProfilePicture.OnZoom = [this](double steps, Point at) {
        profileView_ = profileView_.Zoomed(steps, at.x, ProfilePicture.Room().width);
        profileMoved_ = true;
    };
    ProfilePicture.OnPan = [this](double x, double) {
        profileView_ = profileView_.Moved(x, ProfilePicture.Room().width);
        profileMoved_ = true;
    };
    ProfilePicture.OnFit = [this] { FitProfile(); };
}

void ProcedurePicture::ConnectRest() {
    LegsList.OnClick = [this] {
        const int row = LegsList.ListIndex();
        if (row == ListBox::NoSelection || row == editor_.WaypointList.ListIndex()) return;
        ClickRow(row);
        ReturnTo(LegsList);
    };
    Findings.OnRow = [this](int row) {
        if (row != editor_.WaypointList.ListIndex()) ClickRow(row);
        ReturnTo(Findings.FindingsList);
    };
    LegsList.OnMove = [this](int before) { editor_.MoveBlockBefore(before); };
    LegsList.OnCopy = [this] {
        const std::vector<int> rows = LegsList.Selected();
        const bool all = rows.size() < 2;
        workplace_.platform.clipboard.Copy(LegsText(route_, all ? std::vector<int>() : rows));
    };
    PictureTabs.OnClick = [this] { pointed_ = {}; };
    ZoomInCommand.OnClick = [this] { Zoom(1); };
    ZoomOutCommand.OnClick = [this] { Zoom(-1); };
    FitCommand.OnClick = [this] { (PlanPicture.Visible() ? PlanPicture : ProfilePicture).OnFit(); };
    SavePictureCommand.OnClick = [this] { SavePictureCommand_Click(); };
}

// The focus first: the rule of the box that is left may keep it.
void ProcedurePicture::GoToPage(int index) {
    PictureTabs.SetFocus();
    if (!PictureTabs.HasFocus()) return;
    PictureTabs.SetIndex(index);
    PictureTabs.Pages()[static_cast<std::size_t>(index)].content->SetFocus();
}

void ProcedurePicture::Zoom(double steps) {
    const Picture& picture = PlanPicture.Visible() ? PlanPicture : ProfilePicture;
    picture.OnZoom(steps, {picture.Room().width / 2, picture.Room().height / 2});
}

void ProcedurePicture::Choose(const Target& target) {
    const bool row = target.kind == Target::Kind::Row;
    marked_ = row ? Target{} : target;
    PlanPicture.SetMenu(MenuFor(target));
    if (row) ClickRow(target.index);
}

// The focus first, as with every act on a control: the rule of the box that is left may keep it.
void ProcedurePicture::ClickRow(int row) {
    ListBox& list = editor_.WaypointList;
    list.SetFocus();
    if (list.HasFocus() && row < list.ListCount()) list.SetListIndex(row);
}

void ProcedurePicture::KeepBlock(std::vector<int> rows, int anchor) {
    block_ = std::move(rows);
    anchor_ = anchor;
    ReturnTo(LegsList);
}

// So that the keys go on from line to line; a box that complains of what the row brought it has the focus.
void ProcedurePicture::ReturnTo(ColumnList& list) {
    if (editor_.WaypointList.HasFocus()) list.SetFocus();
}

void ProcedurePicture::Take(bool add) {
    const auto hit = HitOf(marked_, state_.Navigation);
    if (!hit) return;
    editor_.TakeEntry(*hit);
    Button& command = editor_.AddWaypointCommand;
    if (!add) return;
    command.SetFocus();
    if (command.HasFocus()) command.OnClick();
}

std::vector<MenuEntry> ProcedurePicture::MenuFor(const Target& target) {
    const auto hit = HitOf(target, state_.Navigation);
    const auto position = PositionOf(target, route_, state_.Navigation);
    const bool navaid = target.kind == Target::Kind::Navaid;
    return {{"Take into the Boxes", hit.has_value(), [this] { Take(false); }},
            {"Add to the Procedure", hit.has_value(), [this] { Take(true); }},
            {"Centre of an ARC", hit && navaid, [this, hit] { editor_.CenterArcOn(*hit); }},
            {"Start of a Derived Waypoint", hit.has_value(), [this, hit] { editor_.DeriveFrom(*hit); }},
            {"Copy Position", position.has_value(),
             [this, position] { workplace_.platform.clipboard.Copy(PositionText(*position)); }}};
}

Drawing ProcedurePicture::Sheet() const {
    const TextMeasure& letters = workplace_.platform.pictures;
    PlanContent content = Content();
    content.selected = -1;
    content.drafts = {};
    content.hits.clear();
    content.marked = {};
    const PlanView view = FitView(PositionsOf(route_), SheetPlanSize);
    std::string title = KindWords(state_.ProcedureMode) + " " + editor_.AptNameText.Text() + " " +
                        editor_.BasicNameText.Text();
    if (!editor_.TransitionText.Text().empty()) {
        title += ", " + editor_.TransitionLabel1.Caption() + " " + editor_.TransitionText.Text();
    }
    return SheetDrawing({ShownUtf8(title), PlanScene(view, content, letters),
                         ProfileDrawing(route_, ProfileView::Whole(route_), -1, SheetProfileSize, letters),
                         route_});
}

void ProcedurePicture::SavePictureCommand_Click() {
    PictureServices& pictures = workplace_.platform.pictures;
    const std::string& file = editor_.FilenameText.Caption();
    const std::string name = file.empty() ? "Procedure" : file.substr(0, file.rfind('.'));
    const auto place = pictures.AskForPlace(name);
    if (!place) return;
    try {
        const Drawing sheet = Sheet();
        const bool pixels = Upper(*place).ends_with(".PNG");
        workplace_.platform.files.Write(
            *place, pixels ? pictures.PngOf(sheet) : SvgText(sheet, LightPalette(), ShownUtf8(name)));
    } catch (const Failure& failure) {
        workplace_.dialogue.Ask(editor_messages::PictureNotSaved(*place, failure.Reason()));
    }
}

}  // namespace tarvex
