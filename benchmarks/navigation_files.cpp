#include "navigation_files.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <random>

#include "navigation/navigation_tables.h"

namespace tarvex::benchmarks {

namespace {

// Names, positions and heights without a pattern that a processor could learn.
class Generator {
  public:
    std::string Name(std::size_t length) {
        std::string name(length, 'A');
        for (char& letter : name) letter = static_cast<char>('A' + Below(26));
        return name;
    }
    double Between(double low, double high) { return std::uniform_real_distribution(low, high)(random_); }
    int Below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }

    std::string FixLine() {
        return Printed("%-24s%-5s%10.6f%11.6f", Name(5), Name(5), Between(-89, 89), Between(-179, 179));
    }
    std::string NavaidLine() {
        return Printed("%-24s%-5sVOR %.6f%.6f", Name(8), Name(3), Between(-89, 89), Between(-179, 179)) +
               Printed("%6.2fN", Between(108, 118));
    }
    std::string AirportLine() {
        const double lat = Between(-89, 89);
        return Printed("%-24s%-7s%08d%10.6f", Name(12), Name(4) + "27L", Below(14000), lat) +
               Printed("%11.6f%-10s%5d", Between(-179, 179), "0.00 270", Below(9000));
    }

  private:
    static const char* Plain(const std::string& text) { return text.c_str(); }
    static double Plain(double number) { return number; }
    static int Plain(int number) { return number; }
    static const char* Plain(const char* text) { return text; }

    template <class... Pieces>
    static std::string Printed(const char* form, const Pieces&... pieces) {
        std::array<char, 128> line{};
        std::snprintf(line.data(), line.size(), form, Plain(pieces)...);
        return line.data();
    }

    std::mt19937 random_{767};
};

}  // namespace

NavigationFiles::NavigationFiles(std::size_t fixes, std::size_t navaids, std::size_t airports) {
    root_ = std::filesystem::temp_directory_path() / ("tarvex-" + std::to_string(std::random_device()()));
    const auto folder = root_ / "GIOSTAM" / "navdata";
    std::filesystem::create_directories(folder);
    files_ = {folder / "wpNavFIX.txt", folder / "wpNavAID.txt", folder / "wpNavAPT.txt"};

    Generator generator;
    const auto write = [&](std::size_t file, std::size_t lines, std::string (Generator::*line)()) {
        std::ofstream stream(files_[file], std::ios::binary);
        stream << "; generated\r\n";
        for (std::size_t index = 0; index < lines; ++index) stream << (generator.*line)() << "\r\n";
    };
    write(0, fixes, &Generator::FixLine);
    write(1, navaids, &Generator::NavaidLine);
    write(2, airports, &Generator::AirportLine);
}

NavigationFiles::~NavigationFiles() {
    std::error_code ignored;
    std::filesystem::remove_all(root_, ignored);
}

NavigationFiles NavigationFiles::OfFullSize() {
    return {MaxFixes, MaxNavaids, MaxAirports};
}

std::string NavigationFiles::SimulatorPath() const {
    std::string path = root_.string();
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

}  // namespace tarvex::benchmarks
