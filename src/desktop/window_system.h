#pragma once

#include <functional>
#include <string>

#include <wx/dataview.h>
#include <wx/window.h>

// What the window systems do not have in common. All calls of a particular one stand in window_system.cpp.
namespace tarvex {

// Runs `task` from the event loop before any further event of the user.
void RunNext(std::function<void()> task);

// Names a widget for programs that drive or read the screen: `id` is the name of its control, `spoken` what a
// screen reader says, where it differs from what the widget shows; empty leaves that to the widget.
void NameForAccess(wxWindow& widget, const std::string& id, const wxString& spoken);
// What a screen reader says of the widget behind its name. Behind the first NameForAccess.
void DescribeForAccess(wxWindow& widget, const wxString& words);

// Makes a screen reader read the window out when it comes up.
void MarkAsAlert(wxWindow& window);

// Brings a window to the front and gives it the keyboard, one that is about to be shown once it really is on
// the screen. That this is the user's wish goes without saying: every change of a window is.
void Present(wxWindow& window);

// Whether the widget, or a part of it, has the focus within its window, be the window active or not.
bool HoldsFocusOfWindow(const wxWindow& widget);

// Pixels of a window that are one pixel of a screen at 100 %.
double PixelsOfUnit(const wxWindow& window);

// Makes a single click on a line of a list activate it, whether it is selected already or not.
void ActivateByClick(wxDataViewCtrl& list);

// Lets a list whose columns have fixed widths lay out only the lines in sight, all as high as the first.
void LevelLines(wxDataViewCtrl& list);

// Lets the handlers of the list's lines have the left button before the list itself: its press, what the
// mouse does until the release, and that.
void PassPresses(wxDataViewCtrl& list);

// Keeps what the mouse does, with its button down, with the list's lines wherever it goes; or no longer.
void HoldMouse(wxDataViewCtrl& list, bool hold);

// Marks an edge of a line, as the place for what is dropped there, and no other; -1: none.
void MarkEdge(wxDataViewCtrl& list, int line, bool below);

// Of a text in a list; it asks for the room that its text is drawn in.
wxDataViewTextRenderer* NewTextRenderer();

// Opens a file, by its path as the system writes it, with what the user has chosen for its kind; false where
// nothing opens it. Waits for no viewer, and at most a second for the answer.
bool OpenDocument(const std::string& path);

#ifdef __WXGTK__
// By which the system makes pixels of a font's points; higher where the user wants larger letters.
double DotsPerInch();
#endif

}  // namespace tarvex
