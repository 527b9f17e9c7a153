#include "navigation/search.h"

#include <gtest/gtest.h>

#include "navigation/search_hit.h"

namespace tarvex {
namespace {

using enum NavigationTable;

TEST(SearchTest, FindsWholeNamesInTableOrder) {
    NavigationTables tables;
    for (const char* id : {"ABCD", "ABC", "  ABC", " ABC ", "ABCDE", "XABC", "abc", "A BC", "", "ABC"}) {
        tables.FixTable[static_cast<std::size_t>(++tables.FixCount)] = {id, "1", "2"};
    }
    for (const char* id : {"DMO", "DMOS", " DMO"}) {
        tables.NavaidTable[static_cast<std::size_t>(++tables.NavaidCount)] = {id, "113.60", "1", "2"};
    }
    for (const char* id : {"KXYZ27L", "KXYZ09", "KXY 27", " XYZ27L", "KXYY18"}) {
        tables.AirportTable[static_cast<std::size_t>(++tables.AirportCount)] = {id, "1", "2", 0};
    }

    const auto found = [&](NavigationTable table, const char* text) {
        return FindEntries(tables, table, text);
    };
    using Indices = std::vector<std::int32_t>;
    EXPECT_EQ(found(Fixes, "ABC"), (Indices{1, 2, 3, 9}));
    EXPECT_EQ(found(Fixes, "ABCD"), Indices{0});
    EXPECT_EQ(found(Fixes, "ABCDE"), Indices{4});
    EXPECT_EQ(found(Fixes, "abc"), Indices{6});
    EXPECT_EQ(found(Fixes, ""), Indices{8});
    EXPECT_EQ(found(Navaids, "DMO"), (Indices{0, 2}));
    EXPECT_EQ(found(Airports, "KXYZ"), (Indices{0, 1}));
    EXPECT_EQ(found(Airports, "KXY "), Indices{2});
    EXPECT_EQ(found(Airports, " XYZ"), Indices{3});
    for (const char* none : {"ABCDEF", "AB", " ABC", "ABC "})
        EXPECT_EQ(found(Fixes, none), Indices{}) << none;
    for (const char* none : {"KXY", "XYZ", "KXYZ2", ""}) EXPECT_EQ(found(Airports, none), Indices{}) << none;
}

TEST(SearchTest, LooksAtTheLastEntryAndNotBehindIt) {
    NavigationTables tables;
    tables.FixTable[0] = {"ABC", "1", "2"};
    EXPECT_TRUE(FindEntries(tables, Fixes, "ABC").empty());
    for (std::size_t i = 0; i < MaxFixes; ++i) tables.FixTable[i] = {"NONE", "1", "2"};
    tables.FixTable[MaxFixes - 1] = {"ABC", "1", "2"};
    tables.FixCount = MaxFixes - 1;
    EXPECT_EQ(FindEntries(tables, Fixes, "ABC"), std::vector<std::int32_t>{MaxFixes - 1});
    tables.FixCount = MaxFixes - 2;
    EXPECT_TRUE(FindEntries(tables, Fixes, "ABC").empty());
}

TEST(SearchHitTest, OfAnAirportTheRunwayAndItsElevationAreRemembered) {
    NavigationTables tables;
    tables.AirportTable[1] = {"KXYZ27 ", "1", "2", 17};
    tables.FixTable[1] = {"FIX", "3", "4"};
    SearchVariables variables;
    for (const auto table : {Airports, Fixes}) {
        const SearchHit hit = HitAt(tables, table, 1).value();
        EXPECT_EQ(hit.SelectedRow, 1);
        Remember(hit, variables);
    }
    EXPECT_EQ(variables.TransferID + variables.TransferValue, "KXYZ27 17");
    EXPECT_EQ(variables.TransferLatDecimal, 3);
    EXPECT_EQ(variables.TransferLongDecimal, 4);
}

}  // namespace
}  // namespace tarvex
