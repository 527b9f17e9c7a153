// Sources: startup/settings_file.cpp
// Any bytes as the settings file, and any text as the folder that it lies in.

#include <string>

#include "geometry/text_rules.h"
#include "startup/settings_file.h"
#include "support/memory_file_system.h"
#include "target.h"
#include "toolkit/failure.h"

namespace tarvex::fuzzing {
namespace {

const std::string Path = "C:\\Tarvex\\Tarvex.INI";

bool CanRead(FileSystem& files, int lines, Settings& settings) {
    try {
        settings = ReadSettingsFile(files, Path, lines);
        return true;
    } catch (const Failure& failure) {
        Require(failure.Number() == PastEndOfFile, "a short file is past its end", {failure.Reason()});
        Require(failure.Reason().find(Path) != std::string::npos, "the failure names the file");
        return false;
    }
}

// As many lines as `text` has, by another way than the reader's: an end is LF, CR LF, or CR alone.
int LinesOf(std::string_view text) {
    int ends = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        ends += text[i] == '\n' || (text[i] == '\r' && (i + 1 == text.size() || text[i + 1] != '\n'));
    }
    const bool open = !text.empty() && text.back() != '\r' && text.back() != '\n';
    return ends + (open ? 1 : 0);
}

void CheckWritten(const Settings& settings, int lines) {
    testing::MemoryFileSystem files;
    files.PutFolder("C:\\Tarvex");
    WriteSettingsFile(files, Path, settings, lines);
    Require(LinesOf(files.Content(Path)) == lines, "as many lines as were asked for", {files.Content(Path)});
    Settings again;
    Require(CanRead(files, lines, again) && again == settings, "settings come back as they were written",
            {files.Content(Path)});
}

}  // namespace

void TryInput(std::string_view input) {
    testing::MemoryFileSystem files;
    files.Put(Path, std::string(input));
    for (int lines = 1; lines <= SettingsLines; ++lines) {
        Settings settings;
        const bool read = CanRead(files, lines, settings);
        Require(read == (LinesOf(input) >= lines), "a file is long enough exactly if it has the lines");
        if (read) CheckWritten(settings, lines);
    }
    Require(files.Writes() == 0 && files.Content(Path) == input, "reading writes nothing");

    const std::string path = SettingsPathIn(input);
    const std::string folder = path.substr(0, path.size() - std::string_view("Tarvex.INI").size());
    Require(folder.ends_with('\\') && path.ends_with("Tarvex.INI"), "the file lies in a folder", {path});
    Require(folder == input || folder == std::string(input) + "\\", "the folder is the one given", {path});
}

}  // namespace tarvex::fuzzing
