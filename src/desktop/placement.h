#pragma once

#include <vector>

#include <wx/gdicmn.h>

namespace tarvex {

class NativeForm;
struct ScreenLayout;

// A size that the user gave a window.
struct ChosenSize {
    wxSize client;
    bool maximized = false;
};

// Sizes a new window to its content, which it can't become smaller than, and the room that its lists like to
// have, as far as the screen has it.
void FitToContent(NativeForm& window, const ScreenLayout& layout);
// The same for a window that had a size of the user's choice before.
void FitToChoice(NativeForm& window, const ChosenSize& choice);

// Puts a new window into the middle of the screen, so far to the left as leaves the room that others need
// beside it.
void PlaceInMiddle(NativeForm& window, const ScreenLayout& layout);

// Puts a new window beside the anchor, or over the spare part of it, clear of the windows in `taken`.
void PlaceBeside(NativeForm& window, const NativeForm& anchor, const std::vector<wxRect>& taken);

}  // namespace tarvex
