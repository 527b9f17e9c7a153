#include "toolkit/user_door.h"

#include <algorithm>

namespace tarvex {

namespace {

bool OnScreen(const FormHost& host, const Form& form) {
    const auto& visible = host.Visible();
    return std::find(visible.begin(), visible.end(), &form) != visible.end();
}

bool TakesActs(const FormHost& host, const Control& control) {
    return OnScreen(host, control.Owner()) && control.CanTakeFocus();
}

// `typed` with what it puts in beyond `before` cut so that it stays within `limit` characters.
std::string WithinLimit(std::string_view before, std::string_view typed, std::size_t limit) {
    if (limit == TextBox::NoLimit || typed.size() <= limit || typed.size() < before.size()) {
        return std::string(typed);
    }
    const std::size_t common = std::min(before.size(), typed.size());
    std::size_t head = 0;
    while (head < common && before[head] == typed[head]) ++head;
    std::size_t tail = 0;
    while (tail < common - head && before[before.size() - 1 - tail] == typed[typed.size() - 1 - tail]) ++tail;
    const std::size_t kept = head + tail;
    const std::string_view behind = typed.substr(typed.size() - tail);
    const std::size_t solid = kept - (tail - (behind.find_last_not_of(' ') + 1));
    const std::size_t room = limit > solid ? limit - solid : 0;
    const std::size_t put = std::min(room, typed.size() - kept);
    if (put == 0 && before.size() > kept)
        return std::string(before);  // an exchange that has no room changes nothing
    std::string result(typed.substr(0, head + put));
    result += behind;
    result.resize(std::min(result.size(), std::max(limit, kept)));
    return result;
}

void RunEntry(const std::vector<MenuEntry>& menu, int index) {
    if (index < 0 || index >= static_cast<int>(menu.size())) return;
    // The entry goes with the menu, which its own act may change.
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const MenuEntry entry = menu[static_cast<std::size_t>(index)];
    if (entry.enabled && entry.onClick) entry.onClick();
}

// What the key does to the typing in the box that has the focus; empty where it is not for that.
std::function<void()> Retyping(Control* focused, ShortcutKey key) {
    auto* box = dynamic_cast<TextBox*>(focused);
    if (box == nullptr || !UndoesOrRedoes(key)) return {};
    const bool undo = key == ShortcutKey::CtrlZ;
    if (undo && box->CanUndoTyping()) return [box] { box->UndoTyping(); };
    if (!undo && box->CanRedoTyping()) return [box] { box->RedoTyping(); };
    return {};
}

}  // namespace

bool UserDoor::Act(Control& control, const std::function<void()>& act) {
    bool acted = false;
    host_.RunEvent([&] {
        if (!TakesActs(host_, control) || !host_.GetFocus().Give(control)) return;
        // The leaving rule may have changed what can be used.
        if (!TakesActs(host_, control)) return;
        acted = true;
        act();
    });
    return acted;
}

bool UserDoor::Type(TextBox& box, std::string_view text) {
    bool taken = false;
    const bool acted = Act(box, [&] {
        if (box.Locked()) return;
        taken = true;
        const std::string within = WithinLimit(box.Text(), text, static_cast<std::size_t>(box.MaxLength()));
        box.Type(within);
        if (within.size() < text.size() && box.OnRefused) box.OnRefused();
    });
    return acted && taken;
}

bool UserDoor::Paste(TextBox& box, std::string_view text) {
    if (box.Locked() || !box.TakesWhole || !box.TakesWhole(text)) return false;
    return Act(box, [&] { box.OnPaste(text); });
}

bool UserDoor::Press(Button& button) {
    const auto press = [&button] {
        if (button.OnClick) button.OnClick();
    };
    if (!button.DropsBoxes()) return Act(button, press);
    bool pressed = false;
    host_.RunEvent([&] {
        pressed = TakesActs(host_, button);
        if (pressed) host_.GetFocus().GiveAndAct(button, press);
    });
    return pressed;
}

bool UserDoor::Pick(OptionButton& option) {
    return Act(option, [&] { option.Select(); });
}

bool UserDoor::Toggle(CheckBox& check) {
    return Act(check, [&] { check.SetValue(check.Value() == 1 ? 0 : 1); });
}

bool UserDoor::PickLine(ListBox& list, int index) {
    return Act(list, [&] { list.SetListIndex(index); });
}

bool UserDoor::PickLines(ColumnList& list, const std::vector<int>& lines, int current) {
    return !lines.empty() && Act(list, [&] { list.SetSelected(lines, current); });
}

bool UserDoor::ExtendLines(ColumnList& list, int to) {
    return Act(list, [&] { list.ExtendTo(to); });
}

bool UserDoor::MoveLines(ColumnList& list, int before) {
    return Act(list, [&] {
        if (list.OnMove) list.OnMove(before);
    });
}

bool UserDoor::OpenLine(ListBox& list, int index) {
    bool opened = false;
    host_.RunEvent([&] { opened = PickLine(list, index) && Key(list.Owner(), ShortcutKey::Enter); });
    return opened;
}

bool UserDoor::PickDrive(DriveList& list, std::string_view drive) {
    return Act(list, [&] { list.SetDrive(drive); });
}

bool UserDoor::PickFolder(FolderList& list, int index) {
    return Act(list, [&] { list.SetListIndex(index); });
}

bool UserDoor::OpenFolder(FolderList& list, int index) {
    return Act(list, [&] { list.Open(index); });
}

bool UserDoor::PickFile(FileList& list, int index) {
    return Act(list, [&] { list.SetListIndex(index); });
}

bool UserDoor::ShowPage(Tabs& tabs, int index) {
    return Act(tabs, [&] { tabs.SetIndex(index); });
}

bool UserDoor::Copy(ColumnList& list) {
    return Act(list, [&] {
        if (list.OnCopy) list.OnCopy();
    });
}

bool UserDoor::Look(Picture& picture, const std::function<void()>& look) {
    bool looked = false;
    host_.RunEvent([&] {
        if (!OnScreen(host_, picture.Owner()) || !picture.Usable()) return;
        looked = true;
        look();
    });
    return looked;
}

// Also of a picture that is out of sight: it is drawn for the room that it will have.
bool UserDoor::Resize(Picture& picture, Size room) {
    host_.RunEvent([&] { picture.SetRoom(room); });
    return true;
}

bool UserDoor::PointAt(Picture& picture, std::optional<Point> point) {
    return Look(picture, [&] {
        if (picture.OnPoint) picture.OnPoint(point ? TargetAt(picture.Shown(), *point) : Target{});
    });
}

bool UserDoor::Zoom(Picture& picture, double steps, std::optional<Point> at) {
    const Point middle{picture.Room().width / 2, picture.Room().height / 2};
    return Look(picture, [&] {
        if (picture.OnZoom) picture.OnZoom(steps, at.value_or(middle));
    });
}

bool UserDoor::Pan(Picture& picture, double x, double y) {
    return Look(picture, [&] {
        if (picture.OnPan) picture.OnPan(x, y);
    });
}

bool UserDoor::Fit(Picture& picture) {
    return Look(picture, [&] {
        if (picture.OnFit) picture.OnFit();
    });
}

bool UserDoor::Choose(Picture& picture, Point point) {
    return Act(picture, [&] {
        if (picture.OnChoose) picture.OnChoose(TargetAt(picture.Shown(), point));
    });
}

bool UserDoor::TakeAt(Picture& picture, Point point) {
    if (TargetAt(picture.Shown(), point).kind == Target::Kind::None) return Fit(picture);
    // What the choice led to may be elsewhere, as the line of a list.
    return Choose(picture, point) && (!picture.HasFocus() || Take(picture, false));
}

bool UserDoor::Take(Picture& picture, bool also) {
    return Act(picture, [&] {
        if (picture.OnTake) picture.OnTake(also);
    });
}

bool UserDoor::PickMenuEntry(Picture& picture, int index) {
    return Act(picture, [&] { RunEntry(picture.Menu(), index); });
}

bool UserDoor::PickMenuEntry(TextBox& box, int index) {
    return Act(box, [&] { RunEntry(box.Menu, index); });
}

bool UserDoor::MoveFocus(Control& control) {
    return Act(control, [] {});
}

bool UserDoor::Tab(Form& form, bool forward) {
    Control* here = host_.GetFocus().Current();
    if (here != nullptr && &here->Owner() != &form) here = nullptr;
    Control* next = form.NextTabStop(here, forward);
    return next != nullptr && MoveFocus(*next);
}

bool UserDoor::Escape(Form& form) {
    Button* wayOut = form.WayOut();
    return wayOut != nullptr && Press(*wayOut);
}

bool UserDoor::Key(Form& form, ShortcutKey key) {
    Control* before = host_.GetFocus().Current();
    if (before != nullptr && &before->Owner() != &form) return false;
    if (key == ShortcutKey::F1 && OnScreen(host_, form)) {
        host_.RunEvent([this] { host_.Help(); });
        return true;
    }
    if (const auto retype = Retyping(before, key)) {
        host_.RunEvent(retype);
        return true;
    }
    const auto shortcuts = form.Shortcuts();
    const auto isMeant = [&](const Shortcut& shortcut) {
        return shortcut.key == key && (shortcut.where == nullptr || shortcut.where == before);
    };
    auto found = std::find_if(shortcuts.begin(), shortcuts.end(), [&](const Shortcut& shortcut) {
        return isMeant(shortcut) && (shortcut.button == nullptr || shortcut.button->Usable());
    });
    if (found == shortcuts.end()) found = std::find_if(shortcuts.begin(), shortcuts.end(), isMeant);
    if (found == shortcuts.end()) return false;
    host_.RunEvent([&] {
        if (found->button == nullptr) return found->act();
        if (!Press(*found->button) || !OnScreen(host_, form)) return;
        if (found->button->HasFocus() && before != nullptr) before->SetFocus();
    });
    return true;
}

bool UserDoor::TypeBeside(Form& form, std::string_view characters) {
    TextBox* box = form.BoxOfLetters();
    return box != nullptr && Type(*box, box->Text() + std::string(characters));
}

bool UserDoor::Activate(Form& form) {
    bool moved = false;
    host_.RunEvent([&] {
        if (!OnScreen(host_, form)) return;
        const Control* current = host_.GetFocus().Current();
        const bool here = current != nullptr && &current->Owner() == &form;
        moved = here || host_.GetFocus().Activate(form);
        // Where the focus was not let go, the form that holds it stays in front.
        if (moved) host_.Raised(form);
    });
    return moved;
}

bool UserDoor::CloseWindow(FormSlotBase& slot) {
    if (!slot.IsLoaded() || host_.Stopped()) return false;
    host_.RunEvent([&] { slot.Unload(); });
    return true;
}

}  // namespace tarvex
