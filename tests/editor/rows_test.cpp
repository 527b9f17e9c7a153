#include <algorithm>

#include "support/editor_road.h"

namespace tarvex::testing {
namespace {

class Rows : public EditorRoad {
  protected:
    bool Edited() { return Editor().LatEdited != False || Editor().LongEdited != False; }
};

constexpr const char* Three =
    "W,ALPHA,,0,33.5,-118.25,0,250,0,5000,1,\r\n"
    "W,DMO,,0,33.933333,-118.4,113.60,0,0,0,0,\r\n"
    "W,BRAVO,,0,34.,-117.75,0,0,3000,9000,3,\r\n";

TEST_F(Rows, AddAsksForWhatIsMissingInOrder) {
    ModifyProcedure& editor = CreateDP();
    const auto missing = [&](const TypedWaypoint& typed, const char* prompt, const char* title,
                             const char* focus) {
        Add(typed);
        ExpectMessage(prompt, title, focus);
        EXPECT_EQ(State().WaypointCount, 0);
        EXPECT_EQ(Edited(), !typed.lat.empty());
        EXPECT_EQ(editor.FreqText.Text(), *focus == 'F' && typed.navaid.empty() ? "" : typed.frequency);
        user->Presses(editor.ClearDataCommand);
    };
    missing({.frequency = "113.60", .lat = "33"}, "This added segment needs a fix or NAVAID name.",
            "Type Fix Name", "FixNameText");
    for (const char* fix : {"", "A"}) {
        missing({.fix = fix, .navaid = "DMO"}, "The Navaid is missing it's frequency.", "Type frequency in",
                "FreqText");
    }
    missing({.fix = "A"}, "There is no Lat specified.", "Input Lat", "DDMLatText");
    for (const char* lat : {" 30", "0"}) {
        missing({.navaid = "D", .frequency = "1", .lat = lat}, "There is no Long specified.", "Input Long",
                "DDMLongText");
    }
}

TEST_F(Rows, AddTakesTheBoxesAsTheyAre) {
    ModifyProcedure& editor = CreateDP();
    std::size_t index = 0;
    const auto added = [&](const std::string& hemispheres, const TypedWaypoint& typed,
                           const std::string& line, const std::string& fields) {
        user->Picks(hemispheres[0] == 'S' ? editor.SLatOption : editor.NLatOption);
        user->Picks(hemispheres[1] == 'W' ? editor.WLongOption : editor.ELongOption);
        State().WaypointTable[index].WaypointType = "99";
        Add(typed);
        EXPECT_EQ(Lines().back() + ": " + Fields(index), line + ": " + fields);
        EXPECT_EQ(Row(index).CoordinatesEdited, True);
        EXPECT_EQ(State().WaypointCount, static_cast<std::int32_t>(++index));
        EXPECT_EQ(Position(), hemispheres.substr(0, 1) + "/ " + hemispheres[1] + "/") << "these stay";
        EXPECT_FALSE(Edited());
        EXPECT_EQ(user->FocusName(), "FixNameText");
    };
    added("NW", {.fix = "alpha", .lat = "33", .lon = " 15"}, "ALPHA", "ALPHA|0|0|33||0|-|15|0|0|0|0|0");
    added("SW", {.navaid = "dmo", .frequency = "113.60", .lat = " 5", .lon = "0", .airspeed = "250"}, "DMO",
          "DMO|0|0|-|5|0|-0||113.60|250|0|0|0");
    added(
        "SE",
        {.fix = "FIXNAME", .navaid = "NAV", .frequency = "350", .lat = "0", .lon = "1", .restriction = "At"},
        "FIXNAME", "NAV|0|0|-0||0|1||0|0|0|0|0");
    added(
        "NE",
        {.fix = "B", .frequency = "1", .lat = "1", .lon = "1", .altitude = "5", .restriction = "At or Below"},
        "B", "B|0|0|1||0|1||0|0|0|5|2");
    added("NE", {.fix = "B", .lat = "1", .lon = "1", .upperAltitude = "9000", .restriction = Band}, "B",
          "B|0|0|1||0|1||0|0|9000||3");
    added("NE", {.fix = " ", .lat = "1", .lon = "1", .altitude = "10000", .restriction = "At or Above"}, " ",
          "|0|0|1||0|1||0|0|0|10000|1");

    // What the last search left is taken, whatever was typed since.
    State().TransferLatDecimal = -0.5;
    State().TransferLongDecimal = 117.25;
    State().RunwayTransfer = True;
    editor.AptNameText.SetText("kxyz");
    editor.BasicNameText.SetText("demo1");
    AddFixes(2);
    EXPECT_EQ(Fields(7), "FIX7|15|-0.5|33||117.25|117||0|0|0|0|0");
    EXPECT_EQ(editor.FilenameText.Caption(), "KXYZ-DEMO1.wsd");
    ExpectSilence();
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
    EXPECT_EQ(State().MessageAnswer + editor.NAVIDText.Text(), "7DMO       ");
    services.messages.Answer(MessageAnswer::Yes);
    editor.AddWaypointCommand_Click();
    ExpectMessage(question, "FixNameText");
    EXPECT_EQ(editor.WaypointList.Text() + editor.NAVIDText.Text(), "");
    EXPECT_EQ(State().WaypointCount, 3);
}

TEST_F(Rows, TableHoldsNoMoreThan201) {
    ModifyProcedure& editor = CreateDP();
    const auto inUse = [&] { return editor.RowsLabel.Caption(); };
    EXPECT_EQ(inUse(), "0 of 201");
    AddFixes(195);
    EXPECT_EQ(editor.RowsLabel.ForeColor(), Black);
    AddFixes(1);
    EXPECT_EQ(inUse(), "196 of 201");
    EXPECT_EQ(editor.RowsLabel.ForeColor(), Red);
    AddFixes(5);
    ExpectSilence();
    const WaypointRows full = State().WaypointTable;
    Add({.fix = "MORE", .frequency = "1", .lat = "1", .lon = "1"});
    ExpectMessage("A procedure holds no more than 201 waypoints.\r\nThis waypoint was not added.",
                  "The procedure is full.", "AddWaypointCommand");
    EXPECT_EQ(State().WaypointCount, 201);
    EXPECT_EQ(editor.FixNameText.Text() + editor.FreqText.Text(), "MORE1");
    EXPECT_EQ(State().WaypointTable, full);

    user->PicksLine(editor.WaypointList, 0);
    user->Presses(editor.DeleteWaypointCommand);
    EXPECT_TRUE(std::equal(full.begin() + 1, full.end(), State().WaypointTable.begin()));
    EXPECT_EQ(inUse(), "200 of 201");
    EXPECT_EQ(Row(200), full[200]) << "no row stands behind the last";
    AddFixes(1);
    EXPECT_EQ(Lines().back(), "FIX200");
    EXPECT_EQ(Row(199), full[200]);
}

TEST_F(Rows, ModifyChecksBandThenNames) {
    ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd", Three);
    user->PicksLine(editor.WaypointList, 2);
    const WaypointRecord before = Row(2);
    constexpr const char* BandIncomplete =
        "You have selected restriction, At or Above and At or Below.\r\n"
        "There must be a value in both altitude boxes.";
    const auto refused = [&](const char* prompt, const char* title = "Correct to continue.") {
        user->Presses(editor.ModifyWaypointCommand);
        ExpectMessage(prompt, title, "ModifyWaypointCommand");
        EXPECT_EQ(Row(2), before);
        EXPECT_TRUE(editor.LatEdited && editor.LongEdited);
    };
    user->Types(editor.FixNameText, "");
    for (TextBox* altitude : {&editor.Alt1Text, &editor.Alt2Text}) {
        const std::string text = altitude->Text();
        user->Types(*altitude, "");
        refused(BandIncomplete);
        altitude->SetText(text);
    }
    refused("There is no Fix or Navaid ID.");
    editor.FixNameText.SetText("A");
    editor.NAVIDText.SetText("B");
    refused("There is both a Fix and Navaid ID.", "Delete one to continue.");

    // Without a selection the band is checked first and the flags fall after it.
    editor.Alt1Text.SetText("");
    editor.WaypointList.SetListIndex(ListBox::NoSelection);
    refused(BandIncomplete);
    user->Picks(editor.AtOption);
    user->Presses(editor.ModifyWaypointCommand);
    ExpectSilence();
    EXPECT_EQ(Row(2), before);
    EXPECT_FALSE(Edited());
}

TEST_F(Rows, ModifyWritesTheBoxesAndForcesTheSigns) {
    const struct {
        const char *stored, *hemispheres, *fields;  // the fields from LatDecimal to LongDegrees
    } cases[] = {
        {"33.5,-118.25", "NW", "33.5|33|30|-118.25|-118"},
        {"33.5,-118.25", "SE", "-33.5|-33|30| 118.25|118"},
        {"-.5,0", "NW", " .5| 0|30|-0|- 0"},
        {"-00.50,007.0", "SE", "-00.50|- 0|30|007.0|7"},
    };
    for (const auto& [stored, hemispheres, fields] : cases) {
        ModifyProcedure& editor =
            OpenDP("KXYZ-DEMO1.wsd", std::string("W,RW27L,,15,") + stored + ",0,250,0,5000,0,\r\n");
        user->PicksLine(editor.WaypointList, 0);
        const std::string longMinutes = Row(0).LongMinutes;
        user->Picks(hemispheres[0] == 'S' ? editor.SLatOption : editor.NLatOption);
        user->Picks(hemispheres[1] == 'W' ? editor.WLongOption : editor.ELongOption);
        user->Types(editor.FixNameText, "new");
        user->Types(editor.Alt1Text, "");
        user->Presses(editor.ModifyWaypointCommand);
        const std::string expected = std::string("NEW|15|") + fields + "|" + longMinutes + "|0|250|0|0|0";
        EXPECT_EQ(Fields(0), expected);
        EXPECT_EQ(Row(0).CoordinatesEdited, True);
        EXPECT_EQ(Lines(), std::vector<std::string>{"RW27L     "});
        EXPECT_EQ(editor.WaypointList.ListIndex(), 0);
        EXPECT_FALSE(Edited());

        // With the flags fallen another press leaves degrees and minutes alone; then it goes by the axis.
        const WaypointRecord modified = Row(0);
        State().WaypointTable[0].CoordinatesEdited = False;
        editor.DDMLatText.SetText("77");
        editor.DMMLongText.SetText("7");
        user->Presses(editor.ModifyWaypointCommand);
        EXPECT_EQ(Row(0).LatDegrees + Row(0).LongMinutes, modified.LatDegrees + modified.LongMinutes);
        EXPECT_EQ(Row(0).CoordinatesEdited, False);
        user->Types(editor.DMMLatText, "5");
        user->Presses(editor.ModifyWaypointCommand);
        EXPECT_EQ(Row(0).LatMinutes + "|" + Row(0).LongMinutes, "5|" + modified.LongMinutes);
        EXPECT_EQ(Row(0).CoordinatesEdited, True);
        State().WaypointTable[0].CoordinatesEdited = False;
        user->Types(editor.DDMLongText, "9");
        editor.DMMLatText.SetText("6");
        user->Presses(editor.ModifyWaypointCommand);
        EXPECT_EQ(Row(0).LatMinutes + "|" + Row(0).LongMinutes, "5|7");
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
    EXPECT_FALSE(Edited());
    EXPECT_EQ(user->FocusName(), "FixNameText");
    EXPECT_FALSE(program->door.Key(editor, ShortcutKey::Delete)) << "only in the list";
    EXPECT_FALSE(user->Presses(editor.DeleteWaypointCommand));
    EXPECT_EQ(State().WaypointCount, 2);
    ExpectSilence();
}

TEST_F(Rows, MovesTakeARowAcrossTheList) {
    ModifyProcedure& editor = CreateDP();
    AddFixes(3);
    State().WaypointTable[2].CoordinatesEdited = False;
    const WaypointRecord moved = Row(2);
    user->PicksLine(editor.WaypointList, 2);
    for (const int to : {1, 0, 0}) {
        user->Types(editor.Alt1Text, "777");
        user->MovesTo(editor.WaypointList);
        const bool moves = editor.WaypointList.ListIndex() != to;
        EXPECT_TRUE(program->door.Key(editor, ShortcutKey::CtrlUp));
        EXPECT_EQ(editor.WaypointList.ListIndex(), to);
        EXPECT_EQ(Row(static_cast<std::size_t>(to)), moved);
        EXPECT_EQ(user->FocusName(), "WaypointList");
        EXPECT_EQ(editor.Alt1Text.Text(), moves ? "" : "777") << "a move throws away what was typed";
    }
    EXPECT_EQ(Lines(), (std::vector<std::string>{"FIX2", "FIX0", "FIX1"}));
    user->Presses(editor.MoveDown);
    for (int press = 0; press < 2; ++press) {
        user->MovesTo(editor.WaypointList);
        program->door.Key(editor, ShortcutKey::CtrlDown);
    }
    EXPECT_EQ(Lines(), (std::vector<std::string>{"FIX0", "FIX1", "FIX2"}));
    user->Presses(editor.ClearDataCommand);
    user->Presses(editor.MoveUp);
    user->Presses(editor.MoveDown);
    EXPECT_EQ(Row(2), moved);
    ExpectSilence();
}

}  // namespace
}  // namespace tarvex::testing
