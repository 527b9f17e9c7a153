#include "desktop/placement.h"

#include <algorithm>
#include <iterator>

#include <wx/display.h>
#include <wx/sizer.h>

#include "desktop/layouts.h"
#include "desktop/native_form.h"
#include "toolkit/tool_place.h"

namespace tarvex {

namespace {

constexpr int Gap = 8;

// The border and the title that the window manager adds, as far as it can be foreseen.
constexpr int TitleHeight = 32;

wxRect ScreenOf(const wxWindow& window) {
    const int number = wxDisplay::GetFromWindow(&window);
    return wxDisplay(number == wxNOT_FOUND ? 0u : static_cast<unsigned>(number)).GetClientArea();
}

Area AreaOf(const wxRect& rect) {
    return {rect.x, rect.y, rect.width, rect.height};
}

}  // namespace

void FitToContent(NativeForm& window, const ScreenLayout& layout) {
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(&window.Page(), wxSizerFlags(1).Expand());
    window.SetSizer(sizer);
    sizer->SetSizeHints(&window);
    wxSize size = window.GetSize();
    const wxSize screen = ScreenOf(window).GetSize();
    const int highest = screen.y - TitleHeight - Gap;
    const int widest = screen.x - layout.roomBeside * window.GetCharWidth();
    size.y = std::max(size.y, std::min(size.y + layout.roomyLines * window.GetCharHeight(), highest));
    size.x = std::max(size.x, std::min(size.x + layout.roomyColumns * window.GetCharWidth(), widest));
    window.SetSize(size);
}

void FitToChoice(NativeForm& window, const ChosenSize& choice) {
    wxSize size = choice.client;
    size.IncTo(window.GetSizer()->GetMinSize());
    window.SetClientSize(size);
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
    // What the window manager adds to the new window, too.
    const wxSize border = anchor.GetSize() - anchor.GetClientSize();
    const wxSize size = window.GetClientSize() + border;
    ToolRoom room{AreaOf(ScreenOf(anchor)), AreaOf(anchor.GetRect()), AreaOf(anchor.Spare()), {}};
    std::transform(taken.begin(), taken.end(), std::back_inserter(room.taken), AreaOf);
    const Area place = PlaceOfTool(size.x, size.y, window.GetSizer()->GetMinSize().y + border.y, room);
    if (place.height != size.y) window.SetClientSize(size.x - border.x, place.height - border.y);
    window.SetPosition({place.x, place.y});
}

}  // namespace tarvex
