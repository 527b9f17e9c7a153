#include <algorithm>

#include "editor/modify_procedure.h"
#include "geometry/text_rules.h"
#include "procedure/row_block.h"

namespace tarvex {

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
    std::vector<int> block = Pictures.LegsList.Selected();
    const auto behind = [places = PlacesIn(order)](int row) { return places[static_cast<std::size_t>(row)]; };
    const int current = behind(WaypointList.ListIndex());
    const int anchor = behind(Pictures.LegsList.Anchor());
    const RowsStep step(state_.Rows, BlockStepName("Move"));
    state_.Rows.Arrange(order, block.front());
    WaypointList.SetListIndex(current);
    std::ranges::transform(block, block.begin(), behind);
    Pictures.KeepBlock(std::move(block), anchor);
}

}  // namespace tarvex
