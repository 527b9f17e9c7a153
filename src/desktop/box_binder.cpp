#include "desktop/box_binder.h"

#include <algorithm>

#include <wx/menu.h>

#include "desktop/native_clipboard.h"
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
    box.OnRefused = [] { wxBell(); };
    if (!box.Menu.empty()) widget.Bind(wxEVT_CONTEXT_MENU, &TextBoxBinder::OnMenu, this);
    if (box.TakesWhole) BindPaste();
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

void TextBoxBinder::BindPaste() {
    widget_.Bind(wxEVT_TEXT_PASTE, [this](wxClipboardTextEvent& event) {
        if (!PasteWhole(NativeClipboard().Text())) event.Skip();
    });
#ifdef __WXGTK__
    widget_.Bind(wxEVT_MIDDLE_DOWN, [this](wxMouseEvent& event) {
        if (!PasteWhole(NativeClipboard::Selection())) event.Skip();
    });
#endif
}

// What the box takes is not pasted into the widget. The texts that stand there are no part of it.
bool TextBoxBinder::PasteWhole(const std::string& text) {
    if (!box_.TakesWhole(text)) return false;
    Post([this, text](UserDoor& door) { return door.Paste(box_, text); });
    return true;
}

// Not before the box has the focus: its acts need it, and the rule of the box that is left may keep it.
void TextBoxBinder::OnMenu(wxContextMenuEvent& event) {
    const bool byKey = event.GetPosition() == wxDefaultPosition;
    const wxPoint at = byKey ? wxPoint(0, widget_.GetSize().y) : widget_.ScreenToClient(event.GetPosition());
    Post([this, at](UserDoor& door) {
        if (!door.MoveFocus(box_)) return false;
        widget_.CallAfter([this, at] { PopUpMenu(at); });
        return true;
    });
}

// The usual entries of a box, and its own.
void TextBoxBinder::PopUpMenu(const wxPoint& at) {
    constexpr int Own = 1;  // the number of the first
    wxMenu menu;
    menu.Append(wxID_UNDO)->Enable(box_.CanUndoTyping());
    menu.AppendSeparator();
    menu.Append(wxID_CUT)->Enable(widget_.CanCut());
    menu.Append(wxID_COPY)->Enable(widget_.CanCopy());
    menu.Append(wxID_PASTE)->Enable(widget_.CanPaste());
    menu.Append(wxID_DELETE)->Enable(widget_.HasSelection());
    menu.AppendSeparator();
    menu.Append(wxID_SELECTALL)->Enable(!widget_.IsEmpty());
    menu.AppendSeparator();
    for (int i = 0; const MenuEntry& entry : box_.Menu) {
        const wxString key = entry.key.empty() ? wxString() : "\t" + Shown(entry.key);
        menu.Append(Own + i++, Shown(entry.caption) + key)->Enable(entry.enabled);
    }
    const int chosen = widget_.GetPopupMenuSelectionFromUser(menu, at);
    switch (chosen) {
        case wxID_NONE:
            return;
        case wxID_UNDO:
            return Post([this](UserDoor& door) { return door.Key(box_.Owner(), ShortcutKey::CtrlZ); });
        case wxID_CUT:
            return widget_.Cut();
        case wxID_COPY:
            return widget_.Copy();
        case wxID_PASTE:
            return widget_.Paste();
        case wxID_DELETE:
            return RemoveSelection();
        case wxID_SELECTALL:
            return widget_.SelectAll();
        default:
            Post([this, chosen](UserDoor& door) { return door.PickMenuEntry(box_, chosen - Own); });
    }
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

void TextBoxBinder::RemoveSelection() {
    long from = 0, to = 0;
    widget_.GetSelection(&from, &to);
    widget_.Remove(from, to);
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
