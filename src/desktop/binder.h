#pragma once

#include <functional>
#include <string>

#include <wx/window.h>

#include "toolkit/act_queue.h"
#include "toolkit/control.h"
#include "toolkit/user_door.h"

namespace tarvex {

class NativeForm;

// Ties one control to the widget that shows it: ToWidget brings the widget in line with the control, and what
// the user does with the widget goes to the door as an act. It holds no rule. Both live no longer than the
// native form.
class Binder {
  public:
    // `spoken`: what a screen reader says of a widget that shows no caption of its own.
    Binder(NativeForm& window, Control& control, wxWindow& widget, const wxString& spoken = {});
    virtual ~Binder() = default;
    Binder(const Binder&) = delete;
    Binder& operator=(const Binder&) = delete;

    const Control& Bound() const { return control_; }
    wxWindow& Widget() const { return widget_; }

    // Whether the control is in use and in sight; what it shows is added by each kind.
    virtual void ToWidget();
    // The user moved the focus to the widget.
    virtual void Arrive();
    // Takes all that the control shows for the user's to overwrite.
    virtual void SelectAll() {}
    // Goes to the end of what the control shows, for the user to go on.
    virtual void GoToEnd() {}

  protected:
    NativeForm& Window() const { return window_; }

    // The user used the widget. `carry` takes that through the door. Nothing while the program itself is
    // changing widgets.
    void Post(std::function<bool(UserDoor&)> carry);
    // The same of what moves no focus.
    void PostLook(std::function<bool(UserDoor&)> carry);

  private:
    NativeForm& window_;
    Control& control_;
    wxWindow& widget_;
};

}  // namespace tarvex
