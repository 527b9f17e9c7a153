#include "toolkit/path_mapping.h"

#include <algorithm>
#include <cerrno>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <sstream>

#include "toolkit/system_error.h"

namespace tarvex {
namespace {

// Folders that exist by their paths alone. A folder in `shut` can't be listed.
class FakeFolders : public FolderView {
  public:
    FakeFolders(std::set<std::string> paths, std::string shut = "-")
        : paths_(std::move(paths)), shut_(std::move(shut)) {}

    bool Has(const std::string& path) const override { return paths_.contains(path); }
    std::vector<std::string> Names(const std::string& folder) const override {
        const std::string head = folder == "." ? "" : folder;
        std::vector<std::string> names;
        if (head == shut_) return names;
        for (const auto& path : paths_) {
            if (path.starts_with(head) && path.find('/', head.size()) == std::string::npos) {
                names.push_back(path.substr(head.size()));
            }
        }
        return names;
    }

  private:
    std::set<std::string> paths_;
    std::string shut_;
};

std::set<std::string> Machine() {
    std::istringstream paths(
        "/home /home/Pilot /home/Pilot/FS /home/Pilot/fs /home/Pilot/fs/a /home/Pilot/FS/b rel rel/X "
        "/p/dosdevices/c: /p/dosdevices/c:/Games /p/dosdevices/d: /p/dosdevices/c:: /p/dosdevices/com1");
    return {std::istream_iterator<std::string>(paths), {}};
}

TEST(PathMapping, SpellsPathsAsTheSystemHasThem) {
    struct Case {
        std::string_view path;
        std::string_view expected;
        bool folderFound = true;
    };
    const Case cases[] = {
        {"\\", "/"},
        {"", ""},
        {"\\HOME\\pilot", "/home/Pilot"},
        {"/home\\\\PILOT/", "/home/Pilot/"},
        {"\\home\\Pilot\\fs\\A", "/home/Pilot/fs/a"},
        {"\\home\\Pilot\\FS\\B", "/home/Pilot/FS/b"},
        {"\\home\\Pilot\\Fs", "/home/Pilot/FS"},
        {"\\home\\New", "/home/New"},
        {"\\home\\New\\Pilot", "/home/New/Pilot", false},
        {"REL\\x", "rel/X"},
        {"\\home\\..\\HOME", "/home/../HOME", false},
        {"c:\\GAMES", "/p/dosdevices/c:/Games"},
        {"C:Games", "/p/dosdevices/c:/Games"},
        {"C:", "/p/dosdevices/c:/"},
        {"C:\\\\", "/p/dosdevices/c:/"},
        {"E:\\Games", "", false},
        {std::string_view("\\ho\0me", 6), "", false},
    };
    const FakeFolders folders(Machine());
    const PathMapping mapping(folders, "/p");
    for (const Case& c : cases) {
        const MappedPath mapped = mapping.ToSystem(c.path);
        EXPECT_EQ(mapped.path, c.expected) << c.path;
        EXPECT_EQ(mapped.folderFound, c.folderFound) << c.path;
    }
    EXPECT_EQ(mapping.Drives(), (std::vector<std::string>{"C:\\", "D:\\"}));
}

TEST(PathMapping, WithoutAPrefixNoDriveIsThere) {
    const FakeFolders folders(Machine());
    const PathMapping mapping(folders, "");
    EXPECT_FALSE(mapping.ToSystem("C:\\Games").folderFound);
    EXPECT_TRUE(mapping.Drives().empty());
}

TEST(PathMapping, FolderThatCannotBeListedIsEnteredByItsLowerCaseName) {
    const FakeFolders folders({"/home", "/home/pilot", "/home/pilot/FS"}, "/home/");
    EXPECT_EQ(PathMapping(folders, "").ToSystem("\\HOME\\PILOT\\fs").path, "/home/pilot/FS");
}

TEST(PathMapping, TurnsSystemPathsIntoPathsOfTheProgram) {
    EXPECT_EQ(PathMapping::ToProgram("/home/pilot"), "\\home\\pilot");
    EXPECT_EQ(PathMapping::ToProgram("/"), "\\");
    EXPECT_TRUE(PathMapping::CanName("X.wsd"));
    EXPECT_FALSE(PathMapping::CanName("..\\X.wsd"));
}

TEST(SystemErrors, HaveTheProgramsNumbers) {
    const std::pair<int, int> numbers[] = {
        {ENOENT, FileNotFound},      {ENOTDIR, PathNotFound}, {EACCES, PermissionDenied},
        {EPERM, PermissionDenied},   {EISDIR, AccessError},   {EROFS, AccessError},
        {ENOSPC, DiskFull},          {EDQUOT, DiskFull},      {EIO, DeviceError},
        {ENAMETOOLONG, DeviceError},
    };
    for (const auto& [error, number] : numbers) {
        const Failure failure = SystemFailure(static_cast<unsigned long>(error), "C:\\X", true);
        EXPECT_EQ(failure.Number(), number) << error;
        EXPECT_TRUE(failure.Reason().starts_with("C:\\X: ")) << failure.Reason();
    }
    EXPECT_EQ(SystemFailure(ENOENT, "C:\\X", false).Number(), PathNotFound);
}

}  // namespace
}  // namespace tarvex
