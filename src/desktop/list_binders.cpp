#include "desktop/list_binders.h"

#include <algorithm>
#include <utility>

#include <wx/artprov.h>

#include "desktop/native_form.h"
#include "desktop/native_text.h"
#include "desktop/window_system.h"

namespace tarvex {

ListBoxBinder::ListBoxBinder(NativeForm& window, ListBox& list, wxListBox& widget, const wxString& spoken)
    : Binder(window, list, widget, spoken), list_(list), widget_(widget) {
    widget.Bind(wxEVT_LISTBOX, [this](wxCommandEvent&) { ToDoor(false); });
    widget.Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent&) { ToDoor(true); });
}

void ListBoxBinder::ToDoor(bool open) {
    const int line = widget_.GetSelection();
    if (line == wxNOT_FOUND) return;
    Post([this, line, open](UserDoor& door) {
        if (line >= list_.ListCount()) return false;
        return open ? door.OpenLine(list_, line) : door.PickLine(list_, line);
    });
}

void ListBoxBinder::ToWidget() {
    const bool exchanged = shown_ != list_.Lines();
    if (exchanged) ShowLines();
    const bool selects = widget_.GetSelection() != list_.ListIndex();
    if (selects) widget_.SetSelection(list_.ListIndex());
    if ((exchanged || selects) && list_.NewestLine() != ListBox::NoSelection) {
        widget_.EnsureVisible(list_.NewestLine());
    }
    Binder::ToWidget();
}

// Exchanges only the lines that differ, so that the list stays as the user has scrolled it.
void ListBoxBinder::ShowLines() {
    const auto& lines = list_.Lines();
    const auto common = std::min(shown_.size(), lines.size());
    std::size_t head = 0;
    while (head < common && shown_[head] == lines[head]) ++head;
    std::size_t tail = 0;
    while (tail < common - head && shown_.rbegin()[tail] == lines.rbegin()[tail]) ++tail;

    wxArrayString come;
    for (std::size_t i = head; i < lines.size() - tail; ++i) come.Add(Shown(lines[i]));
    if (head + tail == 0) {
        widget_.Set(come);
    } else {
        for (std::size_t i = shown_.size() - tail; i > head; --i)
            widget_.Delete(static_cast<unsigned>(i - 1));
        if (!come.empty()) widget_.InsertItems(come, static_cast<unsigned>(head));
    }
    shown_ = lines;
}

ColumnListBinder::ColumnListBinder(NativeForm& window, ColumnList& list, LineList& widget,
                                   const wxString& spoken)
    : Binder(window, list, widget, spoken), list_(list), widget_(widget) {
    widget.Bind(wxEVT_DATAVIEW_SELECTION_CHANGED, [this](wxDataViewEvent&) { ToDoor(); });
    widget.Bind(wxEVT_CHAR_HOOK, &ColumnListBinder::OnKey, this);
    if (!list.OnMove) return;
    const auto drop = [this](const std::vector<int>& lines, int before) {
        Post([this, lines, before](UserDoor& door) {
            return lines == list_.Selected() && door.MoveLines(list_, before);
        });
    };
    drag_.emplace(widget, LineDrag::Acts{[this](int line) { PickAlone(line); }, drop});
}

void ColumnListBinder::PickAlone(int line) {
    Post([this, line](UserDoor& door) { return line < list_.ListCount() && door.PickLine(list_, line); });
}

void ColumnListBinder::ToDoor() {
    const std::vector<int> lines = widget_.Selected();
    const int cursor = widget_.Cursor();
    const bool extends = drag_ && wxGetKeyState(WXK_SHIFT) && cursor != LineList::NoLine;
    Post([this, lines, cursor, extends](UserDoor& door) {
        if (lines.empty() || lines.back() >= list_.ListCount() || cursor >= list_.ListCount()) return false;
        if (extends) return door.ExtendLines(list_, cursor);
        const auto picked = [&lines](int line) {
            return std::find(lines.begin(), lines.end(), line) != lines.end();
        };
        const int last = picked(list_.ListIndex()) ? list_.ListIndex() : lines.back();
        return door.PickLines(list_, lines, picked(cursor) ? cursor : last);
    });
}

void ColumnListBinder::OnKey(wxKeyEvent& event) {
    const int key = event.GetModifiers() == wxMOD_CONTROL ? event.GetKeyCode() : WXK_NONE;
    if (drag_ && drag_->TakesKey(event)) return;
    if (key == 'C') {
        Post([this](UserDoor& door) { return door.Copy(list_); });
    } else if (key == 'A' && drag_) {
        widget_.SelectAll();
        ToDoor();
    } else {
        event.Skip();
    }
}

void ColumnListBinder::ToWidget() {
    if (shown_ != list_.Lines()) {
        shown_ = list_.Lines();
        widget_.Put(static_cast<unsigned>(shown_.size()), [this](unsigned line, unsigned column) {
            return line < shown_.size() ? Shown(list_.Cells(static_cast<int>(line))[column]) : wxString();
        });
    }
    widget_.SelectLines(list_.Selected(), list_.ListIndex());
    Binder::ToWidget();
}

DriveListBinder::DriveListBinder(NativeForm& window, DriveList& list, wxChoice& widget,
                                 const wxString& spoken)
    : Binder(window, list, widget, spoken), list_(list), widget_(widget) {
    for (const std::string& drive : list.Drives()) widget.Append(Shown(NameOfRoot(drive)));
    widget.Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { ToDoor(); });
}

void DriveListBinder::ToDoor() {
    const int choice = widget_.GetSelection();
    if (choice == wxNOT_FOUND) return;
    Post([this, choice](UserDoor& door) {
        return door.PickDrive(list_, list_.Drives()[static_cast<std::size_t>(choice)]);
    });
}

void DriveListBinder::ToWidget() {
    const auto& drives = list_.Drives();
    const auto found = std::find(drives.begin(), drives.end(), list_.Drive());
    widget_.SetSelection(found == drives.end() ? wxNOT_FOUND : static_cast<int>(found - drives.begin()));
    Binder::ToWidget();
}

FolderListBinder::FolderListBinder(NativeForm& window, FolderList& list, LineList& widget,
                                   const wxString& spoken)
    : Binder(window, list, widget, spoken),
      list_(list),
      widget_(widget),
      closed_(wxArtProvider::GetBitmapBundle(wxART_FOLDER, wxART_MENU)),
      opened_(wxArtProvider::GetBitmapBundle(wxART_FOLDER_OPEN, wxART_MENU)) {
    widget.Bind(wxEVT_DATAVIEW_SELECTION_CHANGED, [this](wxDataViewEvent&) { ToDoor(false); });
    widget.Bind(wxEVT_DATAVIEW_ITEM_ACTIVATED, [this](wxDataViewEvent&) { ToDoor(true); });
}

void FolderListBinder::ToDoor(bool open) {
    const int line = widget_.Line();
    if (line == LineList::NoLine) return;
    const Line chosen = lines_[static_cast<std::size_t>(line)];
    Post([this, chosen, open](UserDoor& door) {
        // An act before this one may have opened another folder.
        if (Lines() != lines_) return false;
        return open ? door.OpenFolder(list_, chosen.index) : door.PickFolder(list_, chosen.index);
    });
}

std::vector<FolderListBinder::Line> FolderListBinder::Lines() const {
    constexpr int Indent = 3;
    std::vector<Line> lines;
    for (int index = list_.FirstIndex(); index < list_.ListCount(); ++index) {
        const int depth = std::min(index, 0) - list_.FirstIndex();
        lines.push_back(
            {index, list_.List(index),
             wxString(' ', static_cast<std::size_t>(depth * Indent + 1)) + Shown(list_.Name(index))});
    }
    return lines;
}

void FolderListBinder::ToWidget() {
    auto lines = Lines();
    if (lines != lines_) {
        lines_ = std::move(lines);
        widget_.Put(
            static_cast<unsigned>(lines_.size()), [this](unsigned line) { return lines_[line].text; },
            [this](unsigned line) {
                return lines_[line].index <= FolderList::OpenFolder ? opened_ : closed_;
            });
    }
    const int line = list_.ListIndex() - list_.FirstIndex();
    if (list_.ShowsChosen()) {
        widget_.SelectLine(line);
    } else {
        widget_.GoToLine(line);
    }
    Binder::ToWidget();
}

FileListBinder::FileListBinder(NativeForm& window, FileList& list, LineList& widget, const wxString& spoken)
    : Binder(window, list, widget, spoken), list_(list), widget_(widget) {
    ActivateByClick(widget);
    widget.Bind(wxEVT_DATAVIEW_ITEM_ACTIVATED,
                [this](wxDataViewEvent& event) { ToDoor(widget_.LineOf(event.GetItem())); });
    widget.GetMainWindow()->Bind(wxEVT_CHAR, &FileListBinder::OnChar, this);
}

void FileListBinder::OnChar(wxKeyEvent& event) {
    const wxUniChar typed = event.GetUnicodeKey();
    const bool down = event.GetKeyCode() == WXK_DOWN || event.GetKeyCode() == WXK_NUMPAD_DOWN;
    if (down && widget_.Line() == LineList::NoLine && !shown_.empty()) {
        widget_.SelectLine(0);
    } else if (typed > ' ' && typed != WXK_DELETE && (event.GetModifiers() & ~wxMOD_SHIFT) == 0) {
        Window().PostTyping(Typed({}, typed));
    } else {
        event.Skip();
    }
}

void FileListBinder::ToDoor(int line) {
    if (line == LineList::NoLine) return;
    const std::string name = shown_[static_cast<std::size_t>(line)];
    Post([this, name](UserDoor& door) {
        const auto& lines = list_.Lines();
        const auto found = std::find(lines.begin(), lines.end(), name);
        return found != lines.end() && door.PickFile(list_, static_cast<int>(found - lines.begin()));
    });
}

void FileListBinder::ToWidget() {
    if (shown_ != list_.Lines()) {
        shown_ = list_.Lines();
        std::size_t longest = 0;
        for (const std::string& line : shown_) longest = std::max(longest, line.size());
        widget_.MakeRoomFor(longest);
        widget_.Put(static_cast<unsigned>(shown_.size()),
                    [this](unsigned line) { return Shown(shown_[line]); });
    }
    widget_.SelectLine(list_.ListIndex());
    Binder::ToWidget();
}

}  // namespace tarvex
