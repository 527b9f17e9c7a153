#include <algorithm>

#include "editor/editor_messages.h"
#include "editor/modify_procedure.h"
#include "geometry/text_rules.h"

namespace tarvex {

ModifyProcedure::Held ModifyProcedure::HeldByBoxes() const {
    Held held;
    for (const TextBox* box : {&FixNameText, &NAVIDText, &FreqText, &DDMLatText, &DMMLatText, &DDMLongText,
                               &DMMLongText, &Alt1Text, &Alt2Text, &AirspeedText}) {
        held.texts.emplace_back(RightTrim(box->Text()));
    }
    for (const OptionButton* option :
         {&NLatOption, &ELongOption, &NoRestrictionOption, &AtOption, &AtBelowOption, &AtAboveOption}) {
        held.options.push_back(option->Value());
    }
    return held;
}

void ModifyProcedure::ShowPending() {
    const Held held = HeldByBoxes();
    if (WaypointList.ListIndex() == ListBox::NoSelection) {
        const bool any = std::any_of(held.texts.begin(), held.texts.end(),
                                     [](const std::string& text) { return !text.empty(); });
        PendingLabel.SetCaption(any ? editor_messages::NotInTheProcedure : "");
        return;
    }
    std::string caption(held == shown_ ? "" : editor_messages::ChangedNotWritten);
    PendingLabel.SetCaption(caption.append(editor_messages::AddIsOff));
}

}  // namespace tarvex
