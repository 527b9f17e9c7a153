#include "support/editor_road.h"

namespace tarvex::testing {
namespace {

class Picker : public EditorRoad {
  protected:
    Picker() {
        for (const char* name : {"kjfk-LATER.wsd", "KLAX-PERCH1.VTU.tr", "KJFK-SKORR3.wsd", "readme.txt"}) {
            services.files.Put(Path(name), "; 2.35\r\n");
        }
    }
    PickFile& Open() {
        user->Presses(Menu().ModifyDP);
        return *program->pickFile.Get();
    }
};

TEST_F(Picker, NarrowsTheListByWhatIsTypedAndStartsAfreshEachTime) {
    PickFile& picker = Open();
    EXPECT_EQ(picker.Caption(), "Procedure Select");
    EXPECT_EQ(user->FocusName(), "FileList");
    using Names = std::vector<std::string>;
    const Names all{"kjfk-LATER.wsd", "KJFK-SKORR3.wsd", "KLAX-PERCH1.VTU.tr", "readme.txt"};
    const std::pair<const char*, Names> cases[] = {
        {"KjFk-S", {all[0], all[1]}}, {"*", {}}, {"KJFX", {}}, {"", all}, {"k", {all[0], all[1], all[2]}}};
    for (const auto& [typed, names] : cases) {
        user->Types(picker.PickICAO, typed);
        EXPECT_EQ(picker.FileList.Lines(), names) << typed;
        EXPECT_EQ(user->FocusName(), "PickICAO");
    }
    EXPECT_TRUE(user->PicksFile(picker.FileList, all[2]));
    EXPECT_EQ(State().ProcedureFileName, all[2]);
    EXPECT_TRUE(program->pickFile.IsLoaded());
    EXPECT_EQ(program->host.Visible(), std::vector<Form*>{&Editor()});
    user->Presses(Editor().OopsCommand);

    PickFile& second = Open();
    EXPECT_EQ(State().ProcedureFileName, "");
    EXPECT_EQ(second.FileList.Lines(), all);
    EXPECT_TRUE(Menu().Visible());
    user->Presses(second.DoneCommand);
    EXPECT_FALSE(program->pickFile.IsLoaded());
    EXPECT_EQ(program->host.Visible(), std::vector<Form*>{&Menu()});
}

TEST_F(Picker, LettersTypedBesideTheBoxNarrowTheListAndEnterOpensTheOnlyFile) {
    PickFile& picker = Open();
    for (const char* letter : {"k", "l", "a", "x", "y"}) program->door.TypeBeside(picker, letter);
    EXPECT_EQ(picker.PickICAO.Text(), "klax");
    EXPECT_EQ(user->FocusName(), "PickICAO");
    user->Types(picker.PickICAO, "kj");
    program->door.Key(picker, ShortcutKey::Enter);
    EXPECT_FALSE(program->modifyProcedure.IsLoaded()) << "there are two";
    user->Types(picker.PickICAO, "kl");
    program->door.Key(picker, ShortcutKey::Enter);
    EXPECT_EQ(Editor().FilenameText.Caption(), "KLAX-PERCH1.VTU.tr");
}

TEST_F(Picker, OpensItsOwnKindAfterAnotherWasCreatedBesideIt) {
    PickFile& picker = Open();
    user->Presses(Menu().CreateSTAR);
    user->Presses(Editor().OopsCommand);
    user->PicksFile(picker.FileList, "KLAX-PERCH1.VTU.tr");
    EXPECT_EQ(Editor().ActionLabel.Caption(), "Modify a Departure Procedure");
    EXPECT_EQ(Editor().BasicNameText.Text(), "PERCH1");
    EXPECT_EQ(State().ProcedureFolder + State().ProcedureFileName, Path("KLAX-PERCH1.VTU.tr"));
}

TEST_F(Picker, MissingFolderStopsTheProgram) {
    services.files.RemoveFolder("C:\\FS2000\\Giostam\\navdata\\Sids");
    user->Presses(Menu().ModifyDP);
    const Message expected{
        .prompt =
            "I could not find the 767 Pilot in Command (PIC) data files in C:\\FS2000 .\r\n"
            "Please insure PIC is loaded in it's default location within FS2000.\r\n"
            "This program can not run without the data files and must now terminate.",
        .title = "Program termination.",
        .icon = MessageIcon::Critical};
    EXPECT_EQ(services.messages.Take(), std::vector{expected});
    ASSERT_TRUE(program->host.Stopped());
    EXPECT_EQ(program->host.Stopped()->exitStatus, 1);
}

}  // namespace
}  // namespace tarvex::testing
