#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdio>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "chart/route.h"
#include "findings/findings.h"
#include "geometry/text_rules.h"
#include "navigation/name_directory.h"

namespace tarvex::benchmarks {
namespace {

std::string Text(double degrees) {
    char digits[32];
    std::snprintf(digits, sizeof digits, "%.6f", degrees);
    return digits;
}

// Full tables, and an approach of 201 rows without a runway whose names are in them: nothing ends early.
struct FullApproach {
    FullApproach() : tables(std::make_unique<NavigationTables>()) {
        for (std::size_t i = 0; i < MaxFixes; ++i) {
            std::string fix(5, 'A');
            for (std::size_t rest = i * 7919, at = 0; at < 5; ++at, rest /= 26)
                fix[at] = static_cast<char>('A' + rest % 26);
            tables->FixTable[i] = {fix, Text(30 + 0.0001 * static_cast<double>(i % 9999)), "-118.0"};
        }
        for (std::size_t i = 0; i < MaxAirports; ++i) {
            char code[16];
            std::snprintf(code, sizeof code, "K%03zu%s", (i / 4) % 1000, i % 2 ? "27L" : "09R");
            tables->AirportTable[i] = {std::string(code), "34.0", "-118.0", 100};
        }
        tables->FixCount = MaxFixes - 1;
        tables->AirportCount = MaxAirports - 1;
        for (std::size_t row = 0; row < MaxWaypoints; ++row) {
            WaypointRecord record;
            record.WaypointID = tables->FixTable[row * 37].FixID.View().substr(0, 5);
            record.WaypointType = "0";
            const double angle = static_cast<double>(row) * 0.31;
            record.LatDecimal = Text(34 + 0.005 * static_cast<double>(row) * std::sin(angle));
            record.LongDecimal = Text(-118 + 0.006 * static_cast<double>(row) * std::cos(angle));
            record.Altitude1 = "3000";
            record.Altitude2 = "5000";
            record.RestrictionType = "3";
            record.Airspeed = "210";
            lines.emplace_back(Trim(record.WaypointID.View()));
            names.insert(lines.back());
            rows.push_back(record);
        }
        route = RouteOf(rows);
    }
    std::unique_ptr<NavigationTables> tables;
    std::vector<WaypointRecord> rows;
    std::vector<std::string> lines;
    std::set<std::string> names;
    Route route;
    ProcedureName name{.icao = "K123", .basicName = "A", .secondName = ""};
};

const FullApproach& Approach() {
    static const FullApproach approach;
    return approach;
}

void FindingsLearnAll(benchmark::State& state) {
    const FullApproach& approach = Approach();
    const std::set<std::string_view> names(approach.names.begin(), approach.names.end());
    for (auto _ : state) {
        NameDirectory places(*approach.tables);
        places.Learn(names);
        benchmark::DoNotOptimize(places.Find(approach.lines[0]).all.size());
    }
}
BENCHMARK(FindingsLearnAll)->Unit(benchmark::kMillisecond);

void FindingsLearnOne(benchmark::State& state) {
    const FullApproach& approach = Approach();
    for (auto _ : state) {
        NameDirectory places(*approach.tables);
        places.Learn({std::string_view(approach.lines[9])});
        benchmark::DoNotOptimize(places.Find(approach.lines[9]).all.size());
    }
}
BENCHMARK(FindingsLearnOne)->Unit(benchmark::kMillisecond);

// Look without the learning, which only a new name costs.
void Findings(benchmark::State& state, std::string_view mode) {
    const FullApproach& approach = Approach();
    NameDirectory places(*approach.tables);
    places.Learn(std::set<std::string_view>(approach.names.begin(), approach.names.end()));
    std::size_t found = 0;
    for (auto _ : state) {
        found = FindingsOf({.mode = mode,
                            .rows = approach.rows,
                            .lines = approach.lines,
                            .route = approach.route,
                            .name = approach.name,
                            .tables = *approach.tables,
                            .places = places})
                    .size();
        benchmark::DoNotOptimize(found);
    }
    state.counters["found"] = static_cast<double>(found);
}
BENCHMARK_CAPTURE(Findings, arrival, std::string_view("S"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Findings, approach, std::string_view("I"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Findings, departure, std::string_view("D"))->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarvex::benchmarks
