#include "support/editor_road.h"

namespace tarvex::testing {
namespace {

using Selecting = EditorRoad;

std::string PositionShown(const ModifyProcedure& editor) {
    return (editor.NLatOption.Value() ? "N" : "S") + editor.DDMLatText.Text() + "/" +
           editor.DMMLatText.Text() + (editor.ELongOption.Value() ? " E" : " W") + editor.DDMLongText.Text() +
           "/" + editor.DMMLongText.Text();
}

std::string RestrictionShown(const ModifyProcedure& editor) {
    std::string options;
    for (const OptionButton* option : {&editor.NoRestrictionOption, &editor.AtOption, &editor.AtBelowOption,
                                       &editor.AtAboveOption, &editor.AtAboveAtBelowOption}) {
        if (option->Value()) options += option->Caption();
    }
    return options + "|" + editor.Alt1Text.Text() + "|" + editor.Alt2Text.Text();
}

// A record with those fields and a fix's others.
WaypointRecord Record(const char* latDecimal, const char* latDegrees, const char* longDecimal,
                      const char* longDegrees, const char* type, const char* altitude1,
                      const char* altitude2) {
    WaypointRecord row;
    row.WaypointID = "FIX";
    row.LatDecimal = latDecimal;
    row.LatDegrees = latDegrees;
    row.LatMinutes = "30";
    row.LongDecimal = longDecimal;
    row.LongDegrees = longDegrees;
    row.LongMinutes = "15";
    row.RestrictionType = type;
    row.Altitude1 = altitude1;
    row.Altitude2 = altitude2;
    return row;
}

TEST_F(Selecting, FillsTheBoxesFromEveryFormOfRecord) {
    const struct {
        WaypointRecord row;
        const char* position;
        const char* restriction;
    } cases[] = {
        {Record("33.5", "33", "-118.25", "118", "0", "0", "0"), "N33/30 W118/15", "No Restriction||"},
        {Record("-33.5", "-33", "118.25", "118", "0", "5000", "0"), "S 33/30 E118/15", "At|5000  |"},
        {Record("0", "-33", "0", "-118", "1", "5000", "0"), "N 33/30 E 118/15", "At or Above|5000  |"},
        {Record("-.5", "0", " -.5", "", "2", "5000", "0"), "S 0/30 W 0/15", "At or Below|5000  |"},
        {Record("34.", "- 34", "-0", "-0", "3", "3000", "9000"), "N 34/30 E 0/15",
         "At or Above & At or Below|3000  |9000  "},
        {Record("33", "33", "1", "1", "0", "0", "7000"), "N33/30 E1/15", "No Restriction|7000  |"},
        {Record("33", "33", "1", "1", "0", "-500", "0"), "N33/30 E1/15", "No Restriction|-500  |"},
        {Record("33", "33", "1", "1", "9", "5000", "0"), "N33/30 E1/15", "No Restriction|5000  |"},
        {Record("33", "33", "1", "1", "", "", ""), "N33/30 E1/15", "No Restriction||"},
    };
    for (const auto& [row, position, restriction] : cases) {
        ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd", "W,FIX,,0,1,1,0,0,0,0,0,\r\n");
        State().WaypointTable[0] = row;
        EXPECT_TRUE(user->PicksLine(editor.WaypointList, 0));
        EXPECT_EQ(PositionShown(editor), position);
        EXPECT_EQ(RestrictionShown(editor), restriction) << position;
        EXPECT_EQ(editor.LatEdited, True);
        EXPECT_EQ(editor.LongEdited, True);
        EXPECT_EQ(user->FocusName(), "WaypointList");
        EXPECT_EQ(Row(0), row);
        user->Presses(editor.OopsCommand);
    }
    ExpectSilence();
}

TEST_F(Selecting, ShowsFixOrNavaidByTheFrequency) {
    ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd",
                                     "W,ALPHA,,0,33,118,0,250,0,0,0,\r\nW,DMO,,0,33,118,113.600,0,0,0,0,"
                                     "\r\nW,X,,0,33,118,0.0,0,0,0,0,\r\n");
    const struct {
        int line;
        const char* fix;
        const char* navaid;
        const char* frequency;
        const char* airspeed;
    } cases[] = {{0, "ALPHA     ", "", "", "250        "},
                 {1, "", "DMO       ", "113.60", ""},
                 {2, "X         ", "", "", ""}};
    for (const auto& [line, fix, navaid, frequency, airspeed] : cases) {
        user->PicksLine(editor.WaypointList, line);
        const bool isFix = *fix != '\0';
        EXPECT_EQ(editor.FixNameText.Text(), fix);
        EXPECT_EQ(editor.NAVIDText.Text(), navaid);
        EXPECT_EQ(editor.FreqText.Text(), frequency);
        EXPECT_EQ(editor.AirspeedText.Text(), airspeed);
        EXPECT_EQ(editor.FixNameText.Enabled(), isFix);
        EXPECT_EQ(editor.FixNameText.BackColor(), isFix ? White : Grey);
        for (const TextBox* box : {&editor.NAVIDText, &editor.FreqText}) {
            EXPECT_EQ(box->Enabled(), !isFix);
            EXPECT_EQ(box->BackColor(), isFix ? Grey : White);
        }
    }
    ExpectSilence();
}

TEST_F(Selecting, UpperAltitudeSurvivesOnlyWithTheBand) {
    ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd",
                                     "W,BAND,,0,33,118,0,0,3000,9000,3,\r\n"
                                     "W,ABOVE,,0,33,118,0,0,0,5000,1,\r\n"
                                     "W,LOWER,,0,33,118,0,0,0,0,3,\r\n");
    user->PicksLine(editor.WaypointList, 0);
    EXPECT_EQ(RestrictionShown(editor), "At or Above & At or Below|3000  |9000  ");
    user->PicksLine(editor.WaypointList, 1);
    EXPECT_EQ(RestrictionShown(editor), "At or Above|5000  |");
    // A second altitude alone goes to the first box and leaves the second as it was.
    State().WaypointTable[2].Altitude2 = "7000";
    user->PicksLine(editor.WaypointList, 0);
    user->PicksLine(editor.WaypointList, 2);
    EXPECT_EQ(RestrictionShown(editor), "At or Above & At or Below|7000  |9000  ");
    // While the option stays, its rule does not run, and the box out of use shows what the row holds.
    State().WaypointTable[1].Altitude2 = "6000";
    user->PicksLine(editor.WaypointList, 1);
    EXPECT_EQ(RestrictionShown(editor), "At or Above|5000  |");
    user->Presses(editor.ClearDataCommand);
    user->Picks(editor.AtAboveOption);
    user->PicksLine(editor.WaypointList, 1);
    EXPECT_EQ(RestrictionShown(editor), "At or Above|5000  |6000  ");
    EXPECT_FALSE(editor.Alt2Text.Enabled());
}

TEST_F(Selecting, AirspeedThatIsNoNumberComplainsAtOnce) {
    ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd", "W,ALPHA,,0,33,118,0,250kt,0,5000,1,\r\n");
    user->PicksLine(editor.WaypointList, 0);
    ExpectMessage("Enter only numbers please.", "Tarvex 2.35", "AirspeedText");
    EXPECT_EQ(editor.AirspeedText.Text(), "250kt      ");
    EXPECT_TRUE(editor.AtAboveOption.Value()) << "the rest is shown all the same";
}

TEST_F(Selecting, PositionOutOfRangeComplainsAndMarksNothing) {
    ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd", "W,ALPHA,,0,95.5,118,0,0,0,5000,1,\r\n");
    user->PicksLine(editor.WaypointList, 0);
    // Every further move of the focus meets the same rule again.
    const Message complaint{
        .prompt = "There are no Latitude values greater than 90.\r\n                       Please correct.",
        .title = "Tarvex 2.35"};
    EXPECT_EQ(services.messages.Take(), std::vector(3, complaint));
    EXPECT_EQ(user->FocusName(), "DDMLatText");
    EXPECT_EQ(editor.LatEdited, False);
    EXPECT_EQ(editor.LongEdited, False);
    EXPECT_EQ(PositionShown(editor), "N95/30 E118/0");
    EXPECT_TRUE(editor.AtAboveOption.Value());
}

TEST_F(Selecting, SetsTheButtonsOfBothStates) {
    ModifyProcedure& editor =
        OpenDP("KXYZ-DEMO1.wsd", "W,ALPHA,,0,33,118,0,0,0,0,0,\r\nW,B,,0,33,118,0,0,0,0,0,\r\n");
    const auto enabled = [&editor] {
        std::string buttons;
        for (const Button* button : {&editor.AddWaypointCommand, &editor.ModifyWaypointCommand,
                                     &editor.DeleteWaypointCommand, &editor.MoveUp, &editor.MoveDown}) {
            if (button->Enabled()) buttons += button->Caption() + "; ";
        }
        return buttons;
    };
    EXPECT_EQ(enabled(), "Add; ");
    editor.ClearDataCommand.SetEnabled(false);
    user->PicksLine(editor.WaypointList, 1);
    EXPECT_EQ(enabled(), "Modify; Delete; Move Up; Move Down; ");
    EXPECT_TRUE(editor.ClearDataCommand.Enabled());
    // A second click on the line changes no selection and keeps what was typed.
    user->Types(editor.Alt1Text, "777");
    user->PicksLine(editor.WaypointList, 1);
    EXPECT_EQ(editor.Alt1Text.Text(), "777");
    user->PicksLine(editor.WaypointList, 0);
    EXPECT_EQ(editor.Alt1Text.Text(), "");
    user->Presses(editor.ClearDataCommand);
    EXPECT_EQ(enabled(), "Add; Move Up; Move Down; ");
    EXPECT_EQ(editor.WaypointList.ListIndex(), ListBox::NoSelection);
    ExpectSilence();
}

}  // namespace
}  // namespace tarvex::testing
