#include <benchmark/benchmark.h>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "navigation/load_navigation_data.h"
#include "navigation/search.h"
#include "navigation_files.h"
#include "timing.h"
#include "toolkit/native_file_system.h"

namespace tarvex::benchmarks {
namespace {

struct LoadedTables {
    NavigationFiles files = NavigationFiles::OfFullSize();
    NavigationTables tables;

    LoadedTables() { LoadNavigationData(*MakeNativeFileSystem(), files.SimulatorPath(), tables); }
};

const LoadedTables& FullSize() {
    static const LoadedTables loaded;
    return loaded;
}

// Every byte of the fix table, for one that is nowhere in it.
void SearchAbsentByte(const NavigationTables& tables) {
    benchmark::DoNotOptimize(std::memchr(tables.FixTable.get(), '\x01', MaxFixes * sizeof(FixRecord)));
}

// A search of the full fix table and its floor by turns, so that both meet the same machine, for a name of
// five characters and one of three.
void SearchToFloor(benchmark::State& state) {
    const NavigationTables& tables = FullSize().tables;
    const std::string_view middle = tables.FixTable[MaxFixes / 2].FixID;
    const std::string name(middle.substr(0, static_cast<std::size_t>(state.range(0))));
    std::vector<double> floors, searches;
    std::size_t hits = 0;
    for (auto _ : state) {
        floors.push_back(MillisecondsOf([&] { SearchAbsentByte(tables); }));
        searches.push_back(
            MillisecondsOf([&] { hits = FindEntries(tables, NavigationTable::Fixes, name).size(); }));
    }
    state.counters["hits"] = static_cast<double>(hits);
    state.counters["floor_us"] = MedianOf(floors) * 1000;
    state.counters["search_us"] = MedianOf(searches) * 1000;
    state.counters["ratio"] = MedianOf(searches) / MedianOf(floors);
}
BENCHMARK(SearchToFloor)->Arg(5)->Arg(3)->MinTime(1);

// The same search against grep over the file, its start as a process counted in.
void SearchToGrep(benchmark::State& state) {
    const NavigationTables& tables = FullSize().tables;
    const std::string name = tables.FixTable[MaxFixes / 2].FixID.Text();
    const std::string command =
        "grep -c -F '" + name + "' '" + FullSize().files.Files()[0].string() + "' >/dev/null";
    std::vector<double> greps, searches;
    for (auto _ : state) {
        int status = 0;
        greps.push_back(MillisecondsOf([&] { status = std::system(command.c_str()); }));
        if (status != 0) state.SkipWithError("grep found nothing");
        searches.push_back(MillisecondsOf(
            [&] { benchmark::DoNotOptimize(FindEntries(tables, NavigationTable::Fixes, name)); }));
    }
    state.counters["grep_us"] = MedianOf(greps) * 1000;
    state.counters["search_us"] = MedianOf(searches) * 1000;
    state.counters["ratio"] = MedianOf(searches) / MedianOf(greps);
}
BENCHMARK(SearchToGrep)->MinTime(1);

}  // namespace
}  // namespace tarvex::benchmarks
