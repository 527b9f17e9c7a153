#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "toolkit/control.h"
#include "toolkit/menu_entry.h"

namespace tarvex {

// A control with a caption. Captions are literal: an ampersand is an ampersand.
class CaptionedControl : public Control {
  public:
    CaptionedControl(Form& form, std::string_view name, std::string_view caption, int tabIndex = NoTabIndex)
        : Control(form, name, tabIndex), caption_(caption) {}

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption);

  private:
    std::string caption_;
};

class Label : public CaptionedControl {
  public:
    using CaptionedControl::CaptionedControl;

    Colour ForeColor() const { return foreColor_; }
    void SetForeColor(Colour colour);

  private:
    Colour foreColor_ = Black;
};

// Groups controls; option buttons in one frame exclude each other. Top and Height are in twips.
class Frame : public CaptionedControl {
  public:
    using CaptionedControl::CaptionedControl;

    int Top() const { return top_; }
    int Height() const { return height_; }
    void SetPlace(int top, int height);

  private:
    int top_ = 0;
    int height_ = 0;
};

class TextBox : public Control {
  public:
    static constexpr int NoLimit = 0;

    // `maxLength` is the most characters that the user can type; texts that an operation assigns are not cut.
    TextBox(Form& form, std::string_view name, int maxLength, int tabIndex)
        : Control(form, name, tabIndex), maxLength_(maxLength) {}

    const std::string& Text() const { return text_; }
    void SetText(std::string_view text);  // runs OnChange when the text changes
    // The same by the user. As long as the focus is here and no operation changes the text, the typing can be
    // undone as a whole, and done again.
    void Type(std::string_view text);
    // They do nothing where there is nothing to undo, or to do again: for the one, when the text is what it
    // was.
    void UndoTyping();
    void RedoTyping();
    bool CanUndoTyping() const { return typing_ && text_ != typing_->before; }
    bool CanRedoTyping() const { return typing_ && typing_->undone; }
    int MaxLength() const { return maxLength_; }
    bool Locked() const { return locked_; }  // shown as usable, but takes no typing
    void SetLocked(bool locked);
    Colour BackColor() const { return backColor_; }
    void SetBackColor(Colour colour);
    // What it takes, with unit and range; said beside the pointer, and by a screen reader as its description.
    const std::string& Tip() const { return tip_; }
    void SetTip(std::string_view tip) { tip_ = tip; }
    bool TakesFocus() const override { return true; }
    void FocusGone() override { typing_.reset(); }

    std::function<void()> OnChange;
    // Whether a text, in UTF-8, that the user pastes means more than typing it would, and what it does then.
    std::function<bool(std::string_view)> TakesWhole;
    std::function<void(std::string_view)> OnPaste;
    // Not all that was typed had room.
    std::function<void()> OnRefused;
    // What its menu has beside the usual entries.
    std::vector<MenuEntry> Menu;

  private:
    struct Typing {
        std::string before;
        std::optional<std::string> undone;
    };

    void Put(std::string_view text);

    std::string text_;
    std::optional<Typing> typing_;
    int maxLength_;
    bool locked_ = false;
    Colour backColor_ = White;
    std::string tip_;
};

// The tips of a screen's boxes.
using BoxTip = std::pair<TextBox&, std::string_view>;
inline void SetTips(std::initializer_list<BoxTip> tips) {
    for (const auto& [box, tip] : tips) box.SetTip(tip);
}

// What a press of a button makes of what the boxes hold.
enum class Boxes { Kept, Dropped };

class Button : public CaptionedControl {
  public:
    Button(Form& form, std::string_view name, std::string_view caption, int tabIndex = NoTabIndex,
           Boxes boxes = Boxes::Kept)
        : CaptionedControl(form, name, caption, tabIndex), boxes_(boxes) {}

    // The press throws away what the boxes hold, and so comes before the leaving rule of the box that has the
    // focus.
    bool DropsBoxes() const { return boxes_ == Boxes::Dropped; }
    bool TakesFocus() const override { return true; }

    // What it does, said beside the pointer and by a screen reader; empty leaves that to its window.
    const std::string& Tip() const { return tip_; }
    void SetTip(std::string_view tip);
    // The name of the key that presses it; stands behind the tip. Empty for none.
    const std::string& Key() const { return key_; }
    void SetKey(std::string_view key) { key_ = key; }

    // A double click presses the button once, unless it repeats: then each click is a press of its own.
    bool Repeats() const { return repeats_; }
    void SetRepeats() { repeats_ = true; }

    std::function<void()> OnClick;

  private:
    Boxes boxes_;
    std::string tip_;
    std::string key_;
    bool repeats_ = false;
};

// One of several in a frame, of which at most one is selected.
class OptionButton : public CaptionedControl {
  public:
    OptionButton(Frame& group, std::string_view name, std::string_view caption, int tabIndex);

    bool Value() const { return value_; }
    // Selects this option and deselects the others of its frame. Runs OnClick when it was not selected
    // before.
    void Select();
    // The initial state of a form: selected, without any rule.
    void SelectAtFirst() { value_ = true; }

    bool TakesFocus() const override { return true; }
    // The selected option of a frame is its tab stop; without a selection each option is one.
    bool IsTabStop() const override;
    // The usable option that stands behind it, or before it, in their frame, in the order of their making
    // and round; itself when it is the only one.
    OptionButton& Neighbour(bool forward);

    std::function<void()> OnClick;

  private:
    bool value_ = false;
};

class CheckBox : public CaptionedControl {
  public:
    using CaptionedControl::CaptionedControl;

    int Value() const { return value_; }  // 0 unchecked, 1 checked
    void SetValue(int value);             // runs OnClick when the value changes
    bool TakesFocus() const override { return true; }

    std::function<void()> OnClick;

  private:
    int value_ = 0;
};

}  // namespace tarvex
