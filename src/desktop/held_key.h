#pragma once

#include <chrono>

#include <wx/defs.h>
#include <wx/event.h>
#include <wx/eventfilter.h>

namespace tarvex {

// Knows the key that is held down, which the system presses over and over, also from one window into the
// next. What wxWidgets tells of that is not set under GTK, and the release of a key in a message box is not
// told at all: what comes late is a press of its own.
class HeldKey final : public wxEventFilter {
  public:
    HeldKey() { wxEvtHandler::AddFilter(this); }
    ~HeldKey() override { wxEvtHandler::RemoveFilter(this); }
    HeldKey(const HeldKey&) = delete;
    HeldKey& operator=(const HeldKey&) = delete;

    // Whether the press that is being handled is the same again.
    bool Repeats() const { return repeats_; }

    int FilterEvent(wxEvent& event) override;

  private:
    int code_ = WXK_NONE;
    std::chrono::steady_clock::time_point pressed_{};
    bool repeats_ = false;
};

}  // namespace tarvex
