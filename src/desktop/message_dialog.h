#pragma once

#include <wx/dialog.h>

#include "toolkit/message_box.h"

namespace tarvex {

// A message as a dialog of the program's own, for systems whose message boxes show no icon.
class MessageDialog final : public wxDialog {
  public:
    MessageDialog(wxWindow* parent, const Message& message);

    // wxID_OK, wxID_YES or wxID_NO; a question that is dismissed gives wxID_NO.
    int ShowModal() override;

  private:
    wxWindow* MakeText(const Message& message);
    wxSizer* MakeButtons(const Message& message);

    wxWindow* first_ = nullptr;  // the button that has the focus first
};

}  // namespace tarvex
