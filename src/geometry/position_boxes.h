#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "geometry/coordinate_group.h"
#include "geometry/position.h"
#include "toolkit/clipboard.h"
#include "toolkit/dialogue.h"
#include "toolkit/form.h"

namespace tarvex {

// The boxes and options of a whole position: takes one from the clipboard, by a key, by their menu or by a
// plain paste into any of the boxes, and puts the one that they hold onto it, as a text that people read. As
// long as the boxes hold what was pasted, Ctrl+Z brings back what they held before.
class PositionBoxes {
  public:
    // `next` has the focus behind a paste; `held` is the position that the boxes hold, if they hold one.
    PositionBoxes(const CoordinateGroup& latitude, const CoordinateGroup& longitude, Control& next,
                  Clipboard& clipboard, Dialogue& dialogue, std::function<std::optional<Position>()> held);
    PositionBoxes(const PositionBoxes&) = delete;
    PositionBoxes& operator=(const PositionBoxes&) = delete;

    // The keys as things stand; they work wherever the focus is on the form.
    std::vector<Shortcut> Shortcuts();
    // What the boxes hold has been used: the paste is not taken back any more.
    void Settle() { pasted_.reset(); }

  private:
    using BoxList = std::array<TextBox*, 4>;

    struct Held {
        AxisEntry latitude;
        AxisEntry longitude;

        friend bool operator==(const Held&, const Held&) = default;
    };
    struct Pasted {
        Held before;
        Held after;
        TextBox& from;  // had the focus
    };

    BoxList Boxes() const {
        return {&latitude_.degrees, &latitude_.minutes, &longitude_.degrees, &longitude_.minutes};
    }
    Held WhatBoxesHold() const { return {latitude_.Entry(), longitude_.Entry()}; }
    // False for a text that is no position, behind which nothing has changed.
    bool Take(std::string_view text);
    void TakeBack();
    void Paste();
    void Copy() const;

    const CoordinateGroup& latitude_;
    const CoordinateGroup& longitude_;
    Control& next_;
    Clipboard& clipboard_;
    Dialogue& dialogue_;
    std::function<std::optional<Position>()> held_;
    std::optional<Pasted> pasted_;
};

}  // namespace tarvex
