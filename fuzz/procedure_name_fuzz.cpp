// Sources: procedure/procedure_file_name.cpp
// Any text as the name of a procedure file, and any three texts as the boxes that a name is built from.

#include <array>
#include <optional>
#include <string>

#include "procedure/procedure_file_name.h"
#include "support/memory_file_system.h"
#include "target.h"
#include "toolkit/failure.h"

namespace tarvex::fuzzing {
namespace {

const testing::MemoryFileSystem Files;

constexpr std::string_view Modes[] = {"D", "E", "S", "T", "I", "J"};

std::optional<ProcedureName> Split(std::string_view name) {
    try {
        return SplitProcedureFileName(name);
    } catch (const Failure& failure) {
        Require(failure.Number() == BadArgument && failure.Reason().starts_with(name),
                "a name is refused with a reason", {failure.Reason()});
        return std::nullopt;
    }
}

void CheckSplit(std::string_view name) {
    const auto parts = Split(name);
    if (!parts) return;
    const std::string front = parts->icao + "-" + parts->basicName + ".";
    Require(name.starts_with(front), "airport and basic name stand in front", {name, front});
    Require(parts->icao.find_first_of("-.") == std::string::npos, "the airport ends at a separator", {name});
    const bool main = parts->kind == ProcedureName::Kind::Main;
    Require(main != (name.ends_with("tr") || name.ends_with("wy")), "the ending tells the kind", {name});
    Require(main ? parts->secondName.empty() : name.starts_with(front + parts->secondName + "."),
            "the second name stands behind them", {name, parts->secondName});
}

ProcedureName UpperCased(const ProcedureName& name) {
    return {Files.UpperCase(name.icao), Files.UpperCase(name.basicName), Files.UpperCase(name.secondName),
            name.kind};
}

std::string WithoutSeparators(std::string text) {
    std::erase_if(text, [](char c) { return c == '-' || c == '.'; });
    return text;
}

// A name built from parts without separators gives the parts back, and no part's text can lead it elsewhere.
void CheckBuilt(const ProcedureName& typed, std::string_view mode) {
    const std::string built = BuildProcedureFileName(typed, mode, Files);
    const std::string parts = Files.UpperCase(typed.icao + typed.basicName + typed.secondName);
    Require(built.find(':') == std::string::npos || parts.find(':') != std::string::npos,
            "no drive comes in");
    Require(
        built.find_first_of("\\/") == std::string::npos || parts.find_first_of("\\/") != std::string::npos,
        "no folder comes in", {built});

    ProcedureName expected = UpperCased({WithoutSeparators(typed.icao), WithoutSeparators(typed.basicName),
                                         WithoutSeparators(typed.secondName)});
    if (expected.basicName.empty()) return;
    if (!expected.secondName.empty()) {
        const bool runway = typed.kind == ProcedureName::Kind::Runway && (mode == "D" || mode == "E");
        expected.kind = runway ? ProcedureName::Kind::Runway : ProcedureName::Kind::Transition;
    }
    ProcedureName plain = expected;
    plain.kind = typed.kind;
    const std::string name = BuildProcedureFileName(plain, mode, Files);
    Require(Split(name) == expected, "a built name splits into its parts", {name});
    Require(BuildProcedureFileName(expected, mode, Files) == name, "a name read back builds itself", {name});
}

// The first three lines; what isn't there is empty.
ProcedureName Typed(std::string_view text) {
    ProcedureName name;
    for (std::string* part : {&name.icao, &name.basicName, &name.secondName}) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        *part = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return name;
}

}  // namespace

void TryInput(std::string_view input) {
    CheckSplit(input);
    ProcedureName typed = Typed(input);
    for (std::string_view mode : Modes) {
        for (const auto kind : {ProcedureName::Kind::Transition, ProcedureName::Kind::Runway}) {
            typed.kind = kind;
            CheckBuilt(typed, mode);
        }
    }
}

}  // namespace tarvex::fuzzing
