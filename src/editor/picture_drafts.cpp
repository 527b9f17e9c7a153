#include "editor/picture_drafts.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "editor/modify_procedure.h"
#include "geometry/add_arc.h"
#include "geometry/create_waypoint_form.h"
#include "geometry/text_rules.h"
#include "navigation/find_waypoint_form.h"
#include "startup/shared_state.h"

namespace tarvex {

namespace {

Position PositionAt(const RhumbPoint& point) {
    return {point.latitude * DegreesPerRadian, -point.longitude * DegreesPerRadian};
}

// Minutes in the boxes have at most six decimals, those worked out from a row may have lost some more.
bool IsOnePlace(const Position& a, const Position& b) {
    constexpr double Same = 2e-6;  // degrees
    return std::abs(a.latitude - b.latitude) < Same && std::abs(a.longitude - b.longitude) < Same;
}

// A selected row stands in the boxes itself until one of them is changed.
std::optional<RoutePoint> WaypointInBoxes(const ModifyProcedure& editor, const Route& route) {
    if (!editor.Latitude.IsFilled() || !editor.Longitude.IsFilled()) return std::nullopt;
    RoutePoint point = RoutePointOf(editor.BoxesAsRow());
    if (!point.position) return std::nullopt;
    const auto row = static_cast<std::size_t>(editor.WaypointList.ListIndex());
    if (row < route.points.size() && route.points[row].position &&
        IsOnePlace(*point.position, *route.points[row].position)) {
        return std::nullopt;
    }
    return point;
}

bool Suffices(const AddARC& designer) {
    const auto isNumber = [](const TextBox* box) { return IsNumberText(box->Text()); };
    const TextBox* needed[] = {&designer.ArcStartText, &designer.ArcEndText, &designer.ArcRadiusText};
    return !designer.ArcLabelText.Text().empty() &&
           std::all_of(std::begin(needed), std::end(needed), isNumber) &&
           (designer.MagVarText.Text().empty() || isNumber(&designer.MagVarText)) &&
           (designer.RightOption.Value() || designer.LeftOption.Value());
}

std::vector<Position> ArcOf(const AddARC& designer) {
    std::vector<Position> points;
    if (!Suffices(designer)) return points;
    try {
        for (const ArcPoint& point : LayOutArc(designer.Request()).points) {
            points.push_back(PositionAt(point.position));
        }
    } catch (const Failure&) {
        // A radial of more than 360 degrees, which the designer complains about itself.
    }
    return points;
}

constexpr std::pair<Target::Kind, NavigationTable> Kinds[] = {
    {Target::Kind::Fix, NavigationTable::Fixes},
    {Target::Kind::Navaid, NavigationTable::Navaids},
    {Target::Kind::Runway, NavigationTable::Airports},
};

Target::Kind KindOf(NavigationTable table) {
    return std::find_if(std::begin(Kinds), std::end(Kinds),
                        [table](const auto& entry) { return entry.second == table; })
        ->first;
}

}  // namespace

std::optional<SearchHit> HitOf(const Target& target, const NavigationTables& tables) {
    for (const auto& [kind, table] : Kinds) {
        if (target.kind == kind) return HitAt(tables, table, target.index);
    }
    return std::nullopt;
}

PlanDrafts DraftsOf(const ModifyProcedure& editor, const EditorTools& tools, const SharedState& state,
                    const Route& route) {
    PlanDrafts drafts;
    drafts.waypoint = WaypointInBoxes(editor, route);
    drafts.replaces = editor.WaypointList.ListIndex();
    if (const AddARC* designer = tools.addARC.Get()) drafts.arc = ArcOf(*designer);
    if (const CreateWaypointForm* form = tools.createWaypointForm.Get()) {
        if (const auto end = form->Derived()) {
            drafts.derived = {{state.StartLat, state.StartLong}, PositionAt(*end)};
        }
    }
    return drafts;
}

SearchTargets TargetsOf(const EditorTools& tools) {
    SearchTargets targets;
    const FindWaypointForm* search = tools.findWaypointForm.Get();
    if (search == nullptr) return targets;
    for (const std::string& index : search->PointerListBox.Lines()) {
        const auto entry = static_cast<std::int32_t>(LeadingNumber(index));
        targets.hits.push_back({KindOf(search->Table()), entry});
    }
    const auto line = static_cast<std::size_t>(search->WaypointListBox.ListIndex());
    if (line < targets.hits.size()) targets.clicked = targets.hits[line];
    return targets;
}

}  // namespace tarvex
