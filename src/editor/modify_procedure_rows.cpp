#include <algorithm>
#include <cmath>
#include <utility>

#include "editor/editor_messages.h"
#include "editor/modify_procedure.h"
#include "geometry/text_rules.h"
#include "startup/program.h"

namespace tarvex {

namespace {

constexpr int ManyRows = MaxWaypoints - 5;

std::string_view OrZero(const TextBox& box) {
    return box.Text().empty() ? "0" : std::string_view(box.Text());
}

std::string Signed(const TextBox& degrees, bool positive) {
    return positive ? degrees.Text() : "-" + degrees.Text();
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

// The boxes as a new row. Its decimals are those of the last search whatever the boxes hold: degrees and
// minutes are the current form.
WaypointRecord NewRow(const ModifyProcedure& form, const SharedState& state) {
    WaypointRecord row;
    row.WaypointID = form.NAVIDText.Text().empty() ? form.FixNameText.Text() : form.NAVIDText.Text();
    row.WaypointType = state.RunwayTransfer != False ? "15" : "0";
    row.LatDecimal = NumberText(state.TransferLatDecimal);
    row.LatDegrees = Signed(form.DDMLatText, form.NLatOption.Value());
    row.LatMinutes = form.DMMLatText.Text();
    row.CoordinatesEdited = True;
    row.LongDecimal = NumberText(state.TransferLongDecimal);
    row.LongDegrees = Signed(form.DDMLongText, form.ELongOption.Value());
    row.LongMinutes = form.DMMLongText.Text();
    row.Frequency = form.FixNameText.Text().empty() ? form.FreqText.Text() : "0";
    row.Airspeed = OrZero(form.AirspeedText);
    row.Altitude2 = OrZero(form.Alt2Text);
    row.Altitude1 =
        form.Alt2Text.Text().empty() ? OrZero(form.Alt1Text) : std::string_view(form.Alt1Text.Text());
    row.RestrictionType = RestrictionCode(form);
    return row;
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

}  // namespace

void ModifyProcedure::ConnectRows() {
    ShowRowsInUse();
    WaypointList.OnCount = [this] { ShowRowsInUse(); };
    WaypointList.OnClick = [this] { WaypointList_Click(); };
    AddWaypointCommand.OnClick = [this] { AddWaypointCommand_Click(); };
    ModifyWaypointCommand.OnClick = [this] { ModifyWaypointCommand_Click(); };
    DeleteWaypointCommand.OnClick = [this] { DeleteWaypointCommand_Click(); };
    MoveUp.OnClick = [this] { MoveUp_Click(); };
    MoveDown.OnClick = [this] { MoveDown_Click(); };
}

void ModifyProcedure::ShowRowsInUse() {
    const int rows = WaypointList.ListCount();
    RowsLabel.SetCaption(NumberText(rows) + " of " + NumberText(MaxWaypoints));
    RowsLabel.SetForeColor(rows >= ManyRows ? Red : Black);
}

void ModifyProcedure::AddWaypointCommand_Click() {
    SharedState& state = program_.state;
    ClearDataCommand.SetEnabled(true);
    if (!WaypointList.Text().empty()) {
        if (program_.Ask(editor_messages::AddWhileSelected) == MessageAnswer::Yes) ClearDataCommand_Click();
        return;
    }
    if (state.WaypointCount >= MaxWaypoints) {
        program_.Ask(editor_messages::TableFull);
        return;
    }
    if (const auto [message, box] = MissingForAdd(*this); message != nullptr) {
        program_.Ask(*message);
        box->SetFocus();
        if (message == &editor_messages::NameMissing) FreqText.SetText("");
        return;
    }
    BuildFilename();
    state.WaypointTable.at(static_cast<std::size_t>(state.WaypointCount)) = NewRow(*this, state);
    ++state.WaypointCount;
    // Both names may be filled: the row is then named for the navaid and the line for the fix.
    WaypointList.AddItem(FixNameText.Text().empty() ? NAVIDText.Text() : FixNameText.Text());
    ClearDataCommand_Click();
    LatEdited = False;
    LongEdited = False;
}

void ModifyProcedure::ModifyWaypointCommand_Click() {
    if (AtAboveAtBelowOption.Value() && (Alt1Text.Text().empty() || Alt2Text.Text().empty())) {
        program_.Ask(editor_messages::BandIncomplete);
        return;
    }
    if (WaypointList.ListIndex() == ListBox::NoSelection) {
        LatEdited = False;
        LongEdited = False;
        return;
    }
    if (const Message* message = Unmodifiable(*this)) {
        program_.Ask(*message);
        return;
    }
    WaypointRecord& row = program_.state.WaypointTable.at(static_cast<std::size_t>(WaypointList.ListIndex()));
    row.WaypointID = FixNameText.Text().empty() ? NAVIDText.Text() : FixNameText.Text();
    ForceSign(row.LatDecimal, NLatOption.Value());
    if (LatEdited != False) {
        row.CoordinatesEdited = True;
        row.LatDegrees = Signed(DDMLatText, NLatOption.Value());
        row.LatMinutes = DMMLatText.Text();
    }
    ForceSign(row.LongDecimal, ELongOption.Value());
    if (LongEdited != False) {
        row.CoordinatesEdited = True;
        row.LongDegrees = Signed(DDMLongText, ELongOption.Value());
        row.LongMinutes = DMMLongText.Text();
    }
    row.Frequency = OrZero(FreqText);
    row.Airspeed = OrZero(AirspeedText);
    row.Altitude2 = OrZero(Alt2Text);
    row.Altitude1 = OrZero(Alt1Text);
    row.RestrictionType = RestrictionCode(*this);
    LatEdited = False;
    LongEdited = False;
}

void ModifyProcedure::DeleteWaypointCommand_Click() {
    const int index = WaypointList.ListIndex();
    if (index == ListBox::NoSelection) {
        program_.Ask(editor_messages::NothingSelected);
        return;
    }
    WaypointList.RemoveItem(index);
    ClearDataCommand_Click();
    SharedState& state = program_.state;
    WaypointRows& rows = state.WaypointTable;
    // The row set free takes what the first free row holds, where there is one.
    const int last = std::min(state.WaypointCount, MaxWaypoints - 1);
    std::copy(rows.begin() + index + 1, rows.begin() + last + 1, rows.begin() + index);
    --state.WaypointCount;
    LatEdited = False;
    LongEdited = False;
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
    const int to = from + by;
    const std::string line = WaypointList.Text();
    WaypointList.RemoveItem(from);
    WaypointList.AddItem(line, to);
    WaypointRows& rows = program_.state.WaypointTable;
    std::swap(rows.at(static_cast<std::size_t>(from)), rows.at(static_cast<std::size_t>(to)));
    WaypointList.SetListIndex(to);
}

}  // namespace tarvex
