#include "desktop/native_message_box.h"

#include <wx/msgdlg.h>

#include "desktop/desktop.h"
#include "desktop/native_text.h"

namespace tarvex {

MessageAnswer NativeMessageBox::Show(const Message& message) {
    wxWindow* parent = desktop_ != nullptr ? desktop_->BeforeMessage() : nullptr;
    long style = message.icon == MessageIcon::Critical ? wxICON_ERROR : wxICON_NONE;
    const bool question = message.buttons == MessageButtons::YesNo;
    style |= question ? wxYES_NO : wxOK;
    if (question && message.defaultAnswer == MessageAnswer::No) style |= wxNO_DEFAULT;
    wxMessageDialog dialog(parent, ShownLines(message.prompt), Shown(message.title), style | wxCENTRE);
    const int answer = dialog.ShowModal();
    if (desktop_ != nullptr) desktop_->AfterMessage();
    if (!question) return MessageAnswer::Ok;
    return answer == wxID_YES ? MessageAnswer::Yes : MessageAnswer::No;
}

}  // namespace tarvex
