#include "procedure/procedure_rows.h"

#include <algorithm>
#include <utility>

#include "procedure/row_block.h"
#include "toolkit/failure.h"

namespace tarvex {

void ProcedureRows::RequireInUse(int index) const {
    if (index < 0 || index >= count_) throw Failure(BadArgument, "the procedure has no such row");
}

void ProcedureRows::Tell(const Change& change) const {
    if (observer_ != nullptr) observer_->RowsChanged(change);
}

// The first free row moves up too, where there is one.
int ProcedureRows::LastMoved() const {
    return std::min(count_, MaxWaypoints - 1);
}

std::optional<int> ProcedureRows::Make(KeptChange& kept) {
    const auto [kind, row, other] = kept.change;
    const auto at = table_.begin() + row;
    const auto line = lines_.begin() + row;
    std::optional<int> came = row;
    if (kind == Change::Kind::Appended) {
        std::swap(*at, kept.record);
        lines_.push_back(std::exchange(kept.line, {}));
        ++count_;
    } else if (kind == Change::Kind::Replaced) {
        std::swap(*at, kept.record);
    } else if (kind == Change::Kind::Erased) {
        kept.record = *at;
        kept.line = std::move(*line);
        std::copy(at + 1, table_.begin() + LastMoved() + 1, at);
        lines_.erase(line);
        --count_;
        came.reset();
    } else if (kind == Change::Kind::Arranged) {
        PutInOrder(kept.order);
        came = other;
    } else {
        std::swap(*at, table_[Index(other)]);
        std::swap(*line, lines_[Index(other)]);
        came = other;
    }
    Tell(kept.change);
    return came;
}

std::optional<int> ProcedureRows::TakeBack(KeptChange& kept) {
    const auto [kind, row, other] = kept.change;
    if (kind == Change::Kind::Replaced || kind == Change::Kind::Exchanged) {
        Make(kept);
        return row;
    }
    if (kind == Change::Kind::Arranged) {
        PutInOrder(PlacesIn(kept.order));
        Tell(kept.change);
        return row;
    }
    const auto at = table_.begin() + row;
    const auto line = lines_.begin() + row;
    if (kind == Change::Kind::Appended) {
        --count_;
        std::swap(*at, kept.record);
        kept.line = std::move(*line);
        lines_.erase(line);
        Tell({Change::Kind::Erased, row});
        return std::nullopt;
    }
    ++count_;
    std::copy_backward(at, table_.begin() + LastMoved(), table_.begin() + LastMoved() + 1);
    *at = std::exchange(kept.record, {});
    lines_.insert(line, std::exchange(kept.line, {}));
    Tell({Change::Kind::Inserted, row});
    return row;
}

void ProcedureRows::PutInOrder(const std::vector<int>& order) {
    std::vector<WaypointRecord> rows;
    std::vector<std::string> lines;
    rows.reserve(order.size());
    lines.reserve(order.size());
    for (const int row : order) {
        rows.push_back(std::move(table_[Index(row)]));
        lines.push_back(std::move(lines_[Index(row)]));
    }
    std::move(rows.begin(), rows.end(), table_.begin());
    lines_ = std::move(lines);
}

void ProcedureRows::Carry(KeptChange kept) {
    Make(kept);
    history_.Keep(std::move(kept));
}

std::optional<int> ProcedureRows::Undo() {
    const auto changes = history_.Back();
    std::optional<int> came;
    for (auto kept = changes.rbegin(); kept != changes.rend(); ++kept) came = TakeBack(*kept);
    return came;
}

std::optional<int> ProcedureRows::Redo() {
    std::optional<int> came;
    for (KeptChange& kept : history_.Forward()) came = Make(kept);
    return came;
}

void ProcedureRows::Append(const WaypointRecord& row, std::string_view line) {
    if (Free() == 0) throw Failure(BadArgument, "the procedure has no row left");
    Carry({{Change::Kind::Appended, count_}, row, std::string(line)});
}

void ProcedureRows::Replace(int index, const WaypointRecord& row) {
    RequireInUse(index);
    if (table_[Index(index)] == row) return;
    Carry({{Change::Kind::Replaced, index}, row});
}

void ProcedureRows::Erase(int index) {
    RequireInUse(index);
    Carry({{Change::Kind::Erased, index}});
}

void ProcedureRows::Exchange(int index, int other) {
    RequireInUse(index);
    RequireInUse(other);
    Carry({{Change::Kind::Exchanged, index, other}});
}

void ProcedureRows::Arrange(std::vector<int> order, int row) {
    RequireInUse(row);
    if (std::cmp_not_equal(order.size(), count_) || !IsOrder(order)) {
        throw Failure(BadArgument, "this is no order of the rows");
    }
    const int place = PlacesIn(order)[Index(row)];
    Carry({.change = {Change::Kind::Arranged, row, place}, .order = std::move(order)});
}

void ProcedureRows::Assign(std::span<const WaypointRecord> rows) {
    if (rows.size() > table_.size()) throw Failure(BadArgument, "the procedure has no room for so many rows");
    std::copy(rows.begin(), rows.end(), table_.begin());
    count_ = static_cast<std::int32_t>(rows.size());
    lines_.clear();
    for (const WaypointRecord& row : rows) lines_.push_back(row.WaypointID.Text());
    history_.Clear();
    Tell({Change::Kind::Assigned});
}

}  // namespace tarvex
