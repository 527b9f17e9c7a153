#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <string>

namespace tarvex::benchmarks {

// A simulator folder of generated navigation files in a temporary place, taken away at the end.
class NavigationFiles {
  public:
    NavigationFiles(std::size_t fixes, std::size_t navaids, std::size_t airports);
    ~NavigationFiles();
    NavigationFiles(const NavigationFiles&) = delete;
    NavigationFiles& operator=(const NavigationFiles&) = delete;

    // Each table filled to its last entry.
    static NavigationFiles OfFullSize();

    std::string SimulatorPath() const;  // as the program's file system spells it
    const std::array<std::filesystem::path, 3>& Files() const { return files_; }

  private:
    std::filesystem::path root_;
    std::array<std::filesystem::path, 3> files_;
};

}  // namespace tarvex::benchmarks
