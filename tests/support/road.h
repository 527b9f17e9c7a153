#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "support/screens.h"
#include "support/test_services.h"

namespace tarvex::testing {

// A program on a machine in memory and a user who works it, known by the names of its screens and controls
// alone.
//
// Acts stand behind each other with " | " between them:
//
//     Name              presses the button, picks the option, toggles the check box
//     Name=text         empties the box and types the text, one character at a time
//     Name#line         picks a line: by number from 0, a file by name, a folder or drive by path
//     Name>line         the same with a double click
//     Name#line,line    picks several lines, the last one at last; "#to line" extends them to it, "#before
//                       line" drags them in front of it
//     Name#x,y          clicks a picture, or with > double-clicks it; "#menu N" picks an entry of its menu,
//                       "=w,h" gives it room; of tabs "#N" shows a page
//     Name>text         pastes the text behind what the box holds; "Name#N" picks an entry of its menu
//     to Name           moves the focus
//     key Name          Tab, BackTab, Escape or any of NamedKeys without its "+", in front
//     close Screen      closes the window
//     front Screen      brings the window to the front
//     Yes, No           answers the next question; without an answer it gets its default
//     put Name=text     an operation, not the user, puts the text into the box
//     call Name         an operation runs the button's rule
//
// A name is that of a control on the screen nearest to the front that has one; "Screen.Name" is that
// screen's.
// "\xE9" is a byte, and so is any other that is no plain character; CR LF is written as a pilcrow.
//
// The road also holds what native windows would: a copy of each control, taken anew when the control tells of
// a change.
class Road : FormObserver {
  public:
    explicit Road(TestServices& machine) : services(machine) {}

    // Starts the program, anew if one runs. Gives what Do gives.
    std::string Start(FileSystem* files = nullptr, const std::string& folder = "C:\\Tarvex");
    // Does the acts and gives what came of them, a line each: messages, with the focus behind them, and acts
    // that were refused; how the program stopped, or which screens are there now; files written; rows and
    // controls that changed, but for what was just typed or picked.
    std::string Do(std::string_view acts);
    // The acts one by one; the first that can't be done, for want of its control, ends them.
    bool DoOne(std::string_view act);
    // All controls of a screen in tab order, with their kinds, captions, limits and states.
    std::string Show(std::string_view screen);
    // A line for each of the controls, with names between blanks; "Name#" tells of a list its selection
    // alone.
    std::string See(std::string_view names);
    // A line for each row in use: its line in the list, "*" for an edited position, its fields.
    std::vector<std::string> Rows() const;

    bool Runs() const { return program && !program->host.Stopped(); }
    bool IsThere(std::string_view screen) const { return Screen(screen) != nullptr; }
    // The visible screens, the one in front last, and the focus; or how the program stopped.
    std::string Place() const;
    // The control; null when no visible screen has it.
    Control* Find(std::string_view name) const;
    Form* Screen(std::string_view name) const;

    // The controls whose copies are no longer what they are, with blanks between.
    std::string Untold() const;

    // A text as it is written here, and back.
    static std::string Written(std::string_view text);
    static std::string Unwritten(std::string_view text);

    TestServices& services;
    std::unique_ptr<Program> program;

  private:
    // What a control shows and the state that it is in, each part by itself.
    struct State {
        std::string text;
        std::map<std::string, std::string> parts;
        friend bool operator==(const State&, const State&) = default;
    };
    using States = std::map<std::string, State>;

    void FormShown(Form& form) override;
    void FormUnloaded(Form& form) override;

    bool Act(std::string_view act);
    bool ActOn(Control& control, char how, const std::string& text);
    bool ActOnLines(ColumnList& list, const std::string& text);
    bool ActOnPicture(Picture& picture, char how, const std::string& text);
    bool Type(TextBox& box, std::string_view text);
    bool PressKey(std::string_view key);
    std::string FocusName() const;

    void Note(const std::string& line) { trace_ += "    " + line + "\n"; }
    void NoteMessages();
    void NoteFiles();
    void NoteChanges(const States& before);
    States StatesNow() const;
    static State StateOf(const Control& control);
    static std::string Told(const Control& control);

    std::map<const Form*, std::map<const Control*, State>> copies_;
    std::string trace_;
    std::string place_;
    std::string acted_;  // the control that the last act must leave the focus on, unless told otherwise
    States states_;      // before the acts, brought up to date where the user changed a control
    std::vector<std::string> rows_;
};

}  // namespace tarvex::testing
