#include "support/road.h"

#include <algorithm>
#include <set>
#include <sstream>

#include "geometry/text_rules.h"

namespace tarvex::testing {

namespace {

// As a road writes it: "CtrlUp".
std::string PlainName(const NamedKey& named) {
    std::string name(named.name);
    std::erase(name, '+');
    return name;
}

}  // namespace

std::string Road::Start(FileSystem* files, const std::string& folder) {
    const Platform machine = services.ForProgram();
    copies_.clear();
    program = std::make_unique<Program>(Platform{files != nullptr ? *files : machine.files, machine.registry,
                                                 machine.clock, machine.messages, machine.pictures,
                                                 machine.clipboard, machine.browser, folder});
    program->host.SetObserver(this);
    place_.clear();
    rows_.clear();
    services.files.ForgetOperations();
    trace_.clear();
    program->Start();
    NoteMessages();
    NoteChanges({});
    return trace_;
}

std::string Road::Do(std::string_view acts) {
    trace_.clear();
    const std::string clipboard = services.clipboard.text;
    services.files.ForgetOperations();
    states_ = StatesNow();
    while (!acts.empty()) {
        const std::size_t end = std::min(acts.find(" | "), acts.size());
        const std::string act(acts.substr(0, end));
        acted_ = FocusName();
        if (!DoOne(act)) Note("refused: " + act);
        NoteMessages();
        // A screen that has just come up changes from then on.
        const States now = StatesNow();
        std::erase_if(states_, [&now](const auto& state) { return !now.contains(state.first); });
        states_.insert(now.begin(), now.end());
        acts.remove_prefix(std::min(end + 3, acts.size()));
    }
    if (services.clipboard.text != clipboard) Note("copied " + Written(services.clipboard.text));
    NoteChanges(states_);
    return trace_;
}

bool Road::DoOne(std::string_view act) {
    const std::size_t blank = act.find(' ');
    const std::string_view word = act.substr(0, blank);
    const std::string_view rest = blank == std::string_view::npos ? "" : act.substr(blank + 1);
    if (act == "Yes" || act == "No") {
        services.messages.Answer(act == "Yes" ? MessageAnswer::Yes : MessageAnswer::No);
        return true;
    }
    if (word == "key") return PressKey(rest);
    if (word == "close") {
        Form* form = Screen(rest);
        return form != nullptr && program->door.CloseWindow(*program->host.SlotOf(*form));
    }
    if (word == "front") {
        Form* form = Screen(rest);
        return form != nullptr && program->door.Activate(*form);
    }
    if (word == "beside") {
        bool taken = !program->host.Visible().empty();
        for (std::size_t i = 0; taken && i < rest.size(); ++i) {
            taken = program->door.TypeBeside(*program->host.Visible().back(), rest.substr(i, 1));
        }
        return taken;
    }
    if (word == "to") {
        Control* control = Find(rest);
        if (control != nullptr) acted_ = control->Name();
        return control != nullptr && program->door.MoveFocus(*control);
    }
    if (word == "call") {
        const auto* button = dynamic_cast<Button*>(Find(rest));
        if (button != nullptr) program->host.RunEvent(button->OnClick);
        return button != nullptr;
    }
    if (word == "put") {
        const std::size_t equals = rest.find('=');
        auto* box = dynamic_cast<TextBox*>(Find(rest.substr(0, equals)));
        if (box != nullptr) box->SetText(Unwritten(rest.substr(equals + 1)));
        return box != nullptr;
    }
    return Act(act);
}

bool Road::Act(std::string_view act) {
    const std::size_t name = std::min(act.find_first_of("=#>"), act.size());
    Control* control = Find(act.substr(0, name));
    if (control == nullptr) return false;
    const std::string key = control->Owner().Name() + "." + control->Name();
    acted_ = control->Name();
    const std::string text = name < act.size() ? Unwritten(act.substr(name + 1)) : "";
    const bool acted = ActOn(*control, name < act.size() ? act[name] : ' ', text);
    // What the user has done to the control itself is no change to tell.
    if (acted && Find(key) == control) {
        const State now = StateOf(*control);
        const auto* box = dynamic_cast<TextBox*>(control);
        if (now.parts.contains("line")) {
            states_[key].parts["line"] = now.parts.at("line");
        } else if (box == nullptr || box->Text() == text) {
            states_[key] = now;
        }
    }
    return acted;
}

bool Road::ActOn(Control& control, char how, const std::string& text) {
    UserDoor& door = program->door;
    if (auto* box = dynamic_cast<TextBox*>(&control)) {
        if (how == '>') return door.Paste(*box, text) || door.Type(*box, box->Text() + text);
        if (how == '#') return door.PickMenuEntry(*box, static_cast<int>(LeadingNumber(text)));
        return how == '=' && Type(*box, text);
    }
    if (auto* button = dynamic_cast<Button*>(&control)) return door.Press(*button);
    if (auto* option = dynamic_cast<OptionButton*>(&control)) return door.Pick(*option);
    if (auto* check = dynamic_cast<CheckBox*>(&control)) return door.Toggle(*check);
    if (auto* drives = dynamic_cast<DriveList*>(&control)) return door.PickDrive(*drives, text);
    if (auto* columns = dynamic_cast<ColumnList*>(&control); columns != nullptr && how == '#') {
        return ActOnLines(*columns, text);
    }
    if (auto* list = dynamic_cast<ListBox*>(&control)) {
        const int line = static_cast<int>(LeadingNumber(text));
        if (line >= list->ListCount()) return false;
        return how == '>' ? door.OpenLine(*list, line) : door.PickLine(*list, line);
    }
    if (auto* tabs = dynamic_cast<Tabs*>(&control)) {
        return door.ShowPage(*tabs, static_cast<int>(LeadingNumber(text)));
    }
    if (auto* picture = dynamic_cast<Picture*>(&control)) return ActOnPicture(*picture, how, text);
    if (auto* files = dynamic_cast<FileList*>(&control)) {
        const auto& lines = files->Lines();
        const auto found = std::find(lines.begin(), lines.end(), text);
        return found != lines.end() && door.PickFile(*files, static_cast<int>(found - lines.begin()));
    }
    if (auto* folders = dynamic_cast<FolderList*>(&control)) {
        int row = folders->FirstIndex();
        while (row < folders->ListCount() && folders->List(row) != text) ++row;
        if (row == folders->ListCount()) return false;
        return how == '>' ? door.OpenFolder(*folders, row) : door.PickFolder(*folders, row);
    }
    return false;
}

bool Road::ActOnLines(ColumnList& list, const std::string& text) {
    const int line = static_cast<int>(LeadingNumber(text.substr(text.find(' ') + 1)));
    if (text.starts_with("to ")) return line < list.ListCount() && program->door.ExtendLines(list, line);
    if (text.starts_with("before ")) return line <= list.ListCount() && program->door.MoveLines(list, line);
    std::istringstream words(text);
    std::set<int> lines;
    int last = 0;
    for (std::string word; std::getline(words, word, ',');) lines.insert(last = std::stoi(word));
    if (*lines.rbegin() >= list.ListCount()) return false;
    return program->door.PickLines(list, {lines.begin(), lines.end()}, last);
}

bool Road::ActOnPicture(Picture& picture, char how, const std::string& text) {
    UserDoor& door = program->door;
    constexpr std::string_view menu = "menu ";
    if (text.starts_with(menu)) {
        return door.PickMenuEntry(picture, static_cast<int>(LeadingNumber(text.substr(menu.size()))));
    }
    const double x = LeadingNumber(text);
    const double y = LeadingNumber(text.substr(std::min(text.find(','), text.size() - 1) + 1));
    if (how == '=') return door.Resize(picture, {x, y});
    return how == '>' ? door.TakeAt(picture, {x, y}) : door.Choose(picture, {x, y});
}

bool Road::Type(TextBox& box, std::string_view text) {
    UserDoor& door = program->door;
    bool taken = door.MoveFocus(box);
    if (!box.Text().empty()) taken = door.Type(box, "");
    for (const char c : text) {
        if (!Runs()) return false;
        taken = door.Type(box, box.Text() + c);
    }
    return taken;
}

bool Road::PressKey(std::string_view key) {
    if (program->host.Visible().empty()) return false;
    Form& front = *program->host.Visible().back();
    if (key == "Tab" || key == "BackTab") return program->door.Tab(front, key == "Tab");
    if (key == "Escape") return program->door.Escape(front);
    const auto* found = std::find_if(std::begin(NamedKeys), std::end(NamedKeys),
                                     [key](const NamedKey& named) { return PlainName(named) == key; });
    return found != std::end(NamedKeys) && program->door.Key(front, found->key);
}

Form* Road::Screen(std::string_view name) const {
    for (Form* form : program->host.Visible()) {
        if (form->Name() == name) return form;
    }
    return nullptr;
}

Control* Road::Find(std::string_view name) const {
    const std::size_t point = name.find('.');
    if (point != std::string_view::npos) {
        const Form* form = Screen(name.substr(0, point));
        return form == nullptr ? nullptr : form->Find(name.substr(point + 1));
    }
    const auto& visible = program->host.Visible();
    Control* found = nullptr;
    for (auto form = visible.rbegin(); form != visible.rend(); ++form) {
        Control* control = (*form)->Find(name);
        if (control != nullptr && control->TakesFocus()) return control;
        if (found == nullptr) found = control;
    }
    return found;
}

}  // namespace tarvex::testing
