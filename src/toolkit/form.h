#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/control.h"
#include "toolkit/shortcut_key.h"

namespace tarvex {

class Button;
class FormHost;
class TextBox;

// A key of a form that presses a button of it, or does something else. Of several of one key the first whose
// button can be pressed counts.
struct Shortcut {
    ShortcutKey key;
    const Control* where;  // the control that must have the focus; null for any of the form
    Button* button;        // null: the key does `act`
    std::function<void()> act = {};
};

// A screen: a logic class over named controls. It exists while it is loaded; see FormSlot for its life.
class Form {
  public:
    Form(FormHost& host, std::string_view name, std::string_view caption);
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    FormHost& Host() const { return host_; }
    const std::string& Name() const { return name_; }
    const std::string& Caption() const { return caption_; }
    // In Form_Load: a form that is on the screen keeps its caption.
    void SetCaption(std::string_view caption) { caption_ = caption; }
    bool Visible() const { return visible_; }

    // In the order of their making.
    const std::vector<Control*>& Controls() const { return controls_; }
    // The control of that name; null for none.
    Control* Find(std::string_view name) const;
    // The usable tab stops by tab index.
    std::vector<Control*> TabStops() const;
    // Where the Tab key leads from `from` (null: the first): the next tab stop, or the one before; null
    // without any.
    Control* NextTabStop(const Control* from, bool forward) const;

    // What its slot does. Nothing for a form that is on its way out already.
    void Hide();
    void Unload();

    // The button that Escape presses; null for none.
    virtual Button* WayOut() { return nullptr; }
    virtual std::vector<Shortcut> Shortcuts() { return {}; }
    // The box that takes what is typed while a list of the form has the focus; null for none.
    virtual TextBox* BoxOfLetters() { return nullptr; }

    // Tells each button the name of its key.
    void NameKeys();

    virtual void Form_Load() {}
    virtual void Form_Unload() {}
    // Behind each event of the outside world while the form is on the screen: brings up to date what only
    // shows something, without rules or messages.
    virtual void EventEnded() {}

  private:
    friend class Control;
    friend class Focus;
    friend class FormSlotBase;

    void Add(Control& control) { controls_.push_back(&control); }

    FormHost& host_;
    std::string name_;
    std::string caption_;
    bool visible_ = false;
    std::vector<Control*> controls_;
    Control* lastFocus_ = nullptr;  // the control that had the focus last on this form
};

}  // namespace tarvex
