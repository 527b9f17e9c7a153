#include "navigation/search.h"

#include <gtest/gtest.h>

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

    const struct {
        NavigationTable table;
        const char* text;
        std::vector<std::int32_t> found;
    } cases[] = {
        {Fixes, "ABC", {1, 2, 3, 9}}, {Fixes, "ABCD", {0}},       {Fixes, "ABCDE", {4}},
        {Fixes, "ABCDEF", {}},        {Fixes, "AB", {}},          {Fixes, " ABC", {}},
        {Fixes, "ABC ", {}},          {Fixes, "abc", {6}},        {Fixes, "", {8}},
        {Navaids, "DMO", {0, 2}},     {Airports, "KXYZ", {0, 1}}, {Airports, "KXY ", {2}},
        {Airports, "KXY", {}},        {Airports, " XYZ", {3}},    {Airports, "XYZ", {}},
        {Airports, "KXYZ2", {}},      {Airports, "", {}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(FindEntries(tables, c.table, c.text), c.found) << '"' << c.text << '"';
    }
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

}  // namespace
}  // namespace tarvex
