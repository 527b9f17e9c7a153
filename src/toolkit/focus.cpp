#include "toolkit/focus.h"

#include <utility>

#include "toolkit/control.h"
#include "toolkit/form.h"
#include "toolkit/form_host.h"

namespace tarvex {

bool Focus::CanHold(const Control& control) const {
    return host_.IsInUse(control.Owner()) && control.CanTakeFocus();
}

bool Focus::Give(Control& target) {
    if (!CanHold(target)) return false;
    if (leaving_) {
        redirected_ = true;
        if (&target != current_) Set(&target);
        return true;
    }
    if (&target == current_) return true;

    if (current_ != nullptr && current_->OnLostFocus) {
        leaving_ = true;
        redirected_ = false;
        // Held by value: the rule may end its own form.
        const auto rule = current_->OnLostFocus;
        try {
            rule();
        } catch (...) {
            leaving_ = false;
            throw;
        }
        leaving_ = false;
        if (std::exchange(redirected_, false)) return current_ == &target;
        if (!CanHold(target)) return false;
    }
    Set(&target);
    return true;
}

void Focus::GiveAndAct(Control& target, const std::function<void()>& act) {
    const Control* left = current_;
    Set(&target);
    act();
    if (left == nullptr || left == current_ || !CanHold(*left) || !left->OnLostFocus) return;
    const auto rule = left->OnLostFocus;
    rule();
}

bool Focus::Activate(Form& form) {
    Control* target = form.lastFocus_;
    if (target == nullptr || !target->CanTakeFocus()) target = form.NextTabStop(nullptr, true);
    if (target != nullptr) return Give(*target);
    Set(nullptr);
    return true;
}

void Focus::DropUnusable() {
    if (current_ != nullptr && !current_->CanTakeFocus()) Set(nullptr);
}

void Focus::FormGone(const Form& form) {
    if (current_ != nullptr && &current_->Owner() == &form) Set(nullptr);
}

void Focus::Set(Control* control) {
    Control* left = std::exchange(current_, control);
    if (left != nullptr && left != control) left->FocusGone();
    if (control != nullptr) {
        control->Owner().lastFocus_ = control;
        host_.Raised(control->Owner());
    }
}

}  // namespace tarvex
