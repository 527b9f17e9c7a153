#pragma once

#include <span>
#include <string>
#include <vector>

#include "procedure/waypoint_record.h"

namespace tarvex {

class RowsObserver;

// The rows of the procedure that is open, each with the line that the list of waypoints shows for it. A line
// is data of its own: a row that is replaced keeps it, whatever its name is by then. Row i and line i always
// stand for the same waypoint. Rows behind those in use keep whatever they last held.
class ProcedureRows {
  public:
    // What became of the rows.
    struct Change {
        enum class Kind { Appended, Replaced, Erased, Exchanged, Assigned };
        Kind kind;
        int row = 0;    // that was appended, replaced or erased, or the one that was exchanged ...
        int other = 0;  // ... with this one
    };

    const WaypointRows& Table() const { return table_; }
    const std::int32_t& Count() const { return count_; }
    std::span<const WaypointRecord> InUse() const { return std::span(table_).first(Index(count_)); }
    const std::vector<std::string>& Lines() const { return lines_; }
    int Free() const { return MaxWaypoints - count_; }

    // BadArgument (5), with nothing changed, when there is no row left, and of all that follow for a row that
    // is not in use.
    void Append(const WaypointRecord& row, std::string_view line);
    void Replace(int index, const WaypointRecord& row);
    // Moves the rows behind it up. The row set free takes what the first free row holds, where there is one.
    void Erase(int index);
    void Exchange(int index, int other);
    // New rows instead of all; each line is the row's name with its trailing blanks. BadArgument for more
    // than there is room for.
    void Assign(std::span<const WaypointRecord> rows);

    // Who is told of every change, one at a time.
    void Observe(RowsObserver& observer) { observer_ = &observer; }
    // Does nothing where another one has taken over.
    void EndObservation(const RowsObserver& observer) {
        if (observer_ == &observer) observer_ = nullptr;
    }

  private:
    static std::size_t Index(int index) { return static_cast<std::size_t>(index); }
    void RequireInUse(int index) const;
    void Tell(const Change& change) const;

    WaypointRows table_;
    std::int32_t count_ = 0;
    std::vector<std::string> lines_;
    RowsObserver* observer_ = nullptr;
};

class RowsObserver {
  public:
    virtual ~RowsObserver() = default;
    virtual void RowsChanged(const ProcedureRows::Change& change) = 0;
};

}  // namespace tarvex
