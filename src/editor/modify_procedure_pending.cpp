#include <algorithm>

#include "editor/editor_messages.h"
#include "editor/modify_procedure.h"
#include "geometry/text_rules.h"

namespace tarvex {

ModifyProcedure::Held ModifyProcedure::HeldByBoxes() const {
    const auto axis = [](const CoordinateGroup& group) {
        return AxisEntry{std::string(RightTrim(group.degrees.Text())),
                         std::string(RightTrim(group.minutes.Text())), group.negative.Value()};
    };
    Held held{.latitude = axis(Latitude), .longitude = axis(Longitude)};
    for (const TextBox* box : {&FixNameText, &NAVIDText, &FreqText, &Alt1Text, &Alt2Text, &AirspeedText}) {
        held.texts.emplace_back(RightTrim(box->Text()));
    }
    for (const OptionButton* option : {&NoRestrictionOption, &AtOption, &AtBelowOption, &AtAboveOption}) {
        held.options.push_back(option->Value());
    }
    return held;
}

// What Modify wrote of the boxes: an axis that nobody has left a box of stays what it was in the row.
void ModifyProcedure::NoteWritten() {
    Held held = HeldByBoxes();
    if (LatEdited == False) held.latitude = shown_.latitude;
    if (LongEdited == False) held.longitude = shown_.longitude;
    shown_ = std::move(held);
}

// Whether Modify would take the axis over as things stand; a box that has the focus is left first.
bool ModifyProcedure::WouldBeWritten(const CoordinateGroup& axis, Flag edited) const {
    const auto leads = [](const TextBox& box) { return box.HasFocus() && !box.Text().empty(); };
    return edited != False || leads(axis.degrees) || leads(axis.minutes);
}

void ModifyProcedure::ShowPending() {
    using namespace editor_messages;
    const Held held = HeldByBoxes();
    if (WaypointList.ListIndex() == ListBox::NoSelection) {
        const bool any = Latitude.IsFilled() || Longitude.IsFilled() ||
                         std::any_of(held.texts.begin(), held.texts.end(),
                                     [](const std::string& text) { return !text.empty(); });
        PendingLabel.SetCaption(any ? NotInTheProcedure : "");
        return;
    }
    const bool stuck = (held.latitude != shown_.latitude && !WouldBeWritten(Latitude, LatEdited)) ||
                       (held.longitude != shown_.longitude && !WouldBeWritten(Longitude, LongEdited));
    if (stuck) {
        PendingLabel.SetCaption(PositionNotTaken);
        return;
    }
    std::string caption(held == shown_ ? "" : ChangedNotWritten);
    PendingLabel.SetCaption(caption.append(AddIsOff));
}

}  // namespace tarvex
