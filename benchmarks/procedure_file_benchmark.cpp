#include <algorithm>
#include <benchmark/benchmark.h>
#include <filesystem>
#include <random>

#include "procedure/procedure_reader.h"
#include "procedure/procedure_save.h"
#include "startup/shared_state.h"
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
        WaypointRecord row;
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
        state.Rows.Assign(std::vector<WaypointRecord>(MaxWaypoints, row));
        Save();
    }
    ~FullProcedure() { std::filesystem::remove(path_); }
    FullProcedure(const FullProcedure&) = delete;
    FullProcedure& operator=(const FullProcedure&) = delete;

    // The user's save of rows that all have a position to compute.
    void Save() {
        files->Write(state.ProcedureFolder + state.ProcedureFileName,
                     ComposeProcedure(state.Rows.InUse(), "5/14/2001", state.ProgramVersion).text);
    }

    void Read() { ReadProcedureFile(*files, state, state.ProgramVersion, state.Navigation, state.Rows); }

    std::unique_ptr<FileSystem> files = MakeNativeFileSystem();
    SharedState state;

  private:
    std::filesystem::path path_;
};

void ProcedureRead(benchmark::State& state) {
    FullProcedure procedure;
    for (auto _ : state) procedure.Read();
}
BENCHMARK(ProcedureRead)->Unit(benchmark::kMicrosecond);

void ProcedureSave(benchmark::State& state) {
    FullProcedure procedure;
    for (auto _ : state) procedure.Save();
}
BENCHMARK(ProcedureSave)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tarvex::benchmarks
