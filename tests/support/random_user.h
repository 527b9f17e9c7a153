#pragma once

#include <cstddef>
#include <deque>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "support/screens.h"

namespace tarvex::testing {

// Chances from a seed, the same on every machine.
class Chance {
  public:
    explicit Chance(std::uint32_t seed) : engine_(seed) {}

    std::size_t Below(std::size_t bound) { return engine_() % bound; }
    bool Percent(std::size_t percent) { return Below(100) < percent; }
    template <class Range>
    const auto& Of(const Range& range) {
        return *(std::begin(range) + static_cast<std::ptrdiff_t>(Below(std::size(range))));
    }

  private:
    std::mt19937 engine_;
};

// Answers at random.
class RandomMessageBox : public MessageBox {
  public:
    explicit RandomMessageBox(Chance& chance) : chance_(chance) {}

    MessageAnswer Show(const Message& message) override;
    int Shown() const { return shown_; }
    // The messages shown since they were last forgotten.
    const std::vector<Message>& Recent() const { return recent_; }
    void Forget() { recent_.clear(); }

  private:
    Chance& chance_;
    int shown_ = 0;
    std::vector<Message> recent_;
};

// A user who does anything that a user can do with the screens that are there: types all kinds of text,
// presses, picks, selects, uses keys, changes and closes windows. Now and then, so that something comes of
// it, goes by a plan: a whole waypoint, a name and a save, work on a row, a search, an ARC, a derived
// waypoint.
class RandomUser {
  public:
    // Presses rarely what only leads away.
    RandomUser(Program& program, Chance& chance) : program_(program), door_(program.door), chance_(chance) {}

    struct Act {
        std::string form;
        std::string on;    // a control, or a key such as "CtrlUp"
        std::string what;  // as "types 33"
    };
    // One act, whether it comes to something or not.
    Act Next();

  private:
    struct Step {
        std::string control;
        std::string text;
        std::string form;  // where the control stands; empty: in front of all others that have it
    };
    using Steps = std::deque<Step>;

    Form* ChooseForm();
    Control* ChooseControl(Form& form);
    std::string ChooseText(const TextBox& box);
    Act MendBox();
    Act ActOn(Control& control);
    std::string Choose(FolderList& list);
    Act PressKey(Form& form);
    Act CloseWindow();
    Act FollowPlan();

    Steps Plan();
    Steps PlanSave();
    Steps PlanWaypoint();
    Steps PlanWorkOnRow();
    Steps PlanSearch();
    Steps PlanArc();
    Steps PlanDerived();

    Program& program_;
    UserDoor& door_;
    Chance& chance_;
    Steps plan_;
};

}  // namespace tarvex::testing
