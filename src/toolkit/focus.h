#pragma once

#include <functional>

namespace tarvex {

class Control;
class Form;
class FormHost;

// The focus, one for the whole program.
class Focus {
  public:
    explicit Focus(FormHost& host) : host_(host) {}

    // Null: no control has it.
    Control* Current() const { return current_; }

    // Moves the focus to `target`, on whatever visible or loading form it stands, after the leaving rule of
    // the control that has the focus has run. False when the target can't take it, or when that rule gave the
    // focus to another control itself, its own as a rule: then it stays there and the target never had it.
    bool Give(Control& target);

    // Gives the focus to `target`, which can take it, and runs `act` ahead of the leaving rule. That rule
    // runs behind it where the control that was left is still in use without the focus.
    void GiveAndAct(Control& target, const std::function<void()>& act);

    // Gives the focus to the control of `form` that had it last, else to the first in tab order. A form
    // without any takes the focus away from all controls. False as for Give.
    bool Activate(Form& form);

    // Takes the focus, without any rule, from a control that can no longer hold it.
    void DropUnusable();

    // `form` is no longer on the screen: forgets what it held of the focus, without any rule.
    void FormGone(const Form& form);

  private:
    bool CanHold(const Control& control) const;
    void Set(Control* control);

    FormHost& host_;
    Control* current_ = nullptr;
    bool leaving_ = false;     // the leaving rule of current_ is running
    bool redirected_ = false;  // that rule gave the focus to a control itself
};

}  // namespace tarvex
