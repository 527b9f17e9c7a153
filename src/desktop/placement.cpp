#include "desktop/placement.h"

#include <algorithm>

#include <wx/display.h>
#include <wx/sizer.h>

#include "desktop/native_form.h"

namespace tarvex {

void FitToContent(NativeForm& window) {
    if (window.GetSizer() == nullptr) {
        auto* sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(&window.Page(), wxSizerFlags(1).Expand());
        window.SetSizer(sizer);
    }
    window.GetSizer()->SetSizeHints(&window);
}

void PlaceBeside(NativeForm& window, const NativeForm& anchor) {
    constexpr int Gap = 8;
    const int number = wxDisplay::GetFromWindow(&anchor);
    const wxRect screen =
        wxDisplay(number == wxNOT_FOUND ? 0u : static_cast<unsigned>(number)).GetClientArea();
    const wxRect other = anchor.GetRect();
    const wxSize size = window.GetSize();
    wxPoint place(other.GetRight() + Gap, other.GetTop());
    if (place.x + size.x > screen.GetRight()) {
        place.x = other.GetLeft() - Gap - size.x;
        if (place.x < screen.GetLeft()) {
            place = {screen.GetRight() - size.x,
                     std::max(other.GetTop(), std::min(other.GetBottom(), screen.GetBottom()) - size.y)};
        }
    }
    place.y = std::clamp(place.y, screen.GetTop(), std::max(screen.GetTop(), screen.GetBottom() - size.y));
    window.SetPosition(place);
}

}  // namespace tarvex
