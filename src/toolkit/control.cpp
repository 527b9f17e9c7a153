#include "toolkit/control.h"

#include "toolkit/failure.h"
#include "toolkit/form.h"
#include "toolkit/form_host.h"
#include "toolkit/simple_controls.h"

namespace tarvex {

Control::Control(Form& form, std::string_view name, int tabIndex)
    : form_(form), name_(name), tabIndex_(tabIndex) {
    form.Add(*this);
}

void Control::SetEnabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    Changed();
    form_.Host().GetFocus().DropUnusable();
}

void Control::SetVisible(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    Changed();
    form_.Host().GetFocus().DropUnusable();
}

bool Control::Usable() const {
    return enabled_ && visible_ && (container_ == nullptr || container_->Usable());
}

void Control::SetFocus() {
    form_.Host().GetFocus().Give(*this);
}

bool Control::HasFocus() const {
    return form_.Host().GetFocus().Current() == this;
}

void Control::RequireIndex(bool isThere) const {
    if (!isThere) throw Failure(BadArgument, name_ + " has nothing of that number");
}

}  // namespace tarvex
