// The sample simulator folder that the project ships: each of its files passes through the program unharmed.

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

#include "chart/palette.h"
#include "chart/svg_writer.h"
#include "support/road.h"

namespace tarvex::testing {
namespace {

const std::filesystem::path SampleFolder = TARVEX_SAMPLE_FOLDER;
constexpr std::string_view OlderApproach = "KJFK-ILS04L.wap";

const std::string Data = "C:\\FS2000\\Giostam\\navdata\\";
// What modifies the procedures of a folder.
constexpr std::pair<const char*, const char*> Kinds[] = {
    {"ModifyDP", "Sids\\"}, {"ModifySTAR", "Stars\\"}, {"ModifyIAP", "Approaches\\"}};

class SampleTest : public ::testing::Test {
  protected:
    SampleTest() {
        services_.PutSimulator();
        for (const auto& entry : std::filesystem::recursive_directory_iterator(SampleFolder)) {
            if (!entry.is_regular_file()) continue;
            std::string path = entry.path().lexically_relative(SampleFolder).string();
            std::replace(path.begin(), path.end(), '/', '\\');
            std::ifstream file(entry.path(), std::ios::binary);
            services_.files.Put("C:\\FS2000\\" + path, {std::istreambuf_iterator<char>(file), {}});
        }
        started = road.Start();
    }

    // Opens the stored procedure from the menu, saves it as it is and gives what is told.
    std::string OpenedAndSaved(const std::string& modify, const std::string& name) {
        road.Do(modify + " | FileList#" + name);
        EXPECT_EQ(road.See("FindingsList"), "    FindingsList hidden\n") << name;
        return road.Do("SaveCommand");
    }

    TestServices services_;
    Road road{services_};
    std::string started;

  public:
    // The picture as it was looked at and found right; TARVEX_RECORD=1 writes it anew.
    static void ExpectRecorded(const std::string& name, const std::string& picture) {
        const auto path = std::filesystem::path(TARVEX_PICTURES_FOLDER) / (name + ".txt");
        if (std::getenv("TARVEX_RECORD") != nullptr) std::ofstream(path, std::ios::binary) << picture;
        std::ifstream file(path, std::ios::binary);
        EXPECT_TRUE(picture == std::string(std::istreambuf_iterator<char>(file), {})) << name;
    }
};

TEST_F(SampleTest, ItsNavigationDataFillTheTables) {
    EXPECT_EQ(started, "    InitialLoad @CreateDP\n") << "and nothing is left out";
    const NavigationTables& tables = road.program->state.Navigation;
    EXPECT_GT(tables.FixCount, 3000);
    EXPECT_GT(tables.NavaidCount, 150);
    EXPECT_EQ(tables.AirportCount, 43);
}

TEST_F(SampleTest, OpeningAndSavingAProcedureChangesItsFirstLineOnly) {
    int procedures = 0;
    for (const auto& [modify, folder] : Kinds) {
        for (const std::string& name : services_.files.Files(Data + folder)) {
            if (name == OlderApproach) continue;
            const std::string path = Data + folder + name;
            const std::string before = services_.files.Content(path);
            const std::string told = OpenedAndSaved(modify, name);
            EXPECT_NE(told.find("wrote " + std::string(folder) + name + "\n"), std::string::npos) << told;
            const std::string& after = services_.files.Content(path);
            EXPECT_EQ(after.substr(after.find('\n')), before.substr(before.find('\n'))) << name;
            ++procedures;
        }
    }
    EXPECT_GE(procedures, 20);
}

TEST_F(SampleTest, TheApproachOfAnOlderVersionGetsItsRunwayWaypoint) {
    EXPECT_EQ(OpenedAndSaved("ModifyIAP", std::string(OlderApproach)),
              "    InitialLoad @ModifyIAP\n"
              "    wrote Approaches\\KJFK-ILS04L.wap\n"
              "      W,ASALT,,0,40.527589,-73.963939,0,0,0,3000,1,\n"
              "      W,CESID,,0,40.552028,-73.883283,0,0,0,1900,0,\n"
              "      W,RW04L,,15,40.622018,-73.785585,0,0,0,13,0,\n"
              "      W,CRI,,0,40.612472,-73.894444,112.30,0,0,3000,0,\n"
              "    wrote C:\\Tarvex\\Tarvex.INI: C:\\FS2000\xC2\xB6N\xC2\xB6W\xC2\xB6W\xC2\xB6\n");
}

// Chart, profile and the whole sheet.
TEST_F(SampleTest, ItsPicturesStayAsTheyAre) {
    struct Case {
        const char* acts;
        const char* name;
        const char* meanwhile;  // what is done in the editor
        int times = 1;
    };
    const Case cases[] = {
        {"ModifySTAR | FileList#KJFK-CAMRN4.wst", "selected", "WaypointList#2 | DMMLongText=20"},
        {"ModifyIAP | FileList#KLAX-ILS25L.wap", "arc",
         "AddArcCommand | Command1 | SearchText=LAX | SearchCommand | AddWaypoint | ArcStartText=30 | "
         "ArcEndText=110 | ArcRadiusText=9 | RightOption"},
        {"ModifyDP | FileList#KSAN-CWARD2.wsd", "derived",
         "CreateWaypointCommand | NavaidCommand | SearchText=MZB | SearchCommand | AddWaypoint | "
         "TrueCourseText=300 | DistText=25"},
        {"CreateSTAR", "airport", "AptNameText=KSFO | FindFixCommand | SearchText=BRIXX | SearchCommand"},
        {"CreateDP", "pole",
         "AptNameText=KXYZ | BasicNameText=POLE | TransitionText=NORTH | NLatOption | FixNameText=A | "
         "DDMLatText=89 | DMMLatText=30 | DDMLongText=10 | DMMLongText=0 | "
         "Alt1Text=1 | AtAboveOption | AddWaypointCommand | FixNameText=B | DDMLatText=88 | DMMLatText=0 | "
         "DDMLongText=179 | DMMLongText=30 | AirspeedText=1 | AddWaypointCommand | FixNameText=C | "
         "DDMLatText=87 | DMMLatText=0 | DDMLongText=120 | DMMLongText=0 | AddWaypointCommand"},
        {"CreateSTAR", "arced",
         "AddArcCommand | Command1 | SearchText=LAX | SearchCommand | AddWaypoint | ArcStartText=30 | "
         "ArcEndText=110 | ArcRadiusText=9 | RightOption | Yes | TransferCommand | ZoomOutCommand | "
         "ZoomOutCommand | ZoomOutCommand"},
        {"CreateIAP", "south",
         "SLatOption | FixNameText=A | DDMLatText=17 | DMMLatText=30 | DDMLongText=179 | DMMLongText=58 | "
         "Alt1Text=3000 | AtOption | AddWaypointCommand | SLatOption | ELongOption | FixNameText=B | "
         "DDMLatText=17 | DMMLatText=31.5 | DDMLongText=179 | DMMLongText=57 | AddWaypointCommand"},
        {"ModifySTAR | FileList#KJFK-CAMRN4.wst", "wide", "ZoomOutCommand", 5},
        {"ModifySTAR | FileList#KJFK-CAMRN4.wst", "world", "ZoomOutCommand", 50},
        {"ModifyIAP | FileList#KLAX-ILS25L.wap", "near",
         "WaypointList#3 | ZoomInCommand | ZoomInCommand | ZoomInCommand | ZoomInCommand"},
        {"ModifyIAP | FileList#KLAX-ILS25L.wap", "nearer", "ZoomInCommand", 3},
        {"ModifyIAP | FileList#KLAX-ILS25L.wap", "nearest", "ZoomInCommand", 50},
    };
    for (const auto& [acts, name, meanwhile, times] : cases) {
        road.Do(acts);
        UserDoor& door = road.program->door;
        Form& editor = *road.program->modifyProcedure.Get();
        std::string pictures;
        for (int page = 0; const char* picture : {"PlanPicture", "ProfilePicture"}) {
            door.ShowPage(dynamic_cast<Tabs&>(*editor.Find("PictureTabs")), page++);
            auto& shown = dynamic_cast<Picture&>(*editor.Find(picture));
            door.Resize(shown, {700, 420});
            const bool zooms = times > 1;  // each picture by itself
            for (int time = 0; (page == 1 || zooms) && time < times; ++time) road.Do(meanwhile);
            pictures += SvgText(shown.Shown(), LightPalette(), name);
        }
        services_.pictures.place = "C:\\sheet.svg";
        if (road.DoOne("SavePictureCommand")) pictures += services_.files.Content("C:\\sheet.svg");
        ExpectRecorded(name, pictures);
        road.Do("close ModifyProcedure");
    }
}

// All symbols, full and hollow, in the inks of all roles.
TEST(Symbols, StayAsTheyAre) {
    Drawing drawing{{600, 60}, {}};
    for (int glyph = 0; glyph <= static_cast<int>(Glyph::Redo); ++glyph) {
        for (const bool hollow : {false, true}) {
            drawing.items.emplace_back(Symbol{.glyph = static_cast<Glyph>(glyph),
                                              .at = {20.0 + 40 * glyph, hollow ? 15.0 : 45.0},
                                              .size = 20,
                                              .role = static_cast<Role>(glyph),
                                              .hollow = hollow,
                                              .turn = hollow ? 0.0 : 0.5});
        }
    }
    for (int role = 0; role <= static_cast<int>(Role::Paper); ++role) {
        const double height = 2.0 + 3 * role;
        drawing.items.emplace_back(
            Line{.points = {{560, height}, {600, height}}, .role = static_cast<Role>(role)});
    }
    SampleTest::ExpectRecorded("symbols",
                               SvgText(drawing, LightPalette(), "") + SvgText(drawing, DarkPalette(), ""));
}

}  // namespace
}  // namespace tarvex::testing
