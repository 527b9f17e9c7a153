#include "navigation/load_navigation_data.h"

#include <gtest/gtest.h>
#include <random>

#include "geometry/text_file.h"
#include "geometry/text_rules.h"
#include "support/memory_file_system.h"
#include "toolkit/failure.h"

namespace tarvex::testing {
namespace {

const std::string Folder = "C:\\FS2000";
const std::string Unread(24, '-');  // the first 24 columns

class LoadNavigationDataTest : public ::testing::Test {
  protected:
    LoadNavigationDataTest() { Put("", "", ""); }

    void Put(const std::string& fixes, const std::string& navaids, const std::string& airports) {
        files.Put(Folder + "\\GIOSTAM\\navdata\\wpNavFIX.txt", fixes);
        files.Put(Folder + "\\GIOSTAM\\navdata\\wpNavAID.txt", navaids);
        files.Put(Folder + "\\GIOSTAM\\navdata\\wpNavAPT.txt", airports);
    }
    std::vector<LeftOutEntries> Load() { return LoadNavigationData(files, Folder, tables); }
    // The number and the reason of the failure; empty without one.
    std::string FailureOfLoad() {
        try {
            Load();
        } catch (const Failure& failure) {
            return std::to_string(failure.Number()) + " " + failure.Reason();
        }
        return {};
    }
    std::vector<int> Counts() const { return {tables.FixCount, tables.NavaidCount, tables.AirportCount}; }
    std::string Fix(std::size_t index) const {
        const FixRecord& fix = tables.FixTable[index];
        return fix.FixID.Text() + "|" + fix.FixLat.Text() + "|" + fix.FixLong.Text();
    }
    std::string Navaid(std::size_t index) const {
        const NavaidRecord& navaid = tables.NavaidTable[index];
        return navaid.NavaidID.Text() + "|" + navaid.NavaidFreq.Text() + "|" + navaid.NavaidLat.Text() + "|" +
               navaid.NavaidLong.Text();
    }
    std::string Airport(std::size_t index) const {
        const AirportRecord& airport = tables.AirportTable[index];
        return airport.AirportID.Text() + "|" + airport.AirportLat.Text() + "|" + airport.AirportLong.Text() +
               "|" + std::to_string(airport.AirportElevation);
    }

    MemoryFileSystem files;
    NavigationTables tables;
};

TEST_F(LoadNavigationDataTest, FixFieldsStandInTheirColumns) {
    const struct {
        std::string line;
        const char* fix;
    } cases[] = {
        {Unread + "ROBUC 40.512345 -73.8512349EXTRA", "ROBUC| 40.512345| -73.851234"},
        {Unread + "AB   -9.5      +179.25    ", "AB   |-9.5      |+179.25    "},
        {Unread + "SHORT 12", "SHORT| 12       |           "},
        {Unread.substr(1), "     |          |           "},
        {"", "     |          |           "},
        {" ;" + Unread.substr(2) + "BLANK1234567890abcdefghijk", "BLANK|1234567890|abcdefghijk"},
        {Unread + "\xC4\t\x01\x80\x0B 1.0       2.0       \x7F", "\xC4\t\x01\x80\x0B| 1.0      | 2.0       "},
    };
    std::string file = "; a comment\r\n;\r\n";
    for (const auto& c : cases) file += c.line + "\r\n";
    Put(file, "", "");
    EXPECT_TRUE(Load().empty());
    EXPECT_EQ(Counts(), (std::vector{static_cast<int>(std::size(cases)) - 1, -1, -1}));
    for (std::size_t i = 0; i < std::size(cases); ++i) EXPECT_EQ(Fix(i), cases[i].fix) << cases[i].line;
}

TEST_F(LoadNavigationDataTest, NavaidsAreCutAtTheirPoints) {
    const struct {
        std::string line;
        const char* navaid;
    } cases[] = {
        {Unread + "DMO  VOR 34.123456-117.123456110.50H", "DMO  |110.50|34.123456 |-117.123456"},
        {Unread + "XY   NDB -4.123456  7.123456 365.0 ", "XY   | 365.0|-4.123456 |  7.123456 "},
        // The frequency counts from the end of the line, whatever stands there.
        {Unread + "DMO  VOR 34.123456-117.123456110.50H ", "DMO  |10.50H|34.123456 |-117.123456"},
        {Unread + "LONG VOR -1234.123456-12345.123456110.50H", "LONG |110.50|-1234.1234|-12345.1234"},
        // The second point may be the latitude's last decimal column; a line may end in its decimals.
        {Unread + "DOT  VOR 3.12345.1234567", "DOT  |123456|3.12345.  |123456     "},
        {Unread + "END  VOR 34.123456-117.1", "END  |6-117.|34.123456 |-117.1     "},
        // A point in front of column 34 is no latitude's.
        {Unread + "A.B  V.R 34.123456-117.123456110.50H", "A.B  |110.50|34.123456 |-117.123456"},
    };
    std::string file;
    for (const auto& c : cases) file += c.line + "\r\n";
    Put("", file, "; none");
    EXPECT_TRUE(Load().empty());
    EXPECT_EQ(Counts(), (std::vector{-1, static_cast<int>(std::size(cases)) - 1, -1}));
    for (std::size_t i = 0; i < std::size(cases); ++i) EXPECT_EQ(Navaid(i), cases[i].navaid) << cases[i].line;
}

TEST_F(LoadNavigationDataTest, AirportsHaveAnElevationOf16Bits) {
    const std::string line = Unread + "KXYZ27LLengthHd 34.123456-117.123456Freq.Crs. ";
    ASSERT_EQ(line.size(), 70U);
    const struct {
        const char* elevation;
        const char* expected;
    } cases[] = {
        {"00125", "125"},
        {"  -11", "-11"},
        {"", "0"},
        {"abcde", "0"},
        {" 12.5", "12"},
        {" 13.5", "14"},
        {"1 2 3", "123"},
        {"32767", "32767"},
        {"-32768", "-3276"},
        {"125  9", "125"},
        {"\xFF"
         "1",
         "0"},
        {"   7", "7"},
    };
    std::string file;
    for (const auto& c : cases) file += line + c.elevation + "\r\n";
    file += Unread + "KX\r\n\r\n";
    Put("", "", file);
    EXPECT_TRUE(Load().empty());
    const std::size_t count = std::size(cases);
    EXPECT_EQ(Counts(), (std::vector{-1, -1, static_cast<int>(count) + 1}));
    for (std::size_t i = 0; i < count; ++i) {
        EXPECT_EQ(Airport(i), std::string("KXYZ27L| 34.123456|-117.123456|") + cases[i].expected);
    }
    EXPECT_EQ(Airport(count), "KX     |          |           |0");
    EXPECT_EQ(Airport(count + 1), "       |          |           |0");
}

TEST_F(LoadNavigationDataTest, RubbishIsReadLineByLine) {
    std::mt19937 random(767);
    constexpr std::string_view characters("\r\n;. A0\t\x80\xFF\0", 11);
    for (int round = 0; round < 50; ++round) {
        std::string file;
        for (int i = 0; i < 2000; ++i) {
            // Line ends often enough for empty lines, seldom enough for long ones.
            const std::size_t from = round % 2 == 0 || random() % 20 == 0 ? 0 : 3;
            file += characters[from + random() % (characters.size() - from)];
        }
        Put(file, "", "");
        Load();
        TextReader lines(file, "rubbish");
        std::size_t entries = 0;
        while (!lines.AtEndOfFile()) {
            const std::string_view line = lines.ReadTextLine();
            if (line.starts_with(';')) continue;
            const FixRecord expected{Mid(line, 25, 5), Mid(line, 30, 10), Mid(line, 40, 12)};
            const FixRecord& fix = tables.FixTable[entries++];
            ASSERT_TRUE(fix.FixID == expected.FixID && fix.FixLat == expected.FixLat &&
                        fix.FixLong == expected.FixLong)
                << line;
        }
        ASSERT_EQ(tables.FixCount, static_cast<int>(entries) - 1);
    }
}

TEST_F(LoadNavigationDataTest, FailureNamesTheLineAndLeavesTheTablesEmpty) {
    const std::string navaid = Unread + "DMO  VOR 34.123456-117.123456110.50H\r\n";
    const std::string airport = Unread + "KXYZ27LLengthHd 34.123456-117.123456Freq.Crs. ";
    const std::string fixPath = Folder + "\\GIOSTAM\\navdata\\wpNavFIX.txt";
    const std::string navaidPath = Folder + "\\GIOSTAM\\navdata\\wpNavAID.txt";
    const std::string airportPath = Folder + "\\GIOSTAM\\navdata\\wpNavAPT.txt";
    const std::string noLat =
        "5 " + navaidPath + ", line 3: no decimal point from column 34 on, in the latitude";
    const std::string noLong =
        "5 " + navaidPath + ", line 3: no decimal point from column 42 on, in the longitude";
    const struct {
        std::string navaids;
        std::string airports;
        std::string failure;
    } cases[] = {
        {"; 1\r\n" + navaid + "\r\n" + navaid, "", noLat},
        {"; 1\r\n" + navaid + Unread + "DMO  VOR", "", noLat},
        {"; 1\r\n" + navaid + Unread + "DM.  VOR 34", "", noLat},
        {"; 1\r\n" + navaid + Unread + "DMO  VOR 34.12", "", noLong},
        {"; 1\r\n" + navaid + Unread + "DMO  VOR 34.12345 -117", "", noLong},
        {navaid, airport + "32767\n" + airport + "32768\n",
         "6 " + airportPath + ", line 2: the elevation 32768 does not fit 16 bits"},
        {navaid, airport + "-9E9\r",
         "6 " + airportPath + ", line 1: the elevation -9E9 does not fit 16 bits"},
        {navaid, airport + "9E999",
         "6 " + airportPath + ", line 1: the elevation 9E999 does not fit 16 bits"},
    };
    for (const auto& c : cases) {
        Put(Unread + "FIX", navaid, airport);
        ASSERT_EQ(FailureOfLoad(), "");
        EXPECT_EQ(Counts(), (std::vector{0, 0, 0}));
        Put(Unread + "FIX", c.navaids, c.airports);
        EXPECT_EQ(FailureOfLoad(), c.failure);
        EXPECT_EQ(Counts(), (std::vector{-1, -1, -1}));
    }
    for (const std::string& path : {fixPath, navaidPath, airportPath}) {
        Put("", "", "");
        files.Remove(path);
        EXPECT_EQ(FailureOfLoad(), "53 " + path + ": no such file");
        EXPECT_FALSE(HasNavigationData(files, Folder));
    }
    Put("", "", "");
    EXPECT_TRUE(HasNavigationData(files, Folder));
    files.RemoveFolder(Folder + "\\GIOSTAM");
    EXPECT_EQ(FailureOfLoad(), "76 " + Folder + "\\GIOSTAM\\navdata: no such folder");
    EXPECT_FALSE(HasNavigationData(files, Folder));
}

std::string Repeated(const std::string& line, std::size_t times) {
    std::string text;
    text.reserve(line.size() * times);
    for (std::size_t i = 0; i < times; ++i) text += line;
    return text;
}

TEST_F(LoadNavigationDataTest, EntriesBeyondTheTablesAreLeftOut) {
    const std::string navaid = Unread + "DMO  VOR 34.123456-117.123456110.50H\r\n";
    const std::string lastFix = Unread + "LAST\r\n";
    Put(Repeated("\r\n", MaxFixes - 1) + lastFix, Repeated(navaid, MaxNavaids), Repeated("\n", MaxAirports));
    EXPECT_EQ(Load(), std::vector<LeftOutEntries>());
    EXPECT_EQ(Counts(), (std::vector{190000, 20000, 14400}));
    EXPECT_EQ(Fix(190000), "LAST |          |           ");

    // What is left out isn't looked into.
    const std::string base = Folder + "\\GIOSTAM\\navdata\\";
    Put(Repeated("\r\n", 10'000'000), Repeated(navaid, MaxNavaids) + "no point\r\n;\r\n\r\n",
        Repeated("\r", MaxAirports) + "one more");
    EXPECT_EQ(Load(), (std::vector<LeftOutEntries>{{base + "wpNavFIX.txt", 10'000'000 - MaxFixes},
                                                   {base + "wpNavAID.txt", 2},
                                                   {base + "wpNavAPT.txt", 1}}));
    EXPECT_EQ(Counts(), (std::vector{190000, 20000, 14400}));
    EXPECT_EQ(Fix(190000), "     |          |           ");
}

}  // namespace
}  // namespace tarvex::testing
