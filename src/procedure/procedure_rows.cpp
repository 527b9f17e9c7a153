#include "procedure/procedure_rows.h"

#include <algorithm>
#include <utility>

#include "toolkit/failure.h"

namespace tarvex {

void ProcedureRows::RequireInUse(int index) const {
    if (index < 0 || index >= count_) throw Failure(BadArgument, "the procedure has no such row");
}

void ProcedureRows::Tell(const Change& change) const {
    if (observer_ != nullptr) observer_->RowsChanged(change);
}

void ProcedureRows::Append(const WaypointRecord& row, std::string_view line) {
    if (Free() == 0) throw Failure(BadArgument, "the procedure has no row left");
    table_[Index(count_)] = row;
    lines_.emplace_back(line);
    ++count_;
    Tell({Change::Kind::Appended, count_ - 1});
}

void ProcedureRows::Replace(int index, const WaypointRecord& row) {
    RequireInUse(index);
    table_[Index(index)] = row;
    Tell({Change::Kind::Replaced, index});
}

void ProcedureRows::Erase(int index) {
    RequireInUse(index);
    const int last = std::min(count_, MaxWaypoints - 1);
    std::copy(table_.begin() + index + 1, table_.begin() + last + 1, table_.begin() + index);
    lines_.erase(lines_.begin() + index);
    --count_;
    Tell({Change::Kind::Erased, index});
}

void ProcedureRows::Exchange(int index, int other) {
    RequireInUse(index);
    RequireInUse(other);
    std::swap(table_[Index(index)], table_[Index(other)]);
    std::swap(lines_[Index(index)], lines_[Index(other)]);
    Tell({Change::Kind::Exchanged, index, other});
}

void ProcedureRows::Assign(std::span<const WaypointRecord> rows) {
    if (rows.size() > table_.size()) throw Failure(BadArgument, "the procedure has no room for so many rows");
    std::copy(rows.begin(), rows.end(), table_.begin());
    count_ = static_cast<std::int32_t>(rows.size());
    lines_.clear();
    for (const WaypointRecord& row : rows) lines_.push_back(row.WaypointID.Text());
    Tell({Change::Kind::Assigned});
}

}  // namespace tarvex
