#include <gtest/gtest.h>

#include "support/failure_of.h"
#include "support/memory_file_system.h"
#include "toolkit/drive_lists.h"
#include "toolkit/form_host.h"
#include "toolkit/list_box.h"
#include "toolkit/user_door.h"

namespace tarvex::testing {
namespace {

using Names = std::vector<std::string>;

struct Lists : Form {
    Lists(FormHost& formHost, FileSystem& files)
        : Form(formHost, "Lists", ""),
          Drive(*this, "Drive", 0, files),
          Dir(*this, "Dir", 1, files),
          File(*this, "File", 2, files) {}

    DriveList Drive;
    FolderList Dir;
    FileList File;
    ListBox Box{*this, "Box", 3};
};

class ListsTest : public ::testing::Test {
  protected:
    ListsTest() {
        files.SetDrives({"C:\\", "D:\\"});
        files.SetCurrentFolder("C:\\Games\\FS");
        for (const char* folder : {"C:\\Games\\FS\\b", "C:\\Games\\FS\\A", "C:\\Games\\FS\\c", "D:\\"}) {
            files.PutFolder(folder);
        }
        slot.Show();
    }
    Lists& Form() { return *slot.Get(); }

    MemoryFileSystem files;
    FormHost host;
    FormSlot<Lists> slot{host, [this] { return std::make_unique<Lists>(host, files); }};
    UserDoor door{host};
};

TEST_F(ListsTest, PathOfADriveIsItsCurrentFolder) {
    FolderList& list = Form().Dir;
    std::string shown;
    list.Observe([&] { shown = list.Path(); });
    list.SetPath("D:\\");
    EXPECT_EQ(list.Path(), "D:\\");
    EXPECT_EQ(shown, list.Path());
    list.SetPath("C:\\Games\\");
    EXPECT_EQ(list.Path(), "C:\\Games");
    list.SetPath("C:");
    for (const char* missing : {"C:\\gone", "E:\\"}) {
        EXPECT_EQ(NumberOf([&] { list.SetPath(missing); }), PathNotFound);
    }
    EXPECT_EQ(list.Path(), "C:\\Games\\FS");
    EXPECT_EQ(list.ListCount(), 3);
    EXPECT_EQ(list.List(-3) + list.List(-1) + list.List(2), "C:\\C:\\Games\\FSC:\\Games\\FS\\c");
    for (const int index : {-4, 3}) {
        EXPECT_EQ(NumberOf([&] { list.List(index); }), BadArgument);
        EXPECT_EQ(NumberOf([&] { list.SetListIndex(index); }), BadArgument);
    }
}

TEST_F(ListsTest, DriveListTakesKnownDrivesInAnyForm) {
    DriveList& list = Form().Drive;
    std::string changes;
    list.OnChange = [&] { changes += list.Drive(); };
    EXPECT_EQ(list.Drive(), "C:\\");
    for (const char* same : {"c:", "C:\\", "c:\\fs2000"}) list.SetDrive(same);
    list.SetDrive("d:\\x");
    EXPECT_EQ(changes, "D:\\");
    for (const char* unknown : {"E:\\", "", "\\", "C"}) {
        EXPECT_EQ(NumberOf([&] { list.SetDrive(unknown); }), PathNotFound) << unknown;
    }
    EXPECT_EQ(list.Drive(), "D:\\");
    files.SetDrives({"D:\\", "\\"});
    slot.Unload();
    slot.Show();
    EXPECT_EQ(Form().Drive.Drive(), "D:\\") << "the first, where the current folder is on none";
    Form().Drive.SetDrive("\\home");
    EXPECT_EQ(Form().Drive.Drive(), "\\") << "a root without drives";
}

TEST_F(ListsTest, FileListNarrowsByTheBeginningOfNamesAndTellsTheNameClicked) {
    for (const char* name : {"KXYZ-B.wsd", "kxyz-a.wsd", "K*-C.wsd", "KABC-A.wsd", "README2", "readme"}) {
        files.Put("C:\\Sids\\" + std::string(name), "");
    }
    files.PutFolder("C:\\Sids\\folder");
    const Names all{"K*-C.wsd", "KABC-A.wsd", "kxyz-a.wsd", "KXYZ-B.wsd", "readme", "README2"};
    FileList& list = Form().File;
    Names clicked;
    list.OnClick = [&] { clicked.push_back(list.FileName()); };
    list.SetPath("C:\\Sids\\");
    EXPECT_EQ(list.Lines(), all);
    EXPECT_TRUE(door.PickFile(list, 3));
    const std::pair<const char*, Names> patterns[] = {
        {"K**", {all[0]}}, {"K?*", {}}, {"Q*", {}}, {"*", all}, {"kXy*", {all[2], all[3]}}};
    for (const auto& [pattern, lines] : patterns) {
        list.SetPattern(pattern);
        EXPECT_EQ(list.Lines(), lines) << pattern;
        EXPECT_EQ(list.FileName(), "");
    }
    EXPECT_TRUE(door.PickFile(list, 0));
    EXPECT_EQ(clicked, (Names{"KXYZ-B.wsd", "kxyz-a.wsd"}));
    EXPECT_EQ(FailureOf([&] { list.SetListIndex(2); }).Reason(), "File has nothing of that number");
    EXPECT_EQ(NumberOf([&] { list.SetPath("C:\\gone\\"); }), PathNotFound);
    EXPECT_EQ(list.Path(), "C:\\Sids\\");
    EXPECT_EQ(list.Lines().size(), 2U);
}

TEST_F(ListsTest, ListBoxKeepsTheSelectionOnItsLine) {
    ListBox& box = Form().Box;
    int clicks = 0;
    box.OnClick = [&] { ++clicks; };
    for (const char* line : {"one", "two", "three"}) box.AddItem(line);
    box.SetListIndex(1);
    box.SetListIndex(1);
    EXPECT_EQ(clicks, 1);

    box.AddItem("zero", 0);
    EXPECT_EQ(box.Text(), "two");
    EXPECT_EQ(box.NewestLine(), 0);
    box.RemoveItem(0);
    EXPECT_EQ(box.NewestLine(), ListBox::NoSelection);
    box.RemoveItem(2);
    EXPECT_EQ(box.Text(), "two");
    box.RemoveItem(1);
    EXPECT_EQ(box.ListIndex(), ListBox::NoSelection);
    EXPECT_EQ(box.Lines(), Names{"one"});
    box.SetListIndex(0);
    EXPECT_EQ(box.NewestLine(), 0);
    box.Clear();
    EXPECT_EQ(box.Text(), "");
    EXPECT_EQ(box.NewestLine(), ListBox::NoSelection);
    EXPECT_EQ(clicks, 2);
    for (const int index : {-2, 0}) {
        EXPECT_EQ(NumberOf([&] { box.SetListIndex(index); }), BadArgument) << index;
        EXPECT_EQ(NumberOf([&] { box.RemoveItem(index); }), BadArgument) << index;
    }
    EXPECT_EQ(NumberOf([&] { box.AddItem("x", 1); }), BadArgument);
}

}  // namespace
}  // namespace tarvex::testing
