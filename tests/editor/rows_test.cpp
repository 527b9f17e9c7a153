#include <algorithm>

#include "support/editor_road.h"

namespace tarvex::testing {
namespace {

using Rows = EditorRoad;

constexpr const char* Three =
    "W,ALPHA,,0,33.5,-118.25,0,250,0,5000,1,\r\n"
    "W,DMO,,0,33.933333,-118.4,113.60,0,0,0,0,\r\n"
    "W,BRAVO,,0,34.,-117.75,0,0,3000,9000,3,\r\n";

TEST_F(Rows, AddAsksForWhatIsMissingInOrder) {
    ModifyProcedure& editor = CreateDP();
    const struct {
        TypedWaypoint typed;
        const char* prompt;
        const char* title;
        const char* focus;
    } cases[] = {
        {{.frequency = "113.60", .latDegrees = "33"},
         "This added segment needs a fix or NAVAID name.",
         "Type Fix Name",
         "FixNameText"},
        {{.navaid = "DMO"}, "The Navaid is missing it's frequency.", "Type frequency in", "FreqText"},
        {{.fix = "A", .navaid = "DMO"},
         "The Navaid is missing it's frequency.",
         "Type frequency in",
         "FreqText"},
        {{.fix = "A"}, "There is no Lat specified.", "Input Lat", "DDMLatText"},
        {{.fix = "A", .latMinutes = "30"}, "There is no Long specified.", "Input Long", "DDMLongText"},
        {{.navaid = "DMO", .frequency = "1", .latDegrees = "0"},
         "There is no Long specified.",
         "Input Long",
         "DDMLongText"},
    };
    for (const auto& [typed, prompt, title, focus] : cases) {
        Add(typed);
        ExpectMessage(prompt, title, focus);
        EXPECT_EQ(State().WaypointCount, 0);
        EXPECT_EQ(editor.DDMLatText.Text(), typed.latDegrees);
        EXPECT_EQ(editor.LatEdited, *typed.latDegrees != '\0' || *typed.latMinutes != '\0' ? True : False);
        const bool unnamed = *typed.fix == '\0' && *typed.navaid == '\0';
        EXPECT_EQ(editor.FreqText.Text(), unnamed ? "" : typed.frequency);
        user->Presses(editor.ClearDataCommand);
    }
}

TEST_F(Rows, AddTakesTheBoxesAsTheyAre) {
    const struct {
        TypedWaypoint typed;
        bool south, west;
        const char* line;
        const char* fields;  // ID, degrees, minutes, frequency, airspeed, both altitudes, restriction
    } cases[] = {
        {{.fix = "alpha", .latDegrees = "33", .longMinutes = "15"},
         false,
         true,
         "ALPHA",
         "ALPHA     |33||-|15|0         |0          |0     |0     |0"},
        {{.navaid = "dmo", .frequency = "113.60", .latMinutes = "5", .longDegrees = "0", .airspeed = "250"},
         true,
         true,
         "DMO",
         "DMO       |-|5|-0||113.60    |250        |0     |0     |0"},
        {{.fix = "FIXNAME",
          .navaid = "NAV",
          .frequency = "350",
          .latDegrees = "0",
          .longDegrees = "1",
          .altitude = "0",
          .restriction = &ModifyProcedure::AtOption},
         true,
         false,
         "FIXNAME",
         "NAV       |-0||1||0         |0          |0     |0     |0"},
        {{.fix = "B",
          .frequency = "350",
          .latDegrees = "1",
          .longDegrees = "1",
          .altitude = "5000",
          .restriction = &ModifyProcedure::AtBelowOption},
         false,
         false,
         "B",
         "B         |1||1||0         |0          |0     |5000  |2"},
        {{.fix = "B",
          .latDegrees = "1",
          .longDegrees = "1",
          .upperAltitude = "9000",
          .restriction = &ModifyProcedure::AtAboveAtBelowOption},
         false,
         false,
         "B",
         "B         |1||1||0         |0          |9000  |      |3"},
        {{.fix = " ",
          .latDegrees = "1",
          .longDegrees = "1",
          .altitude = "10000",
          .restriction = &ModifyProcedure::AtAboveOption},
         false,
         false,
         " ",
         "          |1||1||0         |0          |0     |10000 |1"},
    };
    ModifyProcedure& editor = CreateDP();
    std::size_t index = 0;
    for (const auto& [typed, south, west, line, fields] : cases) {
        user->Picks(south ? editor.SLatOption : editor.NLatOption);
        user->Picks(west ? editor.WLongOption : editor.ELongOption);
        State().WaypointTable[index].WaypointType = "99";
        Add(typed);
        const WaypointRecord& row = Row(index);
        std::string all = row.WaypointID.Text();
        for (const std::string& field :
             {row.LatDegrees, row.LatMinutes, row.LongDegrees, row.LongMinutes, row.Frequency.Text(),
              row.Airspeed.Text(), row.Altitude2.Text(), row.Altitude1.Text(), row.RestrictionType.Text()}) {
            all += "|" + field;
        }
        EXPECT_EQ(all, fields);
        EXPECT_EQ(row.WaypointType.Text() + row.LatDecimal + row.LongDecimal, "0 00");
        EXPECT_EQ(row.CoordinatesEdited, True);
        EXPECT_EQ(Lines().back(), line);
        EXPECT_EQ(State().WaypointCount, static_cast<std::int32_t>(++index));
        EXPECT_EQ(editor.SLatOption.Value(), south) << "the hemispheres stay for the next";
        EXPECT_EQ(editor.WLongOption.Value(), west);
        EXPECT_EQ(editor.LatEdited, False);
        EXPECT_EQ(editor.LongEdited, False);
        EXPECT_EQ(user->FocusName(), "FixNameText");
        EXPECT_EQ(editor.DDMLatText.Text() + editor.FixNameText.Text() + editor.Alt2Text.Text(), "");
    }
    ExpectSilence();
}

TEST_F(Rows, AddKeepsWhatTheLastSearchLeft) {
    ModifyProcedure& editor = CreateDP();
    State().TransferLatDecimal = -0.5;
    State().TransferLongDecimal = 117.25;
    State().RunwayTransfer = True;
    Name("kxyz", "demo1");
    AddFixes(2);
    EXPECT_EQ(Row(1).WaypointType.Text() + Row(1).LatDecimal + "," + Row(1).LongDecimal, "15-0.5,117.25");
    EXPECT_EQ(State().RunwayTransfer, True);
    EXPECT_EQ(editor.FilenameText.Caption(), "KXYZ-DEMO1.wsd");
}

// The button is out of use then; the operation is there for whoever calls it.
TEST_F(Rows, AddWithASelectionAsksToClear) {
    const Message question{.prompt =
                               "You have a current waypoint already selected.\r\n"
                               "Do you really want to Add a new waypoint?\r\n"
                               "If yes, the current values will be cleared.",
                           .title = "Tarvex 2.35",
                           .buttons = MessageButtons::YesNo,
                           .icon = MessageIcon::Critical,
                           .defaultAnswer = MessageAnswer::No};
    ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd", Three);
    user->PicksLine(editor.WaypointList, 1);
    EXPECT_FALSE(user->Presses(editor.AddWaypointCommand));
    editor.AddWaypointCommand_Click();
    ExpectMessage(question, "WaypointList");
    EXPECT_EQ(State().MessageAnswer, "7");
    EXPECT_EQ(editor.NAVIDText.Text(), "DMO       ");
    services.messages.Answer(MessageAnswer::Yes);
    editor.AddWaypointCommand_Click();
    ExpectMessage(question, "FixNameText");
    EXPECT_EQ(editor.WaypointList.ListIndex(), ListBox::NoSelection);
    EXPECT_EQ(editor.NAVIDText.Text(), "");
    EXPECT_EQ(State().WaypointCount, 3);
}

TEST_F(Rows, TableHoldsNoMoreThan201) {
    ModifyProcedure& editor = CreateDP();
    AddFixes(201);
    ExpectSilence();
    const WaypointRows full = State().WaypointTable;
    Add({.fix = "MORE", .frequency = "1", .latDegrees = "1", .longDegrees = "1"});
    ExpectMessage("A procedure holds no more than 201 waypoints.\r\nThis waypoint was not added.",
                  "The procedure is full.", "AddWaypointCommand");
    EXPECT_EQ(State().WaypointCount, 201);
    EXPECT_EQ(Lines().size(), 201u);
    EXPECT_EQ(editor.FixNameText.Text() + editor.FreqText.Text(), "MORE1");
    EXPECT_EQ(State().WaypointTable, full);

    user->PicksLine(editor.WaypointList, 0);
    user->Presses(editor.DeleteWaypointCommand);
    EXPECT_EQ(State().WaypointCount, 200);
    EXPECT_TRUE(std::equal(full.begin() + 1, full.end(), State().WaypointTable.begin()));
    EXPECT_EQ(Row(200), full[200]) << "no row stands behind the last";
    AddFixes(1);
    EXPECT_EQ(Lines().back(), "FIX200");
    EXPECT_EQ(Row(199), full[200]);
}

TEST_F(Rows, ModifyChecksBandThenNames) {
    ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd", Three);
    user->PicksLine(editor.WaypointList, 2);
    const WaypointRecord before = Row(2);
    constexpr const char* Band =
        "You have selected restriction, At or Above and At or Below.\r\n"
        "There must be a value in both altitude boxes.";
    const auto refused = [&](const char* prompt, const char* title) {
        user->Presses(editor.ModifyWaypointCommand);
        ExpectMessage(prompt, title, "ModifyWaypointCommand");
        EXPECT_EQ(Row(2), before);
        EXPECT_EQ(editor.LatEdited, True);
        EXPECT_EQ(editor.LongEdited, True);
    };
    user->Types(editor.FixNameText, "");
    for (TextBox* altitude : {&editor.Alt1Text, &editor.Alt2Text}) {
        const std::string text = altitude->Text();
        user->Types(*altitude, "");
        refused(Band, "Correct to continue.");
        altitude->SetText(text);
    }
    refused("There is no Fix or Navaid ID.", "Correct to continue.");
    editor.FixNameText.SetText("A");
    editor.NAVIDText.SetText("B");
    refused("There is both a Fix and Navaid ID.", "Delete one to continue.");

    // Without a selection the band is checked first and the flags fall after it.
    editor.Alt1Text.SetText("");
    editor.WaypointList.SetListIndex(ListBox::NoSelection);
    refused(Band, "Correct to continue.");
    user->Picks(editor.AtOption);
    user->Presses(editor.ModifyWaypointCommand);
    ExpectSilence();
    EXPECT_EQ(Row(2), before);
    EXPECT_EQ(editor.LatEdited, False);
    EXPECT_EQ(editor.LongEdited, False);
}

TEST_F(Rows, ModifyWritesTheBoxesAndForcesTheSigns) {
    const struct {
        const char* decimals[2];
        OptionButton ModifyProcedure::*lat;
        OptionButton ModifyProcedure::*lon;
        const char* written[2];  // decimals
        const char* degrees[2];
    } cases[] = {
        {{"33.5", "-118.25"}, nullptr, nullptr, {"33.5", "-118.25"}, {"33", "-118"}},
        {{"33.5", "-118.25"},
         &ModifyProcedure::SLatOption,
         &ModifyProcedure::ELongOption,
         {"-33.5", " 118.25"},
         {"-33", "118"}},
        {{"-.5", "0"},
         &ModifyProcedure::NLatOption,
         &ModifyProcedure::WLongOption,
         {" .5", "-0"},
         {" 0", "- 0"}},
        {{"-00.50", "007.0"}, nullptr, nullptr, {"-00.50", "007.0"}, {"- 0", "7"}},
    };
    for (const auto& [decimals, lat, lon, written, degrees] : cases) {
        ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd", std::string("W,RW27L,,15,") + decimals[0] + "," +
                                                               decimals[1] + ",0,250,0,5000,0,\r\n");
        const WaypointRecord before = Row(0);
        user->PicksLine(editor.WaypointList, 0);
        if (lat != nullptr) user->Picks(editor.*lat);
        if (lon != nullptr) user->Picks(editor.*lon);
        user->Types(editor.FixNameText, "new");
        user->Types(editor.Alt1Text, "");
        user->Presses(editor.ModifyWaypointCommand);
        WaypointRecord expected = before;
        expected.WaypointID = "NEW";
        expected.LatDecimal = written[0];
        expected.LongDecimal = written[1];
        expected.LatDegrees = degrees[0];
        expected.LongDegrees = degrees[1];
        expected.CoordinatesEdited = True;
        expected.Altitude1 = "0";
        EXPECT_EQ(Row(0), expected) << decimals[0];
        EXPECT_EQ(Lines(), std::vector<std::string>{"RW27L     "});
        EXPECT_EQ(editor.WaypointList.ListIndex(), 0);
        EXPECT_EQ(editor.FixNameText.Text(), "NEW");
        EXPECT_EQ(editor.LatEdited, False);
        EXPECT_EQ(editor.LongEdited, False);

        // With the flags fallen another press leaves degrees and minutes alone.
        editor.DDMLatText.SetText("77");
        editor.DMMLongText.SetText("7");
        user->Presses(editor.ModifyWaypointCommand);
        EXPECT_EQ(Row(0).LatDegrees, expected.LatDegrees);
        EXPECT_EQ(Row(0).LongMinutes, expected.LongMinutes);
        EXPECT_EQ(Row(0).CoordinatesEdited, True);
        user->Presses(editor.OopsCommand);
    }
    ExpectSilence();
}

TEST_F(Rows, DeleteTakesTheRowsUpAndClears) {
    ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd", Three);
    const WaypointRows before = State().WaypointTable;
    State().WaypointTable[3].WaypointID = "BEHIND";
    editor.DeleteWaypointCommand_Click();
    ExpectMessage("There is no waypoint selected.", "Select a waypoint", "FixNameText");
    EXPECT_EQ(State().WaypointCount, 3);

    user->PicksLine(editor.WaypointList, 1);
    EXPECT_TRUE(program->door.Key(editor, ShortcutKey::Delete));
    EXPECT_EQ(Lines(), (std::vector<std::string>{"ALPHA     ", "BRAVO     "}));
    EXPECT_EQ(Row(0), before[0]);
    EXPECT_EQ(Row(1), before[2]);
    EXPECT_EQ(Row(2).WaypointID.Text(), "BEHIND    ");
    EXPECT_EQ(editor.NAVIDText.Text(), "");
    EXPECT_EQ(editor.LatEdited, False);
    EXPECT_EQ(user->FocusName(), "FixNameText");
    EXPECT_FALSE(program->door.Key(editor, ShortcutKey::Delete)) << "only in the list";

    for (int left = 1; left >= 0; --left) {
        user->PicksLine(editor.WaypointList, left);
        user->Presses(editor.DeleteWaypointCommand);
        EXPECT_EQ(State().WaypointCount, left);
    }
    EXPECT_TRUE(Lines().empty());
    EXPECT_FALSE(user->Presses(editor.DeleteWaypointCommand));
    user->Presses(editor.MoveUp);
    user->Presses(editor.MoveDown);
    ExpectSilence();
}

TEST_F(Rows, MovesTakeARowAcrossTheList) {
    ModifyProcedure& editor = CreateDP();
    AddFixes(5);
    State().WaypointTable[4].CoordinatesEdited = False;
    const WaypointRecord moved = Row(4);
    user->PicksLine(editor.WaypointList, 4);
    user->Types(editor.Alt1Text, "777");
    user->MovesTo(editor.WaypointList);
    for (int to = 3; to >= 0; --to) {
        EXPECT_TRUE(program->door.Key(editor, ShortcutKey::CtrlUp));
        EXPECT_EQ(editor.WaypointList.ListIndex(), to);
        EXPECT_EQ(Row(static_cast<std::size_t>(to)), moved);
        EXPECT_EQ(user->FocusName(), "WaypointList");
        EXPECT_EQ(editor.Alt1Text.Text(), "") << "what was typed is gone";
    }
    EXPECT_EQ(Lines(), (std::vector<std::string>{"FIX4", "FIX0", "FIX1", "FIX2", "FIX3"}));
    user->Types(editor.Alt1Text, "777");
    user->Presses(editor.MoveUp);
    EXPECT_EQ(editor.Alt1Text.Text(), "777") << "the first row stays first";
    user->MovesTo(editor.WaypointList);
    EXPECT_TRUE(program->door.Key(editor, ShortcutKey::CtrlUp));
    EXPECT_EQ(user->FocusName(), "WaypointList");
    EXPECT_EQ(editor.Alt1Text.Text(), "777");

    for (int to = 1; to <= 4; ++to) {
        if (to % 2 == 0) {
            user->Presses(editor.MoveDown);
        } else {
            program->door.Key(editor, ShortcutKey::CtrlDown);
        }
        EXPECT_EQ(editor.WaypointList.ListIndex(), to);
        EXPECT_EQ(Row(static_cast<std::size_t>(to)), moved);
    }
    user->Presses(editor.MoveDown);
    EXPECT_EQ(Lines(), (std::vector<std::string>{"FIX0", "FIX1", "FIX2", "FIX3", "FIX4"}));
    user->Presses(editor.ClearDataCommand);
    user->Presses(editor.MoveUp);
    user->Presses(editor.MoveDown);
    EXPECT_EQ(Row(4), moved);
    ExpectSilence();
}

}  // namespace
}  // namespace tarvex::testing
