#include "editor/procedure_picture.h"

#include <gtest/gtest.h>

#include "support/road.h"

namespace tarvex::testing {
namespace {

constexpr Size Room{700, 400};
constexpr Target Fix{Target::Kind::Fix, 0};
constexpr Target Navaid{Target::Kind::Navaid, 0};
constexpr Target Runway{Target::Kind::Runway, 0};
constexpr Target None{};

Target Row(int index) {
    return {Target::Kind::Row, index};
}

// An editor with room for its picture, in which rows are made by hand and from the chart.
class ProcedurePictureTest : public ::testing::Test {
  protected:
    ProcedurePictureTest() {
        services.PutSimulator();
        road.Start();
        auto& tables = state().Navigation;
        tables.FixTable[0] = {"ONWAY", "33.9200", "-118.1010"};
        tables.NavaidTable[0] = {"LAX", "113.60", "33.9333", "-118.4317"};
        tables.AirportTable[0] = {"KLAX07L", "33.9358", "-118.4190", 126};
        tables.FixCount = tables.AirportCount = 0;
        tables.NavaidCount = 0;
    }

    SharedState& state() { return road.program->state; }
    UserDoor& door() { return road.program->door; }
    ModifyProcedure& editor() { return *road.program->modifyProcedure.Get(); }
    ProcedurePicture& pictures() { return editor().Pictures; }
    Picture& plan() { return pictures().PlanPicture; }

    void Open(const char* command) {
        road.Do(command);
        door().Resize(plan(), Room);
        door().Resize(pictures().ProfilePicture, Room);
    }
    void Add(const std::string& name, const std::string& latitude, const std::string& longitude) {
        road.Do("FixNameText=" + name + " | DDMLatText=" + latitude + " | DDMLongText=" + longitude +
                " | ELongOption | AddWaypointCommand");
    }
    template <class Item>
    const Item* Find(const Picture& picture, const std::function<bool(const Item&)>& fits) {
        for (const DrawnItem& item : picture.Shown().items) {
            const auto* found = std::get_if<Item>(&item);
            if (found != nullptr && fits(*found)) return found;
        }
        return nullptr;
    }
    const Symbol* SymbolOf(const Picture& picture, const Target& target) {
        return Find<Symbol>(picture, [&](const Symbol& symbol) { return symbol.target == target; });
    }
    // A point of the picture at which the target stands; far off everything for none.
    Point At(const Picture& picture, const Target& target) {
        if (target == None) return {-1000, -1000};
        const Symbol* symbol = SymbolOf(picture, target);
        EXPECT_NE(symbol, nullptr) << static_cast<int>(target.kind) << " " << target.index;
        return symbol == nullptr ? Point() : symbol->at;
    }
    bool DraftIsShown() {
        return Find<Symbol>(plan(), [](const Symbol& symbol) { return symbol.role == Role::Draft; }) !=
               nullptr;
    }
    std::string Boxes() {
        return road.See(
            "FixNameText NAVIDText FreqText DDMLatText DMMLatText DDMLongText DMMLongText Alt1Text");
    }

    TestServices services;
    Road road{services};
};

TEST_F(ProcedurePictureTest, WithoutRowsTheAirportOfTheNameIsShown) {
    Open("CreateDP");
    EXPECT_EQ(std::get<Words>(plan().Shown().items.at(0)).text,
              "Type the ICAO code of the airport to see what lies around it.");
    EXPECT_EQ(pictures().PictureLabel.Caption(), "");
    road.Do("AptNameText=klax");
    EXPECT_NE(SymbolOf(plan(), Fix), nullptr);
    EXPECT_EQ(pictures().PictureLabel.Caption(), "");
}

TEST_F(ProcedurePictureTest, AClickOnAnEntryMarksItAndLeavesWhatWasTyped) {
    Open("CreateDP");
    road.Do("AptNameText=KLAX | FixNameText=ALPHA | DDMLatText=33");
    const std::string typed = Boxes();
    EXPECT_TRUE(door().Choose(plan(), At(plan(), Navaid)));
    EXPECT_EQ(Boxes(), typed);
    EXPECT_TRUE(pictures().PictureLabel.Caption().starts_with("LAX"));
    EXPECT_EQ(plan().Tip(), "");
    door().PointAt(plan(), At(plan(), Navaid));
    EXPECT_EQ(plan().Tip(), pictures().PictureLabel.Caption());
    door().Choose(plan(), At(plan(), None));
    door().PointAt(plan(), std::nullopt);
    EXPECT_EQ(pictures().PictureLabel.Caption() + plan().Tip(), "");
    road.Do("CreateWaypointCommand");
    EXPECT_EQ(road.program->state.SearchKind, "CW");
}

TEST_F(ProcedurePictureTest, WhatIsTakenIsWhatTheSearchTransfers) {
    const struct {
        const char* command;
        Target target;
        const char* search;
    } cases[] = {
        {"CreateDP", Fix, "FindFixCommand | SearchText=ONWAY"},
        {"CreateDP", Navaid, "FindNavCommand | SearchText=LAX"},
        {"CreateDP", Runway, "FindAirportCommand | SearchText=KLAX"},
        {"CreateIAP", Runway, "FindAirportCommand | SearchText=KLAX"},
    };
    for (const auto& [command, target, search] : cases) {
        road.Do(command);
        road.Do(std::string("AptNameText=KLAX | ") + search +
                " | SearchCommand | AddWaypoint | AirspeedText=");
        const std::string searched = Boxes();
        road.Do("AddWaypointCommand");
        const auto row = road.Rows();
        const std::string kind = state().SearchKind;
        road.Do("OopsCommand");
        state().SearchKind.clear();

        Open(command);
        road.Do("AptNameText=KLAX | FixNameText=JUNK");
        door().TakeAt(plan(), At(plan(), target));
        EXPECT_EQ(Boxes(), searched);
        EXPECT_EQ(state().SearchKind, kind);
        door().Choose(plan(), At(plan(), target));
        EXPECT_TRUE(door().Take(plan(), true));
        EXPECT_EQ(road.Rows(), row);
        road.Do("OopsCommand");
    }
}

TEST_F(ProcedurePictureTest, AClickOnAWaypointIsAClickOnItsLine) {
    Open("CreateDP");
    Add("ALPHA", "33", "118");
    Add("BRAVO", "34", "118");
    Add("CHARLI", "34", "119");
    for (Picture* picture : {&plan(), &pictures().ProfilePicture}) {
        door().ShowPage(pictures().PictureTabs, picture == &plan() ? 0 : 1);
        EXPECT_TRUE(door().Choose(*picture, At(*picture, Row(1))));
        EXPECT_EQ(editor().WaypointList.ListIndex(), 1);
        EXPECT_EQ(editor().FixNameText.Text(), "BRAVO     ");
        EXPECT_TRUE(editor().WaypointList.HasFocus());
        EXPECT_EQ(SymbolOf(*picture, Row(1))->role, Role::Selected);
        road.Do("WaypointList#0");
    }
    // Legs go both ways, and keep the keyboard.
    EXPECT_EQ(pictures().LegsList.ListIndex(), 0);
    door().ShowPage(pictures().PictureTabs, 2);
    door().PickLine(pictures().LegsList, 2);
    EXPECT_EQ(editor().FixNameText.Text(), "CHARLI    ");
    EXPECT_TRUE(pictures().LegsList.HasFocus());
    door().Copy(pictures().LegsList);
    EXPECT_NE(services.clipboard.text.find("3\tCHARLI\t090\t"), std::string::npos);
    EXPECT_EQ(pictures().PlanPicture.Sentence(), "Chart: 3 waypoints, 109.7 miles, from ALPHA to CHARLI");
}

TEST_F(ProcedurePictureTest, WhatIsNotYetARowIsDraftedWithEveryKey) {
    Open("CreateDP");
    Add("ALPHA", "33", "118");
    Add("BRAVO", "34", "118");
    EXPECT_FALSE(DraftIsShown());
    road.Do("DDMLatText=33 | DDMLongText=11");
    EXPECT_FALSE(DraftIsShown());  // far off what is in view
    const int before = plan().Version();
    road.Do("DDMLongText=118");
    EXPECT_TRUE(DraftIsShown());
    EXPECT_GT(plan().Version(), before);
    // A selected row is in the boxes itself, until they hold another place.
    road.Do("WaypointList#1");
    EXPECT_FALSE(DraftIsShown());
    road.Do("DDMLatText=33 | DMMLatText=30");
    EXPECT_TRUE(DraftIsShown());
    road.Do("ClearDataCommand");
    EXPECT_FALSE(DraftIsShown());
}

TEST_F(ProcedurePictureTest, TheMenuOpensTheToolsWithWhatWasChosen) {
    Open("CreateDP");
    road.Do("AptNameText=KLAX");
    const auto pick = [this](const Target& target, int entry) {
        door().Choose(plan(), At(plan(), target));
        return plan().Menu()[static_cast<std::size_t>(entry)].enabled && door().PickMenuEntry(plan(), entry);
    };
    EXPECT_TRUE(pick(Fix, 0));
    EXPECT_EQ(editor().FixNameText.Text(), "ONWAY");
    EXPECT_TRUE(road.Rows().empty());
    EXPECT_TRUE(pick(Fix, 1));
    EXPECT_EQ(road.Rows().size(), 1U);
    road.Do("UndoCommand");
    EXPECT_FALSE(pick(Fix, 2));  // an arc is round a navaid
    EXPECT_TRUE(pick(Navaid, 2));
    EXPECT_TRUE(road.See("ArcLabelText").starts_with("    ArcLabelText \"LAX\" locked"));
    road.Do("ArcStartText=10 | ArcEndText=60 | ArcRadiusText=9");
    EXPECT_FALSE(DraftIsShown());
    road.Do("LeftOption");
    EXPECT_TRUE(DraftIsShown());
    road.Do("ArcEndText=999");  // no radial
    EXPECT_FALSE(DraftIsShown());
    road.Do("ArcEndText=60 | ExitCommand");

    EXPECT_TRUE(pick(Runway, 3));
    EXPECT_EQ(state().SearchKind, "CAP");
    EXPECT_EQ(road.See("SelectedText"), "    SelectedText \"Airport   Start Point Selected\"\n");
    road.Do("TrueCourseText=90 | DistText=10");
    EXPECT_TRUE(DraftIsShown());
    road.Do("Command1");

    EXPECT_TRUE(pick(Fix, 4));
    EXPECT_EQ(services.clipboard.text, "N33 55.200 W118 06.060");
    EXPECT_TRUE(road.Rows().empty());
}

TEST_F(ProcedurePictureTest, TheUsersViewIsKeptUntilARowWouldLieOutside) {
    Open("CreateDP");
    Add("ALPHA", "33", "118");
    Add("BRAVO", "34", "118");
    door().Zoom(plan(), 3, At(plan(), Row(1)));
    const Point place = At(plan(), Row(1));
    EXPECT_EQ(SymbolOf(plan(), Row(0)), nullptr);
    road.Do("FixNameText=CHARLI | DDMLatText=34 | DDMLongText=118 | DMMLatText=1");
    road.Do("AddWaypointCommand");
    EXPECT_EQ(At(plan(), Row(1)), place);
    road.Do("WaypointList#1 | MoveUp");
    EXPECT_EQ(At(plan(), Row(0)), place);
    road.Do("MoveDown");
    EXPECT_EQ(At(plan(), Row(1)), place);
    road.Do("WaypointList#2 | DDMLatText=32 | ModifyWaypointCommand");
    EXPECT_NE(SymbolOf(plan(), Row(2)), nullptr);
    road.Do("ClearDataCommand");
    Add("DELTA", "40", "118");
    EXPECT_NE(SymbolOf(plan(), Row(0)), nullptr);
    EXPECT_NE(SymbolOf(plan(), Row(3)), nullptr);
    door().Pan(plan(), 5000, 0);
    EXPECT_EQ(SymbolOf(plan(), Row(0)), nullptr);
    EXPECT_TRUE(door().TakeAt(plan(), At(plan(), None)));
    EXPECT_NE(SymbolOf(plan(), Row(0)), nullptr);
}

TEST_F(ProcedurePictureTest, AHitThatIsClickedComesIntoView) {
    Open("CreateDP");
    Add("ALPHA", "33", "118");
    EXPECT_EQ(SymbolOf(plan(), Fix), nullptr) << "half round the earth";
    road.Do("FindFixCommand | SearchText=ONWAY | SearchCommand");
    EXPECT_NE(SymbolOf(plan(), Fix), nullptr);
    door().Pan(plan(), 5000, 0);
    road.Do("to SearchText");
    EXPECT_EQ(SymbolOf(plan(), Fix), nullptr) << "and the user's view stays";
}

TEST_F(ProcedurePictureTest, TheSheetIsSavedWhereTheUserWantsIt) {
    Open("CreateIAP");
    EXPECT_FALSE(pictures().SavePictureCommand.Enabled());
    road.Do("AptNameText=KLAX | BasicNameText=ILS25L | TransitionText=");
    Add("A&B", "33", "118");
    door().Press(pictures().SavePictureCommand);
    EXPECT_EQ(services.pictures.proposed, "KLAX-ILS25L");
    services.pictures.place = "C:\\Tarvex\\sheet.svg";
    door().Press(pictures().SavePictureCommand);
    const std::string svg = std::string(services.files.Read("C:\\Tarvex\\sheet.svg").View());
    for (const char* words : {">Approach KLAX ILS25L<", ">A&amp;B<", ">Not for navigation<"}) {
        EXPECT_NE(svg.find(words), std::string::npos) << words;
    }
    services.pictures.place = "C:\\nowhere\\sheet.PNG";
    door().Press(pictures().SavePictureCommand);
    const auto messages = services.messages.Take();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_TRUE(messages[0].prompt.starts_with("The picture C:\\nowhere\\sheet.PNG could not be saved:\r\n"));
}

}  // namespace
}  // namespace tarvex::testing
