#pragma once

#include <chrono>

#include <wx/event.h>
#include <wx/eventfilter.h>
#include <wx/gdicmn.h>
#include <wx/window.h>

namespace tarvex {

// Keeps the second click of a double click away from a window that the first one has brought up: one click is
// all that the program's lists and buttons need, but many double-click them out of habit.
class DoubleClickGuard final : public wxEventFilter {
  public:
    DoubleClickGuard() { wxEvtHandler::AddFilter(this); }
    ~DoubleClickGuard() override { wxEvtHandler::RemoveFilter(this); }
    DoubleClickGuard(const DoubleClickGuard&) = delete;
    DoubleClickGuard& operator=(const DoubleClickGuard&) = delete;

    void CameUp(const wxWindow& window);
    int FilterEvent(wxEvent& event) override;

  private:
    bool IsStray(wxEvent& event) const;

    const wxWindow* window_ = nullptr;  // that came up last; only compared, it may be gone
    std::chrono::steady_clock::time_point time_;
    wxPoint place_;            // of the mouse at that time, on the screen
    bool swallowing_ = false;  // the button is down within a stray click
};

}  // namespace tarvex
