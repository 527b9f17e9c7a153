#include "desktop/held_key.h"

#include <utility>

#include <wx/utils.h>

namespace tarvex {

namespace {

// Until the first repeat of a key, where the user wants it slow.
constexpr std::chrono::milliseconds SlowestRepeat{1000};

}  // namespace

int HeldKey::FilterEvent(wxEvent& event) {
    const wxEventType type = event.GetEventType();
    if (type == wxEVT_CHAR_HOOK) {
        const int code = static_cast<const wxKeyEvent&>(event).GetKeyCode();
        const auto now = std::chrono::steady_clock::now();
        const bool soon = now - std::exchange(pressed_, now) < SlowestRepeat;
        repeats_ = std::exchange(code_, code) == code && soon;
    } else if (type == wxEVT_KEY_UP || type == wxEVT_LEFT_DOWN ||
               (type == wxEVT_ACTIVATE && code_ != WXK_NONE &&
                !wxGetKeyState(static_cast<wxKeyCode>(code_)))) {
        code_ = WXK_NONE;
    }
    return Event_Skip;
}

}  // namespace tarvex
