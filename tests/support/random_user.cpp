#include "support/random_user.h"

#include <algorithm>

namespace tarvex::testing {

namespace {

constexpr const char* Numbers[] = {"0",  "5",   "33",        "90", "91",  "117",  "180",  "181",   "12.5",
                                   ".5", "045", "59.999999", "60", "250", "5000", "9000", "-5",    "-0",
                                   "-",  " 7",  "1e1",       ".",  "12a", "FL35", "1e99", "113.60"};
constexpr const char* Names[] = {"a",         "alpha", "DMO", "fix 1", " x",
                                 "\xE9t\xE9", "B-1",   "X.Y", "MANXX", "KX"};
constexpr std::string_view Rubbish = "  --..0123456789ABCabc,\"'eED+&\xE9\\/*?:%;\t";

// What leads away from a screen.
constexpr std::string_view WaysOut[] = {"SaveCommand", "OopsCommand", "ExitCommand"};

}  // namespace

MessageAnswer RandomMessageBox::Show(const Message& message) {
    ++shown_;
    recent_.push_back(message);
    if (message.buttons == MessageButtons::Ok) return MessageAnswer::Ok;
    return chance_.Percent(50) ? MessageAnswer::Yes : MessageAnswer::No;
}

RandomUser::Act RandomUser::Next() {
    if (plan_.empty() && chance_.Percent(15)) plan_ = Plan();
    if (!plan_.empty() && chance_.Percent(90)) return FollowPlan();

    if (chance_.Percent(10)) return MendBox();
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

// A box that complains lets nobody go on but through it.
RandomUser::Act RandomUser::MendBox() {
    auto* box = dynamic_cast<TextBox*>(program_.host.GetFocus().Current());
    if (box == nullptr) return {"", "", "has nothing to mend"};
    Act act{box->Owner().Name(), box->Name(), "mends"};
    door_.Type(*box, box->Owner().Name() == "LatLongForm" ? "9" : "");
    return act;
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
    const bool leads =
        std::find(std::begin(WaysOut), std::end(WaysOut), control->Name()) != std::end(WaysOut) ||
        control == form.WayOut();
    return leads && chance_.Percent(80) ? nullptr : control;
}

std::string RandomUser::ChooseText(const TextBox& box) {
    const std::string& text = box.Text();
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
    } else if (auto* drives = dynamic_cast<DriveList*>(&control); drives != nullptr) {
        act.what = "picks drive " + chance_.Of(drives->Drives());
        door_.PickDrive(*drives, std::string_view(act.what).substr(12));
    } else if (auto* folders = dynamic_cast<FolderList*>(&control); folders != nullptr) {
        act.what = Choose(*folders);
    } else {
        act.what = "moves to";
        door_.MoveFocus(control);
    }
    return act;
}

std::string RandomUser::Choose(FolderList& list) {
    const int rows = list.ListCount() - list.FirstIndex();
    const int row = list.FirstIndex() + static_cast<int>(chance_.Below(static_cast<std::size_t>(rows)));
    const std::string folder = list.List(row);
    const bool opens = chance_.Percent(50);
    opens ? door_.OpenFolder(list, row) : door_.PickFolder(list, row);
    return (opens ? "opens " : "picks ") + folder;
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
    const std::pair<Form*, FormSlotBase*> windows[] = {
        {program_.initialLoad.Get(), &program_.initialLoad},
        {program_.findFS2000Form.Get(), &program_.findFS2000Form},
        {program_.pickFile.Get(), &program_.pickFile},
        {program_.modifyProcedure.Get(), &program_.modifyProcedure},
        {program_.findWaypointForm.Get(), &program_.findWaypointForm},
        {program_.addARC.Get(), &program_.addARC},
        {program_.createWaypointForm.Get(), &program_.createWaypointForm},
        {program_.latLongForm.Get(), &program_.latLongForm}};
    const auto& [form, slot] = chance_.Of(windows);
    if (form == nullptr || !form->Visible()) return {"", "", "sees no such window"};
    Act act{form->Name(), "window", "closes"};
    door_.CloseWindow(*slot);
    return act;
}

RandomUser::Act RandomUser::FollowPlan() {
    const Step step = plan_.front();
    plan_.pop_front();
    const std::vector<Form*> visible = program_.host.Visible();
    for (auto form = visible.rbegin(); form != visible.rend(); ++form) {
        if (!step.form.empty() && step.form != (*form)->Name()) continue;
        Control* control = (*form)->Find(step.control);
        if (control == nullptr || !control->TakesFocus()) continue;
        auto* box = dynamic_cast<TextBox*>(control);
        if (box == nullptr) return ActOn(*control);
        Act act{(*form)->Name(), step.control, "types by plan " + step.text};
        door_.Type(*box, step.text);
        return act;
    }
    return {"", step.control, "misses"};
}

}  // namespace tarvex::testing
