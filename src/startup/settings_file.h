#pragma once

#include <string>
#include <string_view>

#include "toolkit/file_system.h"

namespace tarvex {

// What the settings file holds, one value a line, in this order.
struct Settings {
    std::string SimulatorPath;
    std::string DefaultLatHemisphere;   // "N" or "S"
    std::string DefaultLongHemisphere;  // "E" or "W"
    std::string MagVarSide;             // "W" or "E"

    friend bool operator==(const Settings&, const Settings&) = default;
};

inline constexpr int SettingsLines = 4;
inline constexpr int ShortSettingsLines = 3;  // a file that has no MagVarSide yet

// The settings file in the program's folder, which may end in a backslash.
std::string SettingsPathIn(std::string_view programFolder);

// Reads the first `lines` lines, whole; the values behind them stay empty. PastEndOfFile (62) when there are
// fewer; the failures of FileSystem::Read.
Settings ReadSettingsFile(FileSystem& files, const std::string& path, int lines = SettingsLines);

// Replaces the file by the first `lines` values. The failures of FileSystem::Write.
void WriteSettingsFile(FileSystem& files, const std::string& path, const Settings& settings,
                       int lines = SettingsLines);

}  // namespace tarvex
