#pragma once

#include <functional>
#include <vector>

#include <wx/event.h>
#include <wx/timer.h>

#include "desktop/line_list.h"

namespace tarvex {

// Lets the user drag the selected lines of a list to another place in it. A mark shows where they would go,
// the list scrolls at its edges, Escape and a drop beside the list leave it as it is.
class LineDrag {
  public:
    struct Acts {
        std::function<void(int line)> clicked;  // one of several selected lines was, by itself
        // These were dropped in front of line `before`, or behind the last.
        std::function<void(const std::vector<int>& lines, int before)> dropped;
    };

    LineDrag(LineList& list, Acts acts);
    LineDrag(const LineDrag&) = delete;
    LineDrag& operator=(const LineDrag&) = delete;

    // Whether the key was for the drag.
    bool TakesKey(const wxKeyEvent& event);

  private:
    void OnPress(wxMouseEvent& event);
    void OnMotion(wxMouseEvent& event);
    void OnRelease(wxMouseEvent& event);
    void Begin();
    void End();
    void Follow(const wxPoint& mouse);  // with the mark; places are on the screen
    void Scroll();                      // where the mouse is at an edge
    wxPoint PlaceOf(const wxMouseEvent& event) const;

    LineList& list_;
    Acts acts_;
    wxPoint pressedAt_;               // on the screen
    int pressed_ = LineList::NoLine;  // the line under the button that is down
    bool kept_ = false;               // the press was kept from the list
    std::vector<int> lines_;          // under way
    bool dragging_ = false;
    int gap_ = LineList::NoLine;  // where a drop would go; none beside the list
    wxTimer scroll_;
};

}  // namespace tarvex
