#include "desktop/act_binders.h"

#include <utility>

#include "desktop/native_form.h"
#include "desktop/native_text.h"
#include "desktop/theme.h"
#include "desktop/window_system.h"
#include "toolkit/display_text.h"

namespace tarvex {

namespace {

// Screens that are read or driven by programs find captions as they are, blanks included.
void ShowCaption(wxControl& widget, const CaptionedControl& control) {
    const wxString caption = Shown(PlainCaption(control.Caption()));
    if (widget.GetLabelText() != caption) widget.SetLabelText(caption);
    NameForAccess(widget, control.Name(), ShownLines(control.Caption()));
}

// What a button does, and the key that does it too.
wxString TipOf(const Button& button) {
    const std::string words = button.Tip().empty() ? PlainCaption(button.Caption()) : button.Tip();
    return Shown(button.Key().empty() ? button.Tip() : words + " (" + button.Key() + ")");
}

}  // namespace

LabelBinder::LabelBinder(NativeForm& window, Label& label, std::vector<wxStaticText*> widgets)
    : Binder(window, label, *widgets.front()), label_(label), widgets_(std::move(widgets)) {
    Widget().Bind(wxEVT_SYS_COLOUR_CHANGED, [this](wxSysColourChangedEvent& event) {
        event.Skip();
        PutInk();
    });
}

std::vector<wxString> LabelBinder::Pieces() const {
    if (keepsBlanks_) return {Shown(label_.Caption())};
    if (widgets_.size() == 1) return {Shown(PlainCaption(label_.Caption()))};
    std::vector<wxString> pieces;
    std::string_view rest = label_.Caption();
    while (!rest.empty()) {
        const auto gap = rest.find("  ");
        const std::string piece = PlainCaption(rest.substr(0, gap));
        if (!piece.empty()) pieces.push_back(Shown(piece));
        rest.remove_prefix(gap == std::string_view::npos ? rest.size() : gap + 2);
    }
    return pieces;
}

void LabelBinder::ToWidget() {
    Binder::ToWidget();
    const auto pieces = Pieces();
    for (std::size_t i = 0; i < widgets_.size(); ++i) {
        // The name of the field comes last in the caption and first in the window.
        const std::size_t place = (i + widgets_.size() - 1) % widgets_.size();
        const wxString piece = place < pieces.size() ? pieces[place] : wxString();
        widgets_[i]->Enable(label_.Enabled());
        if (widgets_[i]->GetLabelText() == piece) continue;
        widgets_[i]->SetLabelText(piece);
        Window().LayOutAgain();
    }
    if (std::exchange(ink_, label_.ForeColor()) != label_.ForeColor()) PutInk();
    NameForAccess(Widget(), label_.Name(), ShownLines(label_.Caption()));
}

void LabelBinder::PutInk() {
    for (wxStaticText* widget : widgets_) widget->SetForegroundColour(LabelInk(ink_));
}

void LabelBinder::PressesButton(Button& button) {
    Widget().Bind(wxEVT_LEFT_UP, [this, &button](wxMouseEvent& event) {
        event.Skip();
        if (Window().IsSecondClick() && !button.Repeats()) return;
        if (label_.Enabled()) Post([&button](UserDoor& door) { return door.Press(button); });
    });
}

ButtonBinder::ButtonBinder(NativeForm& window, Button& button, wxAnyButton& widget, const wxString& spoken)
    : Binder(window, button, widget, spoken), button_(button), widget_(widget) {
    widget.Bind(wxEVT_BUTTON,
                [this](wxCommandEvent&) { Post([this](UserDoor& door) { return door.Press(button_); }); });
    const auto click = [this](wxMouseEvent& event) {
        if (!Window().IsSecondClick() || button_.Repeats()) event.Skip();
    };
    widget.Bind(wxEVT_LEFT_DOWN, click);
    widget.Bind(wxEVT_LEFT_DCLICK, click);
}

void ButtonBinder::ToWidget() {
    if (!button_.Caption().empty()) ShowCaption(widget_, button_);
    if (!button_.Tip().empty()) NameForAccess(widget_, button_.Name(), Shown(button_.Tip()));
    const wxString tip = TipOf(button_);
    if (!tip.empty() && widget_.GetToolTipText() != tip) {
        widget_.SetToolTip(tip);
        DescribeForAccess(widget_, Shown(button_.Key()));
    }
    Binder::ToWidget();
}

void ButtonBinder::Arrive() {
    // The mouse arrives before it presses, and this press comes ahead of the rule that the arrival would run.
    if (!button_.DropsBoxes()) Binder::Arrive();
}

OptionBinder::OptionBinder(NativeForm& window, OptionButton& option, wxRadioButton& widget,
                           wxRadioButton& none)
    : Binder(window, option, widget), option_(option), widget_(widget), none_(none) {
    widget.Bind(wxEVT_RADIOBUTTON,
                [this](wxCommandEvent&) { Post([this](UserDoor& door) { return door.Pick(option_); }); });
}

void OptionBinder::ToWidget() {
    ShowCaption(widget_, option_);
    if (widget_.GetValue() != option_.Value()) {
        (option_.Value() ? widget_ : none_).SetValue(true);
        // The native group deselects others of which nothing was heard.
        Window().TouchAll();
    }
    Binder::ToWidget();
}

CheckBoxBinder::CheckBoxBinder(NativeForm& window, CheckBox& check, wxCheckBox& widget)
    : Binder(window, check, widget), check_(check), widget_(widget) {
    widget.Bind(wxEVT_CHECKBOX,
                [this](wxCommandEvent&) { Post([this](UserDoor& door) { return door.Toggle(check_); }); });
}

void CheckBoxBinder::ToWidget() {
    ShowCaption(widget_, check_);
    if (widget_.GetValue() != (check_.Value() == 1)) widget_.SetValue(check_.Value() == 1);
    Binder::ToWidget();
}

}  // namespace tarvex
