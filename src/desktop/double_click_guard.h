#pragma once

#include <chrono>

#include <wx/event.h>
#include <wx/eventfilter.h>
#include <wx/gdicmn.h>

namespace tarvex {

// Knows the second click of a double click. One click is all that the program's buttons and lists need, but
// many double-click them out of habit: where the first click has brought up a window, or has closed one, the
// second is kept away from whatever window now lies under the mouse.
class DoubleClickGuard final : public wxEventFilter {
  public:
    DoubleClickGuard() { wxEvtHandler::AddFilter(this); }
    ~DoubleClickGuard() override { wxEvtHandler::RemoveFilter(this); }
    DoubleClickGuard(const DoubleClickGuard&) = delete;
    DoubleClickGuard& operator=(const DoubleClickGuard&) = delete;

    // A window of the program came up or went away.
    void WindowsChanged() { windows_ = Now(); }
    // Whether a click now would follow that as part of a double click.
    bool WindowsJustChanged() const { return AreOneDoubleClick(windows_, Now()); }
    // Whether the click that is being handled is the second of a double click.
    bool IsSecondClick() const { return second_; }

    int FilterEvent(wxEvent& event) override;

  private:
    struct Moment {
        std::chrono::steady_clock::time_point time;
        wxPoint place;  // of the mouse, on the screen
    };

    static Moment Now();
    static bool AreOneDoubleClick(const Moment& before, const Moment& after);

    Moment windows_;  // the last change of the windows
    Moment click_;    // the last click
    bool second_ = false;
    bool swallowing_ = false;  // the button is down within a click that is kept away
};

}  // namespace tarvex
