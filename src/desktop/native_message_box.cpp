#include "desktop/native_message_box.h"

#include "desktop/desktop.h"
#ifdef __WXMSW__
#include <wx/msgdlg.h>

#include "desktop/native_text.h"
#else
#include "desktop/message_dialog.h"
#endif

namespace tarvex {

namespace {

#ifdef __WXMSW__
int Ask(wxWindow* parent, const Message& message) {
    const bool question = message.buttons == MessageButtons::YesNo;
    long style = message.icon == MessageIcon::Critical ? wxICON_ERROR : wxICON_NONE;
    style |= question ? wxYES_NO : wxOK;
    if (question && message.defaultAnswer == MessageAnswer::No) style |= wxNO_DEFAULT;
    return wxMessageDialog(parent, ShownLines(message.prompt), Shown(message.title), style).ShowModal();
}
#else
int Ask(wxWindow* parent, const Message& message) {
    return MessageDialog(parent, message).ShowModal();
}
#endif

}  // namespace

MessageAnswer NativeMessageBox::Show(const Message& message) {
    const int answer = Ask(desktop_ != nullptr ? desktop_->BeforeMessage() : nullptr, message);
    if (desktop_ != nullptr) desktop_->AfterMessage();
    if (message.buttons == MessageButtons::Ok) return MessageAnswer::Ok;
    return answer == wxID_YES ? MessageAnswer::Yes : MessageAnswer::No;
}

}  // namespace tarvex
