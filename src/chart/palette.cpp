#include "chart/palette.h"

namespace tarvex {

namespace {

constexpr Ink Sky{0x17406B};
constexpr Ink Land{0xFFFFFF, 1, 0.05};
constexpr Ink Paper{0xFFFFFF, 1.2};

constexpr Palette Light(Palette::Inks{{
    {0xFFFFFF},           // Page
    {0xDCE1E6},           // Grid
    {0x5A626A, 1.2},      // Scale
    {0x8792A0, 0.9},      // Fix
    {0x3A6EA5, 1.1},      // Navaid
    {0x4A4F55, 2.6},      // Runway
    {0x1D2733, 1.8},      // Route
    {0x46525F},           // Note
    {0xC8381B, 2.4},      // Selected
    {0x7B3FB5, 1.5},      // Draft
    {0xC77700, 1.6},      // Mark
    {0x2F6DB5, 1, 0.14},  // Shade
    {0x8B6B3F, 1.4},      // Ground
    Sky,
    Land,
    Paper,
}});

constexpr Palette Dark(Palette::Inks{{
    {0x212428},
    {0x3A4047},
    {0xB4BCC4, 1.2},
    {0x7F8A97, 0.9},
    {0x7DB0EA, 1.1},
    {0xC4CAD0, 2.6},
    {0xEEF1F4, 1.8},
    {0xBAC3CC},
    {0xFF8258, 2.4},
    {0xC79BF5, 1.5},
    {0xFFCD6E, 1.6},
    {0x6AA5E8, 1, 0.20},
    {0xC29E66, 1.4},
    Sky,
    Land,
    Paper,
}});

}  // namespace

const Palette& LightPalette() {
    return Light;
}

const Palette& DarkPalette() {
    return Dark;
}

}  // namespace tarvex
