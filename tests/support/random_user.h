#pragma once

#include <cstddef>
#include <deque>
#include <random>
#include <span>
#include <string>
#include <string_view>

#include "startup/program.h"

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

  private:
    Chance& chance_;
    int shown_ = 0;
};

// A user who does anything that a user can do with the screens that are there: types all kinds of text,
// presses, picks, selects, uses keys, changes and closes windows. Now and then, so that something comes of
// it, goes by a plan: a whole waypoint, a name and a save, work on a row, an ARC. Never ends the program by
// intent.
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
    Form* ChooseForm();
    Control* ChooseControl(Form& form);
    std::string ChooseText(const TextBox& box);
    Act ActOn(Control& control);
    Act PressKey(Form& form);
    Act CloseWindow();
    void Plan();
    Act FollowPlan();

    struct Step {
        std::string control;
        std::string text;
    };

    Program& program_;
    UserDoor& door_;
    Chance& chance_;
    std::deque<Step> plan_;
};

}  // namespace tarvex::testing
