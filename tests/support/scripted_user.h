#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "support/screens.h"

namespace tarvex::testing {

// A user who works through the door: types character by character, presses, picks.
class ScriptedUser {
  public:
    explicit ScriptedUser(Program& program) : program_(program), door_(program.door) {}

    // Empties the box, if it holds anything, and types the text one character at a time. False when the box
    // took no typing.
    bool Types(TextBox& box, std::string_view text);
    // Types each text into its box; where there is no text the box is not touched.
    void Fills(std::initializer_list<TextBox*> boxes, std::initializer_list<std::string_view> texts) {
        auto text = texts.begin();
        for (TextBox* box : boxes) {
            if (!text->empty()) Types(*box, *text);
            ++text;
        }
    }
    bool Presses(Button& button) { return door_.Press(button); }
    bool Picks(OptionButton& option) { return door_.Pick(option); }
    bool Toggles(CheckBox& check) { return door_.Toggle(check); }
    bool PicksLine(ListBox& list, int index) { return door_.PickLine(list, index); }
    bool MovesTo(Control& control) { return door_.MoveFocus(control); }
    bool Tabs(Form& form) { return door_.Tab(form, true); }
    // Clicks the name in the picker. False when it isn't listed.
    bool PicksFile(FileList& list, std::string_view name);

    Control* Focused() { return program_.host.GetFocus().Current(); }
    // The name of the control with the focus; empty without one.
    std::string FocusName() { return Focused() == nullptr ? std::string() : Focused()->Name(); }

  private:
    Program& program_;
    UserDoor& door_;
};

}  // namespace tarvex::testing
