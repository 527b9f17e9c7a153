// Undo and redo of the rows, seen from outside: whatever was done comes back byte for byte, also what stands
// behind the rows in use.

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <random>

#include "procedure/procedure_rows.h"
#include "procedure/row_block.h"
#include "support/failure_of.h"

namespace tarvex {
namespace {

struct Shown {
    WaypointRows table;
    int count;
    std::vector<std::string> lines;
    friend bool operator==(const Shown&, const Shown&) = default;
};

// Keeps the lines that a list would show, by what it is told alone.
class Follower : public RowsObserver {
  public:
    explicit Follower(const ProcedureRows& rows) : rows_(rows) {}

    void RowsChanged(const ProcedureRows::Change& change) override {
        using Kind = ProcedureRows::Change::Kind;
        const auto at = lines.begin() + change.row;
        const auto told = [&] { return rows_.Lines().at(static_cast<std::size_t>(change.row)); };
        if (change.kind == Kind::Appended || change.kind == Kind::Inserted) lines.insert(at, told());
        if (change.kind == Kind::Erased) lines.erase(at);
        if (change.kind == Kind::Exchanged) std::swap(*at, lines[static_cast<std::size_t>(change.other)]);
        if (change.kind == Kind::Assigned || change.kind == Kind::Arranged) lines = rows_.Lines();
    }

    std::vector<std::string> lines;

  private:
    const ProcedureRows& rows_;
};

class RowsHistoryTest : public ::testing::Test {
  protected:
    RowsHistoryTest() { rows.Observe(follower); }

    int Below(int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); }
    WaypointRecord Row() {
        const std::string number = std::to_string(++made);
        return {.WaypointID = "W" + number,
                .LatDecimal = "33.93333333333333" + number,
                .LongMinutes = number,
                .RestrictionType = "3"};
    }
    // Some of the rows.
    std::vector<int> Block() {
        std::vector<int> block;
        for (int row = 0; row < rows.Count(); ++row) {
            if (Below(3) == 0) block.push_back(row);
        }
        return block;
    }
    Shown Now() const { return {rows.Table(), rows.Count(), rows.Lines()}; }

    // One step of any kind.
    void Step() {
        const RowsStep step(rows, "Step " + std::to_string(++made));
        const int kind = rows.Count() == 0 ? 0 : Below(7);
        if (kind == 6) return rows.Arrange(MovedBefore(Block(), Below(rows.Count() + 1), rows.Count()), 0);
        if (kind == 1) return rows.Replace(Below(rows.Count()), Row());
        if (kind == 2) return rows.Exchange(Below(rows.Count()), Below(rows.Count()));
        if (kind >= 3 && (kind == 3 || rows.Free() == 0)) return rows.Erase(Below(rows.Count()));
        const int most = Below(20) == 0 ? MaxWaypoints : 3;
        for (int i = Below(most); i >= 0 && rows.Free() > 0; --i) rows.Append(Row(), "line");
    }

    std::mt19937 random{5};
    int made = 0;
    ProcedureRows rows;
    Follower follower{rows};
};

TEST_F(RowsHistoryTest, BringsBackEverythingAtAnyMoment) {
    rows.Assign(std::vector<WaypointRecord>(MaxWaypoints, Row()));  // what stands behind the rows later
    rows.Assign(std::vector<WaypointRecord>(3, Row()));
    std::vector<Shown> states{Now()};
    std::size_t at = 0;
    int full = 0;
    for (int round = 0; round < 800; ++round) {
        const std::size_t undone = Below(100) == 0 ? at : static_cast<std::size_t>(Below(3));
        for (std::size_t i = 0; i < undone && at > 0; ++i) {
            rows.Undo();
            ASSERT_TRUE(Now() == states[--at]) << "undone in round " << round;
        }
        for (int i = Below(3); i > 0 && at + 1 < states.size(); --i) {
            rows.Redo();
            ASSERT_TRUE(Now() == states[++at]) << "done again in round " << round;
        }
        for (int i = Below(6); i > 0; --i) {
            const std::string last(rows.History().LastStep());
            Step();
            if (rows.History().LastStep() == last) continue;
            states.resize(at + 1);
            states.push_back(Now());
            ++at;
            full += rows.Free() == 0;
        }
        ASSERT_EQ(follower.lines, rows.Lines()) << "told in round " << round;
        if (at < 400) continue;
        while (!rows.History().LastStep().empty()) rows.Undo();
        ASSERT_TRUE(Now() == states.front());
        at = 0;
    }
    EXPECT_GT(full, 10) << "the last row was hardly ever in use";
}

TEST_F(RowsHistoryTest, TellsTheRowThatAStepCameTo) {
    rows.Assign(std::vector<WaypointRecord>(3, Row()));
    const std::vector<std::pair<std::function<void()>, std::pair<std::optional<int>, std::optional<int>>>>
        steps = {
            {[&] { rows.Append(Row(), "A"), rows.Append(Row(), "B"); }, {std::nullopt, 4}},
            {[&] { rows.Replace(1, Row()); }, {1, 1}},
            {[&] { rows.Exchange(2, 1); }, {2, 1}},
            {[&] {
                 rows.Arrange(MovedBefore({1, 3}, 0, 5), 3);
             },
             {3, 1}},
            {[&] { rows.Erase(1); }, {1, std::nullopt}},
        };
    for (const auto& [make, came] : steps) {
        {
            const RowsStep step(rows, "name");
            make();
        }
        EXPECT_EQ(rows.Undo(), came.first);
        EXPECT_EQ(rows.History().NextStep(), "name");
        EXPECT_EQ(rows.Redo(), came.second);
        EXPECT_EQ(rows.Redo(), std::nullopt);
    }
}

TEST_F(RowsHistoryTest, DropsABlockAsItsRowsMoveOneByOne) {
    for (int round = 0; round < 200; ++round) {
        std::vector<WaypointRecord> distinct(static_cast<std::size_t>(1 + Below(9)));
        for (WaypointRecord& row : distinct) row = Row();
        rows.Assign(distinct);
        ProcedureRows single = rows;
        const auto go = [&single](int row, int to) {
            for (const int by = row < to ? 1 : -1; row != to; row += by) single.Exchange(row, row + by);
        };
        const std::vector<int> block = Block();
        const int before = Below(rows.Count() + 1);
        const auto behind = std::ranges::lower_bound(block, before);
        int gap = before;
        for (auto row = behind; row != block.begin();) go(*--row, --gap);
        gap = before;
        for (auto row = behind; row != block.end(); ++row) go(*row, gap++);
        rows.Arrange(MovedBefore(block, before, rows.Count()), 0);
        ASSERT_TRUE(rows.Table() == single.Table()) << "round " << round;
    }
    for (const std::vector<int>& order : {std::vector{0}, {0, 0}, {0, 2}, {-1, 0}}) {
        rows.Assign(std::vector<WaypointRecord>(2));
        EXPECT_EQ(testing::FailureOf([&] { rows.Arrange(order, 0); }).Reason(),
                  "this is no order of the rows");
    }
}

TEST_F(RowsHistoryTest, KeepsAThousandStepsInItsRoom) {
    // The most that steps can hold: the table filled at a stroke and emptied row by row, over and over.
    for (int i = 0; i < 2500; ++i) {
        const RowsStep step(
            rows, "a step with a name that is long enough to stand on its own " + std::to_string(i));
        if (rows.Count() > 0) {
            rows.Erase(0);
        } else {
            while (rows.Free() > 0) rows.Append(Row(), std::string(50, 'L'));
        }
        ASSERT_LT(rows.History().Bytes(), RowsHistory::MaxBytes / 4);
    }
    std::size_t steps = 0;
    for (; !rows.History().LastStep().empty(); ++steps) rows.Undo();
    EXPECT_EQ(steps, RowsHistory::MaxSteps);

    // Rows of any size give way before the room does.
    rows.Assign(std::vector<WaypointRecord>(1));
    for (int i = 0; i < 20; ++i) {
        WaypointRecord row = Row();
        row.LatDecimal.insert(0, 1'000'000, '0');
        const RowsStep step(rows, "Modify");
        rows.Replace(0, row);
    }
    EXPECT_LT(rows.History().Bytes(), RowsHistory::MaxBytes);
    EXPECT_GT(rows.History().Bytes(), RowsHistory::MaxBytes - 2'100'000);
    EXPECT_FALSE(rows.History().LastStep().empty());
}

TEST_F(RowsHistoryTest, EndsWithAChangeOutsideOfSteps) {
    for (const bool assigned : {false, true}) {
        {
            const RowsStep step(rows, "Add");
            rows.Append(Row(), "A");
        }
        EXPECT_EQ(rows.History().LastStep(), "Add");
        assigned ? rows.Assign({}) : rows.Replace(0, Row());
        EXPECT_EQ(rows.History().LastStep(), "");
        EXPECT_EQ(rows.Undo(), std::nullopt);
    }
}

TEST_F(RowsHistoryTest, RefusesRowsThatAreNotThere) {
    const auto reason = [](auto change) { return testing::FailureOf(change).Reason(); };
    rows.Assign(std::vector<WaypointRecord>(MaxWaypoints));
    EXPECT_EQ(reason([&] { rows.Append(Row(), ""); }), "the procedure has no row left");
    EXPECT_EQ(reason([&] { rows.Assign(std::vector<WaypointRecord>(MaxWaypoints + 1)); }),
              "the procedure has no room for so many rows");
    rows.Assign({});
    const std::function<void()> changes[] = {[&] { rows.Replace(0, Row()); }, [&] { rows.Erase(0); },
                                             [&] { rows.Exchange(0, 0); }, [&] { rows.Arrange({}, 0); }};
    for (const auto& change : changes) EXPECT_EQ(reason(change), "the procedure has no such row");
}

TEST_F(RowsHistoryTest, TellsItsObserverUntilThatEnds) {
    Follower other(rows);
    rows.EndObservation(other);
    rows.Append(Row(), "line");
    EXPECT_EQ(follower.lines.size(), 1U) << "which still observes";
    rows.EndObservation(follower);
    rows.Append(Row(), "line");
    EXPECT_EQ(follower.lines.size(), 1U);
}

}  // namespace
}  // namespace tarvex
