#include "support/tool_road.h"

namespace tarvex::testing {
namespace {

class DerivedWaypoint : public ToolRoad {
  protected:
    DerivedWaypoint() {
        PutFix("START", "33.5", "-117.25");
        PutFix("SOUTH", "-0.5", "-0.25");
        PutFix("NORTH", "0.25", "0.25");
        PutFix("ZERO", "0", "0");
        CreateDP();
        user->Presses(Editor().CreateWaypointCommand);
    }
};

TEST_F(DerivedWaypoint, TransferAsksForWhatIsMissingInOrder) {
    const auto transfer = [&](const char* complaint, const char* focus) {
        user->Presses(Deriving().TransferCommand);
        ExpectComplaint(complaint, focus);
        EXPECT_EQ(Editor().FixNameText.Text() + Editor().DDMLatText.Text(), "");
    };
    transfer("You must type in a Ture Course.\r\n                Please correct.", "TrueCourseText");
    FillDerived("90", "", "");
    transfer("You must type in a Distance.\r\n          Please correct.", "DistText");
    FillDerived("", "10", "");
    transfer("You must type in a Waypoint ID.\r\n            Please correct.", "WaypointIDText");
    FillDerived("", "", "abc");
    transfer("You must pick a starting point.\r\n            Please correct.", "TransferCommand");
    EXPECT_TRUE(program->createWaypointForm.IsLoaded());
}

TEST_F(DerivedWaypoint, FillsTheBoxesAndTheHemispheresFollowTheResult) {
    const struct {
        const char *start, *course, *distance, *position;
    } cases[] = {
        {"START", "90", "10", "N33/30. W117/3.007951"},
        {"START", "360", "60", "N34/30. W117/15."},
        {"START", "0", "60", "N34/30. W117/15."},
        {"SOUTH", "0", "60", "N0/30. W0/15."},
        {"SOUTH", "0", "30", "N0/. W0/15."},
        {"SOUTH", "180", "30", "S1/. W0/15."},
        {"NORTH", "180", "60", "S0/45. E0/15."},
        {"NORTH", "270", "30", "N0/15. W0/15.000286"},
        {"ZERO", "90", "30", "N0/. E0/30."},
        {"ZERO", "0", "0", "N0/. W0/."},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.start) + " " + c.course);
        user->Presses(Editor().CreateWaypointCommand);
        Transfer(Deriving().FixCommand, c.start);
        State().SearchKind = "A";  // of a search in between
        FillDerived(c.course, c.distance, "abc12");
        user->Presses(Deriving().TransferCommand);
        EXPECT_FALSE(program->createWaypointForm.IsLoaded());
        EXPECT_EQ(Editor().FixNameText.Text(), "ABC12");
        EXPECT_EQ(Position(), c.position);
    }
    EXPECT_EQ(State().WaypointCount, 0);
    ExpectSilence();
}

TEST_F(DerivedWaypoint, PolesAreOutOfReachAndTheInputStays) {
    Transfer(Deriving().FixCommand, "START");
    const std::string start = Position();
    FillDerived("0", "3390", "POLE");
    for (const char* distance : {"3390", "9e99"}) {
        user->Types(Deriving().DistText, distance);
        user->Presses(Deriving().TransferCommand);
        ExpectComplaint("This distance reaches or passes a pole.\r\n                  Please correct.",
                        "TransferCommand");
        EXPECT_EQ(Editor().FixNameText.Text() + Position(), start);
    }
    user->Types(Deriving().DistText, "3389");
    user->Presses(Deriving().TransferCommand);
    EXPECT_EQ(Position(), "N89/59. W117/15.");
}

TEST_F(DerivedWaypoint, GoingBackEmptiesTheEditorsBoxes) {
    Transfer(Deriving().FixCommand, "START");
    EXPECT_NE(Editor().DDMLatText.Text(), "");
    user->Presses(Deriving().Command1);
    EXPECT_FALSE(program->createWaypointForm.IsLoaded());
    EXPECT_EQ(Editor().DDMLatText.Text(), "");
    user->Presses(Editor().CreateWaypointCommand);
    EXPECT_EQ(State().StartPointSelected, False);
    EXPECT_TRUE(Deriving().FixCommand.Enabled());
}

}  // namespace
}  // namespace tarvex::testing
