#include "support/editor_road.h"

namespace tarvex::testing {
namespace {

class Saving : public EditorRoad {
  protected:
    ModifyProcedure& CreateNamed(const char* airport, const char* basic) {
        CreateDP();
        Name(airport, basic);
        Add({.fix = "A", .lat = "33", .lon = "117"});
        return Editor();
    }
    void ExpectStop(const std::string& reason) {
        const Message message{.prompt = "An unknown error has crept in.\r\n",
                              .title = "Program termination happens now.",
                              .icon = MessageIcon::Critical};
        EXPECT_EQ(services.messages.Take(), std::vector{message});
        ASSERT_TRUE(program->host.Stopped());
        EXPECT_EQ(program->host.Stopped()->reason, reason);
    }

    const std::string one = "W,A,,0,33.,-117.,0,0,0,0,0,\r\n";
};

TEST_F(Saving, FileNameFollowsTheBoxesAsTheyLoseTheFocus) {
    ModifyProcedure& editor = CreateDP();
    const auto types = [&](TextBox& box, const char* text, const char* name) {
        const std::string before = editor.FilenameText.Caption();
        user->Types(box, text);
        EXPECT_EQ(editor.FilenameText.Caption(), before);
        user->MovesTo(editor.WaypointList);
        EXPECT_EQ(editor.FilenameText.Caption(), name);
        EXPECT_EQ(box.Text(), text);
    };
    types(editor.TransitionText, "27l", ".27L");
    types(editor.AptNameText, "kxyz", "KXYZ.27L");
    types(editor.BasicNameText, "demo1", "KXYZ-DEMO1.27L.tr");
    for (const char* label : {"Runway", "Transition", "Runway"}) {
        user->Toggles(editor.RwySpecificCheck);
        EXPECT_EQ(editor.TransitionLabel1.Caption(), label);
        EXPECT_EQ(editor.FilenameText.Caption(), "KXYZ-DEMO1.27L.tr");
    }
    Add({.fix = "A", .lat = "33"});
    EXPECT_EQ(editor.FilenameText.Caption(), "KXYZ-DEMO1.27L.tr") << "nothing was added";
    Add({.fix = "A", .lat = "33", .lon = "117"});
    EXPECT_EQ(editor.FilenameText.Caption(), "KXYZ-DEMO1.27L.rwy");
    user->Toggles(editor.RwySpecificCheck);
    EXPECT_EQ(Save("KXYZ-DEMO1.27L.tr"), Saved(one));
}

TEST_F(Saving, NeedsANameThatAFileCanHave) {
    ModifyProcedure& editor = CreateNamed("", "DEMO1");
    user->Presses(editor.SaveCommand);
    ExpectMessage("The filename is missing.", "Complete filename.", "SaveCommand");
    Name("KXYZ", "");
    user->Presses(editor.SaveCommand);
    ExpectMessage("The filename is missing.", "Complete filename.", "SaveCommand");
    for (const char* basic : {"..\\A", "A/B", "A:B", "A*", "A?", "\"A", "<", ">", "|", "A\tB"}) {
        Name("kxyz", basic);
        user->Presses(editor.SaveCommand);
        ExpectMessage("No file can have the name " + editor.FilenameText.Caption() +
                          ".\r\nA filename holds none of the characters \\ / : * ? \" < > |",
                      "Correct the filename.", "AptNameText");
    }
    EXPECT_EQ(services.files.Writes(), 0);
    Name("KXYZ", "A-B.C");
    EXPECT_EQ(Save("KXYZ-A-B.C.wsd"), Saved(one));

    OpenDP("KXYZ-A:B?.wsd", one);
    EXPECT_EQ(Save("KXYZ-A:B?.wsd"), Saved(one)) << "what has a name can keep it";
}

TEST_F(Saving, AsksBeforeItOverwritesTheSameNameInACreateMode) {
    const Message shown{.prompt =
                            "There is already a file by the same\r\n"
                            "name as the one you want to save.\r\n"
                            "Click Yes to overwrite that file.\r\n"
                            "Click No to change your filename.",
                        .title = "Tarvex 2.35",
                        .buttons = MessageButtons::YesNo,
                        .icon = MessageIcon::Critical,
                        .defaultAnswer = MessageAnswer::No};
    services.files.Put(Path("KXYZ-DEMO1.wsd"), "before");
    ModifyProcedure& editor = CreateNamed("KXYZ", "DEMO1");
    user->Picks(editor.SLatOption);
    EXPECT_EQ(Save("KXYZ-DEMO1.wsd"), "");
    ExpectMessage(shown, "AptNameText");
    EXPECT_EQ(services.files.Writes(), 0);

    services.messages.Answer(MessageAnswer::Yes);
    EXPECT_EQ(Save("KXYZ-DEMO1.wsd"), Saved(one));
    EXPECT_EQ(services.messages.Take(), std::vector{shown});
    EXPECT_EQ(services.files.Content("C:\\Tarvex\\Tarvex.INI"), "C:\\FS2000\r\nS\r\nW\r\nW\r\n");

    for (const char* name : {"KXYZ-DEMO1.wsd", "KXYZ-DEMO1.ABC.tr", "KXYZ-DEMO1.27L.rwy"}) {
        OpenDP(name, one);
        EXPECT_EQ(Save(name), Saved(one));
    }
    services.files.Put(Path("kxyz-other.wsd"), "before");
    CreateNamed("KXYZ", "OTHER");
    EXPECT_EQ(Save("KXYZ-OTHER.wsd"), Saved("W,A,,0,-33.,-117.,0,0,0,0,0,\r\n"));
    ExpectSilence();

    for (const auto& [create, name] : {std::pair{&InitialLoad::CreateSTAR, "KXYZ-DEMO1.wst"},
                                       {&InitialLoad::CreateIAP, "KXYZ-DEMO1.wap"}}) {
        user->Presses(Menu().*create);
        Name("KXYZ", "DEMO1");
        services.files.Put(State().ProcedureFolder + name, "before");
        user->Presses(Editor().SaveCommand);
        ExpectMessage(shown, "AptNameText");
        ASSERT_TRUE(program->modifyProcedure.IsLoaded());
        user->Presses(Editor().OopsCommand);
    }
}

TEST_F(Saving, RowsThatWereReadKeepTheirDecimals) {
    const std::string lines =
        "W,A,,0,.,.,0,0,0,0,0,\r\nW,B,,0,-.,0000.10,0,0,0,0,0,\r\nW,C,,15,1E1,+.5,0,0,,9000,3,\r\n";
    OpenDP("KXYZ-DEMO1.wsd", lines);
    EXPECT_EQ(Save("KXYZ-DEMO1.wsd"), Saved(lines));
    services.files.Put(Path("kxyz-low.wsd"), Saved("W,A,,0,1,1,0,0,9000,3000,3,\r\n"));
    OpenDP("kxyz-low.wsd");
    EXPECT_EQ(Row(0).Altitude1, FixedField<6>("3000"));
    EXPECT_EQ(Save("KXYZ-LOW.wsd"), Saved("W,A,,0,1,1,0,0,3000,9000,3,\r\n"));
    EXPECT_EQ(Row(0).Altitude1, FixedField<6>("9000"));
}

TEST_F(Saving, TextThatTheFileCanNotHoldIsNotSaved) {
    ModifyProcedure& editor = CreateNamed("KXYZ", "DEMO1");
    Add({.fix = "B", .lat = "33", .lon = "117", .altitude = "1,000"});
    user->Presses(editor.SaveCommand);
    ExpectMessage(
        "Waypoint 2 of the list holds the text 1,000\r\n"
        "A procedure file can not hold a comma or a line end in it, nor a quote at its beginning.\r\n"
        "Nothing was saved. Please correct the waypoint.",
        "Correct to continue.", "SaveCommand");
    EXPECT_EQ(services.files.Writes(), 0);
}

TEST_F(Saving, TypeThatIsNoNumberStopsBeforeTheFileIsOpened) {
    const std::string stored = "; 2.35\r\nW,A,,X,1,1,0,0,0,0,0,\r\n";
    services.files.Put(Path("KXYZ-DEMO1.wsd"), stored);
    user->Presses(OpenDP("KXYZ-DEMO1.wsd").SaveCommand);
    ExpectStop("\"X \" is not a number");
    EXPECT_EQ(services.files.Content(Path("KXYZ-DEMO1.wsd")), stored);
}

TEST_F(Saving, FailuresOfTheFileGoByTheirNumber) {
    const std::string ini = "C:\\Tarvex\\Tarvex.INI";
    services.files.FailWrite(Path("KXYZ-DEMO1.wsd"), FileNotFound);
    ModifyProcedure& editor = CreateNamed("KXYZ", "DEMO1");
    Add({.fix = "B",
         .lat = "33",
         .lon = "117",
         .altitude = "3000",
         .upperAltitude = "9000",
         .restriction = Band});
    for (const char* name : {"DEMO1", "DEMO2"}) {  // the second time it is the settings
        user->Types(editor.BasicNameText, name);
        EXPECT_EQ(Save("none"), "");
        EXPECT_TRUE(program->findFS2000Form.IsLoaded());
        EXPECT_TRUE(editor.Visible());
        ExpectSilence();
        // The rows are as they were, and a save that can write still writes the band lower first.
        EXPECT_EQ(Row(1).Altitude1, FixedField<6>("3000"));
        services.files.FailWrite(ini, FileNotFound);
    }
    services.files.FailWrite(ini, 0);
    user->Types(editor.BasicNameText, "DEMO3");
    EXPECT_EQ(Save("KXYZ-DEMO3.wsd"), Saved(one + "W,B,,0,33.,-117.,0,0,3000,9000,3,\r\n"));
}

TEST_F(Saving, SettingsThatCanNotBeWrittenStopTheProgram) {
    services.files.FailWrite("C:\\Tarvex\\Tarvex.INI", DiskFull);
    user->Presses(CreateNamed("KXYZ", "DEMO1").SaveCommand);
    ExpectStop("C:\\Tarvex\\Tarvex.INI: cannot be written");
    EXPECT_EQ(services.files.Content(Path("KXYZ-DEMO1.wsd")), Saved(one));
}

}  // namespace
}  // namespace tarvex::testing
