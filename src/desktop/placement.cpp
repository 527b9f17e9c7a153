#include "desktop/placement.h"

#include <algorithm>

#include <wx/display.h>
#include <wx/sizer.h>

#include "desktop/layouts.h"
#include "desktop/native_form.h"

namespace tarvex {

namespace {

constexpr int Gap = 8;

// The border and the title that the window manager adds, as far as it can be foreseen.
constexpr int TitleHeight = 32;

wxRect ScreenOf(const wxWindow& window) {
    const int number = wxDisplay::GetFromWindow(&window);
    return wxDisplay(number == wxNOT_FOUND ? 0u : static_cast<unsigned>(number)).GetClientArea();
}

bool IsFree(const wxRect& place, const wxRect& screen, const std::vector<wxRect>& taken) {
    return screen.Contains(place) && std::none_of(taken.begin(), taken.end(), [&place](const wxRect& other) {
               return other.Intersects(place);
           });
}

}  // namespace

void FitToContent(NativeForm& window, const ScreenLayout& layout) {
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(&window.Page(), wxSizerFlags(1).Expand());
    window.SetSizer(sizer);
    sizer->SetSizeHints(&window);
    wxSize size = window.GetSize();
    const int most = ScreenOf(window).height - TitleHeight - Gap;
    size.y = std::max(size.y, std::min(size.y + layout.roomyLines * window.GetCharHeight(), most));
    window.SetSize(size);
}

void PlaceInMiddle(NativeForm& window, const ScreenLayout& layout) {
    const wxRect screen = ScreenOf(window);
    const wxSize size = window.GetSize();
    const int beside = layout.roomBeside * window.GetCharWidth();
    const wxPoint middle = screen.GetTopLeft() + (screen.GetSize() - size) / 2;
    window.SetPosition(
        {std::max(screen.x, middle.x - beside / 2), std::max(screen.y, middle.y - TitleHeight / 2)});
}

void PlaceBeside(NativeForm& window, const NativeForm& anchor, const std::vector<wxRect>& taken) {
    const wxRect screen = ScreenOf(anchor);
    const wxRect other = anchor.GetRect();
    const wxSize size = window.GetSize();
    const int right = other.GetRight() + Gap;
    const int left = other.GetLeft() - Gap - size.x;

    std::vector<wxPoint> places;
    for (const int x : {right, left}) {
        places.emplace_back(x, other.GetTop());
        for (const wxRect& rect : taken) places.emplace_back(x, rect.GetBottom() + Gap);
    }
    const auto found = std::find_if(places.begin(), places.end(), [&](const wxPoint& place) {
        return IsFree({place, size}, screen, taken);
    });
    if (found != places.end()) {
        window.SetPosition(*found);
        return;
    }
    int x = std::min(right, screen.GetRight() - size.x);
    const int y = std::min(other.GetBottom(), screen.GetBottom()) - size.y;
    for (const wxRect& rect : taken) {
        const int beyond = rect.GetLeft() - Gap - size.x;
        if (rect.Intersects({wxPoint(x, y), size}) && beyond > other.GetLeft() + other.width / 4) x = beyond;
    }
    window.SetPosition({std::max(screen.GetLeft(), x), std::max(screen.GetTop(), y)});
}

}  // namespace tarvex
