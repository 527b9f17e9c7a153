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

std::size_t FirstRunway(const Route& route) {
    const auto& points = route.points;
    const auto first =
        std::find_if(points.begin(), points.end(), [](const RoutePoint& point) { return point.runway; });
    return static_cast<std::size_t>(first - points.begin());
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

std::optional<double> Elevation(const Examined& procedure, std::size_t landing) {
    using Kind = AltitudeRestriction::Kind;
    if (landing < procedure.route.points.size()) {
        const AltitudeRestriction& altitude = procedure.route.points[landing].altitude;
        if (altitude.kind != Kind::None) return altitude.low;
    }
    std::optional<double> lowest;
    for (const std::int32_t index : EndsOf(procedure)) {
        const double feet = procedure.tables.AirportTable[static_cast<std::size_t>(index)].AirportElevation;
        if (!lowest || feet < *lowest) lowest = feet;
    }
    return lowest;
}

}  // namespace

Subject::Subject(const Examined& procedure)
    : Examined(procedure),
      landing(IsApproach(mode) ? FirstRunway(route) : route.points.size()),
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
        return Trim(identifier.substr(AirportCodeLength)) == runway;
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
