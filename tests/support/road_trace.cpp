// What a road tells: the states of controls, rows, files and messages as texts.

#include <algorithm>
#include <cstdio>
#include <sstream>

#include "geometry/text_rules.h"
#include "support/road.h"

namespace tarvex::testing {

namespace {

constexpr std::string_view Data = "C:\\FS2000\\Giostam\\navdata\\";
constexpr std::string_view Head = "; This Terminal Procedure generated on 5/14/2001 by Tarvex 2.35\r\n\r\n";
constexpr std::string_view Foot = "\r\nEnd of Terminal Procedure\r\n";

std::string Quoted(std::string_view text) {
    return "\"" + Road::Written(text) + "\"";
}

template <class List>
std::string Joined(const List& lines) {
    std::string all;
    for (const auto& line : lines) all += (all.empty() ? "" : ", ") + Road::Written(line);
    return all;
}

std::string ColourName(Colour colour) {
    const std::pair<Colour, const char*> names[] = {
        {White, "white"}, {Grey, "grey"}, {LightGrey, "light"}, {Black, "black"}, {Red, "red"}};
    for (const auto& [value, name] : names) {
        if (value == colour) return name;
    }
    return std::to_string(colour);
}

std::string KindOf(const Control& control) {
    if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
        return box->MaxLength() == TextBox::NoLimit ? "box" : "box of " + std::to_string(box->MaxLength());
    }
    if (const auto* button = dynamic_cast<const Button*>(&control)) {
        return button->DropsBoxes() ? "button that drops the boxes" : "button";
    }
    if (dynamic_cast<const Label*>(&control)) return "label";
    if (dynamic_cast<const OptionButton*>(&control)) return "option";
    if (dynamic_cast<const CheckBox*>(&control)) return "check";
    if (dynamic_cast<const Frame*>(&control)) return "frame";
    if (const auto* list = dynamic_cast<const ColumnList*>(&control)) {
        std::string kind = "list of";
        for (const auto& column : list->Columns()) kind += " " + column.heading + (column.number ? ">" : "");
        return kind;
    }
    if (dynamic_cast<const ListBox*>(&control)) return "list";
    if (dynamic_cast<const Picture*>(&control)) return "picture";
    if (dynamic_cast<const Tabs*>(&control)) return "tabs";
    if (dynamic_cast<const FileList*>(&control)) return "files";
    if (dynamic_cast<const FolderList*>(&control)) return "folders";
    return "drives";
}

}  // namespace

std::string Road::Written(std::string_view text) {
    std::string written;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.substr(i, 2) == "\r\n") {
            written += "\xC2\xB6";
            ++i;
        } else if (text[i] >= ' ' && text[i] <= '~') {
            written += text[i];
        } else {
            char byte[5];
            std::snprintf(byte, sizeof byte, "\\x%02X", static_cast<unsigned char>(text[i]));
            written += byte;
        }
    }
    return written;
}

std::string Road::Unwritten(std::string_view text) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.substr(i, 2) == "\\x") {
            bytes += static_cast<char>(std::stoi(std::string(text.substr(i + 2, 2)), nullptr, 16));
            i += 3;
        } else if (text.substr(i, 2) == "\xC2\xB6") {
            bytes += "\r\n";
            ++i;
        } else {
            bytes += text[i];
        }
    }
    return bytes;
}

void Road::FormShown(Form& form) {
    const auto [entry, isNew] = copies_.try_emplace(&form);
    if (!isNew) return;
    auto& copies = entry->second;
    for (Control* control : form.Controls()) {
        copies[control] = StateOf(*control);
        control->Observe([&copies, control] { copies[control] = StateOf(*control); });
    }
}

void Road::FormUnloaded(Form& form) {
    for (Control* control : form.Controls()) control->Observe(nullptr);
    copies_.erase(&form);
}

std::string Road::Untold() const {
    std::string untold;
    for (const auto& [form, copies] : copies_) {
        for (const auto& [control, copy] : copies) {
            if (copy != StateOf(*control)) untold += control->Name() + " ";
        }
    }
    return untold;
}

std::string Road::FocusName() const {
    const Control* focused = program->host.GetFocus().Current();
    return focused == nullptr ? "nothing" : focused->Name();
}

std::string Road::Place() const {
    if (const auto& stopped = program->host.Stopped()) {
        return "stopped " + std::to_string(stopped->exitStatus) +
               (stopped->reason.empty() ? "" : ": " + Written(stopped->reason));
    }
    std::string screens;
    for (const Form* form : program->host.Visible()) screens += form->Name() + " ";
    return screens + "@" + FocusName();
}

void Road::NoteMessages() {
    const auto messages = services.messages.TakeAnswered();
    for (const auto& [message, answer] : messages) {
        const bool asks = message.buttons == MessageButtons::YesNo;
        std::string line = "[" + message.title;
        if (message.icon == MessageIcon::Critical) line += ", critical";
        if (asks) line += message.defaultAnswer == MessageAnswer::No ? ", Yes/No*" : ", Yes/No";
        line += "] " + Written(message.prompt);
        if (asks) line += answer == MessageAnswer::Yes ? " Yes!" : " No!";
        if (&message == &messages.back().first && Runs()) line += " @" + (acted_ = FocusName());
        Note(line);
        const std::string kept = std::to_string(static_cast<int>(answer));
        if (&message == &messages.back().first && program->state.MessageAnswer != kept) Note("not kept");
    }
}

void Road::NoteFiles() {
    for (const auto& done : services.files.Operations()) {
        if (done.operation != MemoryFileSystem::Operation::Write) continue;
        const bool procedure = done.path.starts_with(Data);
        const std::string name = Written(procedure ? done.path.substr(Data.size()) : done.path);
        if (done.failed || !services.files.Has(done.path)) {
            Note("could not write " + name);
            continue;
        }
        std::string_view text = services.files.Content(done.path);
        if (!procedure || !text.starts_with(Head) || !text.ends_with(Foot)) {
            Note("wrote " + name + ": " + Written(text));
            continue;
        }
        Note("wrote " + name);
        text = text.substr(Head.size(), text.size() - Head.size() - Foot.size());
        while (!text.empty()) {
            const std::size_t end = text.find("\r\n") + 2;
            const std::string_view written = text.substr(0, end);
            int times = 0;
            for (; text.starts_with(written); ++times) text.remove_prefix(end);
            Note("  " + Written(written.substr(0, written.size() - 2)) +
                 (times > 1 ? " times " + std::to_string(times) : ""));
        }
    }
}

std::vector<std::string> Road::Rows() const {
    std::vector<std::string> rows;
    const Form* editor = Screen("ModifyProcedure");
    if (editor == nullptr) return rows;
    const auto& lines = dynamic_cast<const ListBox&>(*editor->Find("WaypointList")).Lines();
    const auto count = static_cast<std::size_t>(program->state.WaypointCount);
    for (std::size_t i = 0; i < std::max(lines.size(), count); ++i) {
        const WaypointRecord& row = program->state.WaypointTable.at(i);
        std::string text = i < lines.size() ? lines[i] + ": " : "(no line) ";
        if (i >= count) text += "(no row) ";
        text += RightTrim(row.WaypointID);
        if (row.CoordinatesEdited != False) text += "*";
        for (const std::string_view field : std::initializer_list<std::string_view>{
                 row.WaypointType, row.LatDecimal, row.LatDegrees, row.LatMinutes, row.LongDecimal,
                 row.LongDegrees, row.LongMinutes, row.Frequency, row.Airspeed, row.Altitude1, row.Altitude2,
                 row.RestrictionType}) {
            text.append("|").append(RightTrim(field));
        }
        rows.push_back(Written(text));
    }
    return rows;
}

Road::State Road::StateOf(const Control& control) {
    State state;
    auto& parts = state.parts;
    parts["use"] = control.Enabled() ? "on" : "off";
    parts["sight"] = control.Visible() ? "shown" : "hidden";
    if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
        state.text = box->Text();
        parts["colour"] = ColourName(box->BackColor());
        parts["lock"] = box->Locked() ? "locked" : "open";
        parts["tip"] = Quoted(box->Tip());
    } else if (const auto* captioned = dynamic_cast<const CaptionedControl*>(&control)) {
        state.text = captioned->Caption();
        const auto* label = dynamic_cast<const Label*>(&control);
        if (label != nullptr) parts["colour"] = ColourName(label->ForeColor());
    }
    if (const auto* button = dynamic_cast<const Button*>(&control)) {
        parts["tip"] = button->Tip().empty() ? "" : Quoted(button->Tip());
        parts["key"] = button->Key();
        parts["repeats"] = button->Repeats() ? "repeats" : "";
    } else if (const auto* picture = dynamic_cast<const Picture*>(&control)) {
        parts["tip"] = Quoted(picture->Tip());
    } else if (const auto* option = dynamic_cast<const OptionButton*>(&control)) {
        parts["value"] = option->Value() ? "picked" : "";
    } else if (const auto* check = dynamic_cast<const CheckBox*>(&control)) {
        parts["value"] = check->Value() == 0 ? "unchecked" : "checked";
    } else if (const auto* frame = dynamic_cast<const Frame*>(&control)) {
        parts["place"] = std::to_string(frame->Top()) + "+" + std::to_string(frame->Height());
    } else if (const auto* list = dynamic_cast<const ListBox*>(&control)) {
        if (list->Name() != "WaypointList") state.text = Joined(list->Lines());
        parts["line"] = "#" + std::to_string(list->ListIndex());
        const std::vector<int> block = list->Selected();
        if (block.size() > 1) {
            std::vector<std::string> lines;
            for (const int line : block) lines.push_back(std::to_string(line));
            parts["line"] += " of " + Joined(lines);
        }
    } else if (const auto* tabs = dynamic_cast<const Tabs*>(&control)) {
        for (const auto& page : tabs->Pages()) state.text += (state.text.empty() ? "" : ", ") + page.caption;
    } else if (const auto* drives = dynamic_cast<const DriveList*>(&control)) {
        state.text = drives->Drive() + " of " + Joined(drives->Drives());
    } else if (const auto* folders = dynamic_cast<const FolderList*>(&control)) {
        state.text = folders->Path() + ":";
        for (int row = folders->FirstIndex(); row < folders->ListCount(); ++row) {
            state.text += " " + folders->Name(row);
        }
        parts["line"] = "#" + std::to_string(folders->ListIndex());
        parts["chosen"] =
            folders->ShowsChosen() ? "chosen " + folders->List(folders->ListIndex()) : "none chosen";
    } else if (const auto* files = dynamic_cast<const FileList*>(&control)) {
        state.text = files->Path() + " " + files->Pattern() + ": " + Joined(files->Lines());
    }
    return state;
}

Road::States Road::StatesNow() const {
    States states;
    if (!Runs()) return states;
    for (const Form* form : program->host.Visible()) {
        for (const Control* control : form->Controls()) {
            states[form->Name() + "." + control->Name()] = StateOf(*control);
        }
        states[form->Name() + ".Caption"].text = form->Caption();
        if (const auto* editor = dynamic_cast<const ModifyProcedure*>(form)) {
            states[form->Name() + ".Edited"].text = std::string(editor->LatEdited != False ? "Lat " : "") +
                                                    (editor->LongEdited != False ? "Long" : "");
        }
    }
    return states;
}

// The pictures of the editor show once more what its rows and boxes hold, and most acts on rows change what
// can be undone; a road that is about these sees them by name.
bool IsSeenByName(std::string_view name) {
    constexpr std::string_view names[] = {
        "FindingsList",  "FitCommand",         "LegsList",       "PendingLabel", "PictureLabel",
        "PictureTabs",   "PlanPicture",        "ProfilePicture", "RedoCommand",  "UndoCommand",
        "ZoomInCommand", "SavePictureCommand", "ZoomOutCommand"};
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

void Road::NoteChanges(const States& before) {
    if (const std::string place = Place(); place.substr(0, place.find('@')) != place_) {
        Note(place);
        place_ = place.substr(0, place.find('@'));
    } else if (acted_ != FocusName()) {
        Note("@" + FocusName());
    }
    NoteFiles();
    if (const std::string opened = std::exchange(services.browser.opened, {}); !opened.empty()) {
        Note("opened " + Written(opened));
    }
    if (!Runs()) return;
    if (const std::string untold = Untold(); !untold.empty()) Note("not told: " + untold);
    const auto rows = Rows();
    std::vector<std::string> changed;
    const bool closed = Screen("ModifyProcedure") == nullptr;
    for (std::size_t i = 0; !closed && i < std::max(rows.size(), rows_.size()); ++i) {
        if (i < rows.size() && i < rows_.size() && rows[i] == rows_[i]) continue;
        changed.push_back("row " + std::to_string(i) + " " + (i < rows.size() ? rows[i] : "is gone"));
    }
    constexpr std::size_t mostTold = 30;
    for (std::size_t i = 0; i < changed.size(); ++i) {
        const bool told = changed.size() <= mostTold || i == 0 || i + 1 == changed.size();
        if (told) Note(changed[i]);
        if (!told && i == 1) Note("... " + std::to_string(changed.size() - 2) + " rows");
    }
    rows_ = rows;
    std::string line;
    for (const auto& [name, now] : StatesNow()) {
        const auto found = before.find(name);
        if (found == before.end() || IsSeenByName(name.substr(name.find('.') + 1))) continue;
        std::string changes;
        if (now.text != found->second.text) changes += " " + Quoted(now.text);
        for (const auto& [part, value] : now.parts) {
            if (value != found->second.parts.at(part) && !value.empty()) changes += " " + value;
        }
        if (changes.empty()) continue;
        changes.insert(0, name.substr(name.find('.') + 1));
        constexpr std::size_t width = 100;
        if (!line.empty() && line.size() + changes.size() > width) Note(std::exchange(line, ""));
        line += (line.empty() ? "" : " | ") + changes;
    }
    if (!line.empty()) Note(line);
}

std::string Road::Told(const Control& control) {
    const State state = StateOf(control);
    std::string line = control.Name();
    if (!state.text.empty() || dynamic_cast<const CaptionedControl*>(&control)) {
        line += " " + Quoted(state.text);
    }
    if (control.Container() != nullptr) line += " in " + control.Container()->Name();
    for (const auto& [part, value] : state.parts) {
        const bool usual = value == "on" || value == "shown" || value == "white" || value == "open" ||
                           value == "black" || value == "0+0" || value == "none chosen" || value == "#-1" ||
                           value.empty();
        if (!usual) line += " " + value;
    }
    return line;
}

std::string Road::See(std::string_view names) {
    trace_.clear();
    std::istringstream words{std::string(names)};
    for (std::string name; words >> name;) {
        const bool lineAlone = name.ends_with('#');
        if (lineAlone) name.pop_back();
        const Control* control = Find(name);
        Note(control == nullptr ? name + " is not there"
             : lineAlone        ? name + " " + StateOf(*control).parts.at("line")
                                : Told(*control));
    }
    return trace_;
}

std::string Road::Show(std::string_view screen) {
    trace_.clear();
    Form* form = Screen(screen);
    if (form == nullptr) return "    is not there\n";
    Note(Quoted(form->Caption()) + ", way out " +
         (form->WayOut() == nullptr ? "none" : form->WayOut()->Name()) + ", focus " + FocusName());
    for (const Shortcut& shortcut : form->Shortcuts()) {
        Note(std::string(NameOf(shortcut.key)) +
             (shortcut.button == nullptr ? " acts" : " presses " + shortcut.button->Name()) +
             (shortcut.where == nullptr ? "" : " in " + shortcut.where->Name()));
    }
    std::vector<Control*> controls = form->Controls();
    std::stable_sort(controls.begin(), controls.end(), [](const Control* a, const Control* b) {
        return static_cast<unsigned>(a->TabIndex()) < static_cast<unsigned>(b->TabIndex());
    });
    for (const Control* control : controls) {
        const std::string index = control->TabIndex() < 0 ? "-" : std::to_string(control->TabIndex());
        Note(index + " " + KindOf(*control) + " " + Told(*control));
    }
    return trace_;
}

}  // namespace tarvex::testing
