#include "desktop/double_click_guard.h"

#include <cstdlib>

#include <wx/utils.h>

namespace tarvex {

namespace {

constexpr std::chrono::milliseconds LongestDoubleClick(500);
constexpr int SteadyHandPixels = 5;

}  // namespace

void DoubleClickGuard::CameUp(const wxWindow& window) {
    window_ = &window;
    time_ = std::chrono::steady_clock::now();
    place_ = wxGetMousePosition();
}

int DoubleClickGuard::FilterEvent(wxEvent& event) {
    const wxEventType type = event.GetEventType();
    if (type == wxEVT_LEFT_DOWN || type == wxEVT_LEFT_DCLICK) {
        swallowing_ = IsStray(event);
        return swallowing_ ? Event_Processed : Event_Skip;
    }
    if (type == wxEVT_LEFT_UP && swallowing_) {
        swallowing_ = false;
        return Event_Processed;
    }
    return Event_Skip;
}

bool DoubleClickGuard::IsStray(wxEvent& event) const {
    auto* widget = wxDynamicCast(event.GetEventObject(), wxWindow);
    if (widget == nullptr || wxGetTopLevelParent(widget) != window_) return false;
    if (std::chrono::steady_clock::now() - time_ > LongestDoubleClick) return false;
    const wxPoint away = wxGetMousePosition() - place_;
    return std::abs(away.x) <= SteadyHandPixels && std::abs(away.y) <= SteadyHandPixels;
}

}  // namespace tarvex
