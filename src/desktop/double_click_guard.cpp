#include "desktop/double_click_guard.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include <wx/settings.h>
#include <wx/window.h>

namespace tarvex {

namespace {

constexpr int UsualDoubleClickMilliseconds = 500;
constexpr int SteadyHandPixels = 5;

}  // namespace

DoubleClickGuard::Moment DoubleClickGuard::Now() {
    return {std::chrono::steady_clock::now(), wxGetMousePosition()};
}

bool DoubleClickGuard::AreOneDoubleClick(const Moment& before, const Moment& after) {
    const std::chrono::milliseconds longest(
        std::max(UsualDoubleClickMilliseconds, wxSystemSettings::GetMetric(wxSYS_DCLICK_MSEC)));
    const wxPoint away = after.place - before.place;
    return after.time - before.time <= longest && std::abs(away.x) <= SteadyHandPixels &&
           std::abs(away.y) <= SteadyHandPixels;
}

int DoubleClickGuard::FilterEvent(wxEvent& event) {
    const wxEventType type = event.GetEventType();
    if (type == wxEVT_LEFT_DOWN || type == wxEVT_LEFT_DCLICK) {
        const Moment now = Now();
        second_ = AreOneDoubleClick(std::exchange(click_, now), now);
        swallowing_ = WindowsJustChanged();
        return swallowing_ ? Event_Processed : Event_Skip;
    }
    if (type == wxEVT_LEFT_UP && swallowing_) {
        swallowing_ = false;
        return Event_Processed;
    }
    return Event_Skip;
}

}  // namespace tarvex
