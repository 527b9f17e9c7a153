// Sources: procedure/procedure_reader.cpp procedure/procedure_writer.cpp procedure/procedure_lines.cpp
// Sources: procedure/runway_conversion.cpp procedure/altitude_band.cpp procedure/edited_coordinate.cpp
// Any bytes as a procedure file: read with repair and, as an approach, with conversion; saved; read again.

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "geometry/text_rules.h"
#include "procedure/altitude_band.h"
#include "procedure/procedure_lines.h"
#include "procedure/procedure_reader.h"
#include "support/memory_file_system.h"
#include "target.h"

namespace tarvex::fuzzing {
namespace {

using Rows = std::vector<WaypointRecord>;

constexpr std::int32_t KeptCount = 7;
const std::string Path = "C:\\P\\KXYZ-DEMO1.wap";

const WaypointRecord& KeptRow() {
    static const WaypointRecord row{.WaypointID = "KEPT", .LatDecimal = "1.", .LongMinutes = "2"};
    return row;
}

// A program that has edited something before, with one runway in its tables.
struct Before {
    ProcedureVariables procedure{
        .ProcedureMode = {}, .ProcedureFolder = "C:\\P\\", .ProcedureFileName = "KXYZ-DEMO1.wap"};
    NavigationTables navigation;
    ProcedureRows rows;

    Before() {
        navigation.AirportTable[0] = {"KXYZ27L", "", "", 126};
        navigation.AirportCount = 0;
    }
};

// Filling the whole table anew each time would take most of the time: who changes rows puts them back.
Before& StateBefore(const char* mode) {
    static Before state;
    static const std::vector<WaypointRecord> full(MaxWaypoints, KeptRow());
    if (state.rows.Count() == 0) state.rows.Assign(full);
    state.rows.Assign(std::span(full).first(KeptCount));
    state.procedure.ProcedureMode = mode;
    return state;
}

bool KeptFrom(const ProcedureRows& rows, std::ptrdiff_t row) {
    return std::all_of(rows.Table().begin() + row, rows.Table().end(),
                       [](const auto& each) { return each == KeptRow(); });
}

struct Reading {
    Rows rows;
    std::string file;
    bool written = false;
};

// Nothing when the file was refused, which must have changed nothing.
std::optional<Reading> Read(std::string_view text, const char* mode, bool fullDisk = false) {
    auto& [procedure, navigation, rows] = StateBefore(mode);
    testing::MemoryFileSystem files;
    files.Put(Path, std::string(text));
    if (fullDisk) files.FailWrite(Path, DiskFull);
    try {
        ReadProcedureFile(files, procedure, "2.35", navigation, rows);
    } catch (const Failure& failure) {
        Require(failure.Reason().find(Path) != std::string::npos, "a failure names the file");
        Require(rows.Count() == KeptCount && KeptFrom(rows, 0), "a failure leaves the table alone");
        Require(files.Writes() == 0 && files.Content(Path) == text, "a failure leaves the file alone");
        return std::nullopt;
    }
    Require(rows.Count() >= 0 && rows.Count() <= MaxWaypoints, "the rows fit the table");
    Require(KeptFrom(rows, rows.Count()), "rows behind the last one stay");
    Require(files.Files("C:\\P").size() == 1, "only the file itself is written");
    const auto inUse = rows.InUse();
    Reading reading{Rows(inUse.begin(), inUse.end()), files.Content(Path), files.Writes() != 0};
    rows.Assign(Rows(inUse.size(), KeptRow()));
    return reading;
}

// What a file can hold of an item: blanks and tabs in front of it and blanks behind it don't come back.
std::string_view Item(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    return RightTrim(text);
}

bool SameInFile(const WaypointRecord& a, const WaypointRecord& b) {
    const auto itemsOfA = ItemsAsHeld(a);
    const auto itemsOfB = ItemsAsHeld(b);
    return std::equal(itemsOfA.begin(), itemsOfA.end(), itemsOfB.begin(),
                      [](const auto& x, const auto& y) { return Item(x) == Item(y); }) &&
           a.LatDegrees == b.LatDegrees && a.LatMinutes == b.LatMinutes && a.LongDegrees == b.LongDegrees &&
           a.LongMinutes == b.LongMinutes && a.CoordinatesEdited == b.CoordinatesEdited;
}

bool HasPosition(const WaypointRecord& row) {
    const std::string_view latitude = Item(row.LatDecimal);
    return IsNumberText(latitude) || latitude == "." || latitude == "-." || latitude == "+.";
}

// Whether two texts of decimal degrees are one position but for the sign. Past the earth only a lack of
// failures counts.
bool SamePosition(const std::string& a, const std::string& b) {
    constexpr double LastPlaces = 0.6e-6;  // half of the sixth decimal and what the rounded minutes add
    const double magnitude = std::abs(LeadingNumber(a));
    return magnitude > 1000 || std::abs(magnitude - std::abs(LeadingNumber(b))) <= LastPlaces;
}

void CheckSplit(const std::string& decimal, const std::string& degrees, const std::string& minutes) {
    Require(IsNumberText(degrees) && IsNumberText(minutes), "degrees and minutes are numbers", {decimal});
    const double number = LeadingNumber(minutes);
    Require(number >= 0 && number <= 60 && LeadingNumber(degrees) >= 0, "neither has a sign", {decimal});
    Require(SamePosition(decimal, NumberText(LeadingNumber(degrees) + number / 60)),
            "degrees and minutes are the position", {decimal, degrees, minutes});
}

// The file of a save; nothing when the rows can't be saved, which a save tells before it writes.
std::optional<std::string> Saved(const Rows& rows) {
    std::vector<WaypointItems> lines(rows.size());
    try {
        std::transform(rows.begin(), rows.end(), lines.begin(), ItemsForSave);
    } catch (const Failure& failure) {
        Require(failure.Number() == NotANumber || failure.Number() == Overflow,
                "a row is refused for a number", {failure.Reason()});
        return std::nullopt;
    }
    if (FindUnstorableItem(lines)) return std::nullopt;
    return ProcedureText(CommentOfSave("5/14/2001", "2.35"), lines);
}

// A saved file opens, isn't written back, and holds the rows in their order.
std::optional<Reading> Reopened(const std::string& file, std::size_t rows) {
    auto again = Read(file, "I");
    Require(again.has_value(), "a saved file opens", {file});
    Require(!again->written, "a saved file needs no repair", {file});
    Require(again->rows.size() == rows, "a saved file has all rows", {file});
    return again;
}

void CheckSave(Rows rows) {
    if (!std::all_of(rows.begin(), rows.end(), HasPosition)) return;
    const auto file = Saved(rows);
    if (!file) return;
    const auto again = Reopened(*file, rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        WaypointRecord expected = rows[i];
        if (HasSecondAltitude(expected)) ExchangeAltitudes(expected);
        expected.WaypointType = LeftTrim(SignedNumberText(expected.WaypointType.View()));
        Require(SameInFile(expected, again->rows[i]), "a saved row reads the same", {*file});
    }
}

// What the editor makes of a file that it opens and saves without a change; nothing if it can't.
std::optional<std::string> Resaved(Rows rows) {
    for (auto& row : rows) OrderAltitudes(row);
    return Saved(rows);
}

// A first save may lose blanks that stood in quotes; from then on the file stays as it is.
void CheckResave(const Rows& rows) {
    if (!std::all_of(rows.begin(), rows.end(), HasPosition)) return;
    const auto first = Resaved(rows);
    if (!first) return;
    const auto second = Resaved(Reopened(*first, rows.size())->rows);
    Require(second.has_value(), "a saved file can be saved", {*first});
    const auto third = Resaved(Reopened(*second, rows.size())->rows);
    Require(third == second, "a file that is opened and saved stays as it is", {*first, *second});
}

void CheckEditedSave(Rows rows) {
    for (auto& row : rows) row.CoordinatesEdited = True;
    const auto file = Saved(rows);
    if (!file) return;
    const auto again = Reopened(*file, rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        Require(SamePosition(rows[i].LatDecimal, again->rows[i].LatDecimal) &&
                    SamePosition(rows[i].LongDecimal, again->rows[i].LongDecimal),
                "an edited position survives a save", {rows[i].LatDecimal, rows[i].LongDecimal, *file});
    }
}

void CheckRewrite(std::string_view text, const Reading& reading, const char* mode) {
    Require(!Read(text, mode, true), "what can't be written back isn't opened");
    if (!std::all_of(reading.rows.begin(), reading.rows.end(), HasPosition)) return;
    const auto again = Reopened(reading.file, reading.rows.size());
    Require(std::equal(again->rows.begin(), again->rows.end(), reading.rows.begin(), SameInFile),
            "a file that was written back reads the same", {reading.file});
}

}  // namespace

void TryInput(std::string_view input) {
    for (const char* mode : {"D", "I"}) {
        const auto reading = Read(input, mode);
        if (!reading) continue;
        for (const auto& row : reading->rows) {
            CheckSplit(row.LatDecimal, row.LatDegrees, row.LatMinutes);
            CheckSplit(row.LongDecimal, row.LongDegrees, row.LongMinutes);
            Require(row.CoordinatesEdited == False, "a row read is not edited");
        }
        if (reading->written) {
            CheckRewrite(input, *reading, mode);
        } else {
            Require(reading->file == input, "a file without faults stays as it is");
        }
        CheckSave(reading->rows);
        CheckResave(reading->rows);
        CheckEditedSave(reading->rows);
    }
}

}  // namespace tarvex::fuzzing
