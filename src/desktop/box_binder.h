#pragma once

#include <wx/textctrl.h>

#include "desktop/binder.h"
#include "toolkit/simple_controls.h"

namespace tarvex {

class TextBoxBinder final : public Binder {
  public:
    TextBoxBinder(NativeForm& window, TextBox& box, wxTextCtrl& widget, const wxString& spoken);
    void ToWidget() override;
    void SelectAll() override { widget_.SelectAll(); }

  private:
    void ToDoor();
    void PutText(const wxString& text);
    void PutBackground();

    TextBox& box_;
    wxTextCtrl& widget_;
    Colour background_ = White;
};

}  // namespace tarvex
