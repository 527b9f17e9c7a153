#include <algorithm>
#include <cmath>

#include "chart/route.h"
#include "editor/editor_messages.h"
#include "editor/modify_procedure.h"
#include "geometry/position_text.h"
#include "geometry/text_rules.h"
#include "toolkit/characters.h"
#include "toolkit/display_text.h"

namespace tarvex {

namespace {

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

void ModifyProcedure::ConnectPositions() {
    for (TextBox* box : {&DDMLatText, &DMMLatText, &DDMLongText, &DMMLongText}) {
        box->TakesWhole = [](std::string_view text) { return ReadPosition(text).has_value(); };
        box->OnPaste = [this](std::string_view text) { TakePosition(text); };
        box->Menu = {{"Paste Position", true, [this] { PastePosition(); },
                      std::string(NameOf(ShortcutKey::CtrlShiftV))},
                     {"Copy Position", true, [this] { CopyPosition(); },
                      std::string(NameOf(ShortcutKey::CtrlShiftC))}};
    }
}

// Behind it both axes count as edited, since their boxes are visited. A box elsewhere whose rule keeps the
// focus keeps the position out.
bool ModifyProcedure::TakePosition(std::string_view text) {
    const auto position = ReadPosition(text);
    if (!position) return false;
    const auto hasFocus = [](const TextBox* box) { return box->HasFocus(); };
    const TextBox* const boxes[] = {&DDMLatText, &DMMLatText, &DDMLongText, &DMMLongText};
    if (std::none_of(std::begin(boxes), std::end(boxes), hasFocus)) DMMLatText.SetFocus();
    if (std::none_of(std::begin(boxes), std::end(boxes), hasFocus)) return true;
    FillAxis(Latitude, position->latitude);
    FillAxis(Longitude, position->longitude);
    for (TextBox* box : {&DMMLatText, &DMMLongText, &Alt1Text}) box->SetFocus();
    return true;
}

void ModifyProcedure::PastePosition() {
    const std::string text = workplace_.platform.clipboard.Text();
    if (!TakePosition(text)) dialogue_.Ask(editor_messages::NoPositionToPaste(Excerpt(text)));
}

void ModifyProcedure::CopyPosition() {
    const auto position = Latitude.IsFilled() && Longitude.IsFilled() ? RoutePointOf(BoxesAsRow()).position
                                                                      : std::optional<Position>();
    if (position) {
        workplace_.platform.clipboard.Copy(PositionText(*position));
    } else {
        dialogue_.Ask(editor_messages::NoPositionToCopy);
    }
}

}  // namespace tarvex
