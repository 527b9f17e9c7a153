#include <algorithm>
#include <cmath>
#include <utility>

#include "chart/route.h"
#include "editor/editor_messages.h"
#include "editor/modify_procedure.h"
#include "geometry/text_rules.h"

namespace tarvex {

namespace {

constexpr int ManyRows = MaxWaypoints - 5;

std::string_view OrZero(const TextBox& box) {
    return box.Text().empty() ? "0" : std::string_view(box.Text());
}

std::string_view RestrictionCode(const ModifyProcedure& form) {
    const std::pair<const OptionButton*, std::string_view> codes[] = {
        {&form.NoRestrictionOption, "0"},
        {&form.AtBelowOption, "2"},
        {&form.AtAboveOption, "1"},
        {&form.AtAboveAtBelowOption, "3"},
    };
    for (const auto& [option, code] : codes) {
        if (option->Value()) return code;
    }
    return "0";  // AtOption; its altitude tells it from no restriction
}

// The message and the box for what is missing in an add; nulls when nothing is.
std::pair<const Message*, TextBox*> MissingForAdd(ModifyProcedure& form) {
    using namespace editor_messages;
    const auto empty = [](const TextBox& box) { return box.Text().empty(); };
    if (empty(form.FixNameText) && empty(form.NAVIDText)) return {&NameMissing, &form.FixNameText};
    if (!empty(form.NAVIDText) && empty(form.FreqText)) return {&FrequencyMissing, &form.FreqText};
    if (empty(form.DDMLatText) && empty(form.DMMLatText)) return {&LatMissing, &form.DDMLatText};
    if (empty(form.DDMLongText) && empty(form.DMMLongText)) return {&LongMissing, &form.DDMLongText};
    return {nullptr, nullptr};
}

void ForceSign(std::string& decimal, bool positive) {
    const double number = LeadingNumber(decimal);
    if (positive && number < 0) {
        decimal = SignedNumberText(std::abs(number));
    } else if (!positive && number >= 0) {
        decimal.insert(0, "-");
    }
}

const Message* Unmodifiable(const ModifyProcedure& form) {
    if (form.FixNameText.Text().empty() && form.NAVIDText.Text().empty()) return &editor_messages::NoName;
    if (!form.FixNameText.Text().empty() && !form.NAVIDText.Text().empty()) return &editor_messages::TwoNames;
    return nullptr;
}

// How a step on a row is called, by what the list shows for the row.
std::string StepName(const std::string& act, std::string_view line) {
    return act + " " + std::string(Trim(line));
}

}  // namespace

void ModifyProcedure::ShowRowsInUse() {
    const int rows = state_.Rows.Count();
    RowsLabel.SetCaption(NumberText(rows) + " of " + NumberText(MaxWaypoints));
    RowsLabel.SetForeColor(rows >= ManyRows ? Red : Black);
}

WaypointRecord ModifyProcedure::BoxesAsRow() const {
    WaypointRecord row;
    row.WaypointID = NAVIDText.Text().empty() ? FixNameText.Text() : NAVIDText.Text();
    row.WaypointType = state_.RunwayTransfer != False ? "15" : "0";
    row.LatDecimal = NumberText(state_.TransferLatDecimal);
    row.LatDegrees = Latitude.SignedDegrees();
    row.LatMinutes = DMMLatText.Text();
    row.CoordinatesEdited = True;
    row.LongDecimal = NumberText(state_.TransferLongDecimal);
    row.LongDegrees = Longitude.SignedDegrees();
    row.LongMinutes = DMMLongText.Text();
    row.Frequency = FixNameText.Text().empty() ? FreqText.Text() : "0";
    row.Airspeed = OrZero(AirspeedText);
    row.Altitude2 = OrZero(Alt2Text);
    row.Altitude1 = Alt2Text.Text().empty() ? OrZero(Alt1Text) : std::string_view(Alt1Text.Text());
    row.RestrictionType = RestrictionCode(*this);
    return row;
}

std::optional<Position> ModifyProcedure::HeldPosition() const {
    if (!Latitude.IsFilled() || !Longitude.IsFilled()) return std::nullopt;
    return RoutePointOf(BoxesAsRow()).position;
}

void ModifyProcedure::AddWaypointCommand_Click() {
    ClearDataCommand.SetEnabled(true);
    if (!WaypointList.Text().empty()) {
        if (dialogue_.Ask(editor_messages::AddWhileSelected) == MessageAnswer::Yes) ClearDataCommand_Click();
        return;
    }
    if (state_.Rows.Free() == 0) {
        dialogue_.Ask(editor_messages::TableFull);
        return;
    }
    if (const auto [message, box] = MissingForAdd(*this); message != nullptr) {
        dialogue_.Ask(*message);
        box->SetFocus();
        if (message == &editor_messages::NameMissing) FreqText.SetText("");
        return;
    }
    BuildFilename();
    // Both names may be filled: the row is then named for the navaid and the line for the fix.
    const std::string line = FixNameText.Text().empty() ? NAVIDText.Text() : FixNameText.Text();
    const RowsStep step(state_.Rows, StepName("Add", line));
    state_.Rows.Append(BoxesAsRow(), line);
    ClearDataCommand_Click();
    LatEdited = False;
    LongEdited = False;
}

void ModifyProcedure::ModifyWaypointCommand_Click() {
    if (AtAboveAtBelowOption.Value() && (Alt1Text.Text().empty() || Alt2Text.Text().empty())) {
        dialogue_.Ask(editor_messages::BandIncomplete);
        return;
    }
    const int index = WaypointList.ListIndex();
    if (index == ListBox::NoSelection) {
        LatEdited = False;
        LongEdited = False;
        return;
    }
    if (const Message* message = Unmodifiable(*this)) {
        dialogue_.Ask(*message);
        return;
    }
    WaypointRecord row = state_.WaypointTable.at(static_cast<std::size_t>(index));
    row.WaypointID = FixNameText.Text().empty() ? NAVIDText.Text() : FixNameText.Text();
    ForceSign(row.LatDecimal, NLatOption.Value());
    if (LatEdited != False) {
        row.CoordinatesEdited = True;
        row.LatDegrees = Latitude.SignedDegrees();
        row.LatMinutes = DMMLatText.Text();
    }
    ForceSign(row.LongDecimal, ELongOption.Value());
    if (LongEdited != False) {
        row.CoordinatesEdited = True;
        row.LongDegrees = Longitude.SignedDegrees();
        row.LongMinutes = DMMLongText.Text();
    }
    row.Frequency = OrZero(FreqText);
    row.Airspeed = OrZero(AirspeedText);
    row.Altitude2 = OrZero(Alt2Text);
    row.Altitude1 = OrZero(Alt1Text);
    row.RestrictionType = RestrictionCode(*this);
    const RowsStep step(state_.Rows, StepName("Modify", WaypointList.Text()));
    state_.Rows.Replace(index, row);
    NoteWritten();
    LatEdited = False;
    LongEdited = False;
}

void ModifyProcedure::DeleteWaypointCommand_Click() {
    const int index = WaypointList.ListIndex();
    if (index == ListBox::NoSelection) {
        dialogue_.Ask(editor_messages::NothingSelected);
        return;
    }
    const RowsStep step(state_.Rows, StepName("Delete", WaypointList.Text()));
    state_.Rows.Erase(index);
    ClearDataCommand_Click();
}

void ModifyProcedure::MoveUp_Click() {
    if (WaypointList.ListIndex() > 0) MoveSelected(-1);
}

void ModifyProcedure::MoveDown_Click() {
    const int index = WaypointList.ListIndex();
    if (index != ListBox::NoSelection && index < WaypointList.ListCount() - 1) MoveSelected(1);
}

void ModifyProcedure::MoveSelected(int by) {
    const int from = WaypointList.ListIndex();
    const RowsStep step(state_.Rows, StepName("Move", WaypointList.Text()));
    state_.Rows.Exchange(from, from + by);
    WaypointList.SetListIndex(from + by);
}

}  // namespace tarvex
