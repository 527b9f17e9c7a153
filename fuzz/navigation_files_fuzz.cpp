// Sources: navigation/load_navigation_data.cpp navigation/search.cpp
// Any bytes as each of the three navigation files, against a plain reading of the same lines, and a search.

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "geometry/text_file.h"
#include "geometry/text_rules.h"
#include "navigation/load_navigation_data.h"
#include "navigation/search.h"
#include "support/memory_file_system.h"
#include "target.h"
#include "toolkit/failure.h"

namespace tarvex::fuzzing {
namespace {

const std::string Simulator = "C:\\FS";

// An entry as all tables have it, and what only one of them has.
struct Entry {
    std::string id, latitude, longitude;
    std::string extra;  // the frequency of a navaid, the elevation of a runway

    friend bool operator==(const Entry&, const Entry&) = default;
};

std::string Columns(std::string_view line, std::size_t from, std::size_t to) {
    std::string padded(line);
    padded.resize(std::max(padded.size(), to), ' ');
    return padded.substr(from - 1, to - from + 1);
}

template <std::size_t Width>
std::string Field(std::string_view text) {
    return FixedField<Width>(text).Text();
}

Entry PlainFix(std::string_view line) {
    return {Columns(line, 25, 29), Columns(line, 30, 39), Columns(line, 40, 50), ""};
}

Entry PlainNavaid(std::string_view line) {
    const auto lastDecimal = [line](std::ptrdiff_t from) {
        const std::ptrdiff_t point = Find(from, line, ".");
        if (point == 0) throw Failure(BadArgument, "");
        return point + 6;
    };
    const std::ptrdiff_t latEnd = lastDecimal(34);
    const std::ptrdiff_t longEnd = lastDecimal(latEnd);
    return {Columns(line, 25, 29), Field<10>(Mid(line, 34, latEnd - 33)),
            Field<11>(Mid(line, latEnd + 1, longEnd - latEnd)), Field<6>(Mid(line, std::ssize(line) - 6, 6))};
}

Entry PlainAirport(std::string_view line) {
    const std::int16_t elevation = WholeNumber16(LeadingNumber(Columns(line, 71, 75)));
    return {Columns(line, 25, 31), Columns(line, 40, 49), Columns(line, 50, 60), NumberText(elevation)};
}

constexpr NavigationTable Kinds[] = {NavigationTable::Fixes, NavigationTable::Navaids,
                                     NavigationTable::Airports};
constexpr Entry (*PlainEntry[])(std::string_view) = {PlainFix, PlainNavaid, PlainAirport};

struct Plain {
    std::vector<Entry> entries;
    int number = 0;        // of the failure that reading ended with; 0 for none
    std::size_t line = 0;  // in which it did, from 1
};

Plain ReadPlainly(std::string_view text, std::size_t file) {
    Plain plain;
    TextReader reader(text, "");
    while (!reader.AtEndOfFile()) {
        const std::string_view line = reader.ReadTextLine();
        ++plain.line;
        if (line.starts_with(';')) continue;
        try {
            plain.entries.push_back(PlainEntry[file](line));
        } catch (const Failure& failure) {
            plain.number = failure.Number();
            break;
        }
    }
    return plain;
}

std::ptrdiff_t Count(const NavigationTables& tables, std::size_t file) {
    const std::ptrdiff_t last[] = {tables.FixCount, tables.NavaidCount, tables.AirportCount};
    return last[file] + 1;
}

Entry Loaded(const NavigationTables& tables, std::size_t file, std::size_t index) {
    const auto entry = EntryAt(tables, Kinds[file], static_cast<std::int32_t>(index));
    const std::string extra =
        Kinds[file] == NavigationTable::Navaids    ? tables.NavaidTable[index].NavaidFreq.Text()
        : Kinds[file] == NavigationTable::Airports ? NumberText(tables.AirportTable[index].AirportElevation)
                                                   : "";
    return {std::string(entry.identifier), std::string(entry.latitude), std::string(entry.longitude), extra};
}

void CheckSearch(const NavigationTables& tables, std::size_t file, const std::vector<Entry>& entries) {
    for (const auto& wanted : {entries.front(), entries.back(), entries[entries.size() / 2]}) {
        const bool airport = Kinds[file] == NavigationTable::Airports;
        const auto called = [airport](const Entry& entry) {
            return airport ? Left(entry.id, 4) : Trim(entry.id);
        };
        std::vector<std::int32_t> expected;
        for (std::size_t i = 0; i < entries.size(); ++i) {
            if (called(entries[i]) == called(wanted)) expected.push_back(static_cast<std::int32_t>(i));
        }
        Require(FindEntries(tables, Kinds[file], called(wanted)) == expected,
                "a search finds what a look at each entry finds", {wanted.id});
    }
}

void CheckFailure(const Failure& failure, const Plain& plain, std::size_t file) {
    const std::string place =
        std::string(NavigationFiles[file]) + ", line " + std::to_string(plain.line) + ":";
    Require(failure.Number() == plain.number && failure.Reason().find(place) != std::string::npos,
            "the failure is that of the first bad line", {failure.Reason(), place});
}

void TryFile(std::string_view text, std::size_t file) {
    static NavigationTables tables;
    testing::MemoryFileSystem files;
    for (std::size_t i = 0; i < NavigationFiles.size(); ++i) {
        files.Put(Simulator + std::string(NavigationFiles[i]), std::string(i == file ? text : ""));
    }
    Require(HasNavigationData(files, Simulator), "all three files are there");
    const Plain plain = ReadPlainly(text, file);
    try {
        Require(LoadNavigationData(files, Simulator, tables).empty(), "a short file has room");
    } catch (const Failure& failure) {
        CheckFailure(failure, plain, file);
        for (std::size_t i = 0; i < 3; ++i)
            Require(Count(tables, i) == 0, "a failure leaves all tables empty");
        return;
    }
    Require(plain.number == 0, "a bad line is not passed over");
    for (std::size_t i = 0; i < 3; ++i) {
        Require(Count(tables, i) == (i == file ? std::ssize(plain.entries) : 0), "each line is an entry");
    }
    for (std::size_t i = 0; i < plain.entries.size(); ++i) {
        Require(Loaded(tables, file, i) == plain.entries[i], "an entry is what its columns hold",
                {plain.entries[i].id, plain.entries[i].latitude, plain.entries[i].longitude});
    }
    if (!plain.entries.empty()) CheckSearch(tables, file, plain.entries);
    Require(files.Writes() == 0, "navigation files are only read");
}

}  // namespace

void TryInput(std::string_view input) {
    for (std::size_t file = 0; file < NavigationFiles.size(); ++file) TryFile(input, file);
}

}  // namespace tarvex::fuzzing
