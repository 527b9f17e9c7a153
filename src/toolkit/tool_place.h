#pragma once

#include <vector>

namespace tarvex {

// A rectangle of the screen, in pixels, y down; the borders and the title of a window are within it.
struct Area {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    int Right() const { return x + width; }    // the first column beyond it
    int Bottom() const { return y + height; }  // the first row beyond it
    bool Contains(const Area& other) const;
    bool Meets(const Area& other) const;
    friend bool operator==(const Area&, const Area&) = default;
};

// What a tool window that comes up finds on the screen.
struct ToolRoom {
    Area screen;
    Area owner;  // the window that it belongs to
    // The part of the owner that nobody uses while the tool is open; a tool may also stand out above it.
    Area spare;
    std::vector<Area> taken;  // the other tools
};

// Where a tool comes up: beside the owner, on the right or else on the left; where the screen has no room
// there, over the spare part of the owner, and then no higher than need be, down to `leastHeight`. It lies
// over no other tool. Where not even that is to be had, in the upper right of the screen.
Area PlaceOfTool(int width, int height, int leastHeight, const ToolRoom& room);

}  // namespace tarvex
