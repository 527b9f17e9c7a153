#include <benchmark/benchmark.h>
#include <string>

#include "procedure/procedure_rows.h"

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

}  // namespace
}  // namespace tarvex::benchmarks
