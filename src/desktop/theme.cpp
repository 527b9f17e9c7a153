#include "desktop/theme.h"

#include <wx/settings.h>

namespace tarvex {

namespace {

wxColour Mixed(const wxColour& a, const wxColour& b, double shareOfB) {
    const auto mix = [shareOfB](unsigned char x, unsigned char y) {
        return static_cast<unsigned char>(x + (y - x) * shareOfB);
    };
    return {mix(a.Red(), b.Red()), mix(a.Green(), b.Green()), mix(a.Blue(), b.Blue())};
}

}  // namespace

wxColour BoxBackground(Colour colour) {
    if (colour == White) return wxNullColour;
    const wxColour page = wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE);
    const wxColour ink = wxSystemSettings::GetColour(wxSYS_COLOUR_BTNTEXT);
    // A box out of use must not outshine those in use, which are darker than the page in a dark theme.
    const bool dark = page.GetLuminance() < ink.GetLuminance();
    const double share = colour == LightGrey ? 0.03 : 0.10;
    return Mixed(page, ink, dark ? share / 2 : share);
}

}  // namespace tarvex
