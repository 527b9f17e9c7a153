#include "geometry/position_boxes.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "geometry/position_text.h"
#include "geometry/text_rules.h"
#include "toolkit/characters.h"
#include "toolkit/display_text.h"

namespace tarvex {

namespace {

Message NoPositionToPaste(const std::string& text) {
    return {
        .prompt = (text.empty() ? "There is no text on the clipboard." : "This is no position:\r\n" + text) +
                  "\r\nA position is written like N33 56.550 W118 24.480 or 33.9425 -118.408.",
        .title = "Paste Position"};
}
const Message NoPositionToCopy{
    .prompt = "The boxes hold no position.",
    .title = "Copy Position",
};

// In millionths of a minute, the least that a procedure file can tell apart; a box has room for them.
void FillAxis(const CoordinateGroup& axis, double coordinate) {
    constexpr double Fine = 1e6;
    const double minutes = std::round(std::fabs(coordinate) * 60 * Fine);
    const double degrees = std::floor(minutes / (60 * Fine));
    axis.Fill(NumberText(degrees), NumberText((minutes - degrees * 60 * Fine) / Fine), coordinate < 0);
}

// The beginning of a text, in one line.
std::string Excerpt(std::string_view text) {
    constexpr std::size_t LookedAt = 1000;
    constexpr int Most = 60;  // characters
    std::string line = PlainCaption(text.substr(0, LookedAt));
    std::size_t end = 0;
    for (int left = Most; left > 0 && end < line.size(); --left) {
        end += std::max<std::size_t>(Utf8CharacterAt(std::string_view(line).substr(end)).bytes, 1);
    }
    if (end < line.size()) line.replace(end, std::string::npos, "...");
    return line;
}

}  // namespace

PositionBoxes::PositionBoxes(const CoordinateGroup& latitude, const CoordinateGroup& longitude, Control& next,
                             Clipboard& clipboard, Dialogue& dialogue,
                             std::function<std::optional<Position>()> held)
    : latitude_(latitude),
      longitude_(longitude),
      next_(next),
      clipboard_(clipboard),
      dialogue_(dialogue),
      held_(std::move(held)) {
    for (TextBox* box : Boxes()) {
        box->TakesWhole = [](std::string_view text) { return ReadPosition(text).has_value(); };
        box->OnPaste = [this](std::string_view text) { Take(text); };
        box->Menu = {
            {"Paste Position", true, [this] { Paste(); }, std::string(NameOf(ShortcutKey::CtrlShiftV))},
            {"Copy Position", true, [this] { Copy(); }, std::string(NameOf(ShortcutKey::CtrlShiftC))}};
    }
}

std::vector<Shortcut> PositionBoxes::Shortcuts() {
    std::vector<Shortcut> keys = {{ShortcutKey::CtrlShiftV, nullptr, nullptr, [this] { Paste(); }},
                                  {ShortcutKey::CtrlShiftC, nullptr, nullptr, [this] { Copy(); }}};
    if (pasted_ && WhatBoxesHold() == pasted_->after) {
        keys.push_back({ShortcutKey::CtrlZ, nullptr, nullptr, [this] { TakeBack(); }});
    }
    return keys;
}

// Behind it both axes count as gone through by the user, since the boxes of their minutes are visited. A box
// elsewhere whose rule keeps the focus keeps the position out.
bool PositionBoxes::Take(std::string_view text) {
    const auto position = ReadPosition(text);
    if (!position) return false;
    const BoxList boxes = Boxes();
    const auto hasFocus = [](const TextBox* box) { return box->HasFocus(); };
    if (std::none_of(boxes.begin(), boxes.end(), hasFocus)) latitude_.minutes.SetFocus();
    const auto from = std::find_if(boxes.begin(), boxes.end(), hasFocus);
    if (from == boxes.end()) return true;
    Held before = WhatBoxesHold();
    FillAxis(latitude_, position->latitude);
    FillAxis(longitude_, position->longitude);
    pasted_.emplace(Pasted{std::move(before), WhatBoxesHold(), **from});
    latitude_.minutes.SetFocus();
    longitude_.minutes.SetFocus();
    next_.SetFocus();
    return true;
}

// A box that was left half filled has the focus again, and with it its rule.
void PositionBoxes::TakeBack() {
    const Pasted pasted = *pasted_;
    pasted.from.SetFocus();
    if (!pasted.from.HasFocus()) return;
    pasted_.reset();
    latitude_.Fill(pasted.before.latitude);
    longitude_.Fill(pasted.before.longitude);
}

void PositionBoxes::Paste() {
    const std::string text = clipboard_.Text();
    if (!Take(text)) dialogue_.Ask(NoPositionToPaste(Excerpt(text)));
}

void PositionBoxes::Copy() const {
    if (const auto position = held_()) {
        clipboard_.Copy(PositionText(*position));
    } else {
        dialogue_.Ask(NoPositionToCopy);
    }
}

}  // namespace tarvex
