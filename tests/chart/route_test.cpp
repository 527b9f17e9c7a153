#include "chart/route.h"

#include <gtest/gtest.h>

#include "chart/route_words.h"
#include "geometry/text_rules.h"
#include "procedure/procedure_lines.h"

namespace tarvex {
namespace {

WaypointRecord Row(const char* name, const char* latitude, const char* longitude) {
    WaypointRecord row;
    row.WaypointID = name;
    row.WaypointType = "0";
    row.LatDecimal = latitude;
    row.LongDecimal = longitude;
    row.Frequency = "0";
    row.Airspeed = "0";
    row.Altitude1 = "0";
    row.Altitude2 = "0";
    row.RestrictionType = "0";
    return row;
}

std::string PositionOf(const WaypointRecord& row) {
    const auto position = RoutePointOf(row).position;
    if (position) {
        const WaypointItems saved = ItemsForSave(row);
        EXPECT_EQ(position->latitude, LeadingNumber(saved[LatitudeColumn]));
        EXPECT_EQ(position->longitude, LeadingNumber(saved[LongitudeColumn]));
    }
    return position ? PositionWords(*position) : "none";
}

TEST(RouteTest, PositionsAreThoseOfASave) {
    const struct {
        const char *latitude, *longitude, *position;
    } held[] = {
        {"33.5", "-117.25", "N33°30.00' W117°15.00'"},
        {" 33.99999", "-.5", "N34°00.00' W000°30.00'"},
        {".", "-.", "N00°00.00' E000°00.00'"},
        {"-90", "180.", "S90°00.00' E180°00.00'"},
        {"90.000001", "0", "none"},
        {"0", "-180.1", "none"},
        {"", "", "none"},
        {"1E+300", "1", "none"},
        {"1", "1E+999", "none"},
        {"NaN", "1", "none"},
        {"33.5x", "1", "none"},
    };
    for (const auto& test : held) {
        EXPECT_EQ(PositionOf(Row("A", test.latitude, test.longitude)), test.position) << test.latitude;
    }
    const struct {
        const char *latDegrees, *latMinutes, *longDegrees, *longMinutes, *position;
    } edited[] = {
        {"33", "30", "-117", "15", "N33°30.00' W117°15.00'"},
        {"-0", "30", "0", "15", "S00°30.00' E000°15.00'"},
        {"", "", "", "", "N00°00.00' E000°00.00'"},
        {"89", "60.1", "1", "", "none"},
        {"1E+308", "1E+309", "0", "0", "none"},
        {"1", "0", "1E+999", "0", "none"},
    };
    for (const auto& test : edited) {
        WaypointRecord row = Row("A", "12", "34");
        row.CoordinatesEdited = True;
        row.LatDegrees = test.latDegrees;
        row.LatMinutes = test.latMinutes;
        row.LongDegrees = test.longDegrees;
        row.LongMinutes = test.longMinutes;
        EXPECT_EQ(PositionOf(row), test.position) << test.latDegrees << " " << test.longDegrees;
    }
}

TEST(RouteTest, Altitudes) {
    const struct {
        const char *type, *altitude1, *altitude2, *words;
    } cases[] = {
        {"0", "0", "0", ""},
        {"0", "5000", "0", "at 5000"},
        {"0", "0", "5000", "at 5000"},
        {"0", "-50", "0", ""},
        {"1", "5000", "0", "at or above 5000"},
        {"1", "0", "0", ""},
        {"2", "5000", "0", "at or below 5000"},
        {"3", "3000", "5000", "between 3000 and 5000"},
        {"3", "5000", "3000", "between 3000 and 5000"},
        {"3", "", "5000", "at or below 5000"},
        {"1", "9E+300", "0", ""},
        {"1", "NaN", "", ""},
        {"", "5000", "0", ""},
    };
    for (const auto& test : cases) {
        WaypointRecord row = Row("A", "1", "1");
        row.RestrictionType = test.type;
        row.Altitude1 = test.altitude1;
        row.Altitude2 = test.altitude2;
        EXPECT_EQ(AltitudeWords(RoutePointOf(row).altitude), test.words) << test.type << test.altitude1;
    }
}

// A row without a position ends the line; behind it the sum goes on.
TEST(RouteTest, Legs) {
    WaypointRecord navaid = Row("T\tRM", "33.5", "-117.25");
    navaid.Frequency = "116.2";
    navaid.Airspeed = "250";
    navaid.Altitude1 = "5000";
    navaid.RestrictionType = "1";
    WaypointRecord runway = Row("RW09", "34.5", "-117.25");
    runway.WaypointType = "15";
    const WaypointRecord rows[] = {navaid,
                                   Row("EAST", "33.5", "-117.050133"),
                                   Row("EAST", "33.5", "-117.050133"),
                                   Row("LOST", "95", "1"),
                                   Row("NORTH", "33.5", "-117.25"),
                                   runway};
    const Route route = RouteOf(rows);
    EXPECT_EQ(LegsText(route),
              "No.\tName\tTrue course\tDistance\tSum\tAltitude\tSpeed\tPosition\r\n"
              "1\tT␉RM\t\t\t0.0\tat or above 5000\t250\tN33°30.00' W117°15.00'\r\n"
              "2\tEAST\t090\t10.0\t10.0\t\t\tN33°30.00' W117°03.01'\r\n"
              "3\tEAST\t\t0.0\t10.0\t\t\tN33°30.00' W117°03.01'\r\n"
              "4\tLOST\t\t\t10.0\t\t\tno position\r\n"
              "5\tNORTH\t\t\t10.0\t\t\tN33°30.00' W117°15.00'\r\n"
              "6\tRW09\t360\t60.0\t70.0\t\t\tN34°30.00' W117°15.00'\r\n");
    EXPECT_EQ(RouteSentence(route), "6 waypoints, 70.0 miles, from T␉RM to RW09; 1 without a position");
    EXPECT_EQ(RouteSentence(RouteOf(std::span(rows).first(1))), "1 waypoint, T␉RM");
    EXPECT_EQ(RouteSentence({}), "no waypoints");
    EXPECT_EQ(route.points[0].frequency, "116.2");
    EXPECT_EQ(route.points[1].frequency, "");
    EXPECT_EQ(route.points[5].runway, true);
}

}  // namespace
}  // namespace tarvex
