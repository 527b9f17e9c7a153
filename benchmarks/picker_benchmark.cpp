#include <benchmark/benchmark.h>
#include <fstream>
#include <random>

#include "navigation_files.h"
#include "procedure/pick_file.h"
#include "program/program.h"
#include "startup/initial_load.h"
#include "timing.h"
#include "toolkit/native_clock.h"
#include "toolkit/native_file_system.h"
#include "toolkit/native_registry.h"

namespace tarvex::benchmarks {
namespace {

constexpr std::size_t StoredProcedures = 20000;

class NoMessages : public MessageBox {
  public:
    MessageAnswer Show(const Message& message) override { return message.defaultAnswer; }
};

class NoPictures : public PictureServices {
  public:
    double Width(const std::string&, double, bool) const override { return 0; }
    std::optional<std::string> AskForPlace(const std::string&) override { return std::nullopt; }
    std::string PngOf(const Drawing&) override { return {}; }
};

class NoClipboard : public Clipboard {
  public:
    void Copy(const std::string&) override {}
    std::string Text() override { return {}; }
};

class NoBrowser : public Browser {
  public:
    bool Open(const std::string&) override { return false; }
};

// A program at its menu, with many stored departures, each of an airport whose code begins with "K".
struct Machine {
    NavigationFiles simulator{1, 1, 1};
    std::filesystem::path root = simulator.Files()[0].parent_path();
    std::unique_ptr<FileSystem> files = MakeNativeFileSystem();
    std::unique_ptr<Registry> registry = MakeNativeRegistry();
    std::unique_ptr<Clock> clock = MakeNativeClock();
    NoMessages messages;
    NoPictures pictures;
    NoClipboard clipboard;
    NoBrowser browser;
    Program program{{*files, *registry, *clock, messages, pictures, clipboard, browser, SystemFolder()}};

    Machine() {
        std::ofstream(root / "Tarvex.INI") << simulator.SimulatorPath() << "\r\nN\r\nW\r\nW\r\n";
        std::filesystem::create_directories(root / "Sids");
        std::mt19937 random(767);
        for (std::size_t i = 0; i < StoredProcedures; ++i) {
            std::string name = "KAAA-AAAAA" + std::to_string(i % 10) + ".wsd";
            for (const std::size_t letter : {1U, 2U, 3U, 5U, 6U, 7U, 8U, 9U}) {
                name[letter] = static_cast<char>('A' + random() % 26);
            }
            std::ofstream{root / "Sids" / name};
        }
        program.Start();
    }

    std::string SystemFolder() const {
        std::string path = root.string();
        std::replace(path.begin(), path.end(), '/', '\\');
        return path;
    }

    PickFile& Opened() {
        program.door.Press(program.initialLoad.Get()->ModifyDP);
        return *program.pickFile.Get();
    }
};

void PickerOpens(benchmark::State& state) {
    Machine machine;
    for (auto _ : state) benchmark::DoNotOptimize(machine.Opened().FileList.Lines().size());
}
BENCHMARK(PickerOpens)->Unit(benchmark::kMillisecond);

// The slowest of four letters typed and taken back one by one, each by its median.
void PickerNarrows(benchmark::State& state) {
    Machine machine;
    PickFile& picker = machine.Opened();
    const std::vector<std::string> texts{"K", "KJ", "KJF", "KJFK", "KJF", "KJ", "K", ""};
    std::vector<std::vector<double>> times(texts.size());
    for (auto _ : state) {
        for (std::size_t i = 0; i < texts.size(); ++i) {
            times[i].push_back(MillisecondsOf([&] { machine.program.door.Type(picker.PickICAO, texts[i]); }));
        }
    }
    double slowest = 0;
    for (const auto& each : times) slowest = std::max(slowest, MedianOf(each));
    state.counters["files"] = static_cast<double>(picker.FileList.Lines().size());
    state.counters["letter_ms"] = slowest;
}
BENCHMARK(PickerNarrows)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarvex::benchmarks
