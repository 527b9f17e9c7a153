#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "toolkit/drawing.h"

namespace tarvex {

// How a role is drawn.
struct Ink {
    std::uint32_t colour = 0;  // 0xRRGGBB
    double width = 1;          // of a line
    double opacity = 1;        // 0 to 1
};

class Palette {
  public:
    // Every role in one ink, on a ground that is not painted.
    explicit constexpr Palette(const Ink& ink) {
        for (Ink& each : inks_) each = ink;
        inks_[static_cast<std::size_t>(Role::Page)] = {0, 0, 0};
    }
    using Inks = std::array<Ink, static_cast<std::size_t>(Role::Paper) + 1>;  // in the order of the roles
    explicit constexpr Palette(const Inks& inks) : inks_(inks) {}

    Ink& operator[](Role role) { return inks_[static_cast<std::size_t>(role)]; }
    const Ink& operator[](Role role) const { return inks_[static_cast<std::size_t>(role)]; }

  private:
    Inks inks_{};
};

const Palette& LightPalette();
const Palette& DarkPalette();

}  // namespace tarvex
