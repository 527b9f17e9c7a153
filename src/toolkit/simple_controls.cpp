#include "toolkit/simple_controls.h"

#include <algorithm>
#include <utility>

#include "toolkit/form.h"

namespace tarvex {

void CaptionedControl::SetCaption(std::string_view caption) {
    if (caption_ == caption) return;
    caption_ = caption;
    Changed();
}

void Label::SetForeColor(Colour colour) {
    if (foreColor_ == colour) return;
    foreColor_ = colour;
    Changed();
}

void Frame::SetPlace(int top, int height) {
    top_ = top;
    height_ = height;
    Changed();
}

void TextBox::SetText(std::string_view text) {
    if (text_ == text) return;
    typing_.reset();
    Put(text);
}

void TextBox::Put(std::string_view text) {
    text_ = text;
    Changed();
    Run(OnChange);
}

void TextBox::Type(std::string_view text) {
    if (text_ == text) return;
    if (!typing_) typing_ = Typing{text_, {}};
    typing_->undone.reset();
    Put(text);
}

void TextBox::UndoTyping() {
    if (!CanUndoTyping()) return;
    typing_->undone = text_;
    Put(std::string(typing_->before));
}

void TextBox::RedoTyping() {
    if (CanRedoTyping()) Put(*std::exchange(typing_->undone, std::nullopt));
}

void TextBox::SetLocked(bool locked) {
    if (locked_ == locked) return;
    locked_ = locked;
    Changed();
}

void TextBox::SetBackColor(Colour colour) {
    if (backColor_ == colour) return;
    backColor_ = colour;
    Changed();
}

void Button::SetTip(std::string_view tip) {
    if (tip_ == tip) return;
    tip_ = tip;
    Changed();
}

OptionButton::OptionButton(Frame& group, std::string_view name, std::string_view caption, int tabIndex)
    : CaptionedControl(group.Owner(), name, caption, tabIndex) {
    PutInto(group);
}

namespace {

// The options that exclude `option`, itself included.
std::vector<OptionButton*> GroupOf(const OptionButton& option) {
    std::vector<OptionButton*> group;
    for (Control* control : option.Owner().Controls()) {
        auto* other = dynamic_cast<OptionButton*>(control);
        if (other != nullptr && other->Container() == option.Container()) group.push_back(other);
    }
    return group;
}

}  // namespace

void OptionButton::Select() {
    if (value_) return;
    for (OptionButton* other : GroupOf(*this)) {
        if (!other->value_) continue;
        other->value_ = false;
        other->Changed();
    }
    value_ = true;
    Changed();
    Run(OnClick);
}

bool OptionButton::IsTabStop() const {
    if (value_) return true;
    const auto group = GroupOf(*this);
    return std::none_of(group.begin(), group.end(), [](const OptionButton* other) { return other->value_; });
}

OptionButton& OptionButton::Neighbour(bool forward) {
    auto group = GroupOf(*this);
    if (!forward) std::reverse(group.begin(), group.end());
    std::rotate(group.begin(), std::find(group.begin(), group.end(), this) + 1, group.end());
    return **std::find_if(group.begin(), group.end(), [this](const OptionButton* other) {
        return other->CanTakeFocus() || other == this;
    });
}

void CheckBox::SetValue(int value) {
    if (value_ == value) return;
    value_ = value;
    Changed();
    Run(OnClick);
}

}  // namespace tarvex
