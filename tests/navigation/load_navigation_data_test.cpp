#include "navigation/load_navigation_data.h"

#include <gtest/gtest.h>

#include "support/failure_of.h"
#include "support/memory_file_system.h"

namespace tarvex::testing {
namespace {

const std::string Base = "C:\\FS2000\\GIOSTAM\\navdata\\";
const std::string Unread(24, '-');  // the first 24 columns

class LoadNavigationDataTest : public ::testing::Test {
  protected:
    LoadNavigationDataTest() { Put("", "", ""); }

    void Put(const std::string& fixes, const std::string& navaids, const std::string& airports) {
        files.Put(Base + "wpNavFIX.txt", fixes);
        files.Put(Base + "wpNavAID.txt", navaids);
        files.Put(Base + "wpNavAPT.txt", airports);
    }
    std::vector<LeftOutEntries> Load() { return LoadNavigationData(files, "C:\\FS2000", tables); }
    bool HasData() { return HasNavigationData(files, "C:\\FS2000"); }
    // The number and the reason of the failure; empty without one.
    std::string FailureOfLoad() {
        const Failure failure = FailureOf([this] { Load(); });
        return failure.Number() == 0 ? "" : std::to_string(failure.Number()) + " " + failure.Reason();
    }
    std::vector<int> Counts() const { return {tables.FixCount, tables.NavaidCount, tables.AirportCount}; }
    std::string Fix(std::size_t index) const {
        const auto& [id, lat, lon] = tables.FixTable[index];
        return id.Text() + "|" + lat.Text() + "|" + lon.Text();
    }
    std::string Navaid(std::size_t index) const {
        const auto& [id, frequency, lat, lon] = tables.NavaidTable[index];
        return id.Text() + "|" + frequency.Text() + "|" + lat.Text() + "|" + lon.Text();
    }
    std::string Airport(std::size_t index) const {
        const auto& [id, lat, lon, elevation] = tables.AirportTable[index];
        return id.Text() + "|" + lat.Text() + "|" + lon.Text() + "|" + std::to_string(elevation);
    }

    MemoryFileSystem files;
    NavigationTables tables;
};

using Lines = std::vector<std::pair<std::string, std::string>>;  // and what is read from each

std::string FileOf(const Lines& lines) {
    std::string file;
    for (const auto& [line, read] : lines) file += line + "\r\n";
    return file;
}

TEST_F(LoadNavigationDataTest, FixFieldsStandInTheirColumns) {
    const Lines lines = {
        {Unread + "ROBUC 40.512345 -73.8512349EXTRA", "ROBUC| 40.512345| -73.851234"},
        {Unread + "AB   -9.5      +179.25    ", "AB   |-9.5      |+179.25    "},
        {Unread + "SHORT 12", "SHORT| 12       |           "},
        {Unread.substr(1), "     |          |           "},
        {"", "     |          |           "},
        {" ;" + Unread.substr(2) + "BLANK1234567890abcdefghijk", "BLANK|1234567890|abcdefghijk"},
        {Unread + "\xC4\t\x01\x80\x0B 1.0       2.0       \x7F", "\xC4\t\x01\x80\x0B| 1.0      | 2.0       "},
    };
    Put("; a comment\r\n;\r\n" + FileOf(lines), "", "");
    EXPECT_TRUE(Load().empty());
    EXPECT_EQ(Counts(), (std::vector{static_cast<int>(lines.size()) - 1, -1, -1}));
    for (std::size_t i = 0; i < lines.size(); ++i) EXPECT_EQ(Fix(i), lines[i].second) << lines[i].first;
}

TEST_F(LoadNavigationDataTest, NavaidsAreCutAtTheirPoints) {
    const Lines lines = {
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
        {Unread + "DMO  VOR.34.123456-117.123456110.50H", "DMO  |110.50|34.123456 |-117.123456"},
    };
    Put("", FileOf(lines), "; none");
    EXPECT_TRUE(Load().empty());
    EXPECT_EQ(Counts(), (std::vector{-1, static_cast<int>(lines.size()) - 1, -1}));
    for (std::size_t i = 0; i < lines.size(); ++i) EXPECT_EQ(Navaid(i), lines[i].second) << lines[i].first;
}

TEST_F(LoadNavigationDataTest, AirportsHaveAnElevationOf16Bits) {
    const std::string line = Unread + "KXYZ27LLengthHd 34.123456-117.123456Freq.Crs. ";
    const std::pair<const char*, const char*> elevations[] = {
        {"00125", "125"},    {"  -11", "-11"},  {"", "0"},        {"abcde", "0"},
        {" 12.5", "12"},     {" 13.5", "14"},   {"1 2 3", "123"}, {"32767", "32767"},
        {"-32768", "-3276"}, {"125  9", "125"}, {"\xFFz1", "0"},
    };
    Lines lines = {{Unread + "KX", "KX     |          |           |0"},
                   {"", "       |          |           |0"}};
    for (const auto& [text, read] : elevations) {
        lines.emplace_back(line + text, std::string("KXYZ27L| 34.123456|-117.123456|") + read);
    }
    Put("", "", FileOf(lines));
    EXPECT_TRUE(Load().empty());
    EXPECT_EQ(Counts(), (std::vector{-1, -1, static_cast<int>(lines.size()) - 1}));
    for (std::size_t i = 0; i < lines.size(); ++i) EXPECT_EQ(Airport(i), lines[i].second);
}

TEST_F(LoadNavigationDataTest, FailureNamesTheLineAndLeavesTheTablesEmpty) {
    const std::string navaid = Unread + "DMO  VOR 34.123456-117.123456110.50H\r\n";
    const std::string airport = Unread + "KXYZ27LLengthHd 34.123456-117.123456Freq.Crs. ";
    const auto fails = [&](const std::string& navaids, const std::string& airports,
                           const std::string& failure) {
        Put(Unread + "FIX", navaid, airport);
        ASSERT_EQ(FailureOfLoad(), "");
        Put(Unread + "FIX", navaids, airports);
        EXPECT_EQ(FailureOfLoad(), failure);
        EXPECT_EQ(Counts(), (std::vector{-1, -1, -1}));
    };
    const std::string line3 = "5 " + Base + "wpNavAID.txt, line 3: no decimal point from column ";
    for (const char* latitude : {"", "DMO  VOR", "DM.  VOR 34"}) {
        fails("; 1\r\n" + navaid + Unread + latitude, "", line3 + "34 on, in the latitude");
    }
    for (const char* longitude : {"", "5 -117"}) {
        fails("; 1\r\n" + navaid + Unread + "DMO  VOR 34.1234" + longitude, "",
              line3 + "42 on, in the longitude");
    }
    for (const std::string elevation : {"32768", "-9E9", "9E999"}) {
        fails(navaid, airport + "32767\n" + airport + elevation,
              "6 " + Base + "wpNavAPT.txt, line 2: the elevation " + elevation + " does not fit 16 bits");
    }
    for (const char* name : {"wpNavFIX.txt", "wpNavAID.txt", "wpNavAPT.txt"}) {
        Put("", "", "");
        EXPECT_TRUE(HasData());
        files.Remove(Base + name);
        EXPECT_EQ(FailureOfLoad(), "53 " + Base + name + ": no such file");
        EXPECT_FALSE(HasData());
    }
    files.RemoveFolder("C:\\FS2000\\GIOSTAM");
    EXPECT_EQ(FailureOfLoad(), "76 C:\\FS2000\\GIOSTAM\\navdata: no such folder");
    EXPECT_FALSE(HasData());
}

std::string Repeated(const std::string& line, std::size_t times) {
    std::string text;
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
    Put(Repeated("\r\n", 10'000'000), Repeated(navaid, MaxNavaids) + "no point\r\n;\r\n\r\n",
        Repeated("\r", MaxAirports) + "one more");
    EXPECT_EQ(Load(), (std::vector<LeftOutEntries>{{Base + "wpNavFIX.txt", 10'000'000 - MaxFixes},
                                                   {Base + "wpNavAID.txt", 2},
                                                   {Base + "wpNavAPT.txt", 1}}));
    EXPECT_EQ(Counts(), (std::vector{190000, 20000, 14400}));
    EXPECT_EQ(Fix(190000), "     |          |           ");
}

}  // namespace
}  // namespace tarvex::testing
