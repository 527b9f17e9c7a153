// A random user at all screens of the program, through many starts and ends of it, on a machine whose files
// fail now and then; and what always holds, whatever the user does.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <gtest/gtest.h>
#include <sstream>

#include "geometry/text_rules.h"
#include "procedure/procedure_save.h"
#include "support/heap_in_use.h"
#include "support/random_user.h"

namespace tarvex::testing {
namespace {

using Files = MemoryFileSystem;
using Rows = std::vector<std::string>;

const std::string Ini = "C:\\Tarvex\\Tarvex.INI";
const std::string Folder = "C:\\FS2000\\Giostam\\navdata\\";
const std::string Stored[][2] = {
    {"Stars\\KXYZ-MEND.wst", "; by hand 2.35\r\n\r\nW,ALPHA,,0,33.5NN,-118.25WW,0,250,0,5000,1,\r\n"},
    {"Stars\\KXYZ-BAND.wst", "; by hand 2.35\r\n\r\nW,ALPHA,,0,33.5,-118.25,0,250,9000,5000,3,\r\n"},
    {"Approaches\\KXYZ-OLD.wap", "; by hand 2.31\r\n\r\nW,KDEN07,,0,33.5,-118.25,0,0,0,0,0,\r\n"},
    {"Sids\\KXYZ-LOST.wsd",
     "; by hand 2.35\r\n\r\nW,ALPHA,,0,33.5,-118.25,0,250,5000,1,\r\nW,B,,0,1,1,0,\r\n"},
    {"Sids\\readme.txt", "no procedure\r\n"},
};

void PutNavigationData(Files& files) {
    files.Put(Folder + "wpNavFIX.txt",
              "AAGEE                   AAGEE 40.027142-104.778261 \r\n"
              "TWICE                   TWICE 40.764511 -74.119811 \r\n"
              "TWICE                   TWICE-10.764511  74.119811 \r\n"
              "BADLY                   BADLY noneatall -74.119811 \r\n"
              "AALST                   AALST 40.764511 -74.119811 \r\n");
    files.Put(Folder + "wpNavAID.txt",
              "ACY                     ACY  VOR 39.455861-74.576306108.60H\r\n"
              "POLE                    POLE NDB 89.990000-74.576306350.00H\r\n"
              "AP                      AP   NDB -0.451917104.845806260.00N\r\n");
    files.Put(Folder + "wpNavAPT.txt",
              "DENVER INTL             KDEN07 11959090 39.840943-104.726657           5431\r\n"
              "LOS ANGELES             KLAX25L11959090 33.949944-118.401192            120\r\n"
              "LOS ANGELES             KLAX25R11959090 33.952100-118.401942            120\r\n");
}

// How often something happened.
struct Counts {
    int starts, changed, added, deleted, moved, undone, arcs, saved, messages, blocks;
};

// What stands in a row as Road::Rows tells it: the line in the list, then the row.
std::string LineOf(const std::string& row) {
    return row.substr(0, row.rfind(": ", row.find('|')));
}

constexpr std::string_view Undoing[] = {"UndoCommand", "RedoCommand", "key CtrlZ", "key CtrlY",
                                        "key CtrlShiftZ"};

// The rows may change at one place: one appended, taken out, altered, or two neighbours exchanged; only an
// ARC appends more, and what undoes or redoes has a check of its own. A line stays what it is as long as its
// row is there.
std::string CheckRows(const Rows& before, const Rows& now, const std::string& act, Counts& counts) {
    if (now == before) return "";
    const bool undone = std::ranges::any_of(Undoing, [&act](auto name) { return act.ends_with(name); });
    if (undone) return ++counts.undone, "";
    if ((act.starts_with("key ") && act != "key CtrlEnter") || act.find("#before ") != std::string::npos) {
        // What a block was moved among, or out of.
        counts.blocks += before.size() > now.size() + 1 || act.find('#') != std::string::npos;
        Rows left = now, all = before;
        std::ranges::sort(left);
        std::ranges::sort(all);
        return std::ranges::includes(all, left) ? "" : "a block takes other rows with it";
    }
    std::size_t same = 0;
    while (same < std::min(before.size(), now.size()) && before[same] == now[same]) ++same;
    if (now.size() > before.size()) {
        const std::size_t more = now.size() - before.size();
        const bool arc = act.starts_with("AddARC.TransferCommand");
        ++(arc ? counts.arcs : counts.added);
        if (same != before.size()) return "an added row changes another";
        return more == 1 || arc ? "" : "several rows come at once";
    }
    if (now.size() < before.size()) {
        ++counts.deleted;
        Rows expected = before;
        expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(same));
        return now == expected ? "" : "a deleted row changes another";
    }
    Rows expected = before;
    if (same + 1 < now.size() && now[same] == before[same + 1]) {
        ++counts.moved;
        std::swap(expected[same], expected[same + 1]);
        return now == expected ? "" : "a moved row changes another";
    }
    ++counts.changed;
    expected[same] = now[same];
    if (now != expected) return "several rows change at once";
    return LineOf(now[same]) == LineOf(before[same]) ? "" : "a row that is altered loses its line";
}

// Name and position of a row as a file has them.
struct Place {
    std::string name;
    double lat, lon;
};
Place PlaceOf(std::string row) {
    row.erase(0, LineOf(row).size() + 2);
    std::vector<std::string> fields;
    std::istringstream text(row);
    for (std::string field; std::getline(text, field, '|');) fields.push_back(Road::Unwritten(field));
    fields.resize(8);
    const bool edited = fields[0].ends_with('*');
    const auto degrees = [&](std::size_t decimal) {
        if (!edited) return LeadingNumber(fields[decimal]);
        const double magnitude =
            std::fabs(LeadingNumber(fields[decimal + 1])) + LeadingNumber(fields[decimal + 2]) / 60;
        return Trim(fields[decimal + 1]).starts_with('-') ? -magnitude : magnitude;
    };
    if (edited) fields[0].pop_back();
    const std::size_t start = std::min(fields[0].find_first_not_of(" \t"), fields[0].size());
    return {std::string(RightTrim(fields[0].substr(start))), degrees(2), degrees(5)};
}

// What was saved opens on a machine of its own with the same names and positions.
std::string CheckReadsBack(const std::string& path, const std::string& text, const Rows& saved) {
    const std::string name = path.substr(path.rfind('\\') + 1);
    if (name.find('.') < name.find('-')) return "";  // no name of a procedure, as the findings say
    TestServices services;
    services.PutSimulator();
    services.files.Put(Folder + "Sids\\" + name, text);
    Road road(services);
    road.Start();
    road.DoOne("ModifyDP");
    road.DoOne("FileList#" + Road::Written(name));
    const Rows read = road.Rows();
    if (!road.IsThere("ModifyProcedure") || read.size() != saved.size()) return "rows are lost in a save";
    for (std::size_t i = 0; i < read.size(); ++i) {
        const Place a = PlaceOf(saved[i]), b = PlaceOf(read[i]);
        const auto near = [](double x, double y) {
            return std::fabs(x - y) <= std::max(1.1e-6, std::fabs(x) * 1e-12);
        };
        if (a.name != b.name || !near(a.lat, b.lat) || !near(a.lon, b.lon)) {
            return "saved " + saved[i] + ", read " + read[i];
        }
    }
    return "";
}

std::size_t FromEnvironment(const char* name, std::size_t otherwise) {
    const char* value = std::getenv(name);
    return value == nullptr ? otherwise : std::strtoull(value, nullptr, 10);
}

class LongUse : public ::testing::Test {
  protected:
    LongUse() {
        services.PutSimulator();
        PutNavigationData(services.files);
        services.files.PutFolder("D:\\Empty\\Inner");
        services.files.SetDrives({"C:\\", "D:\\", "E:\\"});
        fresh = services.files;
        services.messages.AnswerBy([this] { return chance.Percent(50); });
    }

    // A start with settings of any kind; where it comes to nothing, one with sound settings.
    void Start() {
        services.files.FailAt(Files::Never, 0);
        for (const auto& [name, text] : Stored) {
            if (!services.files.Has(Folder + name)) services.files.Put(Folder + name, text);
        }
        constexpr const char* registered[] = {"", "   ", "C:\\FS2000", "E:\\Gone"};
        services.Register(chance.Of(registered));
        const std::size_t settings = chance.Below(4);  // from 2 on as the last run left them
        if (settings == 0) services.files.Remove(Ini);
        if (settings == 1) services.files.Put(Ini, "C:\\FS2000\r\nS\r\nE\r\n");
        road.Start();
        if (!road.Runs()) services.files.Put(Ini, "C:\\FS2000\r\nN\r\nW\r\nW\r\n");
        if (!road.Runs()) road.Start();
        user.ForgetPlan();
        rows.clear();
        ++counts.starts;
    }

    // Of a start where nothing is left of what was saved.
    std::size_t HeapOfAFreshMachine() {
        services.files = fresh;
        Start();
        return HeapInUse();
    }

    // One act, one of whose file operations may fail. What is wrong then; empty for nothing.
    std::string Act() {
        constexpr int numbers[] = {FileNotFound, PathNotFound, PermissionDenied, AccessError,
                                   DeviceError,  DiskFull,     Files::ShortRead};
        services.files.FailAt(chance.Percent(8) ? chance.Below(3) : Files::Never, chance.Of(numbers));
        const Form* editor = road.Screen("ModifyProcedure");
        const Rows before = std::exchange(rows, {});
        const std::string act = user.Next();
        const auto operations = services.files.Operations();
        const bool faulty =
            std::ranges::any_of(operations, &Files::Done::failed) || services.files.FaultMet();
        trail.push_back(act + (faulty ? " (a file operation failed)" : ""));
        std::string wrong = CheckMessages(act, faulty) + CheckWritten(operations, before);
        if (!road.Runs()) {
            const auto& stopped = *road.program->host.Stopped();
            const bool may = faulty || stopped.exitStatus == 0 || fatal;
            return wrong + (may ? "" : "stopped: " + stopped.reason);
        }
        rows = road.Rows();
        wrong += CheckScreens();
        if (editor != nullptr && road.Screen("ModifyProcedure") == editor) {
            wrong += CheckRows(before, rows, act, counts);
        } else {
            opened = Saved();
        }
        return wrong;
    }

    // The rows with their lines, and the file that they make.
    Rows Saved() const {
        Rows saved = road.Rows();
        saved.push_back(ComposeProcedure(road.program->state.Rows.InUse(), "", "").text);
        return saved;
    }

    // Everything undone, to the opening of the editor, done again, and some of it undone for good.
    std::string CheckUndo() {
        const auto press = [this](const std::string& button, std::size_t most = 10'000) {
            while (most > 0 && road.DoOne("ModifyProcedure." + button)) --most;
        };
        if (!road.DoOne("to ModifyProcedure.WaypointList")) return "";  // a box keeps the focus
        press("RedoCommand");
        const Rows last = Saved();
        press("UndoCommand");
        if (Saved() != opened) return "not everything is undone";
        press("RedoCommand");
        if (Saved() != last) return "not everything is done again";
        press("UndoCommand", chance.Below(4));
        rows = road.Rows();
        services.messages.Take();
        return CheckScreens();
    }

    std::string CheckMessages(const std::string& act, bool faulty) {
        std::string wrong;
        for (const Message& message : services.messages.Take()) {
            ++counts.messages;
            trail.back() += " [" + message.prompt + "]";
            fatal = fatal || message.title == "Fatal Data Error." || message.title == "Program termination.";
            if (message.title.empty() || message.prompt.empty()) wrong += "a message without words";
            const bool unexpected = message.prompt.starts_with("The operation could not be finished");
            if (unexpected && !faulty && !act.starts_with("FindFS2000Form"))
                wrong += "nobody expected a failure";
        }
        return wrong;
    }

    // Everything that is written is settings or a procedure, and what was saved reads back.
    std::string CheckWritten(const std::vector<Files::Done>& operations, const Rows& before) {
        std::string wrong;
        for (const auto& done : operations) {
            if (done.operation != Files::Operation::Write || done.path == Ini) continue;
            const std::string folder = done.path.substr(0, done.path.rfind('\\'));
            const bool right = folder.ends_with("\\Giostam\\navdata\\Sids") ||
                               folder.ends_with("\\Giostam\\navdata\\Stars") ||
                               folder.ends_with("\\Giostam\\navdata\\Approaches");
            if (!right) wrong += "written outside the procedures: " + done.path;
            if (done.failed) {
                services.files.Remove(done.path);  // it may be cut off
            } else if (services.files.Has(done.path) && !trail.back().starts_with("PickFile")) {
                ++counts.saved;
                wrong += CheckReadsBack(done.path, services.files.Content(done.path), before);
            }
        }
        return wrong;
    }

    std::string CheckScreens() {
        std::string wrong;
        const auto& visible = road.program->host.Visible();
        if (visible.empty()) return "nothing is on the screen";
        const bool editor = road.IsThere("ModifyProcedure");
        for (const Form* form : visible) {
            if (std::ranges::count(visible, form->Name(), &Form::Name) > 1) wrong += "a screen stands twice";
        }
        for (const char* tool : {"FindWaypointForm", "AddARC", "LatLongForm", "CreateWaypointForm"}) {
            if (road.IsThere(tool) && !editor) wrong += "a tool is open without the editor";
        }
        if (!editor && !road.IsThere("InitialLoad") && !road.IsThere("FindFS2000Form")) {
            wrong += "neither menu nor editor is there";
        }
        const Control* focused = road.program->host.GetFocus().Current();
        if (focused == nullptr || !focused->CanTakeFocus() || !focused->Owner().Visible())
            wrong += "focus lost";
        if (const std::string untold = road.Untold(); !untold.empty()) wrong += "not told: " + untold;
        if (!editor) return wrong;
        for (const std::string& row : rows) {
            if (row.starts_with("(no line)") || row.find("(no row)") != std::string::npos) {
                wrong += "list and rows differ";
            }
        }
        return wrong;
    }

    const std::size_t seed = FromEnvironment("TARVEX_SEED", 3);
    Chance chance{static_cast<std::uint32_t>(seed)};
    TestServices services;
    Files fresh;  // with nothing of what is saved
    Road road{services};
    RandomUser user{road, chance};
    Counts counts{};
    Rows rows;
    Rows opened;         // when the editor came up
    bool fatal = false;  // the program has said that it stops
    std::deque<std::string> trail;
};

TEST_F(LongUse, LeavesEverythingInOrder) {
    const std::size_t acts = FromEnvironment("TARVEX_ACTS", 30'000);
    std::size_t heap = 0;  // behind the first tenth
    Start();
    for (std::size_t number = 0; number < acts; ++number) {
        std::string wrong = Act();
        if (wrong.empty() && road.Runs() && road.IsThere("ModifyProcedure") && chance.Percent(1)) {
            trail.push_back("everything is undone and done again");
            wrong = CheckUndo();
        }
        while (trail.size() > 25) trail.pop_front();
        if (!wrong.empty()) {
            std::string last;
            for (const std::string& act : trail) last += "\n  " + Road::Written(act);
            FAIL() << "act " << number << " of the seed " << seed << ": " << wrong << last;
        }
        if (number == acts / 10) heap = HeapOfAFreshMachine();
        // Now and then the machine is switched off.
        if (road.Runs() && chance.Below(1000) != 0) continue;
        trail.push_back("the program starts anew");
        fatal = false;
        Start();
        ASSERT_TRUE(road.Runs()) << "does not start";
    }
    const Counts& c = counts;
    std::printf(
        "%zu acts: %d starts, %d rows added, %d changed, %d deleted, %d moved, %d blocks, %d undone, "
        "%d ARCs, %d saves, %d messages\n",
        acts, c.starts, c.added, c.changed, c.deleted, c.moved, c.blocks, c.undone, c.arcs, c.saved,
        c.messages);
    constexpr std::size_t roomToBreathe = 256 << 10;
    EXPECT_LT(HeapOfAFreshMachine(), heap + roomToBreathe) << "the memory grew";
    // The road is worth something only if the user gets about.
    if (acts < 10'000) return;
    EXPECT_GT(std::min({c.added, c.changed, c.deleted, c.moved, c.undone, c.blocks}), 15);
    EXPECT_GT(std::min({c.saved, c.arcs, c.starts}), 5);
}

}  // namespace
}  // namespace tarvex::testing
