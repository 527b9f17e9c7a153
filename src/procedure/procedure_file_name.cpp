#include "procedure/procedure_file_name.h"

#include <cstddef>

#include "geometry/text_rules.h"
#include "procedure/procedure_mode.h"
#include "toolkit/failure.h"

namespace tarvex {

namespace {

std::string_view MainEnding(std::string_view mode) {
    if (IsDeparture(mode)) return ".wsd";
    return IsApproach(mode) ? ".wap" : ".wst";
}

// What stands between two positions of `text`. BadArgument when the second is no longer behind the first.
std::string Between(std::string_view text, std::ptrdiff_t from, std::ptrdiff_t to, std::string_view reason) {
    if (to <= from) throw Failure(BadArgument, std::string(text) + ": " + std::string(reason));
    return std::string(Mid(text, from + 1, to - from - 1));
}

}  // namespace

std::string BuildProcedureFileName(const ProcedureName& name, std::string_view mode,
                                   const FileSystem& files) {
    std::string built = files.UpperCase(name.icao);
    if (!name.basicName.empty()) built += "-" + files.UpperCase(name.basicName);
    if (!name.secondName.empty()) built += "." + files.UpperCase(name.secondName);
    if (name.basicName.empty()) return built;
    if (name.secondName.empty()) return built.append(MainEnding(mode));
    const bool runway = IsDeparture(mode) && name.kind == ProcedureName::Kind::Runway;
    return built + (runway ? ".rwy" : ".tr");
}

ProcedureName SplitProcedureFileName(std::string_view fileName) {
    constexpr std::string_view noDash = "the name has no \"-\" behind the airport's code";
    constexpr std::string_view noPoint = "the name has no \".\" that ends the basic name";
    constexpr std::string_view noSecondPoint =
        "the name has no second \".\" that ends the transition or runway";

    const std::ptrdiff_t dash = Find(1, fileName, "-");
    const std::ptrdiff_t point = Find(1, fileName, ".");
    ProcedureName name;
    name.icao = Between(fileName, 0, dash, noDash);
    name.basicName = Between(fileName, dash, point, noPoint);
    const std::string_view end = Right(fileName, 2);
    if (end == "tr" || end == "wy") {
        name.kind = end == "tr" ? ProcedureName::Kind::Transition : ProcedureName::Kind::Runway;
        name.secondName = Between(fileName, point, Find(point + 1, fileName, "."), noSecondPoint);
    }
    return name;
}

}  // namespace tarvex
