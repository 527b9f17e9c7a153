#include <algorithm>
#include <benchmark/benchmark.h>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "chart/plan_scene.h"
#include "chart/plan_view.h"
#include "chart/position_grid.h"
#include "chart/profile_scene.h"
#include "chart/route_words.h"
#include "navigation/load_navigation_data.h"
#include "navigation/search.h"
#include "navigation_files.h"
#include "timing.h"
#include "toolkit/native_file_system.h"

namespace tarvex::benchmarks {
namespace {

const NavigationTables& FullTables() {
    static const NavigationTables tables = [] {
        NavigationTables loaded;
        LoadNavigationData(*MakeNativeFileSystem(), NavigationFiles::OfFullSize().SimulatorPath(), loaded);
        return loaded;
    }();
    return tables;
}

double NumberIn(std::string_view text) {
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at != end && *at == ' ') ++at;
    double value = 0;
    std::from_chars(at, end, value);
    return value;
}

// The least that knowing the places costs: every coordinate read once.
double ReadAllCoordinates(const NavigationTables& tables) {
    double sum = 0;
    const auto add = [&](NavigationTable table, std::int32_t last) {
        for (std::int32_t index = 0; index <= last; ++index) {
            const NavigationEntry entry = EntryAt(tables, table, index);
            sum += NumberIn(entry.latitude) + NumberIn(entry.longitude);
        }
    };
    add(NavigationTable::Fixes, tables.FixCount);
    add(NavigationTable::Navaids, tables.NavaidCount);
    add(NavigationTable::Airports, tables.AirportCount);
    return sum;
}

void PositionGridToFloor(benchmark::State& state) {
    const NavigationTables& tables = FullTables();
    std::vector<double> floors, builds;
    for (auto _ : state) {
        floors.push_back(MillisecondsOf([&] { benchmark::DoNotOptimize(ReadAllCoordinates(tables)); }));
        builds.push_back(MillisecondsOf([&] { benchmark::DoNotOptimize(PositionGrid(tables)); }));
    }
    const PositionGrid grid(tables);
    state.counters["entries"] = static_cast<double>(grid.Count());
    state.counters["bytes_an_entry"] = sizeof(PlacedEntry);
    state.counters["floor_ms"] = MedianOf(floors);
    state.counters["build_ms"] = MedianOf(builds);
    state.counters["ratio"] = MedianOf(builds) / MedianOf(floors);
}
BENCHMARK(PositionGridToFloor)->Unit(benchmark::kMillisecond)->MinTime(2);

// Full tables that lie close together where much is flown: three quarters of all within 300 miles of six
// places, with several runways at an airport.
class DenseTables {
  public:
    DenseTables() {
        for (std::size_t i = 0; i < MaxFixes; ++i) {
            const Position at = Place();
            tables.FixTable[i] = {Name(5), Text(at.latitude), Text(at.longitude)};
        }
        for (std::size_t i = 0; i < MaxNavaids; ++i) {
            const Position at = Place();
            tables.NavaidTable[i] = {Name(3), i % 2 ? "113.60" : "350.00", Text(at.latitude),
                                     Text(at.longitude)};
        }
        for (std::size_t i = 0; i < MaxAirports; i += 4) AddAirport(i);
        tables.FixCount = MaxFixes - 1;
        tables.NavaidCount = MaxNavaids - 1;
        tables.AirportCount = MaxAirports - 1;
    }

    static constexpr Position Dense[] = {{34, -118}, {41, -74}, {50, 8}, {35, 139}, {-34, 151}, {0, 179.9}};
    NavigationTables tables;

  private:
    static std::string Text(double degrees) {
        char digits[32];
        std::snprintf(digits, sizeof digits, "%.6f", degrees);
        return digits;
    }
    std::string Name(int length) {
        std::string name;
        for (int i = 0; i < length; ++i) name += static_cast<char>('A' + random_() % 26);
        return name;
    }
    double Within(double least, double most) { return std::uniform_real_distribution(least, most)(random_); }
    Position Place() {
        if (random_() % 4 == 0) return {Within(-89, 89), Within(-179, 179)};
        const Position& middle = Dense[random_() % std::size(Dense)];
        return {middle.latitude + Within(-5, 5), std::remainder(middle.longitude + Within(-6, 6), 360)};
    }
    void AddAirport(std::size_t first) {
        constexpr const char* Ends[] = {"09L", "27R", "09R", "27L"};
        const Position at = Place();
        const std::string code = Name(4);
        for (std::size_t end = 0; end < 4 && first + end < MaxAirports; ++end) {
            tables.AirportTable[first + end] = {code + Ends[end], Text(at.latitude + (end > 1 ? 0.01 : 0)),
                                                Text(at.longitude + (end % 2 ? 0.03 : 0)), 100};
        }
    }

    std::mt19937 random_{4711};
};

// Eight pixels or so to a letter, as quick as a font that is asked but once for each text.
struct PlainMeasure : TextMeasure {
    double Width(const std::string& text, double size, bool) const override {
        return 0.65 * size * static_cast<double>(text.size());
    }
};

// A procedure of 201 rows that winds round a place.
Route LongRoute(const Position& middle) {
    Route route;
    for (int row = 0; row < MaxWaypoints; ++row) {
        const double angle = row * 0.31;
        RoutePoint point;
        point.name = "PT" + std::to_string(row);
        point.position = {middle.latitude + 0.005 * row * std::sin(angle),
                          std::remainder(middle.longitude + 0.006 * row * std::cos(angle), 360)};
        point.altitude = {AltitudeRestriction::Kind::Between, 3000, 5000};
        point.speed = 210;
        route.points.push_back(point);
    }
    ConnectLegs(route);
    return route;
}

constexpr Size Screen{1920, 1080};

// The quickest of some turns: whatever else runs on the machine only adds.
double MillisecondsOfScene(const PlanView& view, const PlanContent& content) {
    double least = 1e9;
    for (int turn = 0; turn < 7; ++turn) {
        least = std::min(least, MillisecondsOf([&] {
                             benchmark::DoNotOptimize(PlanScene(view, content, PlainMeasure()).items.size());
                         }));
    }
    return least;
}

// All scales, half of one to the next, over the densest places, with a procedure of 12 rows there.
void PlanSceneSweep(benchmark::State& state) {
    static const DenseTables dense;
    const PositionGrid grid(dense.tables);
    double slowest = 0;
    double scaleOfSlowest = 0;
    for (auto _ : state) {
        for (const Position& middle : DenseTables::Dense) {
            Route route = LongRoute(middle);
            route.points.resize(12);
            const PlanContent content{.route = route, .tables = dense.tables, .grid = grid};
            double scale = LeastScale(Screen);
            while (scale < MostScale) {
                const double time = MillisecondsOfScene({middle, scale, Screen}, content);
                if (time > slowest) scaleOfSlowest = scale;
                slowest = std::max(slowest, time);
                scale *= 1.5;
            }
        }
    }
    state.counters["slowest_ms"] = slowest;
    state.counters["pixels_to_a_mile"] = scaleOfSlowest;
}
BENCHMARK(PlanSceneSweep)->Unit(benchmark::kMillisecond)->Iterations(1);

// A procedure of 201 rows where the tables have nothing, fitted, with its profile and legs.
void FullProcedure(benchmark::State& state) {
    const NavigationTables tables;
    const PositionGrid grid(tables);
    const Route route = LongRoute({34, -118});
    const PlanContent content{.route = route, .tables = tables, .grid = grid};
    const PlanView view = FitView(PositionsOf(route), Screen);
    for (auto _ : state) {
        benchmark::DoNotOptimize(PlanScene(view, content, PlainMeasure()).items.size());
        const Drawing profile =
            ProfileDrawing(route, ProfileView::Whole(route), 0, {Screen.width, 300}, PlainMeasure());
        benchmark::DoNotOptimize(profile.items.size());
        benchmark::DoNotOptimize(LegsLines(route).size());
    }
}
BENCHMARK(FullProcedure)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarvex::benchmarks
