#pragma once

#include <string>
#include <string_view>

#include "toolkit/file_system.h"

namespace tarvex {

// What the name of a procedure file says: "ICAO-BASIC.wsd" and its like for a procedure,
// "ICAO-BASIC.SECOND.tr" for one of its transitions, "ICAO-BASIC.SECOND.rwy" for a runway of a departure.
struct ProcedureName {
    enum class Kind { Main, Transition, Runway };

    std::string icao;
    std::string basicName;
    std::string secondName;  // of the transition or runway
    Kind kind = Kind::Main;  // what the second name is; without meaning while that is empty

    friend bool operator==(const ProcedureName&, const ProcedureName&) = default;
};

// The name of the file without folder, its three parts in the upper case of `files`, so that a stored name
// stays that of its file. The ending goes by the procedure mode; only a departure has runway files. Without a
// basic name it has no ending: a name under construction.
std::string BuildProcedureFileName(const ProcedureName& name, std::string_view mode, const FileSystem& files);

// The parts as the name spells them. An ending in "tr" or "wy" tells a transition or a runway file.
// BadArgument (5), with the reason, for a name that lacks a separator.
ProcedureName SplitProcedureFileName(std::string_view fileName);

}  // namespace tarvex
