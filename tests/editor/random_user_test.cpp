#include "support/random_user.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <sstream>
#include <vector>

#include "geometry/text_rules.h"
#include "support/test_services.h"

namespace tarvex::testing {
namespace {

// Follows the editor from act to act with rows and lines of its own, and tells what has gone wrong.
class EditorWatch {
  public:
    EditorWatch(Program& program, TestServices& services) : program_(program), services_(services) {}

    struct Counts {
        int added, modified, deleted, moved, saved, reopened, arcs, most;
    };
    const Counts& Seen() const { return seen_; }

    void Before() {
        const ModifyProcedure* editor = program_.modifyProcedure.Get();
        wasOpen_ = editor != nullptr;
        if (!wasOpen_) return;
        selected_ = editor->WaypointList.ListIndex();
        fix_ = editor->FixNameText.Text();
        navaid_ = editor->NAVIDText.Text();
    }

    // What is wrong after the act; empty when all is well.
    std::string After(const RandomUser::Act& act) {
        wrong_.str("");
        if (const auto& stopped = program_.host.Stopped()) wrong_ << "stopped: " << stopped->reason;
        CheckSaved();
        if (const ModifyProcedure* editor = program_.modifyProcedure.Get()) CheckEditor(*editor, act);
        CheckFocus();
        return wrong_.str();
    }

  private:
    struct Pair {
        std::string line;
        WaypointRecord row;
        friend bool operator==(const Pair&, const Pair&) = default;
    };

    void Require(bool holds, std::string_view what) {
        if (!holds) wrong_ << what << "; ";
    }

    void CheckEditor(const ModifyProcedure& editor, const RandomUser::Act& act) {
        const auto count = program_.state.WaypointCount;
        Require(count >= 0 && count <= MaxWaypoints, "count out of range");
        Require(count == editor.WaypointList.ListCount(), "list and count differ");
        if (!wrong_.str().empty()) return;
        if (wasOpen_) {
            Expect(editor, act.on);
            Require(MatchesShadow(editor), "rows and lines are not what the act makes of them");
        } else {
            CheckOpened(editor);
        }
        CheckControls(editor);
        seen_.most = std::max(seen_.most, count);
    }

    Pair PairAt(const ModifyProcedure& editor, std::size_t index) const {
        return {editor.WaypointList.Lines()[index], program_.state.WaypointTable[index]};
    }

    bool MatchesShadow(const ModifyProcedure& editor) const {
        const auto& lines = editor.WaypointList.Lines();
        if (shadow_.size() != lines.size()) return false;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            if (lines[i] != shadow_[i].line || program_.state.WaypointTable[i] != shadow_[i].row)
                return false;
        }
        return true;
    }

    // Does to the shadow what the act may have done to rows and lines, and nothing more.
    void Expect(const ModifyProcedure& editor, const std::string& on) {
        const std::size_t count = editor.WaypointList.Lines().size();
        const int now = editor.WaypointList.ListIndex();
        const auto at = static_cast<std::size_t>(std::max(selected_, 0));
        if (on == "AddWaypointCommand" && count == shadow_.size() + 1) {
            shadow_.push_back(PairAt(editor, count - 1));
            CheckAdded(shadow_.back());
        } else if (on == "TransferCommand" && count > shadow_.size()) {
            ++seen_.arcs;
            while (shadow_.size() < count) {
                shadow_.push_back(PairAt(editor, shadow_.size()));
                Require(Trim(shadow_.back().row.WaypointID) == shadow_.back().line, "ARC row misnamed");
            }
        } else if ((on == "DeleteWaypointCommand" || on == "Delete") && count + 1 == shadow_.size()) {
            Require(selected_ >= 0, "deleted without a selection");
            shadow_.erase(shadow_.begin() + selected_);
            ++seen_.deleted;
        } else if ((on == "MoveUp" || on == "CtrlUp" || on == "MoveDown" || on == "CtrlDown") &&
                   now != selected_) {
            Require(now == selected_ + (on.ends_with("Up") ? -1 : 1), "moved too far");
            std::swap(shadow_[at], shadow_[static_cast<std::size_t>(now)]);
            ++seen_.moved;
        } else if (on == "ModifyWaypointCommand" && selected_ >= 0 &&
                   program_.state.WaypointTable[at] != shadow_[at].row) {
            const WaypointRecord& row = program_.state.WaypointTable[at];
            Require(row.WaypointType == shadow_[at].row.WaypointType, "type modified");
            shadow_[at].row = row;
            ++seen_.modified;
        }
    }

    void CheckAdded(const Pair& added) {
        ++seen_.added;
        const auto& lineSource = fix_.empty() ? navaid_ : fix_;
        const FixedField<10> name = Upper(navaid_.empty() ? fix_ : navaid_);
        Require(Upper(added.line) == Upper(lineSource), "line misnamed");
        Require(Upper(added.row.WaypointID) == name.Text(), "row misnamed");
        Require(added.row.CoordinatesEdited == True, "new row not marked as edited");
    }

    void CheckOpened(const ModifyProcedure& editor) {
        shadow_.clear();
        everSelected_ = false;
        for (std::size_t i = 0; i < editor.WaypointList.Lines().size(); ++i) {
            shadow_.push_back(PairAt(editor, i));
            Require(shadow_.back().line == shadow_.back().row.WaypointID.Text(),
                    "line is not its row's name");
        }
        if (editor.AptNameText.Enabled()) {
            Require(shadow_.empty(), "a new procedure has rows");
            return;
        }
        const auto stored = saved_.find(program_.state.ProcedureFolder + program_.state.ProcedureFileName);
        if (stored == saved_.end()) return;
        ++seen_.reopened;
        Require(std::equal(shadow_.begin(), shadow_.end(), stored->second.begin(), stored->second.end(),
                           [](const Pair& pair, const std::string& name) { return Trim(pair.line) == name; }),
                "what comes back is not what was saved");
    }

    void CheckSaved() {
        const auto& written = services_.files.Written();
        for (; writtenSeen_ < written.size(); ++writtenSeen_) {
            const std::string& path = written[writtenSeen_];
            if (path.find("Giostam") == std::string::npos) continue;
            ++seen_.saved;
            auto& names = saved_[path];
            names.clear();
            for (const Pair& pair : shadow_) names.emplace_back(TrimAll(pair.row.WaypointID));
            std::istringstream lines(services_.files.Content(path));
            std::ptrdiff_t rows = 0;
            for (std::string line; std::getline(lines, line);) {
                if (!line.starts_with("W,")) continue;
                ++rows;
                Require(std::count(line.begin(), line.end(), ',') == 11 && line.ends_with(",\r"),
                        "bad line saved");
            }
            Require(rows == static_cast<std::ptrdiff_t>(shadow_.size()), "rows lost in the save");
        }
    }

    // As a reader of items takes it: tabs in front go too.
    static std::string TrimAll(std::string_view text) {
        const auto start = text.find_first_not_of(" \t");
        return start == std::string_view::npos ? std::string() : std::string(Trim(text.substr(start)));
    }

    void CheckControls(const ModifyProcedure& editor) {
        const bool selected = editor.WaypointList.ListIndex() != ListBox::NoSelection;
        everSelected_ = everSelected_ || selected;
        Require(editor.AddWaypointCommand.Enabled() == !selected, "Add");
        Require(editor.ModifyWaypointCommand.Enabled() == selected, "Modify");
        Require(editor.DeleteWaypointCommand.Enabled() == selected, "Delete");
        Require(editor.MoveUp.Enabled() == everSelected_, "Move Up");
        Require(editor.MoveDown.Enabled() == everSelected_, "Move Down");
        Require(editor.ClearDataCommand.Enabled() && editor.SaveCommand.Enabled(), "Clear or Save");

        const bool band = editor.AtAboveAtBelowOption.Value();
        Require(editor.Alt2Text.Enabled() == band, "upper altitude enabled");
        Require(editor.Alt2Label.Enabled() == band, "label of the upper altitude enabled");
        Require(editor.Alt2Text.BackColor() == (band ? White : Grey), "upper altitude's colour");
        const auto chosen = [](std::initializer_list<const OptionButton*> options) {
            return std::count_if(options.begin(), options.end(),
                                 [](const auto* option) { return option->Value(); });
        };
        Require(chosen({&editor.NoRestrictionOption, &editor.AtOption, &editor.AtBelowOption,
                        &editor.AtAboveOption, &editor.AtAboveAtBelowOption}) == 1,
                "restrictions");
        Require(chosen({&editor.NLatOption, &editor.SLatOption}) == 1, "latitudes");
        Require(chosen({&editor.ELongOption, &editor.WLongOption}) == 1, "longitudes");
        for (const TextBox* box : {&editor.FixNameText, &editor.NAVIDText, &editor.FreqText}) {
            Require(selected || box->Enabled(), "a name box stays closed");
            Require(box->BackColor() == (box->Enabled() ? White : Grey), "a name box's colour");
        }
    }

    void CheckFocus() {
        const Control* focused = program_.host.GetFocus().Current();
        Require(focused != nullptr && focused->CanTakeFocus() && focused->Owner().Visible(), "focus lost");
    }

    Program& program_;
    TestServices& services_;
    std::ostringstream wrong_;
    Counts seen_{};
    std::vector<Pair> shadow_;
    bool everSelected_ = false;                              // since the editor opened
    std::map<std::string, std::vector<std::string>> saved_;  // names of the rows by path
    std::size_t writtenSeen_ = 0;

    // Before the act.
    bool wasOpen_ = false;
    int selected_ = ListBox::NoSelection;
    std::string fix_;
    std::string navaid_;
};

void PutNavigationData(TestServices& services) {
    const std::string folder = "C:\\FS2000\\GIOSTAM\\navdata\\";
    services.files.Put(folder + "wpNavFIX.txt",
                       "AAGEE                   AAGEE 40.027142-104.778261 \r\n"
                       "AALST                   AALST 40.764511 -74.119811 \r\n");
    services.files.Put(folder + "wpNavAID.txt",
                       "ACY                     ACY  VOR 39.455861-74.576306108.60H\r\n"
                       "AP                      AP   NDB 39.451917-104.845806260.00N\r\n");
    services.files.Put(folder + "wpNavAPT.txt",
                       "DENVER INTL             KDEN07 11959090 39.840943-104.726657           5431\r\n");
}

TEST(RandomUser, LeavesTheEditorInOrderWhateverHeDoes) {
    constexpr int Acts = 100'000;
    TestServices services;
    services.PutSimulator();
    PutNavigationData(services);
    Chance chance(3);
    RandomMessageBox messages(chance);
    Program program({services.files, services.registry, services.clock, messages, "C:\\Tarvex"});
    program.Start();
    RandomUser user(program, chance);
    EditorWatch watch(program, services);

    std::deque<std::string> trail;
    for (int number = 0; number < Acts; ++number) {
        watch.Before();
        const RandomUser::Act act = user.Next();
        trail.push_back(act.form + "." + act.on + " " + act.what);
        if (trail.size() > 20) trail.pop_front();
        const std::string wrong = watch.After(act);
        if (wrong.empty()) continue;
        std::string acts;
        for (const std::string& line : trail) acts += "\n  " + line;
        FAIL() << "act " << number << ": " << wrong << acts;
    }

    // The road is worth something only if the user gets about.
    const auto& seen = watch.Seen();
    std::ostringstream counts;
    counts << seen.added << " added, " << seen.modified << " modified, " << seen.deleted << " deleted, "
           << seen.moved << " moved, " << seen.saved << " saved, " << seen.reopened << " reopened, "
           << seen.arcs << " arcs, at most " << seen.most << " rows, " << messages.Shown() << " messages";
    SCOPED_TRACE(counts.str());
    EXPECT_GT(std::min({seen.added, seen.modified, seen.deleted, seen.moved}), 100);
    EXPECT_GT(std::min({seen.saved, seen.reopened}), 20);
}

}  // namespace
}  // namespace tarvex::testing
