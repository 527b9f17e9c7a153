#include "chart/position_grid.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <set>

#include "geometry/rhumb_line.h"
#include "navigation/entry_position.h"
#include "navigation/search.h"

namespace tarvex {
namespace {

double MilesBetween(const Position& a, const Position& b) {
    const double cosine = std::sin(a.latitude * RadiansPerDegree) * std::sin(b.latitude * RadiansPerDegree) +
                          std::cos(a.latitude * RadiansPerDegree) * std::cos(b.latitude * RadiansPerDegree) *
                              std::cos((b.longitude - a.longitude) * RadiansPerDegree);
    return std::acos(std::clamp(cosine, -1.0, 1.0)) / RadiansPerNauticalMile;
}

// 3000 fixes all over the earth, the first at places of their own, and some navaids.
class PositionGridTest : public ::testing::Test {
  protected:
    PositionGridTest() {
        const struct {
            const char *latitude, *longitude;
        } own[] = {{"90.000000", "10.0"},  {"-90", "180.000000"}, {"0", "-180"}, {" 51.5", " 179.999999"},
                   {"51.500000", "-180."}, {"+51.5", "1.795E2"},  {"", "1"},     {"NaN", "1"},
                   {"90.00001", "0"},      {"12.5x", "0"}};
        for (const auto& place : own) AddFix(place.latitude, place.longitude);
        std::mt19937 random(3);
        std::uniform_real_distribution<double> share(-1, 1);
        while (tables.FixCount < 3000) {
            AddFix(std::to_string(share(random) * 90), std::to_string(share(random) * 180));
        }
        for (int i = 0; i < 40; ++i) {
            tables.NavaidTable[static_cast<std::size_t>(++tables.NavaidCount)] = {"NAV", "113.60",
                                                                                  std::to_string(i), "0"};
        }
    }
    void AddFix(std::string_view latitude, std::string_view longitude) {
        tables.FixTable[static_cast<std::size_t>(++tables.FixCount)] = {"FIX", latitude, longitude};
    }
    std::optional<Position> Place(std::int32_t index) const {
        return PositionOf(EntryAt(tables, NavigationTable::Fixes, index));
    }

    NavigationTables tables;
};

TEST_F(PositionGridTest, FindsAllEntriesOfACircle) {
    const PositionGrid grid(tables);
    EXPECT_EQ(grid.Count(), 3001U - 4 + 40) << "those without a position are left out";
    const auto all = [](const Position&, double) { return true; };
    for (const Position& middle : {Position{51.5, 179.9}, {90, 0}, {-89, 100}, {0, 0}, {0, -180}}) {
        for (const double miles : {0.0, 50.0, 700.0, 6000.0, 10800.0}) {
            std::set<std::int32_t> found;
            for (const auto& entry : grid.EntriesIn(NavigationTable::Fixes, {middle, miles}, all)) {
                EXPECT_TRUE(found.insert(entry.index).second);
                EXPECT_LT(MilesBetween(*Place(entry.index), entry.At()), 0.001);
                EXPECT_LT(MilesBetween(middle, entry.At()), miles * 1.8 + 11000) << "found far outside";
            }
            for (std::int32_t index = 0; index <= tables.FixCount; ++index) {
                const auto place = Place(index);
                if (place && MilesBetween(middle, *place) <= miles) {
                    EXPECT_TRUE(found.contains(index)) << index << " " << middle.latitude << " " << miles;
                }
            }
        }
    }
}

// With less room there are fewer, those of the larger cells stay, and no two share a cell.
TEST_F(PositionGridTest, OneEntryStandsForACell) {
    const PositionGrid grid(tables);
    std::set<std::int32_t> before;
    for (const double room : {5400.0, 1350.0, 300.0, 40.0, 0.0}) {
        std::set<std::int32_t> found;
        for (const auto& entry :
             grid.EntriesIn(NavigationTable::Fixes, {{20, 30}, 12000},
                            [=](const Position&, double miles) { return miles > room; })) {
            found.insert(entry.index);
        }
        EXPECT_TRUE(std::includes(found.begin(), found.end(), before.begin(), before.end())) << room;
        EXPECT_GT(found.size(), before.size());
        before = found;
    }
    EXPECT_EQ(before.size(), grid.Count() - 40);
}

TEST_F(PositionGridTest, NearestEntries) {
    const PositionGrid grid(tables);
    for (const Position& to : {Position{51.5, 179.9999}, {90, 0}, {33, -117}}) {
        std::vector<double> expected;
        for (std::int32_t index = 0; index <= tables.FixCount; ++index) {
            if (const auto place = Place(index)) expected.push_back(MilesBetween(to, *place));
        }
        std::sort(expected.begin(), expected.end());
        const auto nearest = grid.Nearest(NavigationTable::Fixes, to, 5);
        ASSERT_EQ(nearest.size(), 5U);
        for (std::size_t i = 0; i < 5; ++i) {
            EXPECT_NEAR(MilesBetween(to, nearest[i].At()), expected[i], 0.001);
        }
    }
    EXPECT_EQ(grid.Nearest(NavigationTable::Navaids, {20.4, 170}, 2).size(), 2U) << "far off";
    EXPECT_TRUE(grid.Nearest(NavigationTable::Airports, {}, 2).empty());
}

}  // namespace
}  // namespace tarvex
