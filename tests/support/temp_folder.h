#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

namespace tarvex::testing {

// A folder of its own on the disk, removed with all that is in it.
class TempFolder {
  public:
    TempFolder() {
        std::random_device random;
        path_ = std::filesystem::temp_directory_path() / ("tarvex-" + std::to_string(random()));
        std::filesystem::create_directories(path_);
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    // `name` in the folder, with slashes, for the test's own use of the disk.
    std::filesystem::path On(std::string_view name) const { return path_ / name; }
    // The same as the program spells it.
    std::string Path(std::string_view name = {}) const {
        std::string path = (name.empty() ? path_ : path_ / name).string();
        std::replace(path.begin(), path.end(), '/', '\\');
        return path;
    }

    void Put(std::string_view name, std::string_view text) const {
        std::filesystem::create_directories(On(name).parent_path());
        std::ofstream(On(name), std::ios::binary) << text;
    }
    std::string Content(std::string_view name) const {
        std::ifstream file(On(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

  private:
    std::filesystem::path path_;
};

}  // namespace tarvex::testing
