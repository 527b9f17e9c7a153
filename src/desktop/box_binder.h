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
    void GoToEnd() override { widget_.SetInsertionPoint(EndOfWords()); }

  private:
    void ToDoor();
    void BindPaste();
    bool PasteWhole(const std::string& text);
    void OnMenu(wxContextMenuEvent& event);
    void PopUpMenu(const wxPoint& at);
    void RemoveSelection();
    void PutText(const wxString& text);
    // Behind the last character that can be seen.
    long EndOfWords() const;
    void PutCaretBehindWords();
    void PutBackground();

    TextBox& box_;
    wxTextCtrl& widget_;
    Colour background_ = White;
};

}  // namespace tarvex
