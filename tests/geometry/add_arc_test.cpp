#include "support/tool_road.h"

namespace tarvex::testing {
namespace {

constexpr const char* NoCenterpoint =
    "You have not selected a centerpoint.\r\n                   Please Correct.";
constexpr const char* BoxesMissing = "All input boxes are not filled out.\r\n           Please Complete.";
constexpr const char* NoTurnDirection =
    "You have not selected a turn direction.\r\n                  Please Correct.";
constexpr const char* NoLength = "This ARC has no length.\r\n        Please correct.";
constexpr const char* ReachesPole = "This ARC reaches or passes a pole.\r\n               Please correct.";

class ArcDesigner : public ToolRoad {
  protected:
    ArcDesigner() {
        PutNavaid("ABC", "113.60", "33.500000", "-117.250000");
        PutNavaid("POLE", "350", "89.9", "0");
        PutFix("ALPHA", "33.5", "-118.25");
        CreateDP();
        user->Presses(Editor().AddArcCommand);
    }

    void TakeNavaid(const char* name = "ABC") { Transfer(Designer().Command1, name); }
    void Turn(bool right = true) { user->Picks(right ? Designer().RightOption : Designer().LeftOption); }
    void Finish() { user->Presses(Designer().TransferCommand); }
    static Message VariationQuestion() {
        return {.prompt = "Is the magnetic variation really zero?",
                .title = std::string(ProgramTitle),
                .buttons = MessageButtons::YesNo};
    }
};

TEST_F(ArcDesigner, OpensEmptyWithTheVariationSideOfLastTime) {
    EXPECT_TRUE(Designer().WestVarOption.Value());
    EXPECT_FALSE(Designer().RightOption.Value() || Designer().LeftOption.Value());
    EXPECT_FALSE(Designer().Label4.Visible() || Designer().ArcLabelText.Visible());
    TakeNavaid();
    EXPECT_EQ(Designer().ArcLabelText.Text(), "ABC");
    EXPECT_TRUE(Designer().Label4.Visible() && Designer().ArcLabelText.Visible());
    EXPECT_FALSE(user->Types(Designer().ArcLabelText, "X"));
    EXPECT_EQ(State().ArcCenterLat, "33.5");
    EXPECT_EQ(State().ArcCenterLong, "-117.25");

    user->Types(Designer().ArcStartText, "90");
    user->Presses(Designer().LatLongCommand);
    user->Types(Editor().FixNameText, "OLD");
    State().MagVarSide = "";
    user->Presses(Editor().AddArcCommand);
    EXPECT_EQ(Designer().ArcStartText.Text() + Designer().ArcLabelText.Text(), "");
    EXPECT_TRUE(Designer().EastVarOption.Value());
    EXPECT_FALSE(program->latLongForm.IsLoaded()) << "it belonged to the designer before";
    EXPECT_EQ(Editor().FixNameText.Text(), "");
    ExpectSilence();
}

TEST_F(ArcDesigner, BoxesAreCheckedWhenTheFocusLeaves) {
    constexpr const char* TooLarge =
        "This value must be less than or equal to 360.\r\n                       Please correct.";
    constexpr const char* NumbersOnly = "Enter only numbers please.";
    const struct {
        TextBox AddARC::*box;
        const char *text, *complaint;
    } cases[] = {
        {&AddARC::ArcStartText, "361", TooLarge},
        {&AddARC::ArcStartText, "360", ""},
        {&AddARC::ArcStartText, "9e9", TooLarge},
        {&AddARC::ArcStartText, "36a", NumbersOnly},
        {&AddARC::ArcEndText, "999", TooLarge},
        {&AddARC::ArcEndText, "x", NumbersOnly},
        {&AddARC::ArcEndText, "", ""},
        {&AddARC::ArcRadiusText, "1x", NumbersOnly},
        {&AddARC::ArcRadiusText, "99", ""},
        {&AddARC::MagVarText, "999", ""},
        {&AddARC::MagVarText, "12W", NumbersOnly},
        {&AddARC::MagVarText, "", ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        TextBox& box = Designer().*c.box;
        user->Types(box, c.text);
        user->MovesTo(Designer().RightOption);
        if (*c.complaint == '\0') {
            ExpectSilence();
            continue;
        }
        ExpectComplaint(c.complaint, box.Name());
        EXPECT_EQ(box.Text(), c.text);
        user->Types(box, "");
    }
}

TEST_F(ArcDesigner, TransferComplainsInOrderAndMakesNothing) {
    const auto finish = [&](const char* complaint, const char* focus) {
        Finish();
        ExpectComplaint(complaint, focus);
    };
    finish(NoCenterpoint, "ArcStartText");
    FillArc("90", "90", "10", "");
    finish(NoCenterpoint, "ArcStartText");
    TakeNavaid();
    user->Types(Designer().ArcRadiusText, "");
    finish(BoxesMissing, "ArcStartText");
    user->Types(Designer().ArcRadiusText, "10");

    services.messages.Answer(MessageAnswer::No);
    Finish();
    ExpectMessage(VariationQuestion(), "MagVarText");
    services.messages.Answer(MessageAnswer::Yes);
    Finish();
    EXPECT_EQ(services.messages.Take(),
              (std::vector<Message>{VariationQuestion(),
                                    {.prompt = NoTurnDirection, .title = std::string(ProgramTitle)}}));
    EXPECT_EQ(user->FocusName(), "MagVarText");

    user->Types(Designer().MagVarText, "0");
    Turn(false);
    finish(NoLength, "ArcEndText");
    TakeNavaid("POLE");
    Turn();
    finish(ReachesPole, "TransferCommand");

    EXPECT_EQ(State().WaypointCount, 0);
    EXPECT_EQ(Editor().WaypointList.ListCount(), 0);
    EXPECT_EQ(Designer().MagVarText.Text(), "0");
    TakeNavaid();
    Finish();
    EXPECT_EQ(State().WaypointCount, 25);
    ExpectSilence();
}

TEST_F(ArcDesigner, EveryPointIsARowBehindTheOthers) {
    Add({.fix = "FIRST", .latDegrees = "33", .longDegrees = "117"});
    State().WaypointTable[1].CoordinatesEdited = True;  // left by a row that was deleted
    State().WaypointTable[1].Frequency = "113.60";
    TakeNavaid();
    FillArc("90", "180", "10", "0");
    Turn();
    user->Picks(Designer().EastVarOption);
    user->PicksLine(Editor().WaypointList, 0);
    State().SearchKind = "CN";  // of a derived waypoint in between
    Finish();

    EXPECT_FALSE(program->addARC.IsLoaded());
    EXPECT_EQ(State().MagVarSide, "E");
    EXPECT_EQ(Lines(), (std::vector<std::string>{"FIRST", "ABC1", "ABC2", "ABC3", "ABC4", "ABC5", "ABC6",
                                                 "ABC7", "ABC8"}));
    EXPECT_EQ(State().WaypointCount, 9);
    EXPECT_EQ(Row(1), (WaypointRecord{.WaypointID = "ABC1",
                                      .WaypointType = "0",
                                      .LatDecimal = "33.5",
                                      .LatDegrees = "33",
                                      .LatMinutes = "30.",
                                      .LongDecimal = "-117.050133",
                                      .LongDegrees = "-117",
                                      .LongMinutes = "3.007951",
                                      .Frequency = "0",
                                      .Airspeed = "0",
                                      .Altitude2 = "0",
                                      .Altitude1 = "0",
                                      .RestrictionType = "0"}));
    EXPECT_EQ(Row(8).LatDecimal, "33.366667") << "two miles nearer to the centre";
    ExpectSilence();
}

TEST_F(ArcDesigner, SouthernAndEasternRowsCarryTheirSigns) {
    PutNavaid("LONGSTEMS", "350", "-0.5", "117.25");
    TakeNavaid("LONGS");
    Designer().ArcLabelText.SetText("LONGSTEMS1");
    FillArc("90", "91", "10", "0");
    Turn();
    Finish();
    EXPECT_EQ(Lines().at(0), "LONGSTEMS11");
    EXPECT_EQ(Row(0).WaypointID.Text(), "LONGSTEMS1");
    EXPECT_EQ(Row(0).LatDecimal, "-.5");
    EXPECT_EQ(Row(0).LatDegrees, "0");
    EXPECT_EQ(Row(0).LongDecimal, "117.416673");
    EXPECT_EQ(Row(0).LongDegrees, "117");
}

TEST_F(ArcDesigner, ArcThatDoesNotFitMakesNoRow) {
    State().WaypointCount = 194;
    TakeNavaid();
    FillArc("90", "180", "10", "0");
    Turn();
    Finish();
    ExpectComplaint("This ARC needs 8 rows, and only 7 of 201 are free.", "TransferCommand");
    EXPECT_EQ(State().WaypointCount, 194);
    EXPECT_EQ(Editor().WaypointList.ListCount(), 0);

    State().WaypointCount = 193;
    Finish();
    EXPECT_EQ(State().WaypointCount, MaxWaypoints);
    EXPECT_EQ(Row(200).WaypointID.Text(), "ABC8      ");
    ExpectSilence();
}

TEST_F(ArcDesigner, CentreByHandIsTrueAndHasNoClosingPoint) {
    user->Presses(Designer().LatLongCommand);
    user->Presses(Centre().OopsCommand);
    FillArc("10", "70", "10", "");
    Turn();
    Finish();
    ExpectComplaint(NoCenterpoint, "ArcStartText");
    TakeNavaid();
    Finish();
    EXPECT_EQ(State().WaypointCount, 5) << "the designer has seen the press of Use Lat/Lon";
    EXPECT_EQ(Row(0).WaypointID.Text(), "ABC1      ");

    user->Presses(Editor().AddArcCommand);
    user->Presses(Designer().LatLongCommand);
    FillCentre("33", "30", "117", "15");
    user->Picks(Centre().WestOption);
    user->Presses(Centre().DoneCommand);
    EXPECT_FALSE(Designer().MagVarText.Usable());
    FillArc("90", "180", "10", "");
    Turn();
    Finish();
    EXPECT_EQ(State().WaypointCount, 12);
    EXPECT_EQ(Lines().at(5), "ARC1");
    EXPECT_EQ(Row(5).LongDecimal, "-117.050133");
    EXPECT_EQ(Row(11).LatDecimal, "33.333333");
    ExpectSilence();
}

TEST_F(ArcDesigner, ExitMakesNothing) {
    TakeNavaid();
    user->Picks(Designer().EastVarOption);
    program->door.Escape(Designer());
    EXPECT_FALSE(program->addARC.IsLoaded());
    EXPECT_EQ(State().MagVarSide, "W");
    EXPECT_EQ(State().WaypointCount, 0);
}

}  // namespace
}  // namespace tarvex::testing
