#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <gtest/gtest.h>
#include <optional>
#include <sstream>

#include "navigation/load_navigation_data.h"
#include "support/editor_watch.h"
#include "support/faulty_file_system.h"
#include "support/random_user.h"
#include "support/resident_memory.h"
#include "support/screens_watch.h"
#include "support/test_services.h"

// A random user at all screens of the program, through many starts and ends of it, on a machine whose files
// fail now and then.

namespace tarvex::testing {
namespace {

using Operation = FaultyFileSystem::Operation;

const std::string Ini = "C:\\Tarvex\\Tarvex.INI";
const std::string Data = "C:\\FS2000\\GIOSTAM\\navdata\\";
const std::string Stored[][2] = {
    {"Stars\\KXYZ-MEND.wst", "; by hand 2.35\r\n\r\nW,ALPHA,,0,33.5NN,-118.25WW,0,250,0,5000,1,\r\n"},
    {"Stars\\KXYZ-BAND.wst", "; by hand 2.35\r\n\r\nW,ALPHA,,0,33.5,-118.25,0,250,9000,5000,3,\r\n"},
    {"Approaches\\KXYZ-OLD.wap", "; by hand 2.31\r\n\r\nW,KDEN07,,0,33.5,-118.25,0,0,0,0,0,\r\n"},
    {"Sids\\KXYZ-LOST.wsd",
     "; by hand 2.35\r\n\r\nW,ALPHA,,0,33.5,-118.25,0,250,5000,1,\r\nW,B,,0,1,1,0,\r\n"},
    {"Sids\\readme.txt", "no procedure\r\n"},
};

// The machine: it starts the program anew whenever it has ended.
class Machine {
  public:
    explicit Machine(Chance& random) : chance(random) {
        services.files.Put(Data + "wpNavFIX.txt",
                           "AAGEE                   AAGEE 40.027142-104.778261 \r\n"
                           "TWICE                   TWICE 40.764511 -74.119811 \r\n"
                           "TWICE                   TWICE-10.764511  74.119811 \r\n"
                           "BADLY                   BADLY noneatall -74.119811 \r\n"
                           "AALST                   AALST 40.764511 -74.119811 \r\n");
        services.files.Put(Data + "wpNavAID.txt",
                           "ACY                     ACY  VOR 39.455861-74.576306108.60H\r\n"
                           "POLE                    POLE NDB 89.990000-74.576306350.00H\r\n"
                           "AP                      AP   NDB -0.451917104.845806260.00N\r\n");
        services.files.Put(Data + "wpNavAPT.txt",
                           "DENVER INTL             KDEN07 11959090 39.840943-104.726657           5431\r\n"
                           "LOS ANGELES             KLAX25L11959090 33.949944-118.401192            120\r\n"
                           "LOS ANGELES             KLAX25R11959090 33.952100-118.401942            120\r\n");
        services.files.PutFolder("D:\\Empty\\Inner");
        services.files.SetDrives({"C:\\", "D:\\", "E:\\"});
    }

    // A start with settings of any kind; where it comes to nothing, one with sound settings.
    void Start() {
        TidyUp();
        files.NoFault();
        services.Register(chance.Of(Registered));
        const std::size_t settings = chance.Below(4);  // from 2 on as the last run left them
        if (settings == 0) services.files.Remove(Ini);
        if (settings == 1) services.files.Put(Ini, "C:\\FS2000\r\nS\r\nE\r\n");
        Launch();
        if (!program->host.Stopped()) return;
        services.files.Put(Ini, "C:\\FS2000\r\nN\r\nW\r\nW\r\n");
        Launch();
    }

    // One of the next act's file operations may fail.
    void ThreatenFault() {
        constexpr int numbers[] = {FileNotFound, PathNotFound, PermissionDenied,           AccessError,
                                   DeviceError,  DiskFull,     FaultyFileSystem::ShortRead};
        files.FailAt(chance.Percent(8) ? chance.Below(3) : FaultyFileSystem::Never, chance.Of(numbers));
    }
    bool Faulty() const { return files.Failed() != nullptr; }

    // Why the program may have stopped with the status 1.
    bool MayStop() {
        if (Faulty() || !HasNavigationData(services.files, program->state.SimulatorPath)) return true;
        const auto& shown = messages.Recent();
        return !shown.empty() && shown.back().title == "Fatal Data Error.";
    }

    Chance& chance;
    TestServices services;
    FaultyFileSystem files{services.files};
    RandomMessageBox messages{chance};
    std::optional<Program> program;
    int starts = 0;
    bool tidied = false;  // since it was last looked at

  private:
    const std::string Registered[4] = {"", "   ", "C:\\FS2000", "E:\\Gone"};

    void Launch() {
        ++starts;
        program.reset();
        program.emplace(Platform{files, services.registry, services.clock, messages, "C:\\Tarvex"});
        program->Start();
    }

    void TidyUp() {
        for (const char* kind : {"Sids", "Stars", "Approaches"}) {
            const std::string folder = std::string("C:\\FS2000\\Giostam\\navdata\\") + kind + "\\";
            services.files.PutFolder(folder);
            const auto names = services.files.Files(folder);
            if (names.size() < 50) continue;
            for (const auto& name : names) services.files.Remove(folder + name);
            tidied = true;
        }
        for (const auto& [name, text] : Stored) {
            const std::string path = "C:\\FS2000\\Giostam\\navdata\\" + name;
            if (!services.files.Has(path)) services.files.Put(path, text);
        }
    }
};

// Everything that is written lies where the program keeps its settings or a procedure.
void CheckWritten(const FaultyFileSystem& files, Findings& findings) {
    for (const auto& done : files.Operations()) {
        if (done.operation != Operation::Write || done.path == Ini) continue;
        const auto cut = done.path.find_last_of('\\');
        const std::string folder = done.path.substr(0, cut);
        findings.Require(folder.ends_with("\\Giostam\\navdata\\Sids") ||
                             folder.ends_with("\\Giostam\\navdata\\Stars") ||
                             folder.ends_with("\\Giostam\\navdata\\Approaches"),
                         "written outside the procedures: " + done.path);
    }
}

void CheckMessages(const Machine& machine, const RandomUser::Act& act, Findings& findings) {
    for (const Message& message : machine.messages.Recent()) {
        findings.Require(!message.title.empty() && !message.prompt.empty(), "a message without words");
        const bool unexpected = message.prompt.starts_with("The operation could not be finished");
        findings.Require(!unexpected || machine.Faulty() || act.form == "FindFS2000Form",
                         "a failure that no operation expected: " + message.prompt);
    }
}

// How long the use is, and its seed, as the environment has it.
std::size_t FromEnvironment(const char* name, std::size_t otherwise) {
    const char* value = std::getenv(name);
    return value == nullptr ? otherwise : std::strtoull(value, nullptr, 10);
}

class LongUse : public ::testing::Test {
  protected:
    void Use(std::size_t acts) {
        machine.Start();
        user.emplace(*machine.program, chance);
        for (std::size_t number = 0; number < acts; ++number) {
            Findings findings;
            Act(findings);
            if (!findings.Empty()) {
                FAIL() << "act " << number << " of the seed " << seed << ": " << findings.Text() << Trail();
            }
            if (acts >= 10 && (number + 1) % (acts / 10) == 0) Report(number + 1, acts);
        }
    }

    void Act(Findings& findings) {
        Program& program = *machine.program;
        editor.Before(program);
        screens.Before(program);
        machine.ThreatenFault();
        machine.messages.Forget();
        const RandomUser::Act act = user->Next();
        Remember(act);
        editor.After(program, act, findings);
        CheckWritten(machine.files, findings);
        CheckMessages(machine, act, findings);
        if (const auto& stopped = program.host.Stopped()) {
            findings.Require(stopped->exitStatus == 0 || machine.MayStop(), "stopped: " + stopped->reason);
        } else {
            screens.After(program, act, findings);
            if (chance.Below(1000) != 0) return;  // else the machine is switched off
        }
        machine.Start();
        if (std::exchange(machine.tidied, false)) editor.ForgetFiles();
        user.emplace(*machine.program, chance);
        trail_.push_back("the program starts anew");
        findings.Require(!machine.program->host.Stopped(), "does not start");
    }

    // The long run shows how it comes along, and must not grow behind its first tenth.
    void Report(std::size_t done, std::size_t acts) {
        constexpr std::size_t roomToBreathe = 4 << 20;
        constexpr std::size_t longRun = 500'000;
        if (acts < longRun) return;
        const std::size_t now = ResidentMemory();
        if (done == acts / 10) atFirst_ = now;
        std::printf("%zu acts, %zu kB\n", done, now / 1024);
        std::fflush(stdout);
        if (done >= acts - acts % 10) {
            EXPECT_LT(now, atFirst_ + roomToBreathe) << "the memory grew";
        }
    }

    void Remember(const RandomUser::Act& act) {
        std::string line = act.form + "." + act.on + " " + act.what;
        for (const Message& message : machine.messages.Recent()) line += " [" + message.prompt + "]";
        if (machine.Faulty()) line += " (a file operation failed)";
        trail_.push_back(std::move(line));
        while (trail_.size() > 25) trail_.pop_front();
    }
    std::string Trail() const {
        std::string acts;
        for (const std::string& line : trail_) acts += "\n  " + line;
        return acts;
    }

    const std::size_t seed = FromEnvironment("TARVEX_SEED", 3);
    Chance chance{static_cast<std::uint32_t>(seed)};
    Machine machine{chance};
    std::optional<RandomUser> user;
    EditorWatch editor{machine.services.files, machine.files};
    ScreensWatch screens;

  private:
    std::deque<std::string> trail_;
    std::size_t atFirst_ = 0;
};

TEST_F(LongUse, LeavesEverythingInOrder) {
    const std::size_t acts = FromEnvironment("TARVEX_ACTS", 100'000);
    Use(acts);

    // The road is worth something only if the user gets about.
    const auto& rows = editor.Seen();
    const auto& tools = screens.Seen();
    std::ostringstream seen;
    seen << acts << " acts: " << machine.starts << " starts, " << tools.folders << " folders chosen, "
         << rows.added << " rows added, " << rows.modified << " modified, " << rows.deleted << " deleted, "
         << rows.moved << " moved, at most " << rows.most << ", " << rows.saved << " saved, " << rows.reopened
         << " reopened, " << tools.transfers << " transfers, " << rows.arcs << " ARCs, "
         << machine.messages.Shown() << " messages";
    std::puts(seen.str().c_str());
    if (acts < 10'000 || HasFailure()) return;
    EXPECT_GT(std::min({rows.added, rows.modified, rows.deleted, rows.moved, tools.transfers}), 30);
    EXPECT_GT(std::min({rows.saved, rows.arcs, machine.starts}), 5);
}

}  // namespace
}  // namespace tarvex::testing
