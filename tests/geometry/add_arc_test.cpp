#include "support/tool_road.h"

namespace tarvex::testing {
namespace {

constexpr const char* NoCenterpoint =
    "You have not selected a centerpoint.\r\n                   Please Correct.";

class ArcDesigner : public ToolRoad {
  protected:
    ArcDesigner() {
        PutNavaid("ABC", "113.60", "33.500000", "-117.250000");
        PutNavaid("POLE", "350", "89.9", "0");
        CreateDP();
        user->Presses(Editor().AddArcCommand);
    }

    void TakeNavaid(const char* name = "ABC") { Transfer(Designer().Command1, name); }
    void Turn(bool right = true) { user->Picks(right ? Designer().RightOption : Designer().LeftOption); }
    void Finish() { user->Presses(Designer().TransferCommand); }
    void Design(const char* start, const char* end) {
        FillArc(start, end, "10", Designer().MagVarText.Usable() ? "0" : "");
        Turn();
        Finish();
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
    EXPECT_EQ(State().ArcCenterLat + State().ArcCenterLong, "33.5-117.25");

    user->Types(Designer().ArcStartText, "90");
    user->Presses(Designer().LatLongCommand);
    user->Presses(Designer().Command1);
    user->Types(Editor().FixNameText, "OLD");
    State().MagVarSide = "";
    user->Presses(Editor().AddArcCommand);
    EXPECT_EQ(Designer().ArcStartText.Text() + Designer().ArcLabelText.Text() + Editor().FixNameText.Text(),
              "");
    EXPECT_TRUE(Designer().EastVarOption.Value());
    EXPECT_FALSE(program->latLongForm.IsLoaded() || program->findWaypointForm.IsLoaded())
        << "they belonged to the designer before";
    user->Picks(Designer().WestVarOption);
    program->door.Escape(Designer());
    EXPECT_FALSE(program->addARC.IsLoaded());
    EXPECT_EQ(State().MagVarSide, "") << "only an ARC made keeps the side";
    ExpectSilence();
}

TEST_F(ArcDesigner, TransferComplainsInOrderAndMakesNothing) {
    const Message question{.prompt = "Is the magnetic variation really zero?",
                           .title = "Tarvex 2.35",
                           .buttons = MessageButtons::YesNo};
    const Message noTurn{
        .prompt = "You have not selected a turn direction.\r\n                  Please Correct.",
        .title = "Tarvex 2.35"};
    const auto finish = [&](const char* complaint, const char* focus) {
        Finish();
        ExpectComplaint(complaint, focus);
    };
    FillArc("90", "90", "", "");
    finish(NoCenterpoint, "ArcStartText");
    TakeNavaid();
    finish("All input boxes are not filled out.\r\n           Please Complete.", "ArcStartText");
    user->Types(Designer().ArcRadiusText, "10");

    services.messages.Answer(MessageAnswer::No);
    Finish();
    ExpectMessage(question, "MagVarText");
    services.messages.Answer(MessageAnswer::Yes);
    Finish();
    EXPECT_EQ(services.messages.Take(), (std::vector{question, noTurn}));
    EXPECT_EQ(user->FocusName(), "MagVarText");
    EXPECT_EQ(Designer().MagVarText.Text(), "0") << "the question is not asked again";

    Turn(false);
    finish("This ARC has no length.\r\n        Please correct.", "ArcEndText");
    TakeNavaid("POLE");
    Turn();
    finish("This ARC reaches or passes a pole.\r\n               Please correct.", "TransferCommand");
    EXPECT_EQ(Editor().WaypointList.ListCount() + State().WaypointCount, 0);
    TakeNavaid();
    Finish();
    EXPECT_EQ(State().WaypointCount, 25);
    ExpectSilence();
}

TEST_F(ArcDesigner, EveryPointIsARowBehindTheOthers) {
    Add({.fix = "FIRST", .lat = "33", .lon = "117"});
    State().WaypointTable[1].CoordinatesEdited = True;  // left by a row that was deleted
    State().WaypointTable[1].Frequency = "113.60";
    TakeNavaid();
    user->Picks(Designer().EastVarOption);
    user->PicksLine(Editor().WaypointList, 0);
    State().SearchKind = "CN";  // of a derived waypoint in between
    Design("90", "180");

    EXPECT_FALSE(program->addARC.IsLoaded());
    EXPECT_EQ(State().MagVarSide, "E");
    EXPECT_EQ(Lines(), (std::vector<std::string>{"FIRST", "ABC1", "ABC2", "ABC3", "ABC4", "ABC5", "ABC6",
                                                 "ABC7", "ABC8"}));
    EXPECT_EQ(State().WaypointCount, 9);
    EXPECT_EQ(Fields(1), "ABC1|0|33.5|33|30.|-117.050133|-117|3.007951|0|0|0|0|0");
    EXPECT_EQ(Row(1).CoordinatesEdited, False);
    EXPECT_EQ(Row(8).LatDecimal, "33.366667") << "two miles nearer to the centre";
    ExpectSilence();
}

TEST_F(ArcDesigner, SouthernAndEasternRowsCarryTheirSigns) {
    PutNavaid("LONGSTEMS", "350", "-0.5", "117.25");
    TakeNavaid("LONGS");
    Designer().ArcLabelText.SetText("LONGSTEMS1");
    Design("90", "91");
    EXPECT_EQ(Lines().at(0), "LONGSTEMS11");
    EXPECT_EQ(Row(0).WaypointID.Text(), "LONGSTEMS1");
    EXPECT_EQ(Fields(0), "LONGSTEMS1|0|-.5|0|30.|117.416673|117|25.000381|0|0|0|0|0");
}

TEST_F(ArcDesigner, ArcThatDoesNotFitMakesNoRow) {
    State().WaypointCount = 194;
    TakeNavaid();
    Design("90", "180");
    ExpectComplaint("This ARC needs 8 rows, and only 7 of 201 are free.", "TransferCommand");
    EXPECT_EQ(State().WaypointCount, 194);
    State().WaypointCount = 193;
    Finish();
    EXPECT_EQ(State().WaypointCount, MaxWaypoints);
    EXPECT_EQ(Row(200).WaypointID.Text(), "ABC8      ");
}

TEST_F(ArcDesigner, CentreByHandIsTrueAndHasNoClosingPoint) {
    user->Presses(Designer().LatLongCommand);
    user->Presses(Centre().OopsCommand);
    Design("10", "70");
    ExpectComplaint(NoCenterpoint, "ArcStartText");
    TakeNavaid();
    user->Types(Designer().MagVarText, "");
    Finish();
    EXPECT_EQ(State().WaypointCount, 5) << "the designer has seen the press of Use Lat/Lon";

    user->Presses(Editor().AddArcCommand);
    user->Presses(Designer().LatLongCommand);
    FillCentre("33", "30", "117", "15");
    user->Picks(Centre().WestOption);
    user->Presses(Centre().DoneCommand);
    EXPECT_FALSE(Designer().MagVarText.Usable());
    Design("90", "180");
    EXPECT_EQ(State().WaypointCount, 12);
    EXPECT_EQ(Lines().at(5), "ARC1");
    EXPECT_EQ(Row(5).LongDecimal + Row(11).LatDecimal, "-117.05013333.333333");
    ExpectSilence();
}

}  // namespace
}  // namespace tarvex::testing
