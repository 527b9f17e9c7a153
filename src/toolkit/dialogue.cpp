#include "toolkit/dialogue.h"

#include "toolkit/control.h"

namespace tarvex {

MessageAnswer Dialogue::Ask(Message message) {
    if (message.title.empty()) message.title = ProgramTitle;
    const MessageAnswer answer = messages_.Show(message);
    lastAnswer_ = std::to_string(static_cast<int>(answer));
    return answer;
}

bool Dialogue::Complain(std::string_view complaint, Control& control) {
    if (complaint.empty()) return false;
    Ask({.prompt = std::string(complaint)});
    control.SetFocus();
    return true;
}

}  // namespace tarvex
