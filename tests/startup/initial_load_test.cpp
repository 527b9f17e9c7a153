#include "startup/initial_load.h"

#include <gtest/gtest.h>

#include "support/test_services.h"

namespace tarvex::testing {
namespace {

const std::string Ini = "C:\\Tarvex\\Tarvex.INI";
const std::string Data = "C:\\FS2000\\GIOSTAM\\navdata\\";
const std::string Complete = "C:\\FS2000\r\nS\r\nE\r\nW\r\n";
const std::string Short = "C:\\FS2000\r\nS\r\nE\r\n";
const std::string Fresh = "C:\\FS2000\r\nN\r\nW\r\nW\r\n";
const std::string NoFile = "no file";  // in place of a settings file's text

struct Machine {
    TestServices services;
    Program program{services.ForProgram()};

    explicit Machine(const std::string& settings, const std::string& registered = {}) {
        services.PutSimulator();
        services.files.Remove(Ini);
        if (settings != NoFile) services.files.Put(Ini, settings);
        if (!registered.empty()) services.Register(registered);
    }
    std::string SettingsFile() { return services.files.Has(Ini) ? services.files.Content(Ini) : NoFile; }
    // The four settings in the shared state.
    std::string Settings() const {
        const SharedState& state = program.state;
        return state.SimulatorPath + "|" + state.DefaultLatHemisphere + "|" + state.DefaultLongHemisphere +
               "|" + state.MagVarSide;
    }
    // The forms on the screen, or how the program stopped.
    std::string Screen() const {
        if (const auto& stopped = program.host.Stopped()) {
            return "stopped " + std::to_string(stopped->exitStatus) + " " + stopped->reason;
        }
        std::string forms;
        for (const Form* form : program.host.Visible()) forms += form->Name();
        return forms;
    }
};

void ExpectStart(const std::string& before, const char* registered, const std::string& after,
                 const char* settings) {
    SCOPED_TRACE(before + " " + registered);
    Machine machine(before, registered);
    machine.program.Start();
    EXPECT_EQ(machine.Screen(), *settings == '|' ? "FindFS2000Form" : "InitialLoad");
    EXPECT_EQ(machine.SettingsFile(), after);
    EXPECT_EQ(machine.services.files.Writes(), before == after ? 0 : 1);
    EXPECT_EQ(machine.Settings(), settings);
    EXPECT_EQ(machine.services.messages.Take(), std::vector<Message>());
    EXPECT_EQ(machine.program.state.ProgramVersion, "2.35");
}

TEST(StartTest, SettingsOfFourLinesAreTakenAsTheyAre) {
    const std::pair<std::string, const char*> cases[] = {
        {Complete, "C:\\FS2000|S|E|W"},
        {Complete + "more", "C:\\FS2000|S|E|W"},
        {"C:\\FS2000\r\nS\r\nE\r\nE", "C:\\FS2000|S|E|E"},
        {"C:\\FS2000\r\n s \r\n\r\n\r\n", "C:\\FS2000| s ||"},
        {"C:\\FS2000\rS\rE\rW\r", "C:\\FS2000|S|E|W"},
    };
    for (const auto& [file, settings] : cases) ExpectStart(file, "D:\\Other", file, settings);
}

TEST(StartTest, OtherSettingsAreMendedFromTheRegistryOrAskedFor) {
    ExpectStart(Short, "D:\\Other", Complete, "C:\\FS2000|S|E|W");
    ExpectStart("D:\\Other\r\nS\r\n", "C:\\FS2000", Fresh, "C:\\FS2000|N|W|W");
    ExpectStart("C:\\FS2000\r\n x\r\n\r\n", "", "C:\\FS2000\r\n x\r\n\r\nW\r\n", "C:\\FS2000| x||W");
    ExpectStart(NoFile, "  c:\\fs2000 ", Fresh, "C:\\FS2000|N|W|W");
    const std::string rubbish("\0\xFF\x1A", 3);
    for (const std::string& none : {NoFile, std::string(), std::string("D:\\Other\r\nS"), rubbish})
        ExpectStart(none, "", none, "|||");
    ExpectStart(NoFile, "   ", NoFile, "|||");
}

TEST(StartTest, ProgramFolderMayBeARoot) {
    Machine machine(NoFile);
    machine.services.files.Put("D:\\Tarvex.INI", Complete);
    machine.program.platform.programFolder = "D:\\";
    machine.program.Start();
    EXPECT_EQ(machine.program.state.SettingsPath, "D:\\Tarvex.INI");
    EXPECT_EQ(machine.Screen(), "InitialLoad");
}

TEST(StartTest, UnreadableSettingsStopBehindAMessage) {
    const std::pair<int, const char*> cases[] = {
        {PathNotFound,
         "I could not find the 767 Pilot in Command (PIC) data files.\r\n"
         "Please insure PIC is loaded in it's default location within FS2000.\r\n"
         "This program can not run without the data files and must now terminate."},
        {DeviceError,
         "There was an unexpected error.\r\n"
         "Please report to author that an unknown error occured.\r\n"
         "This program can not run with this fatal error and must now terminate."},
    };
    for (const auto& [number, prompt] : cases) {
        Machine machine(Complete);
        machine.services.files.FailRead(Ini, number);
        machine.program.Start();
        const Message expected{
            .prompt = prompt, .title = "Program termination.", .icon = MessageIcon::Critical};
        EXPECT_EQ(machine.services.messages.Take(), std::vector{expected});
        EXPECT_EQ(machine.Screen(), "stopped 1 " + Ini + ": cannot be read");
    }
}

TEST(StartTest, SettingsThatCannotBeWrittenStayInMemory) {
    for (const auto& [before, settings] :
         {std::pair(Short, "C:\\FS2000|S|E|W"), {NoFile, "C:\\FS2000|N|W|W"}}) {
        Machine machine(before, "c:\\fs2000");
        machine.services.files.FailWrite(Ini, PermissionDenied);
        machine.program.Start();
        const Message expected{.prompt =
                                   "The settings file C:\\Tarvex\\Tarvex.INI could not be written:\r\n"
                                   "C:\\Tarvex\\Tarvex.INI: cannot be written\r\n"
                                   "The program goes on, but the next start will not know the settings.",
                               .title = "Tarvex 2.35"};
        EXPECT_EQ(machine.services.messages.Take(), std::vector{expected});
        EXPECT_EQ(machine.Screen(), "InitialLoad");
        EXPECT_EQ(machine.Settings(), settings);
        EXPECT_EQ(machine.program.state.Navigation.FixCount, -1);
    }
}

TEST(StartTest, UnreadableNavigationDataStopWithoutAMessage) {
    for (const auto& [before, after] : {std::pair(Complete, Complete), {Short, Complete}, {NoFile, Fresh}}) {
        Machine machine(before, "C:\\FS2000");
        machine.services.files.Put(Data + "wpNavAID.txt", "; comment\r\nno point");
        machine.program.Start();
        EXPECT_EQ(machine.Screen(),
                  "stopped 1 " + Data +
                      "wpNavAID.txt, line 2: no decimal point from column 34 on, in the latitude");
        EXPECT_EQ(machine.services.messages.Take(), std::vector<Message>());
        EXPECT_EQ(machine.SettingsFile(), after);
        EXPECT_FALSE(machine.program.initialLoad.IsLoaded());
    }
}

TEST(StartTest, TellsWhatTheTablesHadNoRoomFor) {
    Machine machine(Complete);
    machine.services.files.Put(Data + "wpNavFIX.txt", std::string(MaxFixes + 2, '\r'));
    machine.services.files.Put(Data + "wpNavAPT.txt", std::string(MaxAirports + 1, '\r'));
    machine.program.Start();
    const Message expected{.prompt =
                               "There are more navigation data than the program has room for. "
                               "Left out at the end:\r\n"
                               "C:\\FS2000\\GIOSTAM\\navdata\\wpNavFIX.txt: 2 entries\r\n"
                               "C:\\FS2000\\GIOSTAM\\navdata\\wpNavAPT.txt: 1 entry",
                           .title = "Tarvex 2.35"};
    EXPECT_EQ(machine.services.messages.Take(), std::vector{expected});
    EXPECT_EQ(machine.Screen(), "InitialLoad");
    EXPECT_EQ(machine.program.state.Navigation.FixCount, 190000);
}

TEST(StartTest, ExitAndClosingEndTheRun) {
    for (const bool closed : {false, true}) {
        Machine machine(Complete);
        Program& program = machine.program;
        program.Start();
        if (closed) {
            program.door.CloseWindow(program.initialLoad);
        } else {
            program.door.Press(program.initialLoad.Get()->ExitCommand);
        }
        EXPECT_EQ(machine.Screen(), "stopped 0 ");
        EXPECT_EQ(machine.services.files.Writes(), 0);
    }
}

}  // namespace
}  // namespace tarvex::testing
