#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstring>
#include <memory>
#include <vector>

#include "allocation_count.h"
#include "navigation/load_navigation_data.h"
#include "navigation_files.h"
#include "timing.h"
#include "toolkit/native_file_system.h"

namespace tarvex::benchmarks {
namespace {

const NavigationFiles& FullSize() {
    static const NavigationFiles files = NavigationFiles::OfFullSize();
    return files;
}

// The least that a load can cost: the file in fresh memory and every line end found.
std::size_t CountLines(const std::filesystem::path& path) {
    const auto size = static_cast<std::size_t>(std::filesystem::file_size(path));
    const auto bytes = std::make_unique_for_overwrite<char[]>(size);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.string().c_str(), "rb"),
                                                               std::fclose);
    if (std::fread(bytes.get(), 1, size, file.get()) != size) return 0;
    std::size_t lines = 0;
    const char* const end = bytes.get() + size;
    for (const char* at = bytes.get();
         (at = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)))) !=
         nullptr;
         ++at) {
        ++lines;
    }
    return lines;
}

void ReadAndCountLines() {
    for (const auto& file : FullSize().Files()) benchmark::DoNotOptimize(CountLines(file));
}

struct Load {
    std::unique_ptr<FileSystem> files = MakeNativeFileSystem();
    NavigationTables tables;

    void operator()(const std::string& simulatorPath) {
        benchmark::DoNotOptimize(LoadNavigationData(*files, simulatorPath, tables));
        benchmark::ClobberMemory();
    }
};

void NavigationFloor(benchmark::State& state) {
    FullSize();
    for (auto _ : state) ReadAndCountLines();
}
BENCHMARK(NavigationFloor)->Unit(benchmark::kMillisecond);

void NavigationLoad(benchmark::State& state) {
    Load load;
    const std::string path = FullSize().SimulatorPath();
    for (auto _ : state) load(path);
}
BENCHMARK(NavigationLoad)->Unit(benchmark::kMillisecond);

// The load and its floor by turns, so that both meet the same machine.
void NavigationLoadToFloor(benchmark::State& state) {
    Load load;
    const std::string path = FullSize().SimulatorPath();
    std::vector<double> floors, loads;
    for (auto _ : state) {
        floors.push_back(MillisecondsOf(ReadAndCountLines));
        loads.push_back(MillisecondsOf([&] { load(path); }));
    }
    state.counters["floor_ms"] = MedianOf(floors);
    state.counters["load_ms"] = MedianOf(loads);
    state.counters["ratio"] = MedianOf(loads) / MedianOf(floors);
}
BENCHMARK(NavigationLoadToFloor)->Unit(benchmark::kMillisecond)->MinTime(3);

std::size_t AllocationsOf(Load& load, const NavigationFiles& files) {
    const std::string path = files.SimulatorPath();
    const std::size_t before = AllocationCount();
    load(path);
    return AllocationCount() - before;
}

// Fails when the allocations of a load grow with the lines.
void NavigationLoadAllocations(benchmark::State& state) {
    Load load;
    const NavigationFiles small(1, 1, 1);
    for (auto _ : state) {
        const std::size_t full = AllocationsOf(load, FullSize());
        const std::size_t one = AllocationsOf(load, small);
        if (full > one) state.SkipWithError("allocations grow with the lines");
        state.counters["full"] = static_cast<double>(full);
        state.counters["one_line"] = static_cast<double>(one);
    }
}
BENCHMARK(NavigationLoadAllocations)->Iterations(1);

}  // namespace
}  // namespace tarvex::benchmarks
