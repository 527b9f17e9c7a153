#pragma once

#include <deque>
#include <functional>
#include <optional>

namespace tarvex {

class Control;
class Form;

// Something that the user did in a native window.
struct NativeAct {
    enum class Kind {
        Activate,  // brought the window to the front
        Arrive,    // moved the focus to the control
        Look,      // looked at something, which moves no focus
        Act,       // used the control, or the form where there is none
    };

    Kind kind;
    const Form* form;
    const Control* control;       // null: none in particular
    std::function<bool()> carry;  // takes it through the door; false when it was refused
};

// What the user did, in order, until the program gets to it.
class ActQueue {
  public:
    void Push(NativeAct act) { acts_.push_back(std::move(act)); }

    // Takes the next act out. A move that the act behind it makes anyway is left out: an arrival at a control
    // that is then used, an activation of a window one of whose controls is then reached or used. So a rule
    // that complains about the move does so once.
    std::optional<NativeAct> Next();

    // Drops all that concerns a form on its way out.
    void Forget(const Form& form);
    void Clear() { acts_.clear(); }
    bool Empty() const { return acts_.empty(); }

  private:
    std::deque<NativeAct> acts_;
};

}  // namespace tarvex
