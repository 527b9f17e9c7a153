#include "desktop/line_drag.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include <wx/cursor.h>
#include <wx/settings.h>
#include <wx/utils.h>

#include "desktop/window_system.h"

namespace tarvex {

namespace {

constexpr int UsualDragPixels = 4;
constexpr int ScrollMilliseconds = 60;  // a line

bool IsDrag(const wxPoint& way) {
    return std::abs(way.x) > std::max(UsualDragPixels, wxSystemSettings::GetMetric(wxSYS_DRAG_X)) ||
           std::abs(way.y) > std::max(UsualDragPixels, wxSystemSettings::GetMetric(wxSYS_DRAG_Y));
}

}  // namespace

LineDrag::LineDrag(LineList& list, Acts acts) : list_(list), acts_(std::move(acts)) {
    PassPresses(list);
    wxWindow& lines = *list.GetMainWindow();
    lines.Bind(wxEVT_LEFT_DOWN, &LineDrag::OnPress, this);
    lines.Bind(wxEVT_MOTION, &LineDrag::OnMotion, this);
    lines.Bind(wxEVT_LEFT_UP, &LineDrag::OnRelease, this);
    lines.Bind(wxEVT_MOUSE_CAPTURE_LOST, [this](wxMouseCaptureLostEvent&) { End(); });
    scroll_.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { Scroll(); });
}

wxPoint LineDrag::PlaceOf(const wxMouseEvent& event) const {
    return list_.GetMainWindow()->ClientToScreen(event.GetPosition());
}

void LineDrag::OnPress(wxMouseEvent& event) {
    pressedAt_ = PlaceOf(event);
    pressed_ = list_.LineAt(pressedAt_);
    const std::vector<int> lines = list_.Selected();
    const bool selected = std::binary_search(lines.begin(), lines.end(), pressed_);
    kept_ = selected && lines.size() > 1 && event.GetModifiers() == wxMOD_NONE;
    event.Skip(!kept_);
    // The list would select the line by itself at once, and there would be no block to drag.
    if (kept_) list_.SetFocus();
}

void LineDrag::OnMotion(wxMouseEvent& event) {
    event.Skip();
    if (pressed_ == LineList::NoLine || !event.LeftIsDown()) return;
    if (!dragging_ && IsDrag(PlaceOf(event) - pressedAt_)) Begin();
    if (!dragging_) return;
    event.Skip(false);
    Follow(PlaceOf(event));
}

void LineDrag::OnRelease(wxMouseEvent& event) {
    const int line = std::exchange(pressed_, LineList::NoLine);
    event.Skip(!dragging_ && !kept_);
    if (dragging_) {
        Follow(PlaceOf(event));
        const int gap = gap_;
        End();
        if (gap != LineList::NoLine) acts_.dropped(lines_, gap);
    } else if (std::exchange(kept_, false)) {
        acts_.clicked(line);
    }
}

bool LineDrag::TakesKey(const wxKeyEvent& event) {
    if (!dragging_ || event.GetKeyCode() != WXK_ESCAPE) return false;
    End();
    return true;
}

void LineDrag::Begin() {
    // The press may have been refused.
    lines_ = list_.Selected();
    if (!std::binary_search(lines_.begin(), lines_.end(), pressed_)) {
        pressed_ = LineList::NoLine;
        return;
    }
    dragging_ = true;
    HoldMouse(list_, true);
    list_.GetMainWindow()->SetCursor(wxCursor(wxCURSOR_HAND));
    scroll_.Start(ScrollMilliseconds);
}

void LineDrag::End() {
    if (!std::exchange(dragging_, false)) return;
    pressed_ = LineList::NoLine;
    kept_ = false;
    gap_ = LineList::NoLine;
    scroll_.Stop();
    list_.MarkGap(gap_);
    HoldMouse(list_, false);
    list_.GetMainWindow()->SetCursor(wxNullCursor);
}

void LineDrag::Follow(const wxPoint& mouse) {
    const int gap = list_.GetScreenRect().Contains(mouse) ? list_.GapAt(mouse) : LineList::NoLine;
    if (std::exchange(gap_, gap) != gap) list_.MarkGap(gap);
}

void LineDrag::Scroll() {
    const int first = list_.LineOf(list_.GetTopItem());
    if (first == LineList::NoLine) return;
    const int last = std::min(first + list_.GetCountPerPage(), list_.Count()) - 1;
    const wxPoint mouse = wxGetMousePosition();
    const int height = list_.GetCharHeight();
    const wxRect room = list_.GetScreenRect();
    if (mouse.y > room.GetBottom() - height && last + 1 < list_.Count()) list_.Show(last + 1);
    if (mouse.y < room.GetTop() + 2 * height && first > 0) list_.Show(first - 1);
    Follow(mouse);
}

}  // namespace tarvex
