#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/control.h"
#include "toolkit/drawing.h"
#include "toolkit/menu_entry.h"

namespace tarvex {

// A drawing that the user looks at and acts on. What is drawn, and what the acts mean, belongs to its form.
class Picture : public Control {
  public:
    using Control::Control;

    const Drawing& Shown() const { return drawing_; }
    void SetDrawing(Drawing drawing);
    // Counts the drawings: another one is to be painted.
    int Version() const { return version_; }

    // The size that the drawing has on the screen; none before its window has told it.
    Size Room() const { return room_; }
    // Runs OnResize when the size changes.
    void SetRoom(Size room);

    // What is shown beside the pointer; empty for nothing.
    const std::string& Tip() const { return tip_; }
    void SetTip(std::string tip);
    // The picture in a sentence, for a screen reader.
    const std::string& Sentence() const { return sentence_; }
    void SetSentence(std::string sentence);

    // What the menu of the picture offers as things stand.
    const std::vector<MenuEntry>& Menu() const { return menu_; }
    void SetMenu(std::vector<MenuEntry> menu) { menu_ = std::move(menu); }

    bool TakesFocus() const override { return true; }

    std::function<void()> OnResize;
    std::function<void(Target)> OnPoint;    // the pointer came to it; None: it left what was there
    std::function<void(Target)> OnChoose;   // clicked
    std::function<void(bool also)> OnTake;  // what was chosen; `also`: and go on with it
    std::function<void(double steps, Point at)> OnZoom;  // nearer; a negative number: away
    std::function<void(double x, double y)> OnPan;       // so far the picture's content moves
    std::function<void()> OnFit;

  private:
    Drawing drawing_;
    int version_ = 0;
    Size room_;
    std::string tip_;
    std::string sentence_;
    std::vector<MenuEntry> menu_;
};

}  // namespace tarvex
