#pragma once

#include <string>
#include <string_view>

#include "toolkit/message_box.h"

namespace tarvex {

class Control;

inline constexpr std::string_view ProgramTitle = "Tarvex 2.35";

// What the program says to its user.
class Dialogue {
  public:
    // `lastAnswer` gets the answer of every message, as decimal text. Both must outlive the dialogue.
    Dialogue(MessageBox& messages, std::string& lastAnswer) : messages_(messages), lastAnswer_(lastAnswer) {}

    // Shows a message; one without a title gets the program's.
    MessageAnswer Ask(Message message);
    // Shows the complaint, if it isn't empty, and gives the focus to `control`. Whether there was one.
    bool Complain(std::string_view complaint, Control& control);

  private:
    MessageBox& messages_;
    std::string& lastAnswer_;
};

}  // namespace tarvex
