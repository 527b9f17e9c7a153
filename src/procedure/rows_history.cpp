#include "procedure/rows_history.h"

#include <utility>

namespace tarvex {

namespace {

std::size_t HeapBytes(const std::string& text) {
    const std::size_t within = std::string().capacity();
    return text.capacity() > within ? text.capacity() + 1 : 0;
}

std::size_t HeapBytes(const WaypointRecord& row) {
    return HeapBytes(row.LatDecimal) + HeapBytes(row.LatDegrees) + HeapBytes(row.LatMinutes) +
           HeapBytes(row.LongDecimal) + HeapBytes(row.LongDegrees) + HeapBytes(row.LongMinutes);
}

}  // namespace

std::string_view RowsHistory::LastStep() const {
    return made_ == 0 ? std::string_view() : steps_[made_ - 1].name;
}

std::string_view RowsHistory::NextStep() const {
    return made_ == steps_.size() ? std::string_view() : steps_[made_].name;
}

void RowsHistory::Keep(KeptChange change) {
    if (!open_) return Clear();
    if (!std::exchange(kept_, true)) {
        steps_.resize(made_);
        steps_.push_back({*open_, {}});
        ++made_;
    }
    steps_.back().changes.push_back(std::move(change));
}

void RowsHistory::Close() {
    open_.reset();
    if (!std::exchange(kept_, false)) return;
    steps_.back().changes.shrink_to_fit();
    while (steps_.size() > MaxSteps || Bytes() >= MaxBytes) {
        steps_.pop_front();
        --made_;
    }
}

void RowsHistory::Clear() {
    steps_.clear();
    steps_.shrink_to_fit();
    made_ = 0;
    kept_ = false;
}

std::span<KeptChange> RowsHistory::Back() {
    if (made_ == 0) return {};
    return steps_[--made_].changes;
}

std::span<KeptChange> RowsHistory::Forward() {
    if (made_ == steps_.size()) return {};
    return steps_[made_++].changes;
}

std::size_t RowsHistory::Bytes() const {
    std::size_t bytes = steps_.size() * sizeof(Step);
    for (const Step& step : steps_) {
        bytes += HeapBytes(step.name) + step.changes.capacity() * sizeof(KeptChange);
        for (const KeptChange& kept : step.changes) {
            bytes += HeapBytes(kept.record) + HeapBytes(kept.line) + kept.order.capacity() * sizeof(int);
        }
    }
    return bytes;
}

}  // namespace tarvex
