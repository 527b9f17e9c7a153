#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "toolkit/drive_lists.h"
#include "toolkit/form_host.h"
#include "toolkit/list_box.h"
#include "toolkit/picture.h"
#include "toolkit/simple_controls.h"
#include "toolkit/tabs.h"

namespace tarvex {

// The one way in for what the user does, the same for native windows and for tests. It holds the order of
// events: an act on a control first moves the focus to it; if the leaving rule of the control that had the
// focus gave the focus elsewhere, the act ends there. Only the press of a button that drops what the boxes
// hold comes before that rule. A control that is disabled, hidden, out of sight with
// its form, or of a form that has gone takes no act. Every call is one whole event and tells whether the act
// took place.
class UserDoor {
  public:
    explicit UserDoor(FormHost& host) : host_(host) {}

    // The user changed the text of the box to `text`. What was put in is cut where the text would pass the
    // box's limit; taking away is always free, also in a text longer than the limit. Blanks at the end give
    // way to what is put in front of them.
    bool Type(TextBox& box, std::string_view text);
    // The user pasted `text`, in UTF-8, into the box: carried out where the box takes it whole. Any other is
    // typing and takes no place here.
    bool Paste(TextBox& box, std::string_view text);
    bool Press(Button& button);
    bool Pick(OptionButton& option);
    bool Toggle(CheckBox& check);
    bool PickLine(ListBox& list, int index);
    // Selects several lines in rising order, of which `current` was picked last. There is always one.
    bool PickLines(ColumnList& list, const std::vector<int>& lines, int current);
    bool ExtendLines(ColumnList& list, int to);  // Shift: to the line, from the one picked before
    // Drags the selected lines in front of a line; the number of lines is behind the last.
    bool MoveLines(ColumnList& list, int before);
    bool OpenLine(ListBox& list, int index);  // double click: picks it, then what Enter does there
    bool PickDrive(DriveList& list, std::string_view drive);
    bool PickFolder(FolderList& list, int index);  // one click: choose it
    bool OpenFolder(FolderList& list, int index);  // double click: walk into it
    bool PickFile(FileList& list, int index);

    bool ShowPage(Tabs& tabs, int index);
    bool Copy(ColumnList& list);  // Ctrl+C

    // Acts on a picture. Those that only look at it leave the focus where it is.
    bool Resize(Picture& picture, Size room);                    // its window got another size
    bool PointAt(Picture& picture, std::optional<Point> point);  // the pointer moved; nothing: it left
    bool Zoom(Picture& picture, double steps, std::optional<Point> at);  // without a point: at the middle
    bool Pan(Picture& picture, double x, double y);
    bool Fit(Picture& picture);
    bool Choose(Picture& picture, Point point);
    bool TakeAt(Picture& picture, Point point);  // double click; on nothing it fits the picture
    bool Take(Picture& picture, bool also);      // Enter, also with Ctrl: what was chosen before
    bool PickMenuEntry(Picture& picture, int index);
    bool PickMenuEntry(TextBox& box, int index);

    bool MoveFocus(Control& control);
    bool Tab(Form& form, bool forward);  // the Tab key in a form
    // An arrow key while an option has the focus: picks its neighbour.
    bool Arrow(OptionButton& option, bool forward) { return Pick(option.Neighbour(forward)); }
    bool Escape(Form& form);  // presses the form's way out
    // A key pressed in a form: presses the button of its shortcut. Unless the press moved the focus on, it
    // goes back to the control that had it. Ctrl+Z, and Ctrl+Y or Ctrl+Shift+Z, first undo and redo what was
    // typed in the box that has the focus. Tells whether the key is a shortcut where the focus stands, and
    // so means nothing else there; a button that takes no press leaves it one. Nothing while another form has
    // the focus.
    bool Key(Form& form, ShortcutKey key);
    bool Activate(Form& form);  // the form's window was brought to the front
    // Characters typed in a form beside its boxes: go to the end of the box that it has for them.
    bool TypeBeside(Form& form, std::string_view characters);
    // Closes the form's window.
    bool CloseWindow(FormSlotBase& slot);

  private:
    bool Look(Picture& picture, const std::function<void()>& look);
    bool Act(Control& control, const std::function<void()>& act);

    FormHost& host_;
};

}  // namespace tarvex
