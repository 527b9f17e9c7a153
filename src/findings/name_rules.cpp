#include <algorithm>
#include <utility>

#include "chart/route_words.h"
#include "findings/rules.h"
#include "geometry/rhumb_line.h"
#include "geometry/text_rules.h"
#include "procedure/procedure_mode.h"
#include "toolkit/display_text.h"

namespace tarvex {

namespace {

using Words = std::optional<std::string>;

std::string_view NameOf(const Subject& subject, std::size_t row) {
    return Trim(subject.rows[row].WaypointID);
}

Words NoName(const Subject& subject, std::size_t row) {
    if (!NameOf(subject, row).empty()) return {};
    return "No name.";
}

Words NameTwice(const Subject& subject, std::size_t row) {
    constexpr double NearMiles = 1;
    const RoutePoint& here = subject.Point(row);
    if (!here.position || here.name.empty()) return {};
    for (std::size_t other = 0; other < row; ++other) {
        const RoutePoint& there = subject.Point(other);
        if (there.name != here.name || !there.position) continue;
        const double miles = RhumbLegBetween(*there.position, *here.position).miles;
        if (miles <= NearMiles) continue;
        return "Number " + std::to_string(other + 1) + " is called " + here.name + " too, " +
               MilesText(miles) + " miles from here.";
    }
    return {};
}

// An add with both names fills the line with the fix and the row with the navaid. A row that was renamed
// keeps its line as well, but not as a navaid without a frequency.
Words FixAndNavaid(const Subject& subject, std::size_t row) {
    const std::string_view line = Trim(subject.lines[row]);
    const std::string_view name = NameOf(subject, row);
    if (line == name || LeadingNumber(subject.rows[row].Frequency) != 0) return {};
    if (!subject.places.Find(name).navaid) return {};
    return "The list says " + ShownUtf8(line) + ", the file will say " + subject.Point(row).name +
           ": both a fix and a navaid were typed.";
}

Words RunwayByTypeOnly(const Subject& subject, std::size_t row) {
    if (!subject.Point(row).runway || !RunwayInName(NameOf(subject, row)).empty()) return {};
    return "Kept as a runway, though its name is none: delete it, find a fix, and add it again.";
}

Words UnknownRunway(const Subject& subject, std::size_t row) {
    const std::string_view runway = RunwayInName(NameOf(subject, row));
    if (runway.empty() || HasRunway(subject, runway).value_or(true)) return {};
    return "In the tables " + ShownUtf8(Trim(subject.name.icao)) + " has no runway " + ShownUtf8(runway) +
           ".";
}

// What was typed for one axis, and is read as something else.
struct Axis {
    std::string_view name;
    std::string_view degrees;
    std::string_view minutes;
};

std::string ReadAs(const char* what, std::string_view typed, std::string_view read) {
    return std::string(what) + " \"" + ShownUtf8(typed) + "\" are read as " +
           NumberText(LeadingNumber(read)) + ": ";
}

Words Misread(const Axis& axis) {
    const std::string name(axis.name);
    // The sign in front may be that of the hemisphere.
    std::string_view typed = Trim(axis.degrees);
    if (typed.starts_with('-')) typed.remove_prefix(1);
    for (const auto& [words, text] :
         {std::pair(ReadAs(" degrees", typed, axis.degrees), typed),
          std::pair(ReadAs(" minutes", axis.minutes, axis.minutes), axis.minutes)}) {
        if (text.find('-') != std::string_view::npos)
            return name + words + "leave the sign to the hemisphere.";
        if (text.find(',') != std::string_view::npos) return name + words + "write a point.";
    }
    if (Trim(axis.minutes).empty()) return name + " minutes are empty and count as 0.";
    return {};
}

Words CoordinateMisread(const Subject& subject, std::size_t row) {
    const WaypointRecord& record = subject.rows[row];
    if (record.CoordinatesEdited == False) return {};
    if (auto words = Misread({"Latitude", record.LatDegrees, record.LatMinutes})) return words;
    return Misread({"Longitude", record.LongDegrees, record.LongMinutes});
}

Words NoRunway(const Subject& subject) {
    const bool main = subject.name.secondName.empty();
    if (!IsApproach(subject.mode) || !main || subject.rows.empty()) return {};
    // An approach leads to it; what it begins with is none.
    const bool any =
        std::any_of(subject.rows.begin() + 1, subject.rows.end(),
                    [](const WaypointRecord& record) { return !RunwayInName(record.WaypointID).empty(); });
    if (any) return {};
    return "This approach leads to no runway yet: \"Find Airport\" brings one.";
}

Words UnknownRunwayOfDeparture(const Subject& subject) {
    const ProcedureName& name = subject.name;
    if (name.secondName.empty() || name.kind != ProcedureName::Kind::Runway) return {};
    std::string_view runway = Trim(name.secondName);
    if (runway.starts_with("RW")) runway.remove_prefix(2);
    if (HasRunway(subject, runway).value_or(true)) return {};
    return "In the tables " + ShownUtf8(Trim(name.icao)) + " has no runway " + ShownUtf8(runway) + ".";
}

Words TableNearlyFull(const Subject& subject) {
    constexpr std::size_t FewRows = 5;
    const std::size_t free = MaxWaypoints - subject.rows.size();
    if (free > FewRows) return {};
    return (free == 0   ? "No row is free"
            : free == 1 ? "1 row is free"
                        : std::to_string(free) + " rows are free") +
           std::string(" of ") + std::to_string(MaxWaypoints) + ".";
}

bool IsCodeCharacter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

// The picker lists by the beginning of the name.
Words NotFoundByThePicker(const Subject& subject) {
    constexpr std::size_t CodeLength = 4;
    const std::string& code = subject.name.icao;
    if (code.empty()) return {};
    if (code.size() == CodeLength && std::all_of(code.begin(), code.end(), IsCodeCharacter)) return {};
    return "The file begins with \"" + ShownUtf8(code) +
           "\", which is no code of an airport: the picker will not list it under one.";
}

// A point or a dash within a part ends the part when the name is read back.
Words NotReadBack(const Subject& subject) {
    const auto& [icao, basic, second, kind] = subject.name;
    for (const std::string* part : {&icao, &basic, &second}) {
        if (part->find_first_of(part == &icao ? "-." : ".") == std::string::npos) continue;
        return "\"" + ShownUtf8(*part) +
               "\" holds a separator: under this name the file can't be opened again.";
    }
    return {};
}

constexpr RowRule Rules[] = {NoName,           NameTwice,     FixAndNavaid,
                             RunwayByTypeOnly, UnknownRunway, CoordinateMisread};
constexpr WholeRule Whole[] = {NoRunway, UnknownRunwayOfDeparture, TableNearlyFull, NotFoundByThePicker,
                               NotReadBack};

}  // namespace

std::span<const RowRule> NameRules() {
    return Rules;
}

std::span<const WholeRule> WholeRules() {
    return Whole;
}

}  // namespace tarvex
