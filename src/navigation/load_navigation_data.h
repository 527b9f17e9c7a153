#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "navigation/navigation_tables.h"
#include "toolkit/file_system.h"

namespace tarvex {

// The add-on's navigation files below the simulator folder: fixes, navaids, airports.
inline constexpr std::array<std::string_view, 3> NavigationFiles{
    "\\GIOSTAM\\navdata\\wpNavFIX.txt",
    "\\GIOSTAM\\navdata\\wpNavAID.txt",
    "\\GIOSTAM\\navdata\\wpNavAPT.txt",
};

// The entries at the end of a file for which its table had no room.
struct LeftOutEntries {
    std::string path;
    std::size_t count = 0;

    friend bool operator==(const LeftOutEntries&, const LeftOutEntries&) = default;
};

// Fills the tables from the three files, in the order of their lines, and returns what they had no room for.
// On a failure all three tables are left empty; it is the file system's, or names the file and the line:
// BadArgument (5) for a navaid line without the decimal points of its position, Overflow (6) for an elevation
// that doesn't fit into 16 bits. Entries without room are not looked into.
std::vector<LeftOutEntries> LoadNavigationData(FileSystem& files, const std::string& simulatorPath,
                                               NavigationTables& tables);

// Whether all three files are there; a folder that can't be looked into has none.
bool HasNavigationData(FileSystem& files, const std::string& simulatorPath);

}  // namespace tarvex
