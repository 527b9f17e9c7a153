// Roads through the screens as texts, one file for each subject. "== title" begins a road on a machine of its
// own, "> acts" are acts of the user as support/road.h has them, and what is indented by four blanks behind
// them must be what comes of them. Other lines set the machine up:
//
//     put PATH           a file, with the lines behind it that begin with "+ "; a path that begins with Sids,
//                        Stars or Approaches lies in the simulator's folder
//     * N LINE           N times the line
//     text PATH TEXT     a file of one text
//     remove PATH        the file or the folder; "folder PATH" makes one
//     fix, navaid ...    an entry of the navigation files: identifier, frequency, latitude, longitude,
//     elevation registered PATH    the simulator's folder as the registry has it drives LIST        the
//     machine's drives fail read PATH N   reading, or "fail write", fails with the number from then on; 0: no
//     more start              starts the program; without it the first acts do start in PATH      the same
//     with the program in another folder show NAME          tells all of a screen; "rows" all rows
//
// With TARVEX_RECORD set the files are written anew as the program has it, for a person to check line by
// line.

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <sstream>

#include "support/road.h"

namespace tarvex::testing {
namespace {

using Words = std::vector<std::string>;

std::string Padded(std::string text, std::size_t width) {
    text.resize(width, ' ');
    return text;
}

std::string PathOf(const std::string& name) {
    for (const char* folder : {"Sids", "Stars", "Approaches"}) {
        if (name.starts_with(folder)) return "C:\\FS2000\\Giostam\\navdata\\" + Road::Unwritten(name);
    }
    return Road::Unwritten(name);
}

using Screens = std::map<std::string, Words>;  // the lines of each as it was shown first

Words LinesOf(const std::string& text) {
    Words lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

// One road: does the lines that are given and tells what came of each.
class Walk {
  public:
    explicit Walk(Screens& shown) : shown_(shown) { services.PutSimulator(); }

    std::string Line(const std::string& line) {
        constexpr std::string_view faults = "each fault of ";
        if (line.starts_with(faults)) return EachFault(line.substr(faults.size()));
        done_.push_back(line);
        if (line.starts_with("> ")) {
            std::string before;
            if (!road.program) before = Start();
            if (before == "    InitialLoad @CreateDP\n") before.clear();
            return before + road.Do(line.substr(2));
        }
        std::istringstream text(line);
        Words words{std::istream_iterator<std::string>(text), {}};
        words.resize(std::max<std::size_t>(words.size(), 5));
        return SetUp(words, line);
    }

  private:
    using Files = MemoryFileSystem;
    static constexpr int Faults[] = {FileNotFound, PathNotFound, PermissionDenied, AccessError,
                                     DeviceError,  DiskFull,     Files::ShortRead};

    static std::string NameOf(const Files::Done& done) {
        constexpr const char* names[] = {"read",          "write",           "find",
                                         "list files of", "list folders of", "enter"};
        return std::string(names[static_cast<int>(done.operation)]) + " " + done.path;
    }

    // The walk up to here and on by `acts` on a machine of its own, whose operation `n` of them fails.
    std::unique_ptr<Walk> Again(const std::string& acts, std::size_t n, int number) const {
        auto walk = std::make_unique<Walk>(shown_);
        for (const std::string& line : done_) walk->Line(line);
        walk->before_ = walk->services.files.Contents();
        walk->services.files.FailAt(n, number);
        walk->told_ = walk->Line(acts);
        return walk;
    }

    std::string EachFault(const std::string& acts) const {
        const auto sound = Again(acts, Files::Never, 0);
        const auto& operations = sound->services.files.Operations();
        std::string all;
        for (std::size_t n = 0; n < operations.size(); ++n) {
            std::vector<std::pair<std::string, std::string>> outcomes;  // and the numbers that lead there
            for (const int number : Faults) {
                const bool half = number == Files::ShortRead;
                if (half && operations[n].operation != Files::Operation::Read) continue;
                const std::string outcome = Again(acts, n, number)->Outcome(*sound);
                const auto known = std::find_if(outcomes.begin(), outcomes.end(),
                                                [&](const auto& entry) { return entry.first == outcome; });
                std::string& numbers =
                    (known == outcomes.end() ? outcomes.emplace_back(outcome, "") : *known).second;
                numbers += (numbers.empty() ? "" : " ") + (half ? "half" : std::to_string(number));
            }
            all += "    " + NameOf(operations[n]) + "\n";
            for (const auto& [outcome, numbers] : outcomes) all += "      " + numbers + ": " + outcome + "\n";
        }
        return all;
    }

    std::string Outcome(const Walk& sound) {
        std::string outcome;
        for (const std::string& line : LinesOf(told_)) {
            if (line.starts_with("    [")) outcome += line.substr(4, line.find(']') - 3) + " ";
        }
        const std::string place = road.Place();
        outcome += place.substr(0, place.find(':'));
        const auto after = services.files.Contents();
        const auto meant = sound.services.files.Contents();
        for (const auto& [path, text] : before_) {
            if (!after.contains(path)) outcome += ", loses " + path;
        }
        for (const auto& [path, text] : after) {
            const auto was = before_.find(path);
            const auto is = meant.find(path);
            const bool sane =
                (was != before_.end() && was->second == text) || (is != meant.end() && is->second == text);
            if (!sane) outcome += ", spoils " + path;
        }
        return outcome;
    }

    // Opens a procedure with the text of the line.
    std::string Open(const std::string& path, const std::string& line) {
        services.files.Put(PathOf(path), Road::Unwritten(line.substr(line.find(path) + path.size() + 1)));
        if (!road.program || !road.Runs()) Start();
        const std::string kind = path.substr(0, path.find('\\'));
        const std::string modify = kind == "Sids" ? "DP" : kind == "Stars" ? "STAR" : "IAP";
        return road.Do("Modify" + modify + " | FileList#" + path.substr(kind.size() + 1));
    }

    std::string Opened(const std::string& path, const std::string& line) {
        std::string told = Open(path, line);
        if (road.IsThere("ModifyProcedure")) {
            told.erase(0, told.find('\n') + 1);  // that it is there
            road.Do("OopsCommand");
        }
        return told.empty() ? "    nothing\n" : told;
    }

    // What is found in it, a line each.
    std::string Checked(const std::string& path, const std::string& line) {
        Open(path, line);
        std::string told;
        for (const std::string& found : dynamic_cast<ListBox&>(*road.Find("FindingsList")).Lines()) {
            told += "    " + Road::Written(found) + "\n";
        }
        road.Do("OopsCommand");
        return told.empty() ? "    nothing\n" : told;
    }

    std::string Shown(const std::string& screen) {
        const Words lines = LinesOf(road.Show(screen));
        const auto [first, isFirst] = shown_.try_emplace(screen, lines);
        std::string text;
        for (const std::string& line : lines) {
            const bool known =
                std::find(first->second.begin(), first->second.end(), line) != first->second.end();
            if (isFirst || !known) text += line + "\n";
        }
        return text;
    }

    std::string Start(const std::string& folder = "C:\\Tarvex") {
        const std::string navigation = "C:\\FS2000\\GIOSTAM\\navdata\\";
        const std::pair<const char*, std::string&> files[] = {
            {"wpNavFIX.txt", fixes_}, {"wpNavAID.txt", navaids_}, {"wpNavAPT.txt", airports_}};
        for (const auto& [name, text] : files) {
            if (!text.empty()) services.files.Put(navigation + name, std::exchange(text, {}));
        }
        return road.Start(nullptr, folder);
    }

    std::string SetUp(const Words& words, const std::string& line) {
        const std::string& what = words[0];
        const std::string rest = line.substr(std::min(what.size() + 1, line.size()));
        const std::string path = PathOf(rest);
        const std::string unread(24, ' ');
        if (what == "put") {
            services.files.Put(file_ = path, "");
        } else if (what == "+") {
            services.files.Put(file_, services.files.Content(file_) + Road::Unwritten(rest) + "\r\n");
        } else if (what == "*") {
            const std::string repeated =
                Road::Unwritten(rest.substr(std::min(words[1].size() + 1, rest.size()))) + "\r\n";
            std::string text = services.files.Content(file_);
            for (int left = std::stoi(words[1]); left > 0; --left) text += repeated;
            services.files.Put(file_, text);
        } else if (what == "text") {
            services.files.Put(PathOf(words[1]),
                               Road::Unwritten(rest.substr(std::min(words[1].size() + 1, rest.size()))));
        } else if (what == "folder") {
            services.files.PutFolder(path);
        } else if (what == "remove") {
            services.files.Has(path) ? services.files.Remove(path) : services.files.RemoveFolder(path);
        } else if (what == "fix") {
            fixes_ += unread + Padded(words[1], 5) + Padded(words[2], 10) + words[3] + "\r\n";
        } else if (what == "navaid") {
            navaids_ += unread + Padded(words[1], 9) + words[3] + words[4] + Padded(words[2], 6) + "H\r\n";
        } else if (what == "runway") {
            airports_ += unread + Padded(words[1], 15) + Padded(words[2], 10) + Padded(words[3], 21) +
                         words[4] + "\r\n";
        } else if (what == "registered") {
            services.Register(rest);
        } else if (what == "drives") {
            services.files.SetDrives(Words(words.begin() + 1, std::find(words.begin(), words.end(), "")));
        } else if (what == "clipboard") {
            services.clipboard.text = Road::Unwritten(rest);
        } else if (what == "browser") {
            services.browser.there = words[1] != "none";
        } else if (what == "current") {
            services.files.SetCurrentFolder(rest);
        } else if (what == "fail") {
            const int number = std::stoi(words[3]);
            words[1] == "read" ? services.files.FailRead(PathOf(words[2]), number)
                               : services.files.FailWrite(PathOf(words[2]), number);
        } else if (what == "start") {
            return words[1] == "in" ? Start(words[2]) : Start();
        } else if (what == "open") {
            return Opened(words[1], line);
        } else if (what == "check") {
            return Checked(words[1], line);
        } else if (what == "see") {
            return road.See(rest);
        } else if (what == "show") {
            return Shown(words[1]);
        } else if (!what.empty()) {
            return "    is no line of a road\n";
        }
        return "";
    }

    TestServices services;
    Road road{services};
    Screens& shown_;
    Words done_;                                 // the lines so far
    std::map<std::string, std::string> before_;  // the files, before a fault
    std::string told_;                           // behind it
    std::string file_;                           // put last
    std::string fixes_, navaids_, airports_;
};

// The file as it must be: its own lines but for those that tell what came of them.
std::string Walked(std::istream& file) {
    std::string walked;
    Screens shown;
    bool begun = false;  // what stands in front of the first road is for the reader
    auto walk = std::make_unique<Walk>(shown);
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("    ")) continue;
        walked += line + "\n";
        if (line.starts_with("== ")) {
            begun = true;
            walk = std::make_unique<Walk>(shown);
        } else if (begun) {
            walked += walk->Line(line);
        }
    }
    return walked;
}

// Which lines differ, each below the last road's title and acts in front of it.
std::string Differences(const Words& expected, const Words& actual) {
    std::string differences, title, acts;
    for (std::size_t i = 0, k = 0; i < expected.size() || k < actual.size();) {
        const bool command = i < expected.size() && !expected[i].starts_with("    ");
        if (command && k < actual.size() && expected[i] == actual[k]) {
            (expected[i].starts_with("==") ? title : acts) = expected[i];
            ++i, ++k;
            continue;
        }
        // What came of one line of acts, as it should be and as it is.
        Words should, is;
        for (; i < expected.size() && expected[i].starts_with("    "); ++i) should.push_back(expected[i]);
        for (; k < actual.size() && actual[k].starts_with("    "); ++k) is.push_back(actual[k]);
        if (should == is) continue;
        differences += title + "\n" + acts + "\n";
        for (const auto& line : should) {
            if (std::find(is.begin(), is.end(), line) == is.end()) differences += "  - " + line + "\n";
        }
        for (const auto& line : is) {
            if (std::find(should.begin(), should.end(), line) == should.end()) {
                differences += "  + " + line + "\n";
            }
        }
    }
    return differences;
}

class Roads : public ::testing::TestWithParam<const char*> {};

TEST_P(Roads, LeadWhereTheyAreToldTo) {
    const std::string path = std::string(TARVEX_ROADS_FOLDER "/") + GetParam() + ".txt";
    std::ifstream file(path, std::ios::binary);
    const std::string expected{std::istreambuf_iterator<char>(file), {}};
    ASSERT_FALSE(expected.empty()) << path;
    std::istringstream lines(expected);
    const std::string actual = Walked(lines);
    if (std::getenv("TARVEX_RECORD") != nullptr) std::ofstream(path, std::ios::binary) << actual;
    EXPECT_TRUE(actual == expected) << "- as it should be, + as it is:\n"
                                    << Differences(LinesOf(expected), LinesOf(actual));
}

INSTANTIATE_TEST_SUITE_P(, Roads,
                         ::testing::Values("screens", "fields", "rows", "select", "save", "open", "search",
                                           "arc", "undo", "blocks", "findings", "pending", "keys",
                                           "positions", "derived", "start", "folder", "tools", "faults",
                                           "reading"),
                         [](const auto& road) { return std::string(road.param); });

}  // namespace
}  // namespace tarvex::testing
