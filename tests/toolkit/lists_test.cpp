#include <gtest/gtest.h>

#include "support/memory_file_system.h"
#include "toolkit/drive_lists.h"
#include "toolkit/failure.h"
#include "toolkit/form_host.h"
#include "toolkit/list_box.h"
#include "toolkit/user_door.h"

namespace tarvex::testing {
namespace {

using Names = std::vector<std::string>;

template <class Call>
int NumberOf(Call call) {
    try {
        call();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

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
    Names Rows() {
        Names rows;
        for (int i = Form().Dir.FirstIndex(); i < Form().Dir.ListCount(); ++i) {
            rows.push_back(Form().Dir.Name(i));
        }
        return rows;
    }

    MemoryFileSystem files;
    FormHost host;
    FormSlot<Lists> slot{host, [this] { return std::make_unique<Lists>(host, files); }};
    UserDoor door{host};
};

TEST_F(ListsTest, FolderListShowsTheWayDownAndWhatLiesBelow) {
    FolderList& list = Form().Dir;
    EXPECT_EQ(list.Path(), "C:\\Games\\FS");
    EXPECT_EQ(Rows(), (Names{"C:\\", "Games", "FS", "A", "b", "c"}));
    EXPECT_EQ(list.List(-3), "C:\\");
    EXPECT_EQ(list.List(-2), "C:\\Games");
    EXPECT_EQ(list.List(-1), "C:\\Games\\FS");
    EXPECT_EQ(list.List(2), "C:\\Games\\FS\\c");
    EXPECT_EQ(NumberOf([&] { list.List(-4); }), BadArgument);
    EXPECT_EQ(NumberOf([&] { list.List(3); }), BadArgument);
}

TEST_F(ListsTest, ClickChoosesAndDoubleClickWalks) {
    FolderList& list = Form().Dir;
    int clicks = 0;
    int changes = 0;
    list.OnClick = [&] { ++clicks; };
    list.OnChange = [&] { ++changes; };

    EXPECT_TRUE(door.PickFolder(list, 0));
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_EQ(list.Path(), "C:\\Games\\FS");
    EXPECT_TRUE(door.OpenFolder(list, 0));
    EXPECT_EQ(list.Path(), "C:\\Games\\FS\\A");
    EXPECT_EQ(list.ListIndex(), FolderList::OpenFolder);
    EXPECT_TRUE(door.OpenFolder(list, list.FirstIndex()));
    EXPECT_EQ(list.Path(), "C:\\") << "the root itself, not the drive's current folder";
    EXPECT_EQ(Rows(), (Names{"C:\\", "Games"}));
    EXPECT_TRUE(door.OpenFolder(list, FolderList::OpenFolder));
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(changes, 2);
}

TEST_F(ListsTest, PathOfADriveIsItsCurrentFolder) {
    FolderList& list = Form().Dir;
    list.SetPath("D:\\");
    EXPECT_EQ(list.Path(), "D:\\");
    list.SetPath("C:");
    EXPECT_EQ(list.Path(), "C:\\Games\\FS");
    EXPECT_EQ(NumberOf([&] { list.SetPath("C:\\gone"); }), PathNotFound);
    EXPECT_EQ(NumberOf([&] { list.SetPath("E:\\"); }), PathNotFound);
    EXPECT_EQ(list.Path(), "C:\\Games\\FS");
    EXPECT_EQ(list.ListCount(), 3);
}

TEST_F(ListsTest, DriveListTakesKnownDrivesInAnyForm) {
    DriveList& list = Form().Drive;
    int changes = 0;
    list.OnChange = [&] { ++changes; };
    EXPECT_EQ(list.Drive(), "C:\\");
    for (const char* same : {"c:", "C:\\", "c:\\fs2000"}) list.SetDrive(same);
    EXPECT_EQ(changes, 0);
    list.SetDrive("d:\\x");
    EXPECT_EQ(list.Drive(), "D:\\");
    EXPECT_EQ(changes, 1);
    for (const char* unknown : {"E:\\", "", "\\", "C"}) {
        EXPECT_EQ(NumberOf([&] { list.SetDrive(unknown); }), PathNotFound) << unknown;
    }
    EXPECT_EQ(list.Drive(), "D:\\");
}

TEST_F(ListsTest, DriveThatCannotBeEnteredIsNotTaken) {
    Lists& form = Form();
    form.Drive.OnChange = [&] { form.Dir.SetPath(form.Drive.Drive()); };
    files.RemoveFolder("D:");
    EXPECT_EQ(NumberOf([&] { form.Drive.SetDrive("D:"); }), PathNotFound);
    EXPECT_EQ(form.Drive.Drive(), "C:\\");
    EXPECT_EQ(form.Dir.Path(), "C:\\Games\\FS");
}

TEST_F(ListsTest, RootWithoutDrivesServesAsOne) {
    files.SetDrives({"C:\\", "\\"});
    files.SetCurrentFolder("\\home\\pilot");
    files.PutFolder("\\home\\pilot\\fs");
    slot.Unload();
    slot.Show();
    EXPECT_EQ(Form().Drive.Drive(), "\\");
    EXPECT_EQ(Rows(), (Names{"\\", "home", "pilot", "fs"}));
    EXPECT_EQ(Form().Dir.List(0), "\\home\\pilot\\fs");
}

TEST_F(ListsTest, FileListNarrowsByTheBeginningOfNames) {
    for (const char* name : {"KXYZ-B.wsd", "kxyz-a.wsd", "K*-C.wsd", "KABC-A.wsd", "readme"}) {
        files.Put("C:\\Sids\\" + std::string(name), "");
    }
    files.PutFolder("C:\\Sids\\folder");
    FileList& list = Form().File;
    list.SetPath("C:\\Sids\\");
    EXPECT_EQ(list.Lines(), (Names{"K*-C.wsd", "KABC-A.wsd", "kxyz-a.wsd", "KXYZ-B.wsd", "readme"}));
    const std::pair<const char*, Names> patterns[] = {
        {"kXy*", {"kxyz-a.wsd", "KXYZ-B.wsd"}},
        {"K**", {"K*-C.wsd"}},
        {"K?*", {}},
        {"Q*", {}},
        {"*", {"K*-C.wsd", "KABC-A.wsd", "kxyz-a.wsd", "KXYZ-B.wsd", "readme"}},
    };
    for (const auto& [pattern, lines] : patterns) {
        list.SetPattern(pattern);
        EXPECT_EQ(list.Lines(), lines) << pattern;
        EXPECT_EQ(list.ListIndex(), -1);
    }
    EXPECT_EQ(NumberOf([&] { list.SetPath("C:\\gone\\"); }), PathNotFound);
    EXPECT_EQ(list.Path(), "C:\\Sids\\");
    EXPECT_EQ(list.Lines().size(), 5u);
}

TEST_F(ListsTest, FileListTellsTheNameClicked) {
    files.Put("C:\\Sids\\KABC-A.wsd", "");
    files.Put("C:\\Sids\\KXYZ-B.wsd", "");
    FileList& list = Form().File;
    list.SetPath("C:\\Sids");
    Names clicked;
    list.OnClick = [&] { clicked.push_back(list.FileName()); };
    EXPECT_EQ(list.FileName(), "");
    EXPECT_TRUE(door.PickFile(list, 1));
    list.SetPattern("KA*");
    EXPECT_EQ(list.FileName(), "");
    EXPECT_TRUE(door.PickFile(list, 0));
    EXPECT_EQ(clicked, (Names{"KXYZ-B.wsd", "KABC-A.wsd"}));
    EXPECT_EQ(NumberOf([&] { list.SetListIndex(1); }), BadArgument);
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
    box.RemoveItem(0);
    box.RemoveItem(2);
    EXPECT_EQ(box.ListIndex(), 1);
    EXPECT_EQ(box.Text(), "two");
    box.RemoveItem(1);
    EXPECT_EQ(box.ListIndex(), ListBox::NoSelection);
    EXPECT_EQ(box.Text(), "");
    EXPECT_EQ(box.Lines(), Names{"one"});
    box.SetListIndex(0);
    box.Clear();
    EXPECT_EQ(box.ListIndex(), ListBox::NoSelection);
    EXPECT_EQ(clicks, 2);
    box.SetListIndex(ListBox::NoSelection);
    EXPECT_EQ(clicks, 2);
    for (const int index : {-2, 0}) {
        EXPECT_EQ(NumberOf([&] { box.SetListIndex(index); }), BadArgument) << index;
        EXPECT_EQ(NumberOf([&] { box.RemoveItem(index); }), BadArgument) << index;
    }
    EXPECT_EQ(NumberOf([&] { box.AddItem("x", 1); }), BadArgument);
}

}  // namespace
}  // namespace tarvex::testing
