#include "startup/initial_load.h"

#include <gtest/gtest.h>

#include "support/scripted_user.h"
#include "support/test_services.h"

namespace tarvex::testing {
namespace {

const std::string Ini = "C:\\Tarvex\\Tarvex.INI";
const std::string Data = "C:\\FS2000\\GIOSTAM\\navdata\\";
const std::string Complete = "C:\\FS2000\r\nS\r\nE\r\nW\r\n";
const std::string NoFile;  // in place of a settings file's text

const Message NoData{.prompt =
                         "I could not find the 767 Pilot in Command (PIC) data files.\r\n"
                         "Please insure PIC is loaded in it's default location within FS2000.\r\n"
                         "This program can not run without the data files and must now terminate.",
                     .title = "Program termination.",
                     .icon = MessageIcon::Critical};
const Message Unexpected{.prompt =
                             "There was an unexpected error.\r\n"
                             "Please report to author that an unknown error occured.\r\n"
                             "This program can not run with this fatal error and must now terminate.",
                         .title = "Program termination.",
                         .icon = MessageIcon::Critical};

struct Machine {
    TestServices services;
    Program program{services.ForProgram()};

    Machine() {
        services.PutSimulator();
        services.files.Remove(Ini);
    }
    void Register(const std::string& folder) {
        services.registry.Put(0x80000002, "Software\\Microsoft\\Microsoft Games\\Flight Simulator\\7.0",
                              "path", folder + '\0');
    }
    // The four settings in the shared state.
    std::vector<std::string> Settings() const {
        const SharedState& state = program.state;
        return {state.SimulatorPath, state.DefaultLatHemisphere, state.DefaultLongHemisphere,
                state.MagVarSide};
    }
    // The forms on the screen, or how the program stopped.
    std::string Screen() const {
        if (program.host.Stopped()) return "stopped: " + program.host.Stopped()->reason;
        std::string forms;
        for (const Form* form : program.host.Visible()) forms += form->Name();
        return forms;
    }
};

TEST(StartTest, SettingsAreReadOrMended) {
    const std::string mended = "C:\\FS2000\r\nS\r\nE\r\nW\r\n";
    const std::string fresh = "C:\\FS2000\r\nN\r\nW\r\nW\r\n";
    using Lines = std::vector<std::string>;
    const struct {
        const char* name;
        std::string before;
        const char* registered;
        std::string after;
        Lines settings;
        const char* screen;
    } cases[] = {
        {"complete", Complete, "", Complete, {"C:\\FS2000", "S", "E", "W"}, "InitialLoad"},
        {"registry is not asked",
         Complete,
         "D:\\Other",
         Complete,
         {"C:\\FS2000", "S", "E", "W"},
         "InitialLoad"},
        {"five lines",
         Complete + "more",
         "",
         Complete + "more",
         {"C:\\FS2000", "S", "E", "W"},
         "InitialLoad"},
        {"no last line end",
         "C:\\FS2000\r\nS\r\nE\r\nE",
         "",
         "C:\\FS2000\r\nS\r\nE\r\nE",
         {"C:\\FS2000", "S", "E", "E"},
         "InitialLoad"},
        {"untrimmed values, empty last line",
         "C:\\FS2000\r\n s \r\n\r\n\r\n",
         "",
         "C:\\FS2000\r\n s \r\n\r\n\r\n",
         {"C:\\FS2000", " s ", "", ""},
         "InitialLoad"},
        {"CR alone",
         "C:\\FS2000\rS\rE\rW\r",
         "",
         "C:\\FS2000\rS\rE\rW\r",
         {"C:\\FS2000", "S", "E", "W"},
         "InitialLoad"},
        {"three lines",
         "C:\\FS2000\r\nS\r\nE\r\n",
         "D:\\Other",
         mended,
         {"C:\\FS2000", "S", "E", "W"},
         "InitialLoad"},
        {"three lines, no last line end",
         "C:\\FS2000\r\nS\r\nE",
         "",
         mended,
         {"C:\\FS2000", "S", "E", "W"},
         "InitialLoad"},
        {"three lines as they were",
         "C:\\FS2000\r\n x\r\n\r\n",
         "",
         "C:\\FS2000\r\n x\r\n\r\nW\r\n",
         {"C:\\FS2000", " x", "", "W"},
         "InitialLoad"},
        {"none, registered", NoFile, "  c:\\fs2000 ", fresh, {"C:\\FS2000", "N", "W", "W"}, "InitialLoad"},
        {"two lines, registered",
         "D:\\Other\r\nS\r\n",
         "C:\\FS2000",
         fresh,
         {"C:\\FS2000", "N", "W", "W"},
         "InitialLoad"},
        {"none", NoFile, "", NoFile, {"", "", "", ""}, "FindFS2000Form"},
        {"none, blanks registered", NoFile, "   ", NoFile, {"", "", "", ""}, "FindFS2000Form"},
        {"two lines", "D:\\Other\r\nS", "", "D:\\Other\r\nS", {"", "", "", ""}, "FindFS2000Form"},
        {"one line", "D:\\Other", "", "D:\\Other", {"", "", "", ""}, "FindFS2000Form"},
        {"rubbish",
         std::string("\0\xFF\x1A", 3),
         "",
         std::string("\0\xFF\x1A", 3),
         {"", "", "", ""},
         "FindFS2000Form"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Machine machine;
        if (c.before != NoFile) machine.services.files.Put(Ini, c.before);
        if (*c.registered != '\0') machine.Register(c.registered);
        machine.program.Start();
        EXPECT_EQ(machine.Screen(), c.screen);
        EXPECT_EQ(machine.services.files.Has(Ini) ? machine.services.files.Content(Ini) : NoFile, c.after);
        EXPECT_EQ(machine.services.files.Written().size(), c.before == c.after ? 0U : 1U);
        EXPECT_EQ(machine.Settings(), c.settings);
        EXPECT_EQ(machine.services.messages.Take(), std::vector<Message>());
        EXPECT_EQ(machine.program.state.ProgramVersion, "2.35");
        EXPECT_EQ(machine.program.state.SettingsPath, Ini);
    }
}

TEST(StartTest, EmptySettingsFileIsNone) {
    Machine machine;
    machine.services.files.Put(Ini, "");
    machine.Register("C:\\FS2000");
    machine.program.Start();
    EXPECT_EQ(machine.services.files.Content(Ini), "C:\\FS2000\r\nN\r\nW\r\nW\r\n");
    EXPECT_EQ(machine.Screen(), "InitialLoad");
}

TEST(StartTest, ProgramFolderMayBeARoot) {
    Machine machine;
    machine.services.files.Put("D:\\Tarvex.INI", Complete);
    machine.program.platform.programFolder = "D:\\";
    machine.program.Start();
    EXPECT_EQ(machine.program.state.SettingsPath, "D:\\Tarvex.INI");
    EXPECT_EQ(machine.Screen(), "InitialLoad");
}

TEST(StartTest, UnreadableSettingsStopBehindAMessage) {
    for (const int number : {PathNotFound, AccessError, DeviceError}) {
        Machine machine;
        machine.services.files.Put(Ini, Complete);
        machine.services.files.FailRead(Ini, number);
        machine.program.Start();
        EXPECT_EQ(machine.services.messages.Take(),
                  std::vector{number == PathNotFound ? NoData : Unexpected});
        EXPECT_EQ(machine.Screen(), "stopped: " + Ini + ": cannot be read");
        EXPECT_EQ(machine.program.host.Stopped()->exitStatus, 1);
        EXPECT_EQ(machine.program.state.MessageAnswer, "1");
    }
}

TEST(StartTest, SettingsThatCannotBeWrittenStayInMemory) {
    for (const char* before : {"C:\\FS2000\r\nS\r\nE\r\n", ""}) {
        Machine machine;
        machine.services.files.Put(Ini, before);
        machine.Register("c:\\fs2000");
        machine.services.files.FailWrite(Ini, PermissionDenied);
        machine.program.Start();
        EXPECT_EQ(machine.services.messages.Take(),
                  (std::vector{
                      Message{.prompt = "The settings file C:\\Tarvex\\Tarvex.INI could not be written:\r\n"
                                        "C:\\Tarvex\\Tarvex.INI: cannot be written\r\n"
                                        "The program goes on, but the next start will not know the settings.",
                              .title = "Tarvex 2.35"}}));
        EXPECT_EQ(machine.Screen(), "InitialLoad");
        const bool short3 = *before != '\0';
        EXPECT_EQ(machine.Settings(),
                  (std::vector<std::string>{"C:\\FS2000", short3 ? "S" : "N", short3 ? "E" : "W", "W"}));
        EXPECT_EQ(machine.program.state.Navigation.FixCount, -1);
    }
}

TEST(StartTest, UnreadableNavigationDataStopWithoutAMessage) {
    const struct {
        const char* settings;
        const char* settingsAfter;
    } roads[] = {{"C:\\FS2000\r\nS\r\nE\r\nW\r\n", "C:\\FS2000\r\nS\r\nE\r\nW\r\n"},
                 {"C:\\FS2000\r\nS\r\nE\r\n", "C:\\FS2000\r\nS\r\nE\r\nW\r\n"},
                 {"", "C:\\FS2000\r\nN\r\nW\r\nW\r\n"}};
    for (const auto& road : roads) {
        Machine machine;
        machine.services.files.Put(Ini, road.settings);
        machine.Register("C:\\FS2000");
        machine.services.files.Put(Data + "wpNavAID.txt", "; comment\r\nno point");
        machine.program.Start();
        EXPECT_EQ(
            machine.Screen(),
            "stopped: " + Data + "wpNavAID.txt, line 2: no decimal point from column 34 on, in the latitude");
        EXPECT_EQ(machine.program.host.Stopped()->exitStatus, 1);
        EXPECT_EQ(machine.services.messages.Take(), std::vector<Message>());
        EXPECT_EQ(machine.services.files.Content(Ini), road.settingsAfter);
        EXPECT_FALSE(machine.program.initialLoad.IsLoaded());
    }
}

TEST(StartTest, TellsWhatTheTablesHadNoRoomFor) {
    Machine machine;
    machine.services.files.Put(Ini, Complete);
    machine.services.files.Put(Data + "wpNavFIX.txt", std::string(MaxFixes + 2, '\r'));
    machine.services.files.Put(Data + "wpNavAPT.txt", std::string(MaxAirports + 1, '\r'));
    machine.program.Start();
    EXPECT_EQ(machine.services.messages.Take(),
              (std::vector{Message{.prompt = "There are more navigation data than the program has room for. "
                                             "Left out at the end:\r\n"
                                             "C:\\FS2000\\GIOSTAM\\navdata\\wpNavFIX.txt: 2 entries\r\n"
                                             "C:\\FS2000\\GIOSTAM\\navdata\\wpNavAPT.txt: 1 entry",
                                   .title = "Tarvex 2.35"}}));
    EXPECT_EQ(machine.Screen(), "InitialLoad");
    EXPECT_EQ(machine.program.state.Navigation.FixCount, 190000);
}

class MenuTest : public ::testing::Test {
  protected:
    MenuTest() {
        machine.services.files.Put(Ini, Complete);
        program.Start();
    }
    InitialLoad& Menu() { return *program.initialLoad.Get(); }

    Machine machine;
    Program& program = machine.program;
    ScriptedUser user{program};
};

TEST_F(MenuTest, ActionsFixTheKindOfProcedure) {
    const struct {
        Button InitialLoad::*button;
        const char* mode;
        const char* folder;
        bool runwaySpecific;
    } cases[] = {
        {&InitialLoad::CreateDP, "E", "Sids", true},
        {&InitialLoad::ModifyDP, "D", "Sids", false},
        {&InitialLoad::CreateSTAR, "T", "Stars", false},
        {&InitialLoad::ModifySTAR, "S", "Stars", false},
        {&InitialLoad::CreateIAP, "J", "Approaches", false},
        {&InitialLoad::ModifyIAP, "I", "Approaches", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.mode);
        ASSERT_TRUE(user.Presses(Menu().*c.button));
        EXPECT_EQ(program.state.ProcedureMode, c.mode);
        EXPECT_EQ(program.state.ProcedureFolder,
                  "C:\\FS2000\\Giostam\\navdata\\" + std::string(c.folder) + "\\");
        const bool create = std::string_view("ETJ").find(c.mode) != std::string_view::npos;
        EXPECT_EQ(machine.Screen(), create ? "ModifyProcedure" : "InitialLoadPickFile");
        if (create) {
            ModifyProcedure& editor = *program.modifyProcedure.Get();
            EXPECT_EQ(editor.RwySpecificCheck.Enabled(), c.runwaySpecific);
            EXPECT_EQ(editor.RwySpecificCheck.Value(), 0);
            user.Presses(editor.OopsCommand);
        } else {
            user.Types(program.pickFile.Get()->PickICAO, "KX");
            user.Presses(Menu().*c.button);
            EXPECT_EQ(program.pickFile.Get()->PickICAO.Text(), "") << "the picker starts afresh";
            user.Presses(program.pickFile.Get()->DoneCommand);
        }
        EXPECT_EQ(machine.Screen(), "InitialLoad");
    }
}

TEST_F(MenuTest, MissingFolderStopsBehindAMessage) {
    machine.services.files.RemoveFolder("C:\\FS2000\\Giostam\\navdata\\Stars");
    user.Presses(Menu().ModifySTAR);
    EXPECT_EQ(machine.services.messages.Take(),
              (std::vector{Message{
                  .prompt = "I could not find the 767 Pilot in Command (PIC) data files in C:\\FS2000 .\r\n"
                            "Please insure PIC is loaded in it's default location within FS2000.\r\n"
                            "This program can not run without the data files and must now terminate.",
                  .title = "Program termination.",
                  .icon = MessageIcon::Critical}}));
    EXPECT_TRUE(machine.Screen().starts_with("stopped: "));
    EXPECT_EQ(program.host.Stopped()->exitStatus, 1);
}

TEST_F(MenuTest, ExitAndClosingEndTheRun) {
    user.Presses(Menu().ExitCommand);
    EXPECT_EQ(machine.Screen(), "stopped: ");
    EXPECT_EQ(program.host.Stopped()->exitStatus, 0);

    Machine other;
    other.services.files.Put(Ini, Complete);
    other.program.Start();
    other.program.door.CloseWindow(other.program.initialLoad);
    EXPECT_EQ(other.Screen(), "stopped: ");
    EXPECT_EQ(other.services.files.Written(), std::vector<std::string>());
}

}  // namespace
}  // namespace tarvex::testing
