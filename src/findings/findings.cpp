#include "findings/findings.h"

#include <algorithm>

#include "findings/rules.h"
#include "geometry/text_rules.h"
#include "navigation/search.h"
#include "procedure/procedure_mode.h"

namespace tarvex {

namespace {

constexpr std::size_t AirportCodeLength = 4;

// The entries of the airport that the name of the file begins with.
std::vector<std::int32_t> EndsOf(const Examined& procedure) {
    if (Trim(procedure.name.icao).empty()) return {};
    return FindEntries(procedure.tables, NavigationTable::Airports, Trim(procedure.name.icao));
}

std::string_view RunwayOf(std::string_view identifier) {
    return Trim(identifier.substr(AirportCodeLength));
}

std::size_t LastRunway(const Route& route) {
    const auto& points = route.points;
    const auto last =
        std::find_if(points.rbegin(), points.rend(), [](const RoutePoint& point) { return point.runway; });
    return last == points.rend() ? points.size() : static_cast<std::size_t>(points.rend() - last) - 1;
}

double UsualLeg(const Route& route) {
    constexpr std::size_t LeastLegs = 4;
    std::vector<double> miles;
    for (const RoutePoint& point : route.points) {
        if (point.leg) miles.push_back(point.leg->miles);
    }
    if (miles.size() < LeastLegs) return 0;
    const auto middle = miles.begin() + static_cast<std::ptrdiff_t>(miles.size() / 2);
    std::nth_element(miles.begin(), middle, miles.end());
    return *middle;
}

// Of the runway as the tables have it, else as its row has it; without a runway the lowest of the airport.
std::optional<double> Elevation(const Examined& procedure, std::size_t landing) {
    const bool lands = landing < procedure.rows.size();
    const std::string_view runway = lands ? RunwayInName(procedure.rows[landing].WaypointID) : "";
    std::optional<double> lowest;
    for (const std::int32_t index : EndsOf(procedure)) {
        const AirportRecord& end = procedure.tables.AirportTable[static_cast<std::size_t>(index)];
        const double feet = end.AirportElevation;
        if (lands && RunwayOf(end.AirportID) == runway) return feet;
        if (!lands && (!lowest || feet < *lowest)) lowest = feet;
    }
    if (lands && procedure.route.points[landing].altitude.kind != AltitudeRestriction::Kind::None) {
        return procedure.route.points[landing].altitude.low;
    }
    return lowest;
}

}  // namespace

Subject::Subject(const Examined& procedure)
    : Examined(procedure),
      landing(IsApproach(mode) ? LastRunway(route) : route.points.size()),
      usualLeg(UsualLeg(route)),
      elevation(Elevation(procedure, landing)) {}

bool Subject::FliesIn() const {
    return !IsDeparture(mode);
}

std::optional<bool> HasRunway(const Subject& subject, std::string_view runway) {
    const auto ends = EndsOf(subject);
    if (ends.empty()) return std::nullopt;
    return std::any_of(ends.begin(), ends.end(), [&](std::int32_t index) {
        const std::string_view identifier =
            EntryAt(subject.tables, NavigationTable::Airports, index).identifier;
        return RunwayOf(identifier) == runway;
    });
}

std::string_view RunwayInName(std::string_view name) {
    constexpr std::string_view Mark = "RW";
    name = Trim(name);
    if (!name.starts_with(Mark)) return {};
    name.remove_prefix(Mark.size());
    const auto digits = static_cast<std::size_t>(
        std::find_if(name.begin(), name.end(), [](char c) { return c < '0' || c > '9'; }) - name.begin());
    return digits == 0 || digits > 2 || name.size() > digits + 1 ? std::string_view() : name;
}

std::vector<Finding> FindingsOf(const Examined& procedure) {
    const Subject subject(procedure);
    std::vector<Finding> findings;
    for (std::size_t row = 0; row < subject.route.points.size(); ++row) {
        for (const auto& rules : {PositionRules(), AltitudeRules(), NameRules()}) {
            for (const RowRule rule : rules) {
                if (auto words = rule(subject, row)) {
                    findings.push_back({static_cast<int>(row), std::move(*words)});
                }
            }
        }
    }
    for (const WholeRule rule : WholeRules()) {
        if (auto words = rule(subject)) findings.push_back({Finding::Whole, std::move(*words)});
    }
    return findings;
}

}  // namespace tarvex
