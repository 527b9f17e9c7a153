#include "support/tool_road.h"

namespace tarvex::testing {
namespace {

class Searching : public ToolRoad {
  protected:
    Searching() {
        PutFix("ALPHA", "  33.50000", " -118.25000");
        PutFix("BRVO", " -0.500000", " 118.407500");
        PutFix("TWICE", "1", "2");
        PutFix("TWICE", "-3", "-4");
        PutNavaid("DMO", "113.60", "33.933333", "-118.400000");
        PutRunway("KXYZ27L", "33.95", "-118.4", 126);
    }

    // The button that opens a search of the kind; its screen is opened for it.
    Button& OpenerOf(std::string_view kind) {
        if (kind == "F") return Editor().FindFixCommand;
        if (kind == "N") return Editor().FindNavCommand;
        if (kind == "AP") return Editor().FindAirportCommand;
        if (kind == "A") {
            user->Presses(Editor().AddArcCommand);
            return Designer().Command1;
        }
        user->Presses(Editor().CreateWaypointCommand);
        EXPECT_EQ(State().SearchKind, "CW");
        if (kind == "CF") return Deriving().FixCommand;
        return kind == "CN" ? Deriving().NavaidCommand : Deriving().RunwayCommand;
    }
    void OpenFor(std::string_view kind) {
        CreateDP();
        Button& opener = OpenerOf(kind);
        user->Types(Editor().FixNameText, "OLD");
        user->Presses(opener);
    }
    bool ShowsPosition() {
        EXPECT_EQ(Search().LatText.Visible(), Search().LongText.Visible());
        return Search().LatText.Visible();
    }
};

TEST_F(Searching, EveryKindOpensOverItsTable) {
    const struct {
        const char *kind, *text, *found, *heading, *caption;
        int top, height;
        bool frequency;
    } kinds[] = {
        {"F", "ALPHA", "ALPHA", "Search for Fix", "Waypoint", 1320, 795, false},
        {"N", "DMO", "DMO  ", "Search for Navaid", "Waypoint", 1080, 1395, true},
        {"AP", "KXYZ", "KXYZ27L", "Search for Airport", "Waypoint", 1320, 795, false},
        {"A", "DMO", "DMO  ", "Search for Navaid", "ARC Center", 1320, 795, true},
        {"CF", "ALPHA", "ALPHA", "Search for Fix", "Starting Point", 1320, 795, false},
        {"CN", "DMO", "DMO  ", "Search for Navaid", "Starting Point", 1080, 1395, false},
        {"CAP", "KXYZ", "KXYZ27L", "Search for Airport", "Starting Point", 1320, 795, false},
    };
    for (const auto& k : kinds) {
        SCOPED_TRACE(k.kind);
        OpenFor(k.kind);
        EXPECT_EQ(State().SearchKind, k.kind);
        EXPECT_EQ(Editor().FixNameText.Text(), std::string_view(k.kind) == "A" ? "OLD" : "");
        EXPECT_EQ(Search().Label3.Caption(), k.heading);
        EXPECT_EQ(Search().Caption(), k.caption);
        EXPECT_EQ(std::pair(Search().Frame1.Top(), Search().Frame1.Height()), std::pair(k.top, k.height));
        EXPECT_FALSE(Search().AddWaypoint.Enabled() || Search().FreqLabel.Visible());
        EXPECT_EQ(user->FocusName(), "SearchText");
        SearchFor(k.text);
        EXPECT_EQ(Search().WaypointListBox.Text(), k.found);
        EXPECT_EQ(Search().FreqText.Caption(), k.frequency ? "113.60 MHz" : "");
        EXPECT_EQ(Search().FreqLabel.Visible(), k.frequency);
        program->door.CloseWindow(program->modifyProcedure);
    }
}

TEST_F(Searching, SeveralHitsWaitForAClickAndEachSearchStartsOver) {
    OpenFor("F");
    SearchFor("twice");
    EXPECT_EQ(Search().SearchText.Text(), "TWICE");
    EXPECT_EQ(Search().WaypointListBox.Lines(), (std::vector<std::string>{"TWICE", "TWICE"}));
    EXPECT_EQ(Search().WaypointListBox.ListIndex(), ListBox::NoSelection);
    EXPECT_FALSE(Search().AddWaypoint.Enabled());
    EXPECT_EQ(Search().SearchCommand.Caption(), "Start Search");
    EXPECT_EQ(user->FocusName(), "SearchText");
    user->PicksLine(Search().WaypointListBox, 1);
    EXPECT_EQ(Search().PointerListBox.Text(), "3");
    EXPECT_TRUE(Search().AddWaypoint.Enabled() && ShowsPosition());

    user->Types(Search().SearchText, "none");
    EXPECT_TRUE(program->door.Key(Search(), ShortcutKey::Enter));
    EXPECT_EQ(Search().WaypointListBox.ListCount() + Search().PointerListBox.ListCount(), 0);
    EXPECT_FALSE(Search().AddWaypoint.Enabled() || ShowsPosition());

    user->Presses(Editor().FindNavCommand);
    EXPECT_EQ(Search().Label3.Caption(), "Search for Navaid");
    // What another tool does to SearchKind in between does not change what this search is for.
    SearchFor("DMO");
    user->Presses(Editor().CreateWaypointCommand);
    user->Presses(Search().AddWaypoint);
    EXPECT_EQ(Editor().NAVIDText.Text(), "DMO");
    ExpectSilence();
}

TEST_F(Searching, ShowsThePositionCutAndTheFrequencyWithItsUnit) {
    const struct {
        const char *lat, *lon, *frequency, *shownLat, *shownLon, *shownFrequency;
    } cases[] = {
        {"33.5", "-118.25", "120", "N33 30        Latitude", "W118 15        Longitude", "120    MHz"},
        {"0", "0", "120.1", "N0 0         Latitude", "E0 0         Longitude", "120.1  KHz"},
        {"-0.5", "118.4075", "350", "S0 30        Latitude", "E118 24.449999 Longitude", "350    KHz"},
        {" -33.9333", "-.00001", "", "S33 55.998000 Latitude", "W0 .0006     Longitude", "       MHz"},
    };
    OpenFor("N");
    for (const auto& c : cases) {
        State().Navigation.NavaidTable[0] = {"DMO", c.frequency, c.lat, c.lon};
        SearchFor("DMO");
        EXPECT_EQ(Search().LatText.Caption(), c.shownLat);
        EXPECT_EQ(Search().LongText.Caption(), c.shownLon);
        EXPECT_EQ(Search().FreqText.Caption(), c.shownFrequency);
        EXPECT_TRUE(Search().FreqLabel.Visible());
    }
}

TEST_F(Searching, PositionThatIsNoNumberIsNotOffered) {
    PutNavaid("BAD", "350", "33.9x", "-118");
    PutNavaid("BAD", "351", "33.9", "");
    PutNavaid("BAD", "352", "33", "-118");
    OpenFor("N");
    SearchFor("BAD");
    for (const int line : {0, 1}) {
        user->PicksLine(Search().WaypointListBox, 2);
        EXPECT_TRUE(Search().AddWaypoint.Enabled() && ShowsPosition());
        ExpectSilence();
        user->PicksLine(Search().WaypointListBox, line);
        ExpectComplaint(
            "The navigation data hold no usable position for this waypoint.\r\n"
            "                              It can not be transferred.",
            "WaypointListBox");
        EXPECT_FALSE(Search().AddWaypoint.Enabled() || ShowsPosition() || Search().FreqLabel.Visible());
        EXPECT_EQ(Search().FreqText.Caption(), "");
        EXPECT_EQ(State().TransferLatDecimal, 33);
    }
}

TEST_F(Searching, TransfersFillTheEditor) {
    ModifyProcedure& editor = CreateDP();
    State().RunwayTransfer = True;
    Transfer(editor.FindFixCommand, "brvo");
    EXPECT_FALSE(program->findWaypointForm.IsLoaded());
    EXPECT_EQ(editor.FixNameText.Text(), "BRVO");
    EXPECT_EQ(Position(), "S0/30        E118/24.449999");
    EXPECT_EQ(State().RunwayTransfer, False);
    EXPECT_EQ(State().TransferLongDecimal, 118.4075);
    EXPECT_TRUE(editor.LatEdited && editor.LongEdited) << "both minute boxes were left";
    EXPECT_EQ(user->FocusName(), "Alt1Text");

    Transfer(editor.FindNavCommand, "dmo");
    EXPECT_EQ(editor.FixNameText.Text() + editor.NAVIDText.Text() + editor.FreqText.Text(), "DMO113.60");
    EXPECT_EQ(Position(), "N33/55.999979 W118/24.000000");
    ExpectSilence();
}

TEST_F(Searching, EnterOrADoubleClickOnAHitTransfersIt) {
    for (const bool byKey : {true, false}) {
        OpenFor("F");
        SearchFor("TWICE");
        user->MovesTo(Search().WaypointListBox);
        program->door.Key(Search(), ShortcutKey::Enter);
        ASSERT_TRUE(program->findWaypointForm.IsLoaded()) << "no hit is picked yet";
        if (byKey) {
            user->PicksLine(Search().WaypointListBox, 1);
            program->door.Key(Search(), ShortcutKey::Enter);
        } else {
            program->door.OpenLine(Search().WaypointListBox, 1);
        }
        EXPECT_FALSE(program->findWaypointForm.IsLoaded());
        EXPECT_EQ(Editor().FixNameText.Text() + Editor().DDMLatText.Text(), "TWICE3");
        user->Presses(Editor().OopsCommand);
    }
}

TEST_F(Searching, AirportIsARunwayWaypointOnlyInAnApproach) {
    PutRunway("KABC09", "-1", "2", -12);
    const struct {
        const char *mode, *airport, *name, *altitude, *type;
    } cases[] = {
        {"E", "KXYZ", "KXYZ27L", "", "0 "},  {"D", "KXYZ", "KXYZ27L", "", "0 "},
        {"T", "KABC", "KABC09 ", "", "0 "},  {"S", "KABC", "KABC09 ", "", "0 "},
        {"J", "KXYZ", "RW27L", "126", "15"}, {"I", "KABC", "RW09 ", "-12", "15"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.mode);
        ModifyProcedure& editor = CreateDP();
        State().ProcedureMode = c.mode;
        Transfer(editor.FindAirportCommand, c.airport);
        EXPECT_EQ(editor.FixNameText.Text(), c.name);
        EXPECT_EQ(editor.Alt1Text.Text(), c.altitude);
        user->Presses(editor.AddWaypointCommand);
        EXPECT_EQ(Row(0).WaypointType.Text(), c.type);
        user->Presses(editor.OopsCommand);
    }
}

TEST_F(Searching, StartPointIsPickedOnce) {
    const struct {
        Button CreateWaypointForm::*opener;
        const char *text, *picked, *position;
        double lat, lon;
    } cases[] = {
        {&CreateWaypointForm::FixCommand, "ALPHA", "Fix        Start Point Selected",
         "N33/30        W118/15       ", 33.5, -118.25},
        {&CreateWaypointForm::NavaidCommand, "DMO", "Navaid   Start Point Selected",
         "N33/55.999979 W118/24.000000", 33.933333, -118.4},
        {&CreateWaypointForm::RunwayCommand, "KXYZ", "Airport   Start Point Selected",
         "N33/57.000000 W118/24.000000", 33.95, -118.4},
    };
    ModifyProcedure& editor = Create(&InitialLoad::CreateIAP);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.picked);
        user->Presses(editor.CreateWaypointCommand);
        EXPECT_EQ(State().StartPointSelected, False);
        State().RunwayTransfer = True;  // of a runway found before
        Transfer(Deriving().*c.opener, c.text);
        EXPECT_EQ(State().StartPointSelected, True);
        EXPECT_EQ(std::pair(State().StartLat, State().StartLong), std::pair(c.lat, c.lon));
        EXPECT_EQ(State().RunwayTransfer, False);
        EXPECT_EQ(Position(), c.position);
        EXPECT_EQ(editor.FixNameText.Text() + editor.NAVIDText.Text() + editor.Alt1Text.Text(), "");
        EXPECT_EQ(Deriving().SelectedText.Caption(), c.picked);
        EXPECT_EQ(user->FocusName(), "TrueCourseText");
        for (const char* name :
             {"Label1", "Label2", "Label3", "NavaidCommand", "FixCommand", "RunwayCommand"}) {
            EXPECT_FALSE(Deriving().Find(name)->Enabled()) << name;
        }
        user->Presses(Deriving().Command1);
    }
}

TEST_F(Searching, LeftOrWithoutItsCallerItCarriesNothingOver) {
    for (const char* kind : {"F", "A", "CN"}) {
        SCOPED_TRACE(kind);
        OpenFor(kind);
        SearchFor(*kind == 'F' ? "ALPHA" : "DMO");
        State().RunwayTransfer = True;
        if (*kind == 'F') {
            program->door.Escape(Search());
        } else {
            user->Presses(*kind == 'A' ? Designer().ExitCommand : Deriving().Command1);
            EXPECT_TRUE(user->Presses(Search().AddWaypoint));
        }
        EXPECT_FALSE(program->findWaypointForm.IsLoaded());
        EXPECT_EQ(State().RunwayTransfer, True);
        EXPECT_EQ(State().StartPointSelected, False);
        EXPECT_EQ(State().ArcCenterLat + Editor().DDMLatText.Text(), "");
        user->Presses(Editor().OopsCommand);
    }
    OpenFor("CN");
    user->Presses(Deriving().Command1);
    user->Presses(Editor().CreateWaypointCommand);
    EXPECT_FALSE(program->findWaypointForm.IsLoaded()) << "a new form does not inherit the old one's search";
    ExpectSilence();
}

}  // namespace
}  // namespace tarvex::testing
