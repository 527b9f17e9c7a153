#pragma once

#include <string>

namespace tarvex {

enum class MessageButtons { Ok, YesNo };
enum class MessageIcon { None, Critical };
enum class MessageAnswer : int { Ok = 1, Yes = 6, No = 7 };

// One message box. Lines of the prompt are joined by CR LF; blanks that centre a line belong to the text.
struct Message {
    std::string prompt;
    std::string title = {};  // empty: the program's title
    MessageButtons buttons = MessageButtons::Ok;
    MessageIcon icon = MessageIcon::None;
    MessageAnswer defaultAnswer =
        MessageAnswer::Ok;  // the button that has the focus first; of YesNo, Yes or No

    friend bool operator==(const Message&, const Message&) = default;
};

// Shows a message and waits for the answer.
class MessageBox {
  public:
    virtual ~MessageBox() = default;
    virtual MessageAnswer Show(const Message& message) = 0;
};

}  // namespace tarvex
