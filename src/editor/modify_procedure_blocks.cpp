#include <algorithm>

#include "editor/modify_procedure.h"
#include "geometry/text_rules.h"
#include "procedure/row_block.h"

namespace tarvex {

namespace {

std::vector<int> Behind(const std::vector<int>& order, std::vector<int> rows) {
    const std::vector<int> places = PlacesIn(order);
    for (int& row : rows) row = places[static_cast<std::size_t>(row)];
    std::sort(rows.begin(), rows.end());
    return rows;
}

}  // namespace

std::string ModifyProcedure::BlockStepName(const std::string& act) const {
    const auto rows = Pictures.LegsList.Selected();
    if (rows.size() > 1) return act + " " + NumberText(static_cast<double>(rows.size())) + " waypoints";
    return act + " " + std::string(Trim(WaypointList.List(rows.front())));
}

void ModifyProcedure::DeleteBlock() {
    const std::vector<int> block = Pictures.LegsList.Selected();
    if (block.empty()) return;
    const RowsStep step(state_.Rows, BlockStepName("Delete"));
    for (int gone = 0; const int row : block) state_.Rows.Erase(row - gone++);
    ClearDataCommand_Click();
    Pictures.LegsList.SetFocus();
}

void ModifyProcedure::MoveBlock(int by) {
    ArrangeBlock(MovedByOne(Pictures.LegsList.Selected(), by, state_.Rows.Count()));
}

void ModifyProcedure::MoveBlockBefore(int row) {
    ArrangeBlock(MovedBefore(Pictures.LegsList.Selected(), row, state_.Rows.Count()));
}

void ModifyProcedure::ArrangeBlock(const std::vector<int>& order) {
    if (std::is_sorted(order.begin(), order.end())) return;
    const std::vector<int> block = Pictures.LegsList.Selected();
    const int current = Behind(order, {WaypointList.ListIndex()}).front();
    const RowsStep step(state_.Rows, BlockStepName("Move"));
    state_.Rows.Arrange(order, block.front());
    WaypointList.SetListIndex(current);
    Pictures.KeepBlock(Behind(order, block));
}

}  // namespace tarvex
