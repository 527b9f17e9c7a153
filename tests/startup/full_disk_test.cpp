#include <filesystem>
#include <gtest/gtest.h>
#include <sys/mount.h>

#include "support/road.h"
#include "support/temp_folder.h"
#include "toolkit/native_file_system.h"

// The program on a real disk without room.

namespace tarvex::testing {
namespace {

const std::string Star = "FS2000/GIOSTAM/navdata/Stars/KXYZ-DEMO1.wst";
const std::string Stored =
    "; made by hand 2.35\r\n\r\nW,ALPHA,,0,33.5,-118.25,0,250,0,5000,1,\r\n\r\nEnd of Terminal Procedure\r\n";

class FullDisk : public ::testing::Test {
  protected:
    ~FullDisk() override {
        if (mounted_) umount2(folder.On("").c_str(), MNT_DETACH);
    }
    bool Mount() {
        mounted_ = mount("tarvex", folder.On("").c_str(), "tmpfs", 0, "size=64k") == 0;
        return mounted_;
    }
    // Takes all the room that is left.
    void FillUp() {
        std::ofstream filler(folder.On("filler"), std::ios::binary);
        for (const std::string page(4096, 'x'); filler.write(page.data(), 4096).flush();) {
        }
    }
    void OpenStarAndAddRows() {
        road.Do("ModifySTAR | FileList#KXYZ-DEMO1.wst");
        for (int row = 0; row < 200; ++row) {
            road.Do("FixNameText=12 | DDMLatText=12 | DDMLongText=12 | AddWaypointCommand");
        }
    }

    TempFolder folder;
    std::unique_ptr<FileSystem> files = MakeNativeFileSystem();
    TestServices services;
    Road road{services};

  private:
    bool mounted_ = false;
};

TEST_F(FullDisk, LosesNothing) {
    if (!Mount()) GTEST_SKIP() << "no disk can be mounted here";
    folder.Put("Tarvex/Tarvex.INI", folder.Path("FS2000") + "\r\nN\r\nW\r\nW\r\n");
    for (const char* name : {"wpNavFIX.txt", "wpNavAID.txt", "wpNavAPT.txt"}) {
        folder.Put(std::string("FS2000/GIOSTAM/navdata/") + name, "; none\r\n");
    }
    folder.Put(Star, Stored);
    road.Start(files.get(), folder.Path("Tarvex"));
    OpenStarAndAddRows();
    FillUp();
    const std::string path = folder.Path("FS2000") + "\\Giostam\\navdata\\Stars\\KXYZ-DEMO1.wst";
    EXPECT_EQ(road.Do("SaveCommand"),
              "    [Program termination happens now., critical] An unknown error has crept in.\xC2\xB6\n"
              "    stopped 1: " +
                  path + ": the disk is full\n");
    EXPECT_EQ(folder.Content(Star), Stored);

    // Settings that find no room, but for the start.
    services.Register(folder.Path("FS2000"));
    std::filesystem::remove(folder.On("Tarvex/Tarvex.INI"));
    FillUp();
    EXPECT_TRUE(road.Start(files.get(), folder.Path("Tarvex")).ends_with("    InitialLoad @CreateDP\n"));
    OpenStarAndAddRows();
    std::filesystem::remove(folder.On("filler"));
    road.Do("SaveCommand");
    EXPECT_EQ(road.Place(), "InitialLoad @ModifySTAR");
    EXPECT_GT(folder.Content(Star).size(), 200U * 20);
}

}  // namespace
}  // namespace tarvex::testing
