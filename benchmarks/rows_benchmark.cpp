#include <benchmark/benchmark.h>
#include <functional>
#include <numeric>
#include <string>

#include "procedure/procedure_rows.h"
#include "procedure/row_block.h"
#include "timing.h"

namespace tarvex::benchmarks {
namespace {

// The heaviest step: all rows at a stroke, taken back and made again.
void RowsUndoAndRedo(benchmark::State& state) {
    ProcedureRows rows;
    {
        const RowsStep step(rows, "Add ARC");
        const WaypointRecord row{.LatDecimal = "33.93333333333333333",
                                 .LongDecimal = "-118.4123456789012345"};
        while (rows.Free() > 0) rows.Append(row, "ABC" + std::to_string(rows.Count()));
    }
    for (auto _ : state) {
        rows.Undo();
        rows.Redo();
    }
}
BENCHMARK(RowsUndoAndRedo)->Unit(benchmark::kMicrosecond);

// A step beside a thousand others: the first of all rows is erased, and that is undone.
void RowsStepAndUndo(benchmark::State& state) {
    ProcedureRows rows;
    rows.Assign(std::vector<WaypointRecord>(MaxWaypoints));
    for (std::size_t i = 0; i < RowsHistory::MaxSteps; ++i) {
        const RowsStep step(rows, "Move");
        rows.Exchange(0, 1);
    }
    for (auto _ : state) {
        {
            const RowsStep step(rows, "Delete");
            rows.Erase(0);
        }
        rows.Undo();
    }
}
BENCHMARK(RowsStepAndUndo)->Unit(benchmark::kMicrosecond);

// The undo of a step, beside a copy of all rows: 100 rows dragged to the end, or deleted, or one modified.
void RowsUndoToFloor(benchmark::State& state, const std::function<void(ProcedureRows&)>& change) {
    ProcedureRows rows;
    rows.Assign(std::vector<WaypointRecord>(
        MaxWaypoints,
        {.LatDecimal = "33.93333333333333333", .LatMinutes = "55.99998", .LongDecimal = "-118.4123456789"}));
    WaypointRows copy;
    std::vector<double> undo;
    std::vector<double> floor;
    for (auto _ : state) {
        {
            const RowsStep step(rows, "Step");
            change(rows);
        }
        undo.push_back(MillisecondsOf([&] { rows.Undo(); }));
        floor.push_back(MillisecondsOf([&] { copy = rows.Table(); }));
    }
    benchmark::DoNotOptimize(copy);
    state.counters["undo_us"] = MedianOf(undo) * 1000;
    state.counters["floor_us"] = MedianOf(floor) * 1000;
}

std::vector<int> Block() {
    std::vector<int> block(100);
    std::iota(block.begin(), block.end(), 0);
    return block;
}

BENCHMARK_CAPTURE(RowsUndoToFloor, moved, [](ProcedureRows& rows) {
    rows.Arrange(MovedBefore(Block(), MaxWaypoints, MaxWaypoints), 0);
});
BENCHMARK_CAPTURE(RowsUndoToFloor, deleted, [](ProcedureRows& rows) {
    for (int left = 100; left > 0; --left) rows.Erase(0);
});
BENCHMARK_CAPTURE(RowsUndoToFloor, modified,
                  [](ProcedureRows& rows) { rows.Replace(0, {.LatDecimal = "33.1"}); });

}  // namespace
}  // namespace tarvex::benchmarks
