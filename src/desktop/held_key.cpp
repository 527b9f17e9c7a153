#include "desktop/held_key.h"

#include <utility>

namespace tarvex {

int HeldKey::FilterEvent(wxEvent& event) {
    const wxEventType type = event.GetEventType();
    if (type == wxEVT_CHAR_HOOK) {
        const int code = static_cast<const wxKeyEvent&>(event).GetKeyCode();
        repeats_ = std::exchange(code_, code) == code;
    } else if (type == wxEVT_KEY_UP || type == wxEVT_ACTIVATE) {
        code_ = WXK_NONE;
    }
    return Event_Skip;
}

}  // namespace tarvex
