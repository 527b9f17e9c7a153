#pragma once

#include <vector>

#include <wx/anybutton.h>
#include <wx/checkbox.h>
#include <wx/radiobut.h>
#include <wx/stattext.h>

#include "desktop/binder.h"
#include "toolkit/simple_controls.h"

namespace tarvex {

// A label may show its caption in several pieces: the words of the caption that wide gaps part, each in a
// widget of its own. The first of the widgets is the one that has the label's name.
class LabelBinder : public Binder {
  public:
    LabelBinder(NativeForm& window, Label& label, std::vector<wxStaticText*> widgets);
    void ToWidget() override;
    wxStaticText* Text() const { return widgets_.front(); }
    // The caption is shown with all its blanks, which otherwise only place it.
    void KeepBlanks() { keepsBlanks_ = true; }
    // A click on the label presses the button that it stands beside.
    void PressesButton(Button& button);

  private:
    std::vector<wxString> Pieces() const;
    void PutInk();

    Label& label_;
    std::vector<wxStaticText*> widgets_;
    bool keepsBlanks_ = false;
    Colour ink_ = Black;
};

class ButtonBinder final : public Binder {
  public:
    ButtonBinder(NativeForm& window, Button& button, wxAnyButton& widget, const wxString& spoken = {});
    void ToWidget() override;
    void Arrive() override;

  private:
    Button& button_;
    wxAnyButton& widget_;
};

// `none` is a hidden member of the native group that is selected while no option is.
class OptionBinder final : public Binder {
  public:
    OptionBinder(NativeForm& window, OptionButton& option, wxRadioButton& widget, wxRadioButton& none);
    void ToWidget() override;

  private:
    OptionButton& option_;
    wxRadioButton& widget_;
    wxRadioButton& none_;
};

class CheckBoxBinder final : public Binder {
  public:
    CheckBoxBinder(NativeForm& window, CheckBox& check, wxCheckBox& widget);
    void ToWidget() override;

  private:
    CheckBox& check_;
    wxCheckBox& widget_;
};

class FrameBinder final : public Binder {
  public:
    FrameBinder(NativeForm& window, Frame& frame, wxWindow& widget) : Binder(window, frame, widget) {}
};

}  // namespace tarvex
