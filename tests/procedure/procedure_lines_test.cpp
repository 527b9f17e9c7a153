#include "procedure/procedure_lines.h"

#include <gtest/gtest.h>

#include "procedure/altitude_band.h"
#include "procedure/edited_coordinate.h"
#include "toolkit/failure.h"

namespace tarvex {
namespace {

std::string Line(const WaypointItems& items) {
    const std::string text = ProcedureText("; c", std::span(&items, 1));
    return text.substr(7, text.size() - 7 - std::string("\r\n\r\nEnd of Terminal Procedure\r\n").size());
}

TEST(ProcedureLines, OfOneRowByBothWriters) {
    WaypointRecord row{"ROBUC", "05", " 040.50", "-0",  "30",   False,  "-73.",
                       "117",   "45", "0",       "250", "9000", "3000", "3"};
    EXPECT_EQ(Line(ItemsAsHeld(row)), "W,ROBUC,,05, 040.50,-73.,0,250,9000,3000,3,");
    EXPECT_EQ(Line(ItemsForSave(row)), "W,ROBUC,,5, 040.50,-73.,0,250,3000,9000,3,");
    row.CoordinatesEdited = True;
    EXPECT_EQ(Line(ItemsForSave(row)), "W,ROBUC,,5,-.5,117.75,0,250,3000,9000,3,");
    EXPECT_EQ(Line(ItemsAsHeld(row)), "W,ROBUC,,05, 040.50,-73.,0,250,9000,3000,3,");
    for (const char* type : {"", "X", "1X"}) {
        row.WaypointType = type;
        EXPECT_THROW(ItemsForSave(row), Failure) << type;
        EXPECT_NO_THROW(ItemsAsHeld(row)) << type;
    }
}

TEST(ProcedureLines, ItemsThatWouldNotComeBackAreFound) {
    const auto found = [](const char* item) {
        std::vector<WaypointItems> lines(3, ItemsAsHeld({}));
        lines[1][AirspeedColumn] = item;
        return FindUnstorableItem(lines);
    };
    for (const char* item : {"1,000", "A\rB", "A\nB", "\"A", " \t\"A"}) {
        ASSERT_TRUE(found(item)) << item;
        EXPECT_EQ(found(item)->row, 1U);
        EXPECT_EQ(found(item)->column, AirspeedColumn);
    }
    for (const char* item : {"A\"B", "  A ;", ""}) EXPECT_FALSE(found(item)) << item;
}

TEST(EditedCoordinate, OfDegreesAndMinutes) {
    const struct {
        const char *degrees, *minutes, *latitude, *longitude;
    } cases[] = {
        {"33", "30", "33.5", "33.5"},     {"-33", "30", "-33.5", "-33.5"},
        {"- 33", "30", "-33.5", "-33.5"}, {" 33", "0", "33.", "33."},
        {"33", "", "33.", "33."},         {"33", "56", "33.933333", "33.933333"},
        {"0", "30", ".5", ".5"},          {"", "30", ".5", ".5"},
        {"-0", "30", "-.5", "-.5"},       {"- 0", "15", "-.25", "-.25"},
        {" -", "15", "-.25", "-.25"},     {"0", "0", "0.", "."},
        {"-0", "0", "0.", "."},           {"", "", "0.", "."},
        {"0", ".000012", "0.", "."},      {"179", "59.9999999", "180.", "180."},
        {"-1", "30x", "-1.5", "-1.5"},
    };
    for (const auto& [degrees, minutes, latitude, longitude] : cases) {
        EXPECT_EQ(EditedLatitude(degrees, minutes), latitude) << degrees << ' ' << minutes;
        EXPECT_EQ(EditedLongitude(degrees, minutes), longitude) << degrees << ' ' << minutes;
    }
}

TEST(AltitudeBand, IsOrderedByNumberWhenThereIsASecondAltitude) {
    const struct {
        const char *altitude1, *altitude2, *ordered1, *ordered2;
    } cases[] = {
        {"9000", "3000", "3000", "9000"},   {"3000", "9000", "3000", "9000"},
        {"10000", "9000", "9000", "10000"}, {"5000", "0", "5000", "0"},
        {"5000", "00", "00", "5000"},       {"    0", "", "    0", ""},
        {"5000", "", "", "5000"},           {"", "5000", "", "5000"},
        {"0", "5000", "0", "5000"},         {"-50", "-100", "-100", "-50"},
        {"10", "010", "010", "10"},         {"5000", " 0", "5000", " 0"},
    };
    for (const auto& [altitude1, altitude2, ordered1, ordered2] : cases) {
        WaypointRecord row;
        row.Altitude1 = altitude1;
        row.Altitude2 = altitude2;
        OrderAltitudes(row);
        EXPECT_TRUE(row.Altitude1 == FixedField<6>(ordered1) && row.Altitude2 == FixedField<6>(ordered2))
            << altitude1 << ' ' << altitude2;
    }
}

TEST(AltitudeBand, EqualAltitudesKeepTheirOrderWithEverySave) {
    const auto saved = [](const WaypointItems& stored) {
        WaypointRecord row;
        row.WaypointType = "0";
        row.Altitude2 = stored[FirstAltitudeColumn];
        row.Altitude1 = stored[SecondAltitudeColumn];
        OrderAltitudes(row);
        return ItemsForSave(row);
    };
    for (const char* other : {"05000", "5000.", "5000"}) {
        WaypointItems items;
        items[FirstAltitudeColumn] = "5000";
        items[SecondAltitudeColumn] = other;
        EXPECT_EQ(saved(items)[FirstAltitudeColumn], "5000");
        EXPECT_EQ(saved(items)[SecondAltitudeColumn], other);
    }
    for (const auto& [first, second] : {std::pair{"0x", "0y"}, {"", "0"}, {"00", "0"}}) {
        WaypointItems items;
        items[FirstAltitudeColumn] = first;
        items[SecondAltitudeColumn] = second;
        const WaypointItems once = saved(items);
        EXPECT_EQ(saved(once), once) << first << ' ' << second;
    }
}

}  // namespace
}  // namespace tarvex
