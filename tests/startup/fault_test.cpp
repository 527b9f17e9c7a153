#include <functional>
#include <gtest/gtest.h>

#include "support/faulty_file_system.h"
#include "support/scripted_user.h"
#include "support/test_services.h"

// Every road of the program with each of its file operations failing in each way: what the user is told,
// whether the program goes on, and that no file is lost that was not open for writing.

namespace tarvex::testing {
namespace {

using Operation = FaultyFileSystem::Operation;

constexpr int Numbers[] = {FileNotFound, PathNotFound, PermissionDenied,           AccessError,
                           DeviceError,  DiskFull,     FaultyFileSystem::ShortRead};

constexpr const char* Ini = "C:\\Tarvex\\Tarvex.INI";
constexpr const char* Data = "C:\\FS2000\\GIOSTAM\\navdata\\";
constexpr const char* Star = "C:\\FS2000\\Giostam\\navdata\\Stars\\KXYZ-DEMO1.wst";
constexpr const char* Approach = "C:\\FS2000\\Giostam\\navdata\\Approaches\\KXYZ-27L.wap";

constexpr const char* ShortSettings = "C:\\FS2000\r\nN\r\nW\r\n";
constexpr const char* Sound =
    "; made by hand 2.35\r\n\r\nW,ALPHA,,0,33.5,-118.25,0,250,0,5000,1,\r\n\r\nEnd of Terminal Procedure\r\n";
constexpr const char* Repairable =
    "; made by hand 2.35\r\n\r\nW,ALPHA,,0,33.5NN,-118.25WW,0,250,0,5000,1,\r\n\r\nEnd of Terminal "
    "Procedure\r\n";
constexpr const char* Convertible =
    "; made by hand 2.31\r\n\r\nW,KXYZ27L,,0,33.5,-118.25,0,0,0,0,0,\r\n\r\nEnd of Terminal Procedure\r\n";

// The machine before the road; the program once started, unless the road is the start itself.
struct World {
    TestServices services;
    FaultyFileSystem files{services.files};
    std::unique_ptr<Program> program;

    World() {
        services.PutSimulator();
        services.files.Put(std::string(Data) + "wpNavFIX.txt", "; fixes\r\n");
        services.files.Put(std::string(Data) + "wpNavAID.txt", "; navaids\r\n");
        services.files.Put(std::string(Data) + "wpNavAPT.txt", "; runways\r\n");
        services.files.Put(Star, Sound);
        services.files.Put(Approach, Convertible);
        Platform platform = services.ForProgram();
        program = std::make_unique<Program>(
            Platform{files, platform.registry, platform.clock, platform.messages, platform.programFolder});
    }
    void Start() { program->Start(); }
    void Register() {
        services.files.Remove(Ini);
        services.Register("C:\\FS2000");
    }
    void AskForFolder() {
        services.files.Remove(Ini);
        services.files.PutFolder("D:\\Games\\Old");
        services.files.SetDrives({"C:\\", "D:\\"});
    }
    FindFS2000Form* Screen() { return program->findFS2000Form.Get(); }
    std::string Settings() { return services.files.Has(Ini) ? services.files.Content(Ini) : ""; }
    ScriptedUser User() { return ScriptedUser(*program); }
    void Pick(Button InitialLoad::*action, const char* name) {
        User().Presses(program->initialLoad.Get()->*action);
        if (PickFile* picker = program->pickFile.Get()) User().PicksFile(picker->FileList, name);
    }
};

// How a road ends: the title of the message shown, if any, then where the program is.
std::string EndOf(World& world) {
    std::string end;
    for (const Message& message : world.services.messages.Take()) end += "[" + message.title + "] ";
    if (world.program->host.Stopped()) {
        return end + "stopped " + std::to_string(world.program->host.Stopped()->exitStatus);
    }
    for (const Form* form : world.program->host.Visible()) end += form->Name() + " ";
    return end;
}

struct Road {
    const char* name;
    std::function<void(World&)> prepare;  // up to where faults begin
    std::function<void(World&)> walk;
    // How the road must end when `operation` fails with `number`.
    std::function<std::string(const FaultyFileSystem::Done& operation, int number)> expected;
};

constexpr const char* Menu = "InitialLoad ";
const std::string Fatal = "[Program termination.] stopped 1";
const std::string Unknown = "[Program termination happens now.] stopped 1";

bool IsNavigation(const std::string& path) {
    return path.find("wpNav") != std::string::npos;
}

std::string StartEnd(const FaultyFileSystem::Done& done, int number, const char* whenMissing) {
    if (IsNavigation(done.path)) return number == FaultyFileSystem::ShortRead ? Menu : "stopped 1";
    if (number == FileNotFound) return whenMissing;
    return Fatal;
}

std::string SaveEnd(const FaultyFileSystem::Done&, int number) {
    switch (number) {
        case FileNotFound:
            return "ModifyProcedure FindFS2000Form ";
        case PathNotFound:
            return Fatal;
        case FaultyFileSystem::ShortRead:
            return Menu;
        default:
            return Unknown;
    }
}

std::string PickEnd(const FaultyFileSystem::Done& done, int number) {
    if (done.operation == Operation::Files) {
        switch (number) {
            case FileNotFound:
                return "FindFS2000Form PickFile ";
            case PathNotFound:
                return Fatal;
            case FaultyFileSystem::ShortRead:
                return "ModifyProcedure ";
            default:
                return "InitialLoad PickFile ";
        }
    }
    const bool cutOff = number == FaultyFileSystem::ShortRead;
    if (cutOff && done.operation != Operation::Read) return "ModifyProcedure ";
    return "[Procedure not opened.] InitialLoad ";
}

std::string FolderEnd(const FaultyFileSystem::Done& done, int number) {
    const bool readAnyway = number == FaultyFileSystem::ShortRead;
    if (done.index == 0 && !readAnyway) return StartEnd(done, number, "FindFS2000Form ");
    // The screen's lists and its hint come up whatever fails; a walk that fails says so.
    const bool walk = done.operation == Operation::FolderOfDrive ||
                      (done.operation == Operation::Folders && done.path != "C:\\");
    return (walk && !readAnyway ? "[Tarvex 2.35] " : "") + std::string("FindFS2000Form ");
}

const Road Roads[] = {
    {"start", [](World&) {}, [](World& world) { world.Start(); },
     [](const auto& done, int number) {
         // Too few lines once; the recovery then reads the whole file.
         if (done.path == Ini && number == FaultyFileSystem::ShortRead) return std::string(Menu);
         return StartEnd(done, number, "FindFS2000Form ");
     }},
    {"first start", [](World& world) { world.Register(); }, [](World& world) { world.Start(); },
     [](const auto& done, int number) {
         if (done.operation == Operation::Write && number != FaultyFileSystem::ShortRead) {
             return "[Tarvex 2.35] " + std::string(Menu);
         }
         // The first read misses the file anyway; the read back of the new file has no second recovery.
         if (done.path == Ini && number == FaultyFileSystem::ShortRead) {
             return done.index == 2 ? Fatal : std::string(Menu);
         }
         return StartEnd(done, number, done.index == 0 ? Menu : Fatal.c_str());
     }},
    {"start with short settings", [](World& world) { world.services.files.Put(Ini, ShortSettings); },
     [](World& world) { world.Start(); },
     [](const auto& done, int number) {
         if (done.operation == Operation::Write && number != FaultyFileSystem::ShortRead) {
             return "[Tarvex 2.35] " + std::string(Menu);
         }
         // Too few lines for the second read too; the read back of the mended file has no second recovery.
         if (done.path == Ini && number == FaultyFileSystem::ShortRead) {
             const char* ends[] = {Menu, "FindFS2000Form ", Menu, Fatal.c_str()};
             return std::string(ends[done.index]);
         }
         return StartEnd(done, number, done.index == 0 ? "FindFS2000Form " : Fatal.c_str());
     }},
    {"folder screen", [](World& world) { world.AskForFolder(); },
     [](World& world) {
         world.Start();
         if (world.Screen() == nullptr) return;
         world.program->door.PickDrive(world.Screen()->Drive1, "D:\\");
         world.program->door.OpenFolder(world.Screen()->Dir1, 0);
     },
     FolderEnd},
    {"folder chosen",
     [](World& world) {
         world.AskForFolder();
         world.Start();
         world.program->door.PickFolder(world.Screen()->Dir1, 0);
     },
     [](World& world) { world.program->door.Press(world.Screen()->FindDoneCommand); },
     [](const auto& done, int number) -> std::string {
         if (number == FaultyFileSystem::ShortRead) return Menu;
         return std::string("[Tarvex 2.35] ") +
                (done.operation == Operation::Write ? "FindFS2000Form " : Menu);
     }},
    {"open", [](World& world) { world.Start(); },
     [](World& world) { world.Pick(&InitialLoad::ModifySTAR, "KXYZ-DEMO1.wst"); }, PickEnd},
    {"open with repair",
     [](World& world) {
         world.services.files.Put(Star, Repairable);
         world.Start();
     },
     [](World& world) { world.Pick(&InitialLoad::ModifySTAR, "KXYZ-DEMO1.wst"); }, PickEnd},
    {"open with conversion", [](World& world) { world.Start(); },
     [](World& world) { world.Pick(&InitialLoad::ModifyIAP, "KXYZ-27L.wap"); }, PickEnd},
    {"save",
     [](World& world) {
         world.Start();
         world.Pick(&InitialLoad::ModifySTAR, "KXYZ-DEMO1.wst");
     },
     [](World& world) { world.User().Presses(world.program->modifyProcedure.Get()->SaveCommand); }, SaveEnd},
    {"save of a new procedure",
     [](World& world) {
         world.Start();
         world.User().Presses(world.program->initialLoad.Get()->CreateSTAR);
         world.User().Types(world.program->modifyProcedure.Get()->AptNameText, "kxyz");
         world.User().Types(world.program->modifyProcedure.Get()->BasicNameText, "demo2");
     },
     [](World& world) { world.User().Presses(world.program->modifyProcedure.Get()->SaveCommand); }, SaveEnd},
};

// Behind the comment, which a save replaces.
std::string Body(const std::string& file) {
    return file.substr(file.find('\n'));
}

TEST(FaultTest, EveryOperationOfEveryRoadMayFail) {
    for (const Road& road : Roads) {
        World sound;
        road.prepare(sound);
        sound.files.FailAt(static_cast<std::size_t>(-1), 0);
        road.walk(sound);
        const auto operations = sound.files.Operations();
        const std::string settingsAfter = sound.Settings();
        ASSERT_FALSE(operations.empty()) << road.name;

        for (std::size_t n = 0; n < operations.size(); ++n) {
            for (const int number : Numbers) {
                SCOPED_TRACE(std::string(road.name) + ", operation " + std::to_string(n) + " on " +
                             operations[n].path + ", error " + std::to_string(number));
                World world;
                road.prepare(world);
                const std::string settingsBefore = world.Settings();
                const std::string starBefore = world.services.files.Content(Star);
                const std::string approachBefore = world.services.files.Content(Approach);
                world.services.messages.Take();
                world.files.FailAt(n, number);
                road.walk(world);

                EXPECT_EQ(EndOf(world), road.expected(operations[n], number));
                const auto& stopped = world.program->host.Stopped();
                if (stopped) {
                    EXPECT_NE(stopped->reason, "");
                }
                const auto& failed = operations[n];
                if (failed.operation != Operation::Write || failed.path != Ini) {
                    const std::string settings = world.Settings();
                    EXPECT_TRUE(settings == settingsBefore || settings == settingsAfter) << settings;
                }
                // A stored procedure is as it was unless it was open for writing; opening one never harms it.
                const bool opening = std::string_view(road.name).starts_with("open");
                if (number == FaultyFileSystem::ShortRead) continue;
                if (opening || failed.operation != Operation::Write || failed.path != Star) {
                    EXPECT_EQ(Body(world.services.files.Content(Star)), Body(starBefore));
                }
                if (opening) {
                    EXPECT_EQ(world.services.files.Content(Approach), approachBefore);
                }
            }
        }
    }
}

}  // namespace
}  // namespace tarvex::testing
