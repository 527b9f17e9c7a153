#include <algorithm>
#include <benchmark/benchmark.h>
#include <filesystem>
#include <random>

#include "procedure/procedure_lines.h"
#include "procedure/procedure_reader.h"
#include "toolkit/native_file_system.h"

namespace tarvex::benchmarks {
namespace {

// A full procedure in a file of its own in a temporary place, taken away at the end.
class FullProcedure {
  public:
    FullProcedure()
        : path_(std::filesystem::temp_directory_path() /
                ("tarvex-" + std::to_string(std::random_device()()) + ".wsd")) {
        state.ProgramVersion = "2.35";
        state.ProcedureFolder = path_.parent_path().string() + '\\';
        state.ProcedureFileName = path_.filename().string();
        std::replace(state.ProcedureFolder.begin(), state.ProcedureFolder.end(), '/', '\\');
        for (auto& row : state.WaypointTable) {
            row.WaypointID = "BRAVO12";
            row.WaypointType = "0";
            row.CoordinatesEdited = True;
            row.LatDegrees = "-33";
            row.LatMinutes = "56.074041";
            row.LongDegrees = "118";
            row.LongMinutes = "24.740712";
            row.Frequency = "113.60";
            row.Airspeed = "250";
            row.Altitude1 = "3000";
            row.Altitude2 = "9000";
            row.RestrictionType = "3";
        }
        Save();
    }
    ~FullProcedure() { std::filesystem::remove(path_); }
    FullProcedure(const FullProcedure&) = delete;
    FullProcedure& operator=(const FullProcedure&) = delete;

    // The user's save of rows that all have a position to compute.
    void Save() {
        std::vector<WaypointItems> lines(state.WaypointTable.size());
        std::transform(state.WaypointTable.begin(), state.WaypointTable.end(), lines.begin(), ItemsForSave);
        benchmark::DoNotOptimize(FindUnstorableItem(lines));
        files->Write(state.ProcedureFolder + state.ProcedureFileName,
                     ProcedureText(CommentOfSave("5/14/2001", state.ProgramVersion), lines));
    }

    std::unique_ptr<FileSystem> files = MakeNativeFileSystem();
    SharedState state;

  private:
    std::filesystem::path path_;
};

void ProcedureRead(benchmark::State& state) {
    FullProcedure procedure;
    for (auto _ : state) ReadProcedureFile(*procedure.files, procedure.state);
}
BENCHMARK(ProcedureRead)->Unit(benchmark::kMicrosecond);

void ProcedureSave(benchmark::State& state) {
    FullProcedure procedure;
    for (auto _ : state) procedure.Save();
}
BENCHMARK(ProcedureSave)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tarvex::benchmarks
