#include "desktop/box_binder.h"

#include <algorithm>

#include "desktop/native_text.h"
#include "desktop/theme.h"
#include "desktop/window_system.h"

namespace tarvex {

TextBoxBinder::TextBoxBinder(NativeForm& window, TextBox& box, wxTextCtrl& widget, const wxString& spoken)
    : Binder(window, box, widget, spoken), box_(box), widget_(widget) {
    if (!box.Tip().empty()) {
        widget.SetToolTip(Shown(box.Tip()));
        DescribeForAccess(widget, Shown(box.Tip()));
    }
    widget.Bind(wxEVT_TEXT, [this](wxCommandEvent&) { ToDoor(); });
    widget.Bind(wxEVT_LEFT_UP, [this](wxMouseEvent& event) {
        event.Skip();
        PutCaretBehindWords();
    });
    widget.Bind(wxEVT_KEY_UP, [this](wxKeyEvent& event) {
        event.Skip();
        if (event.GetKeyCode() == WXK_END) PutCaretBehindWords();
    });
    widget.Bind(wxEVT_SYS_COLOUR_CHANGED, [this](wxSysColourChangedEvent& event) {
        event.Skip();
        PutBackground();
    });
}

void TextBoxBinder::ToDoor() {
    Post([this, typed = widget_.GetValue()](UserDoor& door) {
        return door.Type(box_, Typed(box_.Text(), typed));
    });
}

void TextBoxBinder::ToWidget() {
    const wxString text = Shown(box_.Text());
    if (widget_.GetValue() != text) PutText(text);
    if (widget_.IsEditable() == box_.Locked()) widget_.SetEditable(!box_.Locked());
    if (background_ != box_.BackColor()) {
        background_ = box_.BackColor();
        PutBackground();
    }
    Binder::ToWidget();
}

void TextBoxBinder::PutBackground() {
    widget_.SetBackgroundColour(BoxBackground(background_));
    widget_.Refresh();
}

long TextBoxBinder::EndOfWords() const {
    return static_cast<long>(widget_.GetValue().Trim().length());
}

void TextBoxBinder::PutCaretBehindWords() {
    if (!widget_.HasSelection() && widget_.GetInsertionPoint() > EndOfWords()) GoToEnd();
}

// The caret keeps its distance from the end where what stood behind it is still there, so that a refused
// character leaves it where it was typed. A box that the user is not in shows its text from the beginning:
// the blanks at its end may be more than it has room for.
void TextBoxBinder::PutText(const wxString& text) {
    if (!HoldsFocusOfWindow(widget_)) {
        widget_.ChangeValue(text);
        widget_.SetInsertionPoint(0);
        return;
    }
    const auto caret = static_cast<std::size_t>(std::max(0L, widget_.GetInsertionPoint()));
    const wxString before = widget_.GetValue();
    const wxString behind = before.Mid(caret);
    widget_.ChangeValue(text);
    std::size_t place = text.length();
    if (text.EndsWith(behind)) {
        place -= behind.length();
    } else if (text.StartsWith(before.Left(caret))) {
        place = caret;
    }
    widget_.SetInsertionPoint(static_cast<long>(place));
}

}  // namespace tarvex
