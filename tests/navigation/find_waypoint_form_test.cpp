#include "support/tool_road.h"

namespace tarvex::testing {
namespace {

constexpr const char* NoUsablePosition =
    "The navigation data hold no usable position for this waypoint.\r\n"
    "                              It can not be transferred.";

class Searching : public ToolRoad {
  protected:
    Searching() {
        PutFix("ALPHA", "  33.50000", " -118.25000");
        PutFix("BRAVO", " -0.500000", " 118.407500");
        PutFix("TWICE", "1", "2");
        PutFix("TWICE", "-3", "-4");
        PutNavaid("DMO", "113.60", "33.933333", "-118.400000");
        PutRunway("KXYZ27L", "33.95", "-118.4", 126);
    }

    // Presses what opens the search of a kind, from a fresh editor.
    void OpenFor(const std::string& kind) {
        user->Presses(Menu().CreateDP);
        user->Types(Editor().FixNameText, "OLD");
        if (kind == "F") user->Presses(Editor().FindFixCommand);
        if (kind == "N") user->Presses(Editor().FindNavCommand);
        if (kind == "AP") user->Presses(Editor().FindAirportCommand);
        if (kind == "A") {
            user->Presses(Editor().AddArcCommand);
            user->Types(Editor().FixNameText, "OLD");
            user->Presses(Designer().Command1);
        }
        if (kind.front() != 'C') return;
        user->Presses(Editor().CreateWaypointCommand);
        EXPECT_EQ(State().SearchKind, "CW");
        user->Types(Editor().FixNameText, "OLD");
        if (kind == "CF") user->Presses(Deriving().FixCommand);
        if (kind == "CN") user->Presses(Deriving().NavaidCommand);
        if (kind == "CAP") user->Presses(Deriving().RunwayCommand);
    }
    std::string Position() { return EditorPosition(Editor()); }
    static std::string EditorPosition(ModifyProcedure& editor) {
        return (editor.NLatOption.Value() ? "N" : "S") + editor.DDMLatText.Text() + "|" +
               editor.DMMLatText.Text() + "|" + (editor.ELongOption.Value() ? "E" : "W") +
               editor.DDMLongText.Text() + "|" + editor.DMMLongText.Text();
    }
};

TEST_F(Searching, EveryKindOpensOverItsTable) {
    const struct {
        const char *kind, *found, *heading, *caption;
        int top, height;
        bool frequency;
    } kinds[] = {
        {"F", "ALPHA", "Search for Fix", "Waypoint", 1320, 795, false},
        {"N", "DMO  ", "Search for Navaid", "Waypoint", 1080, 1395, true},
        {"AP", "KXYZ27L", "Search for Airport", "Waypoint", 1320, 795, false},
        {"A", "DMO  ", "Search for Navaid", "ARC Center", 1320, 795, true},
        {"CF", "ALPHA", "Search for Fix", "Starting Point", 1320, 795, false},
        {"CN", "DMO  ", "Search for Navaid", "Starting Point", 1080, 1395, false},
        {"CAP", "KXYZ27L", "Search for Airport", "Starting Point", 1320, 795, false},
    };
    for (const auto& k : kinds) {
        SCOPED_TRACE(k.kind);
        OpenFor(k.kind);
        EXPECT_EQ(State().SearchKind, k.kind);
        EXPECT_EQ(Editor().FixNameText.Text(), std::string(k.kind) == "A" ? "OLD" : "");
        EXPECT_EQ(Search().Label3.Caption(), k.heading);
        EXPECT_EQ(Search().Caption(), k.caption);
        EXPECT_EQ(Search().Frame1.Top(), k.top);
        EXPECT_EQ(Search().Frame1.Height(), k.height);
        EXPECT_FALSE(Search().AddWaypoint.Enabled());
        EXPECT_FALSE(Search().FreqLabel.Visible());
        EXPECT_EQ(user->FocusName(), "SearchText");

        SearchFor(std::string(k.found).substr(0, k.found[0] == 'K' ? 4 : std::string(k.found).find(' ')));
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
    EXPECT_EQ(Search().LatText.Caption(), "S3 0         Latitude");
    EXPECT_TRUE(Search().AddWaypoint.Enabled());

    user->Types(Search().SearchText, "none");
    EXPECT_TRUE(program->door.Key(Search(), ShortcutKey::Enter));
    EXPECT_EQ(Search().WaypointListBox.ListCount(), 0);
    EXPECT_EQ(Search().PointerListBox.ListCount(), 0);
    EXPECT_FALSE(Search().LatText.Visible() || Search().LongText.Visible());
    EXPECT_FALSE(Search().AddWaypoint.Enabled());

    SearchFor("alpha");
    EXPECT_EQ(Search().PointerListBox.Lines(), std::vector<std::string>{"0"});
    EXPECT_TRUE(Search().LatText.Visible() && Search().LongText.Visible());
    EXPECT_TRUE(Search().AddWaypoint.Enabled());
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
    ExpectSilence();
    user->PicksLine(Search().WaypointListBox, 2);
    EXPECT_TRUE(Search().AddWaypoint.Enabled());
    for (const int line : {0, 1}) {
        user->PicksLine(Search().WaypointListBox, line);
        ExpectComplaint(NoUsablePosition, "WaypointListBox");
        EXPECT_FALSE(Search().AddWaypoint.Enabled());
        EXPECT_FALSE(Search().LatText.Visible() || Search().LongText.Visible() ||
                     Search().FreqLabel.Visible());
        EXPECT_EQ(State().TransferLatDecimal, 33);
    }
    user->PicksLine(Search().WaypointListBox, 2);
    EXPECT_TRUE(Search().AddWaypoint.Enabled());
    EXPECT_TRUE(Search().LongText.Visible());
}

TEST_F(Searching, TransfersFillTheEditor) {
    ModifyProcedure& editor = CreateDP();
    State().RunwayTransfer = True;
    Transfer(editor.FindFixCommand, "bravo");
    EXPECT_FALSE(program->findWaypointForm.IsLoaded());
    EXPECT_EQ(editor.FixNameText.Text(), "BRAVO");
    EXPECT_EQ(Position(), "S0|30       |E118|24.449999");
    EXPECT_EQ(State().RunwayTransfer, False);
    EXPECT_EQ(State().TransferLongDecimal, 118.4075);
    EXPECT_TRUE(editor.LatEdited && editor.LongEdited) << "both minute boxes were left";
    EXPECT_EQ(user->FocusName(), "Alt1Text");

    Transfer(editor.FindNavCommand, "dmo");
    EXPECT_EQ(editor.FixNameText.Text(), "");
    EXPECT_EQ(editor.NAVIDText.Text(), "DMO");
    EXPECT_EQ(editor.FreqText.Text(), "113.60");
    EXPECT_EQ(Position(), "N33|55.999979|W118|24.000000");
    ExpectSilence();
}

TEST_F(Searching, AirportIsARunwayWaypointOnlyInAnApproach) {
    PutRunway("KABC09", "-1", "2", -12);
    const struct {
        Button InitialLoad::*action;
        const char *airport, *name, *altitude;
        bool runway;
    } cases[] = {
        {&InitialLoad::CreateDP, "KXYZ", "KXYZ27L", "", false},
        {&InitialLoad::CreateSTAR, "KABC", "KABC09 ", "", false},
        {&InitialLoad::CreateIAP, "KXYZ", "RW27L", "126", true},
        {&InitialLoad::CreateIAP, "KABC", "RW09 ", "-12", true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        ModifyProcedure& editor = Create(c.action);
        Transfer(editor.FindAirportCommand, c.airport);
        EXPECT_EQ(editor.FixNameText.Text(), c.name);
        EXPECT_EQ(editor.Alt1Text.Text(), c.altitude);
        EXPECT_EQ(State().RunwayTransfer, c.runway ? True : False);
        user->Presses(editor.AddWaypointCommand);
        EXPECT_EQ(Row(0).WaypointType.Text(), c.runway ? "15" : "0 ");
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
         "N33|30       |W118|15       ", 33.5, -118.25},
        {&CreateWaypointForm::NavaidCommand, "DMO", "Navaid   Start Point Selected",
         "N33|55.999979|W118|24.000000", 33.933333, -118.4},
        {&CreateWaypointForm::RunwayCommand, "KXYZ", "Airport   Start Point Selected",
         "N33|57.000000|W118|24.000000", 33.95, -118.4},
    };
    ModifyProcedure& editor = Create(&InitialLoad::CreateIAP);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.picked);
        user->Presses(editor.CreateWaypointCommand);
        EXPECT_EQ(State().StartPointSelected, False);
        Transfer(Deriving().*c.opener, c.text);
        EXPECT_EQ(State().StartPointSelected, True);
        EXPECT_EQ(State().StartLat, c.lat);
        EXPECT_EQ(State().StartLong, c.lon);
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

TEST_F(Searching, LeavingCarriesNothingOver) {
    OpenFor("F");
    SearchFor("ALPHA");
    program->door.Escape(Search());
    EXPECT_FALSE(program->findWaypointForm.IsLoaded());
    EXPECT_EQ(State().SearchKind, "F");
    EXPECT_EQ(Editor().FixNameText.Text() + Editor().DDMLatText.Text(), "");
}

TEST_F(Searching, SearchWithoutItsCallerTransfersNothing) {
    for (const char* kind : {"A", "CN"}) {
        SCOPED_TRACE(kind);
        OpenFor(kind);
        SearchFor("DMO");
        user->Presses(*kind == 'A' ? Designer().ExitCommand : Deriving().Command1);
        State().RunwayTransfer = True;
        EXPECT_TRUE(user->Presses(Search().AddWaypoint));
        EXPECT_FALSE(program->findWaypointForm.IsLoaded());
        EXPECT_EQ(State().RunwayTransfer, True);
        EXPECT_EQ(State().ArcCenterLat, "");
        EXPECT_EQ(State().StartPointSelected, False);
        EXPECT_EQ(Editor().DDMLatText.Text(), "");
        user->Presses(Editor().OopsCommand);
    }
    OpenFor("CN");
    user->Presses(Deriving().Command1);
    user->Presses(Editor().CreateWaypointCommand);
    EXPECT_FALSE(program->findWaypointForm.IsLoaded()) << "a new form does not inherit the old one's search";
    ExpectSilence();
}

TEST_F(Searching, NewSearchReplacesTheOneThatIsOpen) {
    for (int i = 0; i < 5; ++i) PutFix("LAST", "1", "2");
    OpenFor("F");
    SearchFor("LAST");
    user->Presses(Editor().FindNavCommand);
    EXPECT_EQ(Search().Label3.Caption(), "Search for Navaid");
    EXPECT_EQ(Search().WaypointListBox.ListCount(), 0) << "rows of another table";

    // What another tool does to SearchKind in between does not change what this search is for.
    SearchFor("DMO");
    user->Presses(Editor().CreateWaypointCommand);
    user->Presses(Search().AddWaypoint);
    EXPECT_EQ(Editor().NAVIDText.Text(), "DMO");
}

}  // namespace
}  // namespace tarvex::testing
