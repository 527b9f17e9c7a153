#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <sys/mount.h>

#include "geometry/text_rules.h"
#include "support/scripted_user.h"
#include "support/temp_folder.h"
#include "support/test_services.h"
#include "toolkit/native_file_system.h"

// The program on real files that fail: a full disk, a read-only one, what goes away while it is in use.

namespace tarvex::testing {
namespace {

const std::string Star = "FS2000/GIOSTAM/navdata/Stars/KXYZ-DEMO1.wst";
const std::string Stored =
    "; made by hand 2.35\r\n\r\nW,ALPHA,,0,33.5,-118.25,0,250,0,5000,1,\r\n\r\nEnd of Terminal Procedure\r\n";

// The program's folder and the simulator's on a disk of their own, where the test may mount one.
class RealFaults : public ::testing::Test {
  protected:
    ~RealFaults() override {
        if (mounted_) umount2(folder.On("").c_str(), MNT_DETACH);
    }

    bool Mount() {
        mounted_ = mount("tarvex", folder.On("").c_str(), "tmpfs", 0, "size=64k") == 0;
        return mounted_;
    }
    void MakeReadOnly() {
        ASSERT_EQ(mount("tarvex", folder.On("").c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, "size=64k"), 0);
    }
    // Takes all the room that is left.
    void FillUp() {
        std::ofstream filler(folder.On("filler"), std::ios::binary);
        for (const std::string page(4096, 'x'); filler.write(page.data(), 4096).flush();) {
        }
    }

    void PutSimulator(std::string_view star) {
        folder.Put("Tarvex/Tarvex.INI", folder.Path("FS2000") + "\r\nN\r\nW\r\nW\r\n");
        for (const char* name : {"wpNavFIX.txt", "wpNavAID.txt", "wpNavAPT.txt"}) {
            folder.Put(std::string("FS2000/GIOSTAM/navdata/") + name, "; none\r\n");
        }
        folder.Put(Star, star);
    }
    void Register() {
        services.Register(folder.Path("FS2000"));
        std::filesystem::remove(folder.On("Tarvex/Tarvex.INI"));
    }
    void Start() {
        program.emplace(
            Platform{*files, services.registry, services.clock, services.messages, folder.Path("Tarvex")});
        program->Start();
        user.emplace(*program);
    }
    void AskForStar() { user->Presses(program->initialLoad.Get()->ModifySTAR); }
    void PickStar() { user->PicksFile(program->pickFile.Get()->FileList, "KXYZ-DEMO1.wst"); }
    void OpenStar() {
        AskForStar();
        PickStar();
    }
    void Save() { user->Presses(program->modifyProcedure.Get()->SaveCommand); }
    void AddRows(int count) {
        ModifyProcedure& editor = *program->modifyProcedure.Get();
        for (int i = 0; i < count; ++i) {
            for (TextBox* box : {&editor.FixNameText, &editor.DDMLatText, &editor.DDMLongText}) {
                program->door.Type(*box, "12");
            }
            user->Presses(editor.AddWaypointCommand);
        }
    }

    // The titles of the messages since the last look, then where the program is.
    std::string End() {
        std::string end;
        for (const Message& message : services.messages.Take()) end += "[" + message.title + "] ";
        if (program->host.Stopped()) return end + "stopped: " + program->host.Stopped()->reason;
        for (const Form* form : program->host.Visible()) end += form->Name();
        return end;
    }
    std::string StarPath() const {
        return folder.Path("FS2000") + "\\Giostam\\navdata\\Stars\\KXYZ-DEMO1.wst";
    }

    TempFolder folder;
    std::unique_ptr<FileSystem> files = MakeNativeFileSystem();
    TestServices services;
    std::optional<Program> program;
    std::optional<ScriptedUser> user;

  private:
    bool mounted_ = false;
};

TEST_F(RealFaults, FullDiskLosesNothing) {
    if (!Mount()) GTEST_SKIP() << "no disk can be mounted here";
    PutSimulator(Stored);
    Start();
    OpenStar();
    AddRows(200);
    FillUp();
    Save();
    EXPECT_EQ(End(), "[Program termination happens now.] stopped: " + StarPath() + ": the disk is full");
    EXPECT_EQ(folder.Content(Star), Stored);

    Register();
    FillUp();
    Start();
    EXPECT_EQ(End(), "[Tarvex 2.35] InitialLoad");
    OpenStar();
    EXPECT_EQ(End(), "ModifyProcedure");

    std::filesystem::remove(folder.On("filler"));
    AddRows(200);
    Save();
    EXPECT_EQ(End(), "InitialLoad");
}

TEST_F(RealFaults, ReadOnlyDiskIsReadAndKept) {
    if (!Mount()) GTEST_SKIP() << "no disk can be mounted here";
    const std::string repairable =
        Stored.substr(0, Stored.find("33.5")) + "33.5NN,-118.25WW,0,250,0,5000,1,\r\n";
    PutSimulator(repairable);
    folder.Put("FS2000/GIOSTAM/navdata/Stars/KXYZ-SOUND.wst", Stored);
    Register();
    MakeReadOnly();
    Start();
    EXPECT_EQ(End(), "[Tarvex 2.35] InitialLoad");
    OpenStar();
    EXPECT_EQ(End(), "[Procedure not opened.] InitialLoad");
    AskForStar();
    user->PicksFile(program->pickFile.Get()->FileList, "KXYZ-SOUND.wst");
    Save();
    // The folder of the registry is kept in capitals.
    EXPECT_EQ(End(), "[Program termination happens now.] stopped: " + Upper(folder.Path("FS2000")) +
                         "\\Giostam\\navdata\\Stars\\KXYZ-SOUND.wst: on a read-only medium");
    EXPECT_EQ(folder.Content(Star), repairable);

    services.Register("");
    Start();
    EXPECT_EQ(End(), "FindFS2000Form");
    program->door.Press(program->findFS2000Form.Get()->FindDoneCommand);
    EXPECT_EQ(End(), "[Tarvex 2.35] FindFS2000Form");
}

TEST_F(RealFaults, FileThatGoesAwayIsNotOpenedAndIsSavedAnew) {
    PutSimulator(Stored);
    Start();
    AskForStar();
    std::filesystem::remove(folder.On(Star));
    PickStar();
    EXPECT_EQ(End(), "[Procedure not opened.] InitialLoad");

    folder.Put(Star, Stored);
    OpenStar();
    std::filesystem::remove(folder.On(Star));
    Save();
    EXPECT_EQ(End(), "InitialLoad");
    EXPECT_EQ(folder.Content(Star).substr(folder.Content(Star).find('\n')), Stored.substr(Stored.find('\n')));
}

TEST_F(RealFaults, ProcedureFolderThatGoesAwayIsToldApart) {
    PutSimulator(Stored);
    const auto stars = folder.On("FS2000/GIOSTAM/navdata/Stars");
    Start();
    AskForStar();
    std::filesystem::remove_all(stars);
    PickStar();
    EXPECT_EQ(End(), "[Procedure not opened.] InitialLoad");

    folder.Put(Star, Stored);
    OpenStar();
    std::filesystem::remove_all(stars);
    Save();
    EXPECT_EQ(End(), "[Program termination.] stopped: " + StarPath() + ": no such folder");

    Start();
    AskForStar();
    EXPECT_EQ(End(), "[Program termination.] stopped: " + folder.Path("FS2000") +
                         "\\Giostam\\navdata\\Stars\\: no such folder");
}

}  // namespace
}  // namespace tarvex::testing
