// The sample simulator folder that the project ships: each of its files passes through the program unharmed.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

#include "support/scripted_user.h"
#include "support/test_services.h"

namespace tarvex::testing {
namespace {

const std::filesystem::path SampleFolder = TARVEX_SAMPLE_FOLDER;
constexpr std::string_view OlderApproach = "KJFK-ILS04L.wap";

struct Kind {
    Button InitialLoad::*modify;
    std::string folder;
};

const Kind Kinds[] = {{&InitialLoad::ModifyDP, "C:\\FS2000\\Giostam\\navdata\\Sids\\"},
                      {&InitialLoad::ModifySTAR, "C:\\FS2000\\Giostam\\navdata\\Stars\\"},
                      {&InitialLoad::ModifyIAP, "C:\\FS2000\\Giostam\\navdata\\Approaches\\"}};

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
        program_.Start();
    }

    // Opens the stored procedure from the menu, saves it as it is and returns what the file holds then.
    std::string OpenedAndSaved(const Kind& kind, const std::string& name) {
        user_.Presses(program_.initialLoad.Get()->*kind.modify);
        EXPECT_TRUE(user_.PicksFile(program_.pickFile.Get()->FileList, name)) << name;
        services_.files.Put(kind.folder + name, "\n");  // what is there in the end was saved
        EXPECT_TRUE(user_.Presses(program_.modifyProcedure.Get()->SaveCommand)) << name;
        EXPECT_FALSE(program_.modifyProcedure.IsLoaded()) << name;
        return services_.files.Content(kind.folder + name);
    }

    TestServices services_;
    Program program_{services_.ForProgram()};
    ScriptedUser user_{program_};
};

TEST_F(SampleTest, ItsNavigationDataFillTheTables) {
    EXPECT_GT(program_.state.Navigation.FixCount, 3000);
    EXPECT_GT(program_.state.Navigation.NavaidCount, 150);
    EXPECT_EQ(program_.state.Navigation.AirportCount, 43);
    EXPECT_TRUE(services_.messages.Take().empty());
}

TEST_F(SampleTest, OpeningAndSavingAProcedureChangesItsFirstLineOnly) {
    int procedures = 0;
    for (const Kind& kind : Kinds) {
        for (const std::string& name : services_.files.Files(kind.folder)) {
            if (name == OlderApproach) continue;
            const std::string before = services_.files.Content(kind.folder + name);
            const std::string after = OpenedAndSaved(kind, name);
            EXPECT_EQ(after.substr(after.find('\n')), before.substr(before.find('\n'))) << name;
            ++procedures;
        }
    }
    EXPECT_GE(procedures, 20);
    EXPECT_TRUE(services_.messages.Take().empty());
}

TEST_F(SampleTest, TheApproachOfAnOlderVersionGetsItsRunwayWaypoint) {
    EXPECT_EQ(OpenedAndSaved(Kinds[2], std::string(OlderApproach)),
              "; This Terminal Procedure generated on 5/14/2001 by Tarvex 2.35\r\n"
              "\r\n"
              "W,ASALT,,0,40.527589,-73.963939,0,0,0,3000,1,\r\n"
              "W,CESID,,0,40.552028,-73.883283,0,0,0,1900,0,\r\n"
              "W,RW04L,,15,40.622018,-73.785585,0,0,0,13,0,\r\n"
              "W,CRI,,0,40.612472,-73.894444,112.30,0,0,3000,0,\r\n"
              "\r\n"
              "End of Terminal Procedure\r\n");
}

}  // namespace
}  // namespace tarvex::testing
