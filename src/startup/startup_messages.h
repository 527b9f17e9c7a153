#pragma once

#include <string>
#include <vector>

#include "navigation/load_navigation_data.h"
#include "toolkit/message_box.h"

namespace tarvex {

// The words of the start, of the main menu and of the search for the simulator folder.

// The add-on's folders are not there; the program stops behind it. With a folder, its first line names it.
Message DataNotFound();
Message DataNotFoundIn(const std::string& simulatorPath);

// The settings file can't be read, for a reason without a recovery; the program stops behind it.
Message UnexpectedError();

// The start goes on with the settings in memory.
Message SettingsNotWritten(const std::string& settingsPath, const std::string& reason);
// The folder chosen isn't kept, and its screen stays.
Message FolderNotKept(const std::string& settingsPath, const std::string& reason);

// The folder chosen has no navigation data that can be read; the tables are empty.
Message NavigationDataNotRead(const std::string& simulatorPath, const std::string& reason);
// The tables are full.
Message EntriesLeftOut(const std::vector<LeftOutEntries>& leftOut);

// The hint below the lists of the folder screen.
std::string NoFolderHint();
std::string DataFoundHint(const std::string& simulatorPath);
std::string NoDataHint(const std::string& simulatorPath);

}  // namespace tarvex
