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

wxColour Page() {
    return wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE);
}

wxColour TextInk() {
    return wxSystemSettings::GetColour(wxSYS_COLOUR_BTNTEXT);
}

bool IsDark() {
    return Page().GetLuminance() < TextInk().GetLuminance();
}

}  // namespace

wxColour BoxBackground(Colour colour) {
    if (colour == White) return wxNullColour;
    // A box out of use must not outshine those in use, which are darker than the page in a dark theme.
    const double share = colour == LightGrey ? 0.03 : 0.10;
    return Mixed(Page(), TextInk(), IsDark() ? share / 2 : share);
}

const Palette& ThemePalette() {
    return IsDark() ? DarkPalette() : LightPalette();
}

Palette TextPalette() {
    const wxColour ink = TextInk();
    return Palette(Ink{(std::uint32_t{ink.Red()} << 16) | (std::uint32_t{ink.Green()} << 8) | ink.Blue()});
}

wxColour LabelInk(Colour colour) {
    if (colour == Black) return wxNullColour;
    const wxColour named(colour >> 16 & 0xFF, colour >> 8 & 0xFF, colour & 0xFF);
    return Mixed(named, IsDark() ? *wxWHITE : *wxBLACK, 0.25);
}

}  // namespace tarvex
