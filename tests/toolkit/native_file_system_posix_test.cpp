#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/failure_of.h"
#include "support/temp_folder.h"
#include "toolkit/native_clock.h"
#include "toolkit/native_file_system.h"
#include "toolkit/native_registry.h"

namespace tarvex::testing {
namespace {

// An environment variable for the length of a test.
class Environment {
  public:
    Environment(const char* name, const std::string& value) : name_(name) {
        if (const char* before = getenv(name)) before_ = before;
        setenv(name, value.c_str(), 1);
    }
    ~Environment() {
        if (before_) {
            setenv(name_, before_->c_str(), 1);
        } else {
            unsetenv(name_);
        }
    }

  private:
    const char* name_;
    std::optional<std::string> before_;
};

TEST(PosixFiles, PipesAndDevicesAreRefused) {
    const TempFolder folder;
    ASSERT_EQ(mkfifo(folder.On("pipe").c_str(), 0600), 0);
    const auto files = MakeNativeFileSystem();
    for (const std::string& path : {folder.Path("pipe"), std::string("\\dev\\null")}) {
        EXPECT_EQ(NumberOf([&] { files->Read(path); }), AccessError) << path;
        EXPECT_EQ(NumberOf([&] { files->Write(path, "x"); }), AccessError) << path;
        EXPECT_EQ(files->FindFile(path), std::nullopt);
    }
    EXPECT_TRUE(files->Files(folder.Path()).empty());
}

TEST(PosixFiles, NoRoomLeavesTheFileAsItWas) {
    const TempFolder folder;
    folder.Put("X.wsd", "stored before");
    const auto files = MakeNativeFileSystem();
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{1000, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    const Failure failure = FailureOf([&] { files->Write(folder.Path("X.wsd"), std::string(100'000, 'x')); });
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);

    EXPECT_EQ(failure.Number(), DiskFull);
    EXPECT_EQ(folder.Content("X.wsd"), "stored before");
}

// Root, to whom nothing is forbidden, becomes somebody else for the length of a test.
class NotRoot {
  public:
    NotRoot() {
        constexpr uid_t nobody = 65534;
        EXPECT_EQ(seteuid(before_ == 0 ? nobody : before_), 0);
    }
    ~NotRoot() { EXPECT_EQ(seteuid(before_), 0); }

  private:
    uid_t before_ = geteuid();
};

TEST(PosixFiles, MissingRightsAreToldApart) {
    const NotRoot somebody;
    const TempFolder folder;
    folder.Put("secret", "x");
    folder.Put("fixed", "x");
    folder.Put("shut/inner", "x");
    chmod(folder.On("secret").c_str(), 0);
    chmod(folder.On("fixed").c_str(), 0444);
    chmod(folder.On("shut").c_str(), 0);
    const auto files = MakeNativeFileSystem();
    EXPECT_EQ(NumberOf([&] { files->Read(folder.Path("secret")); }), PermissionDenied);
    const Failure fixed = FailureOf([&] { files->Write(folder.Path("fixed"), "y"); });
    EXPECT_EQ(fixed.Number(), AccessError);
    EXPECT_EQ(fixed.Reason(), folder.Path("fixed") + ": must not be written");
    EXPECT_EQ(NumberOf([&] { files->Read(folder.Path("shut\\inner")); }), PermissionDenied);
    EXPECT_EQ(NumberOf([&] { files->Files(folder.Path("shut")); }), PermissionDenied);
    chmod(folder.On("shut").c_str(), 0700);
}

TEST(PosixFiles, ListsLinksByWhatTheyLeadToAndOnlyNamesThatAPathCanHold) {
    const TempFolder folder;
    folder.Put("sub/file", "x");
    std::filesystem::create_symlink("sub/file", folder.On("to file"));
    std::filesystem::create_directory_symlink("sub", folder.On("to folder"));
    std::filesystem::create_symlink("nowhere", folder.On("to nothing"));
    folder.Put("..\\..\\escape", "x");
    folder.Put(".hidden", "x");
    const auto files = MakeNativeFileSystem();
    auto folders = files->Folders(folder.Path());
    std::sort(folders.begin(), folders.end());
    EXPECT_EQ(files->Files(folder.Path()), std::vector<std::string>{"to file"});
    EXPECT_EQ(folders, (std::vector<std::string>{"sub", "to folder"}));
    EXPECT_EQ(NumberOf([&] { files->Read(folder.Path("to nothing")); }), FileNotFound);
    const std::string inside = folder.Path("to nothing\\X.wsd");
    EXPECT_EQ(NumberOf([&] { files->FindFile(inside); }), PathNotFound);
    EXPECT_EQ(NumberOf([&] { files->Write(inside, "x"); }), PathNotFound);
}

TEST(PosixFiles, UpperCaseOfANameIsThatName) {
    const TempFolder folder;
    const auto files = MakeNativeFileSystem();
    for (const std::string name : {"spiel \xE9\xFF", "\xE8\xE3\xF0\xFB", "fs2000-\xFD\xDD\xF0i",
                                   "\xF0\xE1\xDF", "\xD0\xB8\xD0\xB3\xD1\x80\xD1\x8B i\xC4\xB1"}) {
        folder.Put(name + "/kl\xE9-x.wsd", "old");
        const std::string upper = files->UpperCase(folder.Path(name + "\\kl\xE9-x.wsd"));
        files->Write(upper, "new");
        EXPECT_EQ(folder.Content(name + "/kl\xE9-x.wsd"), "new");
        EXPECT_EQ(files->Files(folder.Path(name)).size(), 1U);
        EXPECT_NE(upper.find("\\KL\xE9-X.WSD"), std::string::npos);
    }
}

TEST(PosixFiles, CurrentFolderThatHasGoneIsAFailure) {
    const auto here = std::filesystem::current_path();
    const auto files = MakeNativeFileSystem();
    {
        const TempFolder folder;
        std::filesystem::current_path(folder.On(""));
    }
    const Failure failure = FailureOf([&] { files->CurrentFolder(); });
    std::filesystem::current_path(here);
    EXPECT_EQ(failure.Number(), PathNotFound);
}

class BesideWine : public ::testing::Test {
  protected:
    BesideWine() {
        folder.Put("prefix/drive_c/FS2000/Giostam/navdata/Sids/KXYZ-A.wsd", "stored");
        std::filesystem::create_directories(folder.On("prefix/dosdevices"));
        std::filesystem::create_directory_symlink("../drive_c", folder.On("prefix/dosdevices/c:"));
        std::filesystem::create_directory_symlink("/", folder.On("prefix/dosdevices/z:"));
        std::filesystem::create_symlink("/dev/null", folder.On("prefix/dosdevices/c::"));
    }

    TempFolder folder;
    Environment prefix{"WINEPREFIX", folder.On("prefix").string()};
};

TEST_F(BesideWine, DriveLettersLeadThroughThePrefix) {
    const auto files = MakeNativeFileSystem();
    EXPECT_EQ(files->Drives(), (std::vector<std::string>{"C:\\", "Z:\\", "\\"}));
    EXPECT_EQ(files->Read("C:\\FS2000\\GIOSTAM\\NAVDATA\\SIDS\\kxyz-a.WSD").View(), "stored");
    EXPECT_EQ(
        files->Read("z:" + folder.Path("PREFIX\\drive_c\\fs2000\\giostam\\navdata\\sids\\KXYZ-A.wsd")).View(),
        "stored");
    files->Write("c:\\FS2000\\New.txt", "new");
    EXPECT_EQ(folder.Content("prefix/drive_c/FS2000/New.txt"), "new");
    EXPECT_EQ(files->FolderOfDrive("C:\\"), "C:\\");
    EXPECT_EQ(files->Folders("C:\\"), std::vector<std::string>{"FS2000"});
    EXPECT_EQ(NumberOf([&] { files->Read("D:\\x"); }), PathNotFound);
    EXPECT_EQ(NumberOf([&] { files->FolderOfDrive("D:\\"); }), PathNotFound);
}

TEST_F(BesideWine, WithoutANameThePrefixIsThatOfTheHomeFolder) {
    std::filesystem::create_directory_symlink("prefix", folder.On(".wine"));
    const Environment none("WINEPREFIX", "");
    const Environment home("HOME", folder.On("").string());
    EXPECT_EQ(MakeNativeFileSystem()->Drives().size(), 3U);
}

TEST_F(BesideWine, RegistryOfThePrefixAnswers) {
    folder.Put(
        "prefix/system.reg",
        "WINE REGISTRY Version 2\n\n[Software\\\\Wow6432Node\\\\Maker\\\\Game] 1\n\"path\"=\"C:\\\\FS\"\n");
    const auto registry = MakeNativeRegistry();
    constexpr std::uint32_t localMachine = 0x80000002;
    constexpr std::uint32_t currentUser = 0x80000001;
    EXPECT_EQ(registry->Value(currentUser, "Software\\Maker\\Game", "path"), std::nullopt);
    EXPECT_EQ(registry->Value(localMachine, "Software\\Maker", "path"), std::nullopt);
    EXPECT_EQ(registry->Value(localMachine, "Software\\maker\\GAME", "other"), std::nullopt);
    EXPECT_EQ(registry->Value(localMachine, "Software\\maker\\GAME", "Path"), std::string("C:\\FS\0", 6));
}

TEST(WithoutWine, ThereIsTheRootAloneAndNoKey) {
    const TempFolder folder;
    const Environment prefix("WINEPREFIX", folder.On("none").string());
    const auto files = MakeNativeFileSystem();
    EXPECT_EQ(files->Drives(), std::vector<std::string>{"\\"});
    EXPECT_EQ(NumberOf([&] { files->Read("C:\\x"); }), PathNotFound);
    EXPECT_EQ(MakeNativeRegistry()->Value(0x80000002, "Software", ""), std::nullopt);
}

TEST(PosixClock, PlainLocaleGivesMonthDayYear) {
    const auto today = [] {
        const time_t now = time(nullptr);
        const tm* day = localtime(&now);
        return std::to_string(day->tm_mon + 1) + "/" + std::to_string(day->tm_mday) + "/" +
               std::to_string(day->tm_year + 1900);
    };
    for (const char* locale : {"C", "POSIX", "C.UTF-8", "xx_NOWHERE"}) {
        const Environment all("LC_ALL", locale);
        const auto clock = MakeNativeClock();
        const std::string before = today();
        const std::string date = clock->ShortDate();
        EXPECT_TRUE(date == before || date == today()) << locale << " " << date;
    }
}

}  // namespace
}  // namespace tarvex::testing
