#pragma once

#include <vector>

#include <wx/gdicmn.h>

namespace tarvex {

class NativeForm;
struct ScreenLayout;

// Sizes a new window to its content, which it can't become smaller than, and the room that its lists like to
// have, as far as the screen has it.
void FitToContent(NativeForm& window, const ScreenLayout& layout);

// Puts a new window into the middle of the screen, so far to the left as leaves the room that others need
// beside it.
void PlaceInMiddle(NativeForm& window, const ScreenLayout& layout);

// Puts a new window beside the anchor, clear of the windows in `taken`: on the right where there is room,
// else on the left, else over the lower right of it, where no box stands.
void PlaceBeside(NativeForm& window, const NativeForm& anchor, const std::vector<wxRect>& taken);

}  // namespace tarvex
