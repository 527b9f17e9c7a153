#include "desktop/binder.h"

#include <utility>

#include "desktop/native_form.h"
#include "desktop/window_system.h"

namespace tarvex {

Binder::Binder(NativeForm& window, Control& control, wxWindow& widget, const wxString& spoken)
    : window_(window), control_(control), widget_(widget) {
    NameForAccess(widget, control.Name(), spoken);
    control.Observe([this] { window_.Touch(*this); });
    window.Touch(*this);
}

void Binder::ToWidget() {
    if (widget_.IsThisEnabled() != control_.Enabled()) widget_.Enable(control_.Enabled());
    if (widget_.IsShown() != control_.Visible()) {
        widget_.Show(control_.Visible());
        window_.LayOutAgain();
    }
}

void Binder::Arrive() {
    window_.Post(NativeAct::Kind::Arrive, &control_,
                 [this](UserDoor& door) { return door.MoveFocus(control_); });
}

void Binder::Post(std::function<bool(UserDoor&)> carry) {
    window_.Post(NativeAct::Kind::Act, &control_, [this, carry = std::move(carry)](UserDoor& door) {
        // The widget has changed already; it follows the control again, whatever the door makes of the act.
        window_.Touch(*this);
        return carry(door);
    });
}

void Binder::PostLook(std::function<bool(UserDoor&)> carry) {
    window_.Post(NativeAct::Kind::Look, &control_, std::move(carry));
}

}  // namespace tarvex
