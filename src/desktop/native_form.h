#pragma once

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <wx/frame.h>
#include <wx/panel.h>

#include "desktop/binder.h"
#include "desktop/placement.h"
#include "toolkit/form.h"

namespace tarvex {

class Desktop;

// How the user came to the control that has the focus after an act.
enum class Arrival {
    Led,     // by a click, or by the program
    Tab,     // what the control shows is selected
    Typing,  // typing goes on behind what it shows
};

// The native window of one form. It outlives its form by a little: from Detach on it touches nothing of the
// program any more.
class NativeForm final : public wxFrame {
  public:
    NativeForm(Desktop& desktop, Form& form, wxWindow* owner);
    ~NativeForm() override;

    // Null once the form is on its way out.
    Form* Shows() const { return form_; }
    void Detach();

    // All widgets stand on the page.
    wxPanel& Page() const { return *page_; }
    // Ties a control to a widget by a binder of its kind, which the window owns.
    template <class BinderType, class... Args>
    BinderType& Tie(Args&&... args) {
        auto binder = std::make_unique<BinderType>(*this, std::forward<Args>(args)...);
        BinderType& bound = *binder;
        binders_.push_back(std::move(binder));
        return bound;
    }
    // Null for a control that the window does not show.
    Binder* BinderOf(const Control& control) const;

    // The control has changed, or its widget by the user's hand: they are brought in line at the next Flush.
    void Touch(Binder& binder) { touched_.insert(&binder); }
    void TouchAll();
    // The part of the page that a tool may lie over; without one, all of it.
    void SetSpare(const wxSizer& part) { spare_ = &part; }
    wxRect Spare() const;  // on the screen
    // The size that the program gave the window is the one that it has now.
    void KeepSize() { ownSize_ = GetClientSize(); }
    bool SizedByUser() const;  // since then
    ChosenSize SizeNow() const;

    // What stands in the window has changed its size.
    void LayOutAgain() { layOut_ = true; }
    void Flush();

    // Puts the focus within the window on the widget of the control.
    void PutFocusOn(const Control& control, Arrival how);
    // No control has the focus: whichever the user goes to is a new one.
    void ForgetFocus() { arrivedAt_ = nullptr; }

    bool IsSecondClick() const;
    // The user typed beside the boxes.
    void PostTyping(const std::string& characters);
    // Something that the user did. `control` is null when it concerns the whole form.
    void Post(NativeAct::Kind kind, Control* control, std::function<bool(UserDoor&)> carry);

  private:
    // Whether the keyboard is the widget's own, and not that of a control within it, as on a page of tabs.
    bool HoldsFocus(const Binder& binder) const;
    void OnKey(wxKeyEvent& event);
    void OnArrival(wxChildFocusEvent& event);
    void OnActivate(wxActivateEvent& event);
    void OnClose(wxCloseEvent& event);

    Desktop& desktop_;
    Form* form_;
    wxPanel* page_;
    std::vector<std::unique_ptr<Binder>> binders_;
    std::set<Binder*> touched_;
    const Control* arrivedAt_ = nullptr;  // whose widget has the focus within the window
    bool layOut_ = false;
    const wxSizer* spare_ = nullptr;
    wxSize ownSize_;
};

}  // namespace tarvex
