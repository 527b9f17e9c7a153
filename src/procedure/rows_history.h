#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "procedure/waypoint_record.h"

namespace tarvex {

// What became of the rows of a procedure.
struct RowsChange {
    enum class Kind { Appended, Inserted, Replaced, Erased, Exchanged, Arranged, Assigned };
    Kind kind;
    int row = 0;  // that came, was replaced or erased, was exchanged with the other or moved to its place
    int other = 0;
};

// A change of rows with what they do not hold: once it is made what it took away, before that, and when it is
// taken back, what it brings. An append takes away what stood in the row behind those in use.
struct KeptChange {
    RowsChange change;
    WaypointRecord record{};
    std::string line{};
    std::vector<int> order{};  // of rows that were arranged
};

// The steps that were made of the rows and those that were taken back, each with a name and its changes. It
// only keeps them: the owner of the rows makes the changes.
class RowsHistory {
  public:
    static constexpr std::size_t MaxSteps = 1000;
    static constexpr std::size_t MaxBytes = 8'000'000;

    // The names of the steps that can be taken back and made again next; empty for none.
    std::string_view LastStep() const;
    std::string_view NextStep() const;

    // Keeps the changes up to Close as one step, without any as none. The oldest steps go when there are too
    // many or they take too much room.
    void Open(std::string name) { open_ = std::move(name); }
    void Close();
    // A change that was made. It ends what could be made again; outside of a step it ends everything, since
    // no step stands on the rows any longer that it left.
    void Keep(KeptChange change);
    void Clear();

    // The changes of the step to be taken back, the last one first to go, or to be made again. From then on
    // it counts as taken back or made. Empty for none.
    std::span<KeptChange> Back();
    std::span<KeptChange> Forward();

    // What the steps take of the memory.
    std::size_t Bytes() const;

  private:
    struct Step {
        std::string name;
        std::vector<KeptChange> changes;
    };

    std::deque<Step> steps_;
    std::size_t made_ = 0;  // that many of them; the others were taken back
    std::optional<std::string> open_;
    bool kept_ = false;  // the open step has a change
};

}  // namespace tarvex
