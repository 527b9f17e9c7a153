#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "procedure/rows_history.h"

namespace tarvex {

class RowsObserver;

// The rows of the procedure that is open, each with the line that the list of waypoints shows for it. A line
// is data of its own: a row that is replaced keeps it, whatever its name is by then. Row i and line i always
// stand for the same waypoint. Rows behind those in use keep whatever they last held.
class ProcedureRows {
  public:
    using Change = RowsChange;

    const WaypointRows& Table() const { return table_; }
    const std::int32_t& Count() const { return count_; }
    std::span<const WaypointRecord> InUse() const { return std::span(table_).first(Index(count_)); }
    const std::vector<std::string>& Lines() const { return lines_; }
    int Free() const { return MaxWaypoints - count_; }

    // BadArgument (5), with nothing changed, when there is no row left, and of all that follow for a row that
    // is not in use.
    void Append(const WaypointRecord& row, std::string_view line);
    // Changes nothing when it is the same.
    void Replace(int index, const WaypointRecord& row);
    // Moves the rows behind it up. The row set free takes what the first free row holds, where there is one.
    void Erase(int index);
    void Exchange(int index, int other);
    // Puts row order[i] into place i, for all rows in use; BadArgument unless each of them comes once. `row`
    // is the one that counts as moved when it comes to selecting it.
    void Arrange(std::vector<int> order, int row);
    // New rows instead of all; each line is the row's name with its trailing blanks. BadArgument for more
    // than there is room for.
    void Assign(std::span<const WaypointRecord> rows);

    // What is done to the rows within a RowsStep can be undone until all rows are assigned. Brings rows,
    // lines and count back as they were before the step, those behind the rows in use with them, or makes the
    // step again. Gives the row that it came to at last; nothing when that has gone, or without such a step.
    std::optional<int> Undo();
    std::optional<int> Redo();
    const RowsHistory& History() const { return history_; }
    void ForgetSteps() { history_.Clear(); }

    // Who is told of every change, one at a time.
    void Observe(RowsObserver& observer) { observer_ = &observer; }
    // Does nothing where another one has taken over.
    void EndObservation(const RowsObserver& observer) {
        if (observer_ == &observer) observer_ = nullptr;
    }

  private:
    friend class RowsStep;

    static std::size_t Index(int index) { return static_cast<std::size_t>(index); }
    void RequireInUse(int index) const;
    void Tell(const Change& change) const;
    int LastMoved() const;  // by an erasure
    // Makes the change and keeps it.
    void Carry(KeptChange kept);
    // Makes the change, and takes it back; the row that it came to.
    std::optional<int> Make(KeptChange& kept);
    std::optional<int> TakeBack(KeptChange& kept);
    void PutInOrder(const std::vector<int>& order);

    WaypointRows table_;
    std::int32_t count_ = 0;
    std::vector<std::string> lines_;
    RowsHistory history_;
    RowsObserver* observer_ = nullptr;
};

// One act on the rows, which is undone as a whole, from here to the end of its life. `name` is not empty.
class RowsStep {
  public:
    RowsStep(ProcedureRows& rows, std::string name) : history_(rows.history_) {
        history_.Open(std::move(name));
    }
    ~RowsStep() { history_.Close(); }
    RowsStep(const RowsStep&) = delete;
    RowsStep& operator=(const RowsStep&) = delete;

  private:
    RowsHistory& history_;
};

class RowsObserver {
  public:
    virtual ~RowsObserver() = default;
    virtual void RowsChanged(const ProcedureRows::Change& change) = 0;
};

}  // namespace tarvex
