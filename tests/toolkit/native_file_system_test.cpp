#include "toolkit/native_file_system.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

#include "support/temp_folder.h"
#include "toolkit/failure.h"

namespace tarvex::testing {
namespace {

class NativeFiles : public ::testing::Test {
  protected:
    // The number that the call fails with, or 0; its reason must be one line that names the path.
    static int NumberOf(const std::string& path, const std::function<void()>& call) {
        try {
            call();
            return 0;
        } catch (const Failure& failure) {
            EXPECT_TRUE(failure.Reason().starts_with(path + ": ")) << failure.Reason();
            EXPECT_EQ(failure.Reason().find('\n'), std::string::npos);
            return failure.Number();
        }
    }
    int ReadNumber(const std::string& path) {
        return NumberOf(path, [&] { files->Read(path); });
    }
    int WriteNumber(const std::string& path) {
        return NumberOf(path, [&] { files->Write(path, "new"); });
    }

    static std::vector<std::string> Sorted(std::vector<std::string> names) {
        std::sort(names.begin(), names.end());
        return names;
    }

    TempFolder folder;
    std::unique_ptr<FileSystem> files = MakeNativeFileSystem();
};

TEST_F(NativeFiles, EveryByteComesBackAndReplacesWhatWasThere) {
    std::string bytes;
    for (int i = 0; i < 1000; ++i) bytes += static_cast<char>(i);
    const std::string path = folder.Path("X.wsd");
    for (const std::string& text : {bytes, std::string("short\r\n"), bytes + bytes, std::string()}) {
        files->Write(path, text);
        EXPECT_EQ(folder.Content("X.wsd"), text);
        EXPECT_EQ(files->Read(path).View(), text);
    }
}

TEST_F(NativeFiles, CaseDoesNotMatterAndStoredSpellingStays) {
    folder.Put("GIOSTAM/navdata/Sids/KXYZ-Demo1.wsd", "old");
    const std::string other = folder.Path("Giostam\\NavData\\SIDS\\kxyz-DEMO1.WSD");

    EXPECT_EQ(files->Read(other).View(), "old");
    EXPECT_EQ(files->FindFile(other), "KXYZ-Demo1.wsd");
    files->Write(other, "new");
    EXPECT_EQ(folder.Content("GIOSTAM/navdata/Sids/KXYZ-Demo1.wsd"), "new");

    files->Write(folder.Path("giostam\\navdata\\sids\\Kabc-New.wsd"), "x");
    EXPECT_EQ(Sorted(files->Files(folder.Path("giostam\\navdata\\\\sids\\"))),
              (std::vector<std::string>{"KXYZ-Demo1.wsd", "Kabc-New.wsd"}));
}

TEST_F(NativeFiles, EachFailureHasItsNumber) {
    folder.Put("file", "kept");
    folder.Put("sub/inner", "");
    const std::string zero = folder.Path("fi") + std::string(1, '\0') + "le";

    EXPECT_EQ(ReadNumber(folder.Path("missing")), FileNotFound);
    EXPECT_EQ(ReadNumber(folder.Path("missing\\x")), PathNotFound);
    EXPECT_EQ(ReadNumber(folder.Path("file\\x")), PathNotFound);
    EXPECT_EQ(ReadNumber(folder.Path("sub")), AccessError);
    EXPECT_EQ(ReadNumber(zero), PathNotFound);
    EXPECT_EQ(WriteNumber(folder.Path("missing\\x")), PathNotFound);
    EXPECT_EQ(WriteNumber(folder.Path("file\\x")), PathNotFound);
    EXPECT_EQ(WriteNumber(folder.Path("sub")), AccessError);
    EXPECT_EQ(WriteNumber(zero), PathNotFound);
    for (const std::string& path : {folder.Path("missing"), folder.Path("file"), zero}) {
        EXPECT_EQ(NumberOf(path, [&] { files->Files(path); }), PathNotFound);
        EXPECT_EQ(NumberOf(path, [&] { files->Folders(path); }), PathNotFound);
    }
    EXPECT_EQ(folder.Content("file"), "kept");
}

TEST_F(NativeFiles, LookUpFindsPlainFilesOnly) {
    folder.Put("sub/inner", "");
    EXPECT_EQ(files->FindFile(folder.Path("sub\\inner")), "inner");
    EXPECT_EQ(files->FindFile(folder.Path("sub\\inn*")), std::nullopt);
    EXPECT_EQ(files->FindFile(folder.Path("sub\\other")), std::nullopt);
    EXPECT_EQ(files->FindFile(folder.Path("sub")), std::nullopt);
    EXPECT_EQ(files->FindFile(folder.Path("sub\\")), std::nullopt);
    const std::string lost = folder.Path("gone\\inner");
    EXPECT_EQ(NumberOf(lost, [&] { files->FindFile(lost); }), PathNotFound);
}

TEST_F(NativeFiles, ListsFilesAndFoldersApart) {
    folder.Put("b", "");
    folder.Put("A.wsd", "");
    folder.Put("sub one/inner", "");
    folder.Put("SUB2/inner", "");
    EXPECT_EQ(Sorted(files->Files(folder.Path())), (std::vector<std::string>{"A.wsd", "b"}));
    EXPECT_EQ(Sorted(files->Folders(folder.Path())), (std::vector<std::string>{"SUB2", "sub one"}));
    std::filesystem::create_directory(folder.On("empty"));
    EXPECT_TRUE(files->Files(folder.Path("empty")).empty());
}

TEST_F(NativeFiles, ProgramAndCurrentFolderAreFoldersOfThisFileSystem) {
    for (const std::string& path : {files->CurrentFolder(), NativeProgramFolder()}) {
        EXPECT_NO_THROW(files->Folders(path)) << path;
        EXPECT_EQ(path.find('/'), std::string::npos);
        EXPECT_FALSE(path.size() > 3 && path.back() == '\\') << path;
    }
    const auto own = files->Files(NativeProgramFolder());
    EXPECT_TRUE(std::any_of(own.begin(), own.end(),
                            [](const std::string& name) { return name.starts_with("tarvex_tests"); }));
}

TEST_F(NativeFiles, EveryDriveLeadsToAFolder) {
    const auto drives = files->Drives();
    ASSERT_FALSE(drives.empty());
    const std::string here = files->CurrentFolder();
    EXPECT_TRUE(std::any_of(drives.begin(), drives.end(), [&](const std::string& drive) {
        return here.starts_with(drive) && files->FolderOfDrive(drive) == here;
    }));
    EXPECT_EQ(NumberOf("0:\\", [&] { files->FolderOfDrive("0:\\"); }), PathNotFound);
}

}  // namespace
}  // namespace tarvex::testing
