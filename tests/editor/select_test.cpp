#include "support/editor_road.h"

namespace tarvex::testing {
namespace {

class Selecting : public EditorRoad {
  protected:
    std::string RestrictionShown() {
        std::string options;
        for (const OptionButton* option : Restrictions()) {
            if (option->Value()) options += option->Caption();
        }
        return options + "|" + Editor().Alt1Text.Text() + "|" + Editor().Alt2Text.Text();
    }
};

TEST_F(Selecting, FillsTheBoxesFromEveryFormOfRecord) {
    const struct {
        const char *latDecimal, *latDegrees, *longDecimal, *longDegrees, *position;
    } positions[] = {
        {"33.5", "33", "-118.25", "118", "N33/30 W118/15"},
        {"-33.5", "-33", "118.25", "118", "S 33/30 E118/15"},
        {"0", "-33", "0", "-118", "N 33/30 E 118/15"},
        {"-.5", "0", " -.5", "", "S 0/30 W 0/15"},
        {"34.", "- 34", "-0", "-0", "N 34/30 E 0/15"},
    };
    const struct {
        const char *type, *altitude1, *altitude2, *shown;
    } restrictions[] = {
        {"0", "0", "0", "No Restriction||"},
        {"0", "5000", "0", "At|5000  |"},
        {"1", "5000", "0", "At or Above|5000  |"},
        {"2", "5000", "0", "At or Below|5000  |"},
        {"0", "0", "7000", "No Restriction|7000  |"},
        {"0", "-500", "0", "No Restriction|-500  |"},
        {"9", "5000", "0", "No Restriction|5000  |"},
        {"", "", "", "No Restriction||"},
        {"3", "3000", "9000", "At or Above & At or Below|3000  |9000  "},
    };
    const auto select = [&](const WaypointRecord& row) {
        ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd", "W,FIX,,0,1,1,0,0,0,0,0,\r\n");
        State().WaypointTable[0] = row;
        EXPECT_TRUE(user->PicksLine(editor.WaypointList, 0));
        EXPECT_TRUE(editor.LatEdited && editor.LongEdited);
        EXPECT_EQ(user->FocusName(), "WaypointList");
        EXPECT_EQ(Row(0), row);
        const std::string shown = Position() + "|" + RestrictionShown();
        user->Presses(editor.OopsCommand);
        return shown;
    };
    WaypointRecord row;
    row.WaypointID = "FIX";
    row.LatMinutes = "30";
    row.LongMinutes = "15";
    for (const auto& [latDecimal, latDegrees, longDecimal, longDegrees, position] : positions) {
        row.LatDecimal = latDecimal;
        row.LatDegrees = latDegrees;
        row.LongDecimal = longDecimal;
        row.LongDegrees = longDegrees;
        EXPECT_EQ(select(row), std::string(position) + "|No Restriction||");
    }
    for (const auto& [type, altitude1, altitude2, restriction] : restrictions) {
        row.RestrictionType = type;
        row.Altitude1 = altitude1;
        row.Altitude2 = altitude2;
        EXPECT_EQ(select(row), std::string("N 34/30 E 0/15|") + restriction);
    }
    ExpectSilence();
}

TEST_F(Selecting, ShowsFixOrNavaidByTheFrequency) {
    ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd",
                                     "W,ALPHA,,0,33,118,0,250,0,0,0,\r\nW,DMO,,0,33,118,113.600,0,0,0,0,"
                                     "\r\nW,X,,0,33,118,0.0,0,0,0,0,\r\n");
    const auto shown = [&](int line) {
        user->PicksLine(editor.WaypointList, line);
        std::string boxes;
        for (const TextBox* box :
             {&editor.FixNameText, &editor.NAVIDText, &editor.FreqText, &editor.AirspeedText}) {
            boxes += box->Text() + (box->Enabled() ? "|" : "-");
            EXPECT_EQ(box->BackColor(), box->Enabled() ? White : Grey) << box->Name();
        }
        return boxes;
    };
    EXPECT_EQ(shown(0), "ALPHA     |--250        |");
    EXPECT_EQ(shown(1), "-DMO       |113.60||");
    EXPECT_EQ(shown(2), "X         |--|");
    ExpectSilence();
}

TEST_F(Selecting, UpperAltitudeSurvivesOnlyWithTheBand) {
    ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd",
                                     "W,BAND,,0,33,118,0,0,3000,9000,3,\r\n"
                                     "W,ABOVE,,0,33,118,0,0,0,5000,1,\r\n"
                                     "W,LOWER,,0,33,118,0,0,0,0,3,\r\n");
    const auto shown = [&](int line) {
        user->PicksLine(editor.WaypointList, line);
        return RestrictionShown();
    };
    State().WaypointTable[1].Altitude2 = "6000";
    State().WaypointTable[2].Altitude2 = "7000";
    EXPECT_EQ(shown(0), "At or Above & At or Below|3000  |9000  ");
    EXPECT_EQ(shown(1), "At or Above|5000  |");
    // A second altitude alone goes to the first box and leaves the second as it was.
    EXPECT_EQ(shown(0), "At or Above & At or Below|3000  |9000  ");
    EXPECT_EQ(shown(2), "At or Above & At or Below|7000  |9000  ");
    State().WaypointTable[2].Altitude1 = "4000";
    State().WaypointTable[2].Altitude2 = "0";
    EXPECT_EQ(shown(0), "At or Above & At or Below|3000  |9000  ");
    EXPECT_EQ(shown(2), "At or Above & At or Below|4000  |");
    // While the option stays, its rule does not run, and the box out of use shows what the row holds.
    user->Picks(editor.AtAboveOption);
    EXPECT_EQ(shown(1), "At or Above|5000  |6000  ");
    EXPECT_FALSE(editor.Alt2Text.Enabled());
}

TEST_F(Selecting, WhatARuleRefusesComplainsAndTheRestIsShown) {
    ModifyProcedure& editor =
        OpenDP("KXYZ-DEMO1.wsd", "W,A,,0,33,118,0,250kt,0,5000,1,\r\nW,B,,0,95.5,118,0,0,0,0,2,\r\n");
    user->PicksLine(editor.WaypointList, 0);
    ExpectComplaint("Enter only numbers please.", "AirspeedText");
    EXPECT_EQ(editor.AirspeedText.Text(), "250kt      ");
    EXPECT_TRUE(editor.AtAboveOption.Value());
    user->Presses(editor.ClearDataCommand);
    user->PicksLine(editor.WaypointList, 1);
    EXPECT_EQ(services.messages.Take().size(), 3U) << "every further move of the focus meets the same rule";
    EXPECT_EQ(user->FocusName(), "DDMLatText");
    EXPECT_FALSE(editor.LatEdited || editor.LongEdited);
    EXPECT_EQ(Position(), "N95/30 E118/0");
    EXPECT_TRUE(editor.AtBelowOption.Value());
}

TEST_F(Selecting, SetsTheButtonsAndKeepsWhatIsTypedOnASecondClick) {
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
    user->PicksLine(editor.WaypointList, 1);
    EXPECT_EQ(enabled(), "Modify; Delete; Move Up; Move Down; ");
    user->Types(editor.Alt1Text, "777");
    user->PicksLine(editor.WaypointList, 1);
    EXPECT_EQ(editor.Alt1Text.Text(), "777");
    user->PicksLine(editor.WaypointList, 0);
    EXPECT_EQ(editor.Alt1Text.Text(), "");
    user->Presses(editor.ClearDataCommand);
    EXPECT_EQ(enabled(), "Add; Move Up; Move Down; ");
}

}  // namespace
}  // namespace tarvex::testing
