#include "startup/settings_file.h"

#include <array>

#include "geometry/text_file.h"

namespace tarvex {

namespace {

constexpr std::string_view SettingsFileName = "Tarvex.INI";

constexpr std::array<std::string Settings::*, SettingsLines> Values{
    &Settings::SimulatorPath,
    &Settings::DefaultLatHemisphere,
    &Settings::DefaultLongHemisphere,
    &Settings::MagVarSide,
};

}  // namespace

std::string SettingsPathIn(std::string_view programFolder) {
    std::string path(programFolder);
    if (!path.ends_with('\\')) path += '\\';
    return path.append(SettingsFileName);
}

Settings ReadSettingsFile(FileSystem& files, const std::string& path, int lines) {
    const FileText text = files.Read(path);
    TextReader reader(text.View(), path);
    Settings settings;
    for (int line = 0; line < lines; ++line) {
        settings.*Values[static_cast<std::size_t>(line)] = reader.ReadTextLine();
    }
    return settings;
}

void WriteSettingsFile(FileSystem& files, const std::string& path, const Settings& settings, int lines) {
    std::string text;
    for (int line = 0; line < lines; ++line) {
        WriteTextLine(text, {settings.*Values[static_cast<std::size_t>(line)]});
    }
    files.Write(path, text);
}

}  // namespace tarvex
