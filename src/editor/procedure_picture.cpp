#include "editor/procedure_picture.h"

#include <algorithm>

#include "chart/plan_view.h"
#include "chart/route_words.h"
#include "chart/target_words.h"
#include "editor/modify_procedure.h"
#include "geometry/text_rules.h"
#include "startup/workplace.h"

namespace tarvex {

namespace {

constexpr int Chart = 0;
constexpr int Profile = 1;
constexpr int FindingsPage = 3;
constexpr std::string_view FindingsCaption = "Findings";
constexpr double MilesRoundAirport = 40;

std::string LegsLineText(const LegsLine& line) {
    std::string text;
    for (const std::string* cell : {&line.number, &line.name, &line.course, &line.distance, &line.sum,
                                    &line.altitude, &line.speed, &line.position}) {
        text += *cell + "\t";
    }
    text.pop_back();
    return text;
}

Drawing HintDrawing(const Size& room) {
    return {room,
            {Words{.text = "Type the ICAO code of the airport to see what lies around it.",
                   .at = {room.width / 2, room.height / 2},
                   .align = Words::Align::Centre,
                   .role = Role::Note,
                   .size = 12}}};
}

}  // namespace

ProcedurePicture::ProcedurePicture(ModifyProcedure& editor, const Workplace& workplace,
                                   const EditorTools& tools)
    : PlanPicture(editor, "PlanPicture", 62),
      ProfilePicture(editor, "ProfilePicture", 63),
      LegsList(editor, "LegsList",
               {{"No.", true},
                {"Name"},
                {"Course", true},
                {"Distance", true},
                {"Sum", true},
                {"Altitude"},
                {"Speed", true},
                {"Position"}},
               64),
      Findings(editor, workplace.state),
      PictureTabs(editor, "PictureTabs",
                  {{"Chart", &PlanPicture},
                   {"Profile", &ProfilePicture},
                   {"Legs", &LegsList},
                   {std::string(FindingsCaption), &Findings.FindingsList}},
                  61),
      ZoomInCommand(editor, "ZoomInCommand", "", 65),
      ZoomOutCommand(editor, "ZoomOutCommand", "", 66),
      FitCommand(editor, "FitCommand", "", 67),
      SavePictureCommand(editor, "SavePictureCommand", "", 68),
      PictureLabel(editor, "PictureLabel", "", 69),
      editor_(editor),
      workplace_(workplace),
      state_(workplace.state),
      tools_(tools) {
    ConnectPlan();
    ConnectProfile();
    ConnectRest();
}

void ProcedurePicture::RowsChanged(const ProcedureRows::Change& change) {
    using Kind = ProcedureRows::Change::Kind;
    ++rows_;
    if (change.kind == Kind::Appended || change.kind == Kind::Replaced) newRows_.push_back(change.row);
}

void ProcedurePicture::Update() {
    if (std::exchange(tables_, state_.NavigationLoads) != state_.NavigationLoads) {
        marked_ = pointed_ = {};
        airportName_.clear();
    }
    const bool newRoute = std::exchange(routeOf_, rows_) != rows_;
    if (newRoute) {
        route_ = RouteOf(state_.Rows.InUse());
        pointed_ = {};
    }
    drafts_ = DraftsOf(editor_, tools_, state_, route_);
    FollowView();
    if (newRoute) {
        if (!profileMoved_) FitProfile();
        ShowLegs();
    }
    ShowSelected();
    ShowFindings();
    if (PictureTabs.Index() == Chart) ShowPlan();
    if (PictureTabs.Index() == Profile) ShowProfile();
    for (Button* button : {&ZoomInCommand, &ZoomOutCommand, &FitCommand}) {
        button->SetEnabled(PictureTabs.Index() == Chart || PictureTabs.Index() == Profile);
    }
    SavePictureCommand.SetEnabled(!route_.points.empty());
    ShowWords();
}

const PositionGrid& ProcedurePicture::Grid() const {
    if (!state_.Grid) state_.Grid = std::make_unique<PositionGrid>(state_.Navigation);
    return *state_.Grid;
}

int ProcedurePicture::SelectedRow() const {
    return editor_.WaypointList.ListIndex();
}

std::optional<Position> ProcedurePicture::AirportInName() {
    const std::string name = Upper(Trim(editor_.AptNameText.Text()));
    if (airportName_ == name) return airport_;
    airportName_ = name;
    airport_.reset();
    for (const std::int32_t index : FindEntries(state_.Navigation, NavigationTable::Airports, name)) {
        if (const auto hit = HitAt(state_.Navigation, NavigationTable::Airports, index))
            airport_ = hit->position;
    }
    return airport_;
}

// The user's own view is kept. As long as there is none the picture fits what there is.
void ProcedurePicture::FollowView() {
    const Size room = PlanPicture.Room();
    if (room.width <= 0 || room.height <= 0) return;
    const bool resized = view_ && view_->size != room;
    if (resized) view_->size = room;
    const bool outside = view_ && !ShowsNewRows();
    const bool news = !newRows_.empty() || resized || !planShown_ || planShown_->rows != rows_;
    newRows_.clear();
    const bool rowsHaveNoPlace = PositionsOf(route_).empty();
    if (!view_ || outside || (!moved_ && (news || rowsHaveNoPlace))) FitPlan();
    SearchTargets found = TargetsOf(tools_);
    if (found.clicked != found_.clicked) BringIntoView(found.clicked);
    found_ = std::move(found);
}

void ProcedurePicture::FitPlan() {
    const Size room = PlanPicture.Room();
    moved_ = false;
    if (const auto rows = PositionsOf(route_); !rows.empty()) {
        view_ = FitView(rows, room);
    } else if (const auto airport = AirportInName()) {
        view_ = ViewRound(*airport, MilesRoundAirport, room);
    } else if (const auto drafts = PositionsOf(route_, drafts_); !drafts.empty()) {
        view_ = FitView(drafts, room);
    } else {
        view_.reset();
    }
}

void ProcedurePicture::FitProfile() {
    profileMoved_ = false;
    profileView_ = ProfileView::Whole(route_);
}

bool ProcedurePicture::ShowsNewRows() const {
    const Projection map(*view_);
    return std::all_of(newRows_.begin(), newRows_.end(), [&](int row) {
        const auto position = PositionOf({Target::Kind::Row, row}, route_, state_.Navigation);
        return !position || map.Shows(map.ToPoint(*position));
    });
}

void ProcedurePicture::BringIntoView(const Target& target) {
    const auto position = PositionOf(target, route_, state_.Navigation);
    if (!position) return;
    if (!view_) {
        view_ = ViewRound(*position, MilesRoundAirport, PlanPicture.Room());
        return;
    }
    const Projection map(*view_);
    if (!map.Shows(map.ToPoint(*position))) view_->middle = *position;
}

PlanContent ProcedurePicture::Content() const {
    return {.route = route_,
            .tables = state_.Navigation,
            .grid = Grid(),
            .selected = SelectedRow(),
            .drafts = drafts_,
            .hits = found_.hits,
            .marked = marked_};
}

void ProcedurePicture::ShowPlan() {
    const Size room = PlanPicture.Room();
    if (room.width <= 0 || room.height <= 0) return;
    const PlanShown shown{rows_, state_.NavigationLoads, SelectedRow(), drafts_, found_.hits, marked_, view_};
    if (shown == planShown_ && PlanPicture.Shown().size == room) return;
    planShown_ = shown;
    PlanPicture.SetDrawing(view_ ? PlanScene(*view_, Content(), workplace_.platform.pictures)
                                 : HintDrawing(room));
}

void ProcedurePicture::ShowProfile() {
    const ProfileShown shown{rows_, SelectedRow(), profileView_, ProfilePicture.Room()};
    if (shown == profileShown_) return;
    profileShown_ = shown;
    ProfilePicture.SetDrawing(
        ProfileDrawing(route_, profileView_, SelectedRow(), shown.room, workplace_.platform.pictures));
}

void ProcedurePicture::ShowLegs() {
    std::vector<std::string> lines;
    for (const LegsLine& line : LegsLines(route_)) lines.push_back(LegsLineText(line));
    LegsList.SetLines(std::move(lines));
    const std::string sentence = RouteSentence(route_);
    PlanPicture.SetSentence("Chart: " + sentence);
    ProfilePicture.SetSentence("Profile: " + sentence);
}

void ProcedurePicture::ShowFindings() {
    Findings.Update(route_, rows_);
    const std::string count = Findings.Count() == 0 ? "" : " (" + std::to_string(Findings.Count()) + ")";
    PictureTabs.SetCaption(FindingsPage, std::string(FindingsCaption) + count);
}

// What is selected there lasts as long as its current line is that of the list of waypoints.
void ProcedurePicture::ShowSelected() {
    const std::vector<int> block = std::exchange(block_, {});
    if (!block.empty()) {
        LegsList.SetSelected(block, SelectedRow(), anchor_);
    } else if (LegsList.ListIndex() != SelectedRow()) {
        LegsList.SetListIndex(SelectedRow());
    }
}

void ProcedurePicture::ShowWords() {
    PictureLabel.SetCaption(Words());
    const std::string tip = WordsOf(pointed_);
    PlanPicture.SetTip(tip);
    ProfilePicture.SetTip(tip);
}

std::string ProcedurePicture::WordsOf(const Target& target) const {
    if (target.kind == Target::Kind::None) return {};
    return TargetWords(target, route_, state_.Navigation, Grid(), OriginOf(route_, SelectedRow()));
}

std::string ProcedurePicture::Words() const {
    for (const Target& target : {pointed_, marked_}) {
        if (target.kind != Target::Kind::None) return WordsOf(target);
    }
    if (PictureTabs.Index() == FindingsPage && Findings.Count() == 0) return "Nothing found.";
    if (const auto rows = LegsList.Selected().size(); rows > 1) {
        return NumberText(static_cast<double>(rows)) + " waypoints are selected.";
    }
    return route_.points.empty() ? "" : RouteSentence(route_);
}

}  // namespace tarvex
