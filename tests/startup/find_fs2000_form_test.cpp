#include "startup/find_fs2000_form.h"

#include <gtest/gtest.h>

#include "support/test_services.h"

namespace tarvex::testing {
namespace {

const std::string Ini = "C:\\Tarvex\\Tarvex.INI";

class FolderScreenTest : public ::testing::Test {
  protected:
    FolderScreenTest() {
        services.PutSimulator();
        services.files.Remove(Ini);
        services.files.PutFolder("C:\\Games\\Old");
        services.files.PutFolder("D:\\Fs2000\\Aircraft");
        services.files.SetDrives({"C:\\", "D:\\", "E:\\"});
    }

    FindFS2000Form& Screen() { return *program.findFS2000Form.Get(); }
    // The screen comes up while a procedure, or the picker, is open.
    void StartWithTheScreenBeside(Button InitialLoad::*action) {
        services.Register("C:\\FS2000");
        program.Start();
        program.door.Press(program.initialLoad.Get()->*action);
        program.host.RunEvent([&] { program.AskForSimulatorFolder(); });
    }
    int Row(const std::string& path) {
        FolderList& list = Screen().Dir1;
        for (int row = list.FirstIndex(); row < list.ListCount(); ++row) {
            if (list.List(row) == path) return row;
        }
        ADD_FAILURE() << "no row " << path;
        return FolderList::OpenFolder;
    }
    void Click(const std::string& path) { program.door.PickFolder(Screen().Dir1, Row(path)); }
    void Done() { program.door.Press(Screen().FindDoneCommand); }
    // The folder chosen and the line about it.
    void ExpectChosen(const std::string& folder, const std::string& hint) {
        EXPECT_EQ(program.state.SimulatorPath, folder);
        EXPECT_EQ(Screen().DataHintLabel.Caption(), hint);
        const auto row = Screen().Dir1.ChosenIndex();
        EXPECT_EQ(row ? Screen().Dir1.List(*row) : "", folder) << "what stands selected";
    }
    std::string Forms() {
        std::string forms;
        for (const Form* form : program.host.Visible()) forms += form->Name();
        return forms;
    }

    TestServices services;
    Program program{services.ForProgram()};
};

TEST_F(FolderScreenTest, ClickedFolderIsKeptAndItsDataAreLoaded) {
    services.files.Put("C:\\FS2000\\GIOSTAM\\navdata\\wpNavFIX.txt", "; fixes\r\none\r\ntwo\r\n");
    program.Start();
    ExpectChosen("", "No folder is chosen yet.");
    EXPECT_EQ(program.host.GetFocus().Current(), &Screen().Drive1);
    Click("C:\\Games");
    ExpectChosen("C:\\Games", "No navigation data in C:\\Games.");
    Click("C:\\FS2000");
    ExpectChosen("C:\\FS2000", "The navigation data are in C:\\FS2000.");
    program.state.SimulatorPath = "C:\\Fs2000";
    Done();

    EXPECT_EQ(services.files.Content(Ini), "C:\\FS2000\r\nN\r\nW\r\n");
    EXPECT_EQ(Forms(), "InitialLoad");
    EXPECT_EQ(program.state.SimulatorPath, "C:\\Fs2000");
    const SharedState& state = program.state;
    EXPECT_EQ(state.DefaultLatHemisphere + state.DefaultLongHemisphere + state.MagVarSide, "NWW");
    EXPECT_EQ(program.state.Navigation.FixCount, 1);
    EXPECT_EQ(services.messages.Take(), std::vector<Message>());
}

TEST_F(FolderScreenTest, FolderFollowsTheLists) {
    program.Start();
    program.door.PickDrive(Screen().Drive1, "D:\\");
    ExpectChosen("D:\\", "No navigation data in D:\\.");
    program.door.OpenFolder(Screen().Dir1, Row("D:\\Fs2000"));
    ExpectChosen("D:\\Fs2000", "No navigation data in D:\\Fs2000.");
    Click("D:\\Fs2000\\Aircraft");
    // A click on the open folder itself chooses nothing.
    Click("D:\\Fs2000");
    ExpectChosen("D:\\Fs2000\\Aircraft", "No navigation data in D:\\Fs2000\\Aircraft.");
    Click("D:\\");

    // There is nothing in drive E.
    EXPECT_TRUE(program.door.PickDrive(Screen().Drive1, "E:\\"));
    EXPECT_EQ(services.messages.Take(),
              (std::vector{
                  Message{.prompt = "The operation could not be finished: E:\\: no such folder (error 76).",
                          .title = "Tarvex 2.35"}}));
    EXPECT_EQ(Screen().Drive1.Drive() + Screen().Dir1.Path(), "D:\\D:\\Fs2000");
    ExpectChosen("D:\\", "No navigation data in D:\\.");
}

TEST_F(FolderScreenTest, RegisteredDriveIsShownWhereThereIsOne) {
    const struct {
        const char *registered, *drive, *chosen;
    } cases[] = {
        {" d:\\Fs2000 ", "D:\\", "D:\\"},    // its drive's folder comes up and is chosen by that
        {"C:\\Games", "C:\\", "C:\\Games"},  // the lists are on the drive already
        {"E:\\Games", "C:\\", "E:\\Games"},  // a drive without a folder
        {"X:\\Games", "C:\\", "X:\\Games"},  // no drive
        {"Games", "C:\\", "Games"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.registered);
        services.Register(c.registered);
        Program other(services.ForProgram());
        other.host.RunEvent([&] { other.findFS2000Form.Show(); });
        ASSERT_TRUE(other.findFS2000Form.IsLoaded());
        EXPECT_EQ(other.findFS2000Form.Get()->Drive1.Drive(), c.drive);
        EXPECT_EQ(other.findFS2000Form.Get()->Dir1.Path(), c.drive);
        EXPECT_EQ(other.state.SimulatorPath, c.chosen);
        EXPECT_EQ(services.messages.Take(), std::vector<Message>());
    }
}

TEST_F(FolderScreenTest, FolderWithoutDataLeavesEmptyTables) {
    program.Start();
    Click("C:\\Games");
    Done();
    EXPECT_EQ(
        services.messages.Take(),
        (std::vector{Message{.prompt = "The navigation data in C:\\Games could not be read:\r\n"
                                       "C:\\Games\\GIOSTAM\\navdata: no such folder\r\n"
                                       "Searches will find nothing, and the next start will end at once.",
                             .title = "Tarvex 2.35"}}));
    EXPECT_EQ(Forms(), "InitialLoad");
    EXPECT_EQ(program.state.Navigation.FixCount, -1);
    EXPECT_EQ(services.files.Content(Ini), "C:\\GAMES\r\nN\r\nW\r\n");
    Program next(services.ForProgram());
    next.Start();
    ASSERT_TRUE(next.host.Stopped());
    EXPECT_EQ(next.host.Stopped()->exitStatus, 1);
}

TEST_F(FolderScreenTest, DoneAtOnceKeepsNoFolder) {
    program.Start();
    Done();
    EXPECT_EQ(
        services.messages.Take(),
        (std::vector{Message{.prompt = "The navigation data could not be read:\r\n"
                                       "\\GIOSTAM\\navdata: no such folder\r\n"
                                       "Searches will find nothing, and the next start will end at once.",
                             .title = "Tarvex 2.35"}}));
    EXPECT_EQ(Forms(), "InitialLoad");
    EXPECT_EQ(services.files.Content(Ini), "\r\nN\r\nW\r\n");
}

TEST_F(FolderScreenTest, StaysWhileTheSettingsCannotBeWritten) {
    services.files.FailWrite(Ini, DiskFull);
    program.Start();
    Click("C:\\FS2000");
    Done();
    EXPECT_EQ(
        services.messages.Take(),
        (std::vector{Message{.prompt = "The settings file C:\\Tarvex\\Tarvex.INI could not be written:\r\n"
                                       "C:\\Tarvex\\Tarvex.INI: cannot be written\r\n"
                                       "The folder is not kept. Please try again, or close this window.",
                             .title = "Tarvex 2.35"}}));
    EXPECT_EQ(Forms(), "FindFS2000Form");
    program.door.CloseWindow(program.findFS2000Form);
    ASSERT_TRUE(program.host.Stopped());
    EXPECT_EQ(program.host.Stopped()->exitStatus, 0);
}

TEST_F(FolderScreenTest, ClosedItLeavesTheEditorOrBringsTheMenuBack) {
    StartWithTheScreenBeside(&InitialLoad::CreateDP);
    EXPECT_EQ(Forms(), "ModifyProcedureFindFS2000Form");
    Click("C:\\Games");
    program.door.CloseWindow(program.findFS2000Form);
    EXPECT_EQ(Forms(), "ModifyProcedure");
    EXPECT_EQ(program.state.SimulatorPath, "C:\\FS2000");
    program.door.Press(program.modifyProcedure.Get()->OopsCommand);
    program.door.Press(program.initialLoad.Get()->ModifyDP);
    program.host.RunEvent([&] { program.AskForSimulatorFolder(); });
    program.door.CloseWindow(program.findFS2000Form);
    EXPECT_EQ(Forms(), "PickFileInitialLoad");
}

TEST_F(FolderScreenTest, ChosenFolderLeadsBackToTheProcedure) {
    services.files.PutFolder("C:\\Games\\Giostam\\navdata\\Sids");
    StartWithTheScreenBeside(&InitialLoad::CreateDP);
    Click("C:\\Games");
    Done();
    for (Button InitialLoad::*action : {&InitialLoad::ModifySTAR, &InitialLoad::CreateIAP}) {
        program.door.Press(program.initialLoad.Get()->*action);
        EXPECT_EQ(Forms(), "InitialLoadModifyProcedure");
        EXPECT_EQ(program.state.ProcedureMode, "E");
        EXPECT_EQ(program.state.ProcedureFolder, "C:\\Games\\Giostam\\navdata\\Sids\\");
    }
}

}  // namespace
}  // namespace tarvex::testing
