#include "support/random_user.h"

#include <algorithm>
#include <array>

namespace tarvex::testing {

namespace {

constexpr const char* Numbers[] = {"0",  "5",   "33",        "90", "91",  "117",  "180",  "181",   "12.5",
                                   ".5", "045", "59.999999", "60", "250", "5000", "9000", "-5",    "-0",
                                   "-",  " 7",  "1e1",       ".",  "12a", "FL35", "1e99", "113.60"};
constexpr const char* Names[] = {"a",         "alpha", "DMO", "fix 1", " x",
                                 "\xE9t\xE9", "B-1",   "X.Y", "MANXX", "KX"};
constexpr std::string_view Rubbish = "  --..0123456789ABCabc,\"'eED+&\xE9\\/*?:%;\t";

// What leads away from a screen, and what ends the program.
constexpr std::string_view WaysOut[] = {"SaveCommand", "OopsCommand", "GoBackCommand", "Command1"};
constexpr std::string_view TheEnd = "ExitCommand";

}  // namespace

MessageAnswer RandomMessageBox::Show(const Message& message) {
    ++shown_;
    if (message.buttons == MessageButtons::Ok) return MessageAnswer::Ok;
    return chance_.Percent(50) ? MessageAnswer::Yes : MessageAnswer::No;
}

RandomUser::Act RandomUser::Next() {
    if (plan_.empty() && chance_.Percent(15)) Plan();
    if (!plan_.empty() && chance_.Percent(90)) return FollowPlan();

    Form* form = ChooseForm();
    if (form == nullptr) return {"", "", "has nothing to do"};
    const std::size_t kind = chance_.Below(100);
    if (kind < 4) {
        door_.Tab(*form, kind != 0);
        return {form->Name(), "", "tabs"};
    }
    if (kind < 8) return PressKey(*form);
    if (kind < 9) {
        door_.Activate(*form);
        return {form->Name(), "", "brings to the front"};
    }
    if (kind < 10 && chance_.Percent(20)) return CloseWindow();
    Control* control = ChooseControl(*form);
    return control == nullptr ? Act{form->Name(), "", "looks"} : ActOn(*control);
}

Form* RandomUser::ChooseForm() {
    const auto& visible = program_.host.Visible();
    if (visible.empty()) return nullptr;
    return chance_.Percent(70) ? visible.back() : chance_.Of(visible);
}

Control* RandomUser::ChooseControl(Form& form) {
    Control* focused = program_.host.GetFocus().Current();
    const bool stays = focused != nullptr && &focused->Owner() == &form && chance_.Percent(25);
    Control* control = stays ? focused : nullptr;
    while (control == nullptr || !control->TakesFocus()) control = chance_.Of(form.Controls());
    if (control->Name() == TheEnd && &form == program_.initialLoad.Get()) return nullptr;
    const bool leads =
        std::find(std::begin(WaysOut), std::end(WaysOut), control->Name()) != std::end(WaysOut);
    return leads && chance_.Percent(85) ? nullptr : control;
}

std::string RandomUser::ChooseText(const TextBox& box) {
    const std::string text = box.Text();
    switch (chance_.Below(10)) {
        case 0:
            return "";
        case 1:
            return text.substr(0, text.size() / 2);
        case 2:
            return text + chance_.Of(Rubbish);
        case 3:
            return chance_.Of(Rubbish) + text;
        case 4: {
            std::string rubbish;
            for (std::size_t left = chance_.Below(12); left > 0; --left) rubbish += chance_.Of(Rubbish);
            return rubbish;
        }
        case 5:
        case 6:
            return chance_.Of(Names);
        default:
            return chance_.Of(Numbers);
    }
}

RandomUser::Act RandomUser::ActOn(Control& control) {
    // Taken first: the act may be the end of the control's form.
    Act act{control.Owner().Name(), control.Name(), ""};
    const auto lineOf = [this](std::size_t lines) { return static_cast<int>(chance_.Below(lines)); };
    if (auto* box = dynamic_cast<TextBox*>(&control)) {
        const std::string text = ChooseText(*box);
        act.what = "types " + text;
        door_.Type(*box, text);
    } else if (auto* button = dynamic_cast<Button*>(&control)) {
        act.what = "presses";
        door_.Press(*button);
    } else if (auto* option = dynamic_cast<OptionButton*>(&control)) {
        act.what = "picks";
        door_.Pick(*option);
    } else if (auto* check = dynamic_cast<CheckBox*>(&control)) {
        act.what = "toggles";
        door_.Toggle(*check);
    } else if (auto* list = dynamic_cast<ListBox*>(&control); list != nullptr && list->ListCount() > 0) {
        const int line = lineOf(list->Lines().size());
        act.what = "selects line " + std::to_string(line);
        door_.PickLine(*list, line);
    } else if (auto* files = dynamic_cast<FileList*>(&control); files != nullptr && !files->Lines().empty()) {
        const int line = lineOf(files->Lines().size());
        act.what = "picks file " + std::to_string(line);
        door_.PickFile(*files, line);
    } else {
        act.what = "moves to";
        door_.MoveFocus(control);
    }
    return act;
}

RandomUser::Act RandomUser::PressKey(Form& form) {
    constexpr std::pair<ShortcutKey, const char*> keys[] = {{ShortcutKey::Delete, "Delete"},
                                                            {ShortcutKey::CtrlUp, "CtrlUp"},
                                                            {ShortcutKey::CtrlDown, "CtrlDown"},
                                                            {ShortcutKey::CtrlS, "CtrlS"},
                                                            {ShortcutKey::Enter, "Enter"}};
    const auto& [key, name] = chance_.Of(keys);
    Act act{form.Name(), name, "presses the key"};
    if (key == ShortcutKey::CtrlS && chance_.Percent(85)) {
        act.on = "Escape";
        door_.Escape(form);
    } else {
        door_.Key(form, key);
    }
    return act;
}

RandomUser::Act RandomUser::CloseWindow() {
    const std::array<FormSlotBase*, 6> slots{&program_.pickFile,           &program_.modifyProcedure,
                                             &program_.findWaypointForm,   &program_.addARC,
                                             &program_.createWaypointForm, &program_.latLongForm};
    const std::size_t slot = chance_.Below(slots.size());
    door_.CloseWindow(*slots[slot]);
    return {"", "window " + std::to_string(slot), "closes"};
}

void RandomUser::Plan() {
    const std::size_t kind = chance_.Below(100);
    if (kind < 3) {
        plan_ = {{"AptNameText", chance_.Percent(50) ? "kxyz" : "KABC"},
                 {"BasicNameText", chance_.Percent(50) ? "one" : "TWO"},
                 {"TransitionText", chance_.Percent(50) ? "" : "thr"},
                 {"SaveCommand", ""}};
    } else if (kind < 30) {
        constexpr const char* Deeds[] = {"ModifyWaypointCommand", "DeleteWaypointCommand", "MoveUp",
                                         "MoveDown"};
        plan_ = {{"WaypointList", ""}, {"Alt1Text", chance_.Of(Numbers)}, {chance_.Of(Deeds), ""}};
    } else if (kind < 45) {
        plan_ = {{"AddArcCommand", ""},    {"ArcStartText", "10"},   {"ArcEndText", "60"},
                 {"ArcRadiusText", "12"},  {"LatLongCommand", ""},   {"DLatCenterText", "33"},
                 {"MLatCenterText", "30"}, {"DLongCenterText", "0"}, {"DoneCommand", ""},
                 {"RightOption", ""},      {"TransferCommand", ""}};
    } else {
        const bool fix = chance_.Percent(60);
        plan_ = {{"ClearDataCommand", ""},
                 {fix ? "FixNameText" : "NAVIDText", chance_.Of(Names)},
                 {"FreqText", "113.60"},
                 {"DDMLatText", std::to_string(chance_.Below(90))},
                 {"DMMLatText", std::to_string(chance_.Below(60))},
                 {"DDMLongText", std::to_string(chance_.Below(180))},
                 {"DMMLongText", "59.999999"},
                 {"Alt1Text", chance_.Percent(50) ? "5000" : ""},
                 {"AddWaypointCommand", ""}};
    }
}

RandomUser::Act RandomUser::FollowPlan() {
    const Step step = plan_.front();
    plan_.pop_front();
    const std::vector<Form*> visible = program_.host.Visible();
    for (auto form = visible.rbegin(); form != visible.rend(); ++form) {
        Control* control = (*form)->Find(step.control);
        if (control == nullptr || !control->TakesFocus()) continue;
        auto* box = dynamic_cast<TextBox*>(control);
        if (box == nullptr) return ActOn(*control);
        door_.Type(*box, step.text);
        return {(*form)->Name(), step.control, "types by plan " + step.text};
    }
    return {"", step.control, "misses"};
}

}  // namespace tarvex::testing
