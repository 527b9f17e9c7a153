#include "desktop/native_form.h"

#include <algorithm>
#include <optional>

#include <wx/sizer.h>

#include "desktop/desktop.h"
#include "desktop/native_text.h"
#include "desktop/program_icon.h"
#include "desktop/window_system.h"

namespace tarvex {

namespace {

struct KeyOfShortcut {
    int code;
    int modifiers;
    ShortcutKey key;
};

constexpr KeyOfShortcut ShortcutKeys[] = {
    {WXK_RETURN, wxMOD_NONE, ShortcutKey::Enter},
    {WXK_NUMPAD_ENTER, wxMOD_NONE, ShortcutKey::Enter},
    {WXK_RETURN, wxMOD_CONTROL, ShortcutKey::CtrlEnter},
    {WXK_NUMPAD_ENTER, wxMOD_CONTROL, ShortcutKey::CtrlEnter},
    {WXK_DELETE, wxMOD_NONE, ShortcutKey::Delete},
    {WXK_UP, wxMOD_CONTROL, ShortcutKey::CtrlUp},
    {WXK_DOWN, wxMOD_CONTROL, ShortcutKey::CtrlDown},
    {'L', wxMOD_CONTROL, ShortcutKey::CtrlL},
    {'S', wxMOD_CONTROL, ShortcutKey::CtrlS},
    {'Y', wxMOD_CONTROL, ShortcutKey::CtrlY},
    {'Z', wxMOD_CONTROL, ShortcutKey::CtrlZ},
    {'C', wxMOD_CONTROL | wxMOD_SHIFT, ShortcutKey::CtrlShiftC},
    {'V', wxMOD_CONTROL | wxMOD_SHIFT, ShortcutKey::CtrlShiftV},
    {'Z', wxMOD_CONTROL | wxMOD_SHIFT, ShortcutKey::CtrlShiftZ},
    {'1', wxMOD_CONTROL, ShortcutKey::Ctrl1},
    {'2', wxMOD_CONTROL, ShortcutKey::Ctrl2},
    {'3', wxMOD_CONTROL, ShortcutKey::Ctrl3},
    {'4', wxMOD_CONTROL, ShortcutKey::Ctrl4},
    {WXK_F1, wxMOD_NONE, ShortcutKey::F1},
    {WXK_F2, wxMOD_NONE, ShortcutKey::F2},
    {WXK_F3, wxMOD_NONE, ShortcutKey::F3},
    {WXK_F4, wxMOD_NONE, ShortcutKey::F4},
    {WXK_F5, wxMOD_NONE, ShortcutKey::F5},
    {WXK_F6, wxMOD_NONE, ShortcutKey::F6},
    {WXK_F8, wxMOD_NONE, ShortcutKey::F8},
    {'1', wxMOD_NONE, ShortcutKey::Digit1},
    {'2', wxMOD_NONE, ShortcutKey::Digit2},
    {'3', wxMOD_NONE, ShortcutKey::Digit3},
    {'4', wxMOD_NONE, ShortcutKey::Digit4},
    {'5', wxMOD_NONE, ShortcutKey::Digit5},
    {'6', wxMOD_NONE, ShortcutKey::Digit6},
    {WXK_NUMPAD1, wxMOD_NONE, ShortcutKey::Digit1},
    {WXK_NUMPAD2, wxMOD_NONE, ShortcutKey::Digit2},
    {WXK_NUMPAD3, wxMOD_NONE, ShortcutKey::Digit3},
    {WXK_NUMPAD4, wxMOD_NONE, ShortcutKey::Digit4},
    {WXK_NUMPAD5, wxMOD_NONE, ShortcutKey::Digit5},
    {WXK_NUMPAD6, wxMOD_NONE, ShortcutKey::Digit6},
};

// A tool goes and comes with its owner, so that it can't be put away, or spread out, on its own.
constexpr long ToolStyle = (wxDEFAULT_FRAME_STYLE & ~(wxMINIMIZE_BOX | wxMAXIMIZE_BOX)) |
                           wxFRAME_FLOAT_ON_PARENT | wxFRAME_NO_TASKBAR;

// What the pressed key means on the form as the focus stands.
struct MeantKey {
    ShortcutKey key;
    bool repeats;  // as long as it is held
};

std::optional<MeantKey> MeaningOf(const wxKeyEvent& event, Form& form, const Control* focus) {
    for (const auto& known : ShortcutKeys) {
        if (known.code != event.GetKeyCode() || known.modifiers != event.GetModifiers()) continue;
        if (known.key == ShortcutKey::F1) return MeantKey{known.key, false};
        const bool inBox = dynamic_cast<const TextBox*>(focus) != nullptr;
        if (inBox && UndoesOrRedoes(known.key)) return MeantKey{known.key, true};
        for (const Shortcut& shortcut : form.Shortcuts()) {
            if (shortcut.key != known.key || (shortcut.where != nullptr && shortcut.where != focus)) continue;
            return MeantKey{known.key, shortcut.button == nullptr || shortcut.button->Repeats()};
        }
    }
    return std::nullopt;
}

// Whether the key leads forward or back among the options of a frame.
std::optional<bool> ArrowForward(const wxKeyEvent& event) {
    if (event.GetModifiers() != wxMOD_NONE) return std::nullopt;
    switch (event.GetKeyCode()) {
        case WXK_DOWN:
        case WXK_NUMPAD_DOWN:
        case WXK_RIGHT:
        case WXK_NUMPAD_RIGHT:
            return true;
        case WXK_UP:
        case WXK_NUMPAD_UP:
        case WXK_LEFT:
        case WXK_NUMPAD_LEFT:
            return false;
        default:
            return std::nullopt;
    }
}

}  // namespace

NativeForm::NativeForm(Desktop& desktop, Form& form, wxWindow* owner)
    : wxFrame(owner, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
              owner == nullptr ? wxDEFAULT_FRAME_STYLE : ToolStyle),
      desktop_(desktop),
      form_(&form),
      page_(new wxPanel(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxBORDER_NONE)) {
    // Keys and acts of a tool are nothing to its owner.
    SetExtraStyle(GetExtraStyle() | wxWS_EX_BLOCK_EVENTS);
    NameForAccess(*this, form.Name(), {});
    SetIcons(ProgramIcons());
    // A window without any title is shown as unnamed by some window managers.
    SetTitle(form.Caption().empty() ? wxString(" ") : Shown(form.Caption()));
    Bind(wxEVT_CHAR_HOOK, &NativeForm::OnKey, this);
    Bind(wxEVT_CHILD_FOCUS, &NativeForm::OnArrival, this);
    Bind(wxEVT_ACTIVATE, &NativeForm::OnActivate, this);
    Bind(wxEVT_CLOSE_WINDOW, &NativeForm::OnClose, this);
}

NativeForm::~NativeForm() {
    // Widgets tell their binders of their end.
    form_ = nullptr;
    DestroyChildren();
}

void NativeForm::Detach() {
    for (Control* control : form_->Controls()) control->Observe(nullptr);
    form_ = nullptr;
    touched_.clear();
}

Binder* NativeForm::BinderOf(const Control& control) const {
    const auto found = std::find_if(binders_.begin(), binders_.end(),
                                    [&control](const auto& binder) { return &binder->Bound() == &control; });
    return found == binders_.end() ? nullptr : found->get();
}

void NativeForm::TouchAll() {
    for (const auto& binder : binders_) touched_.insert(binder.get());
}

void NativeForm::Flush() {
    const Desktop::Mute mute(desktop_);
    for (Binder* binder : std::exchange(touched_, {})) binder->ToWidget();
    if (std::exchange(layOut_, false)) page_->Layout();
}

wxRect NativeForm::Spare() const {
    wxRect part = page_->GetClientRect();
    if (spare_ != nullptr) part = {spare_->GetPosition(), spare_->GetSize()};
    return {page_->ClientToScreen(part.GetTopLeft()), part.GetSize()};
}

bool NativeForm::SizedByUser() const {
    return IsMaximized() || GetClientSize() != ownSize_;
}

ChosenSize NativeForm::SizeNow() const {
    return {IsMaximized() ? ownSize_ : GetClientSize(), IsMaximized()};
}

bool NativeForm::HoldsFocus(const Binder& binder) const {
    if (!HoldsFocusOfWindow(binder.Widget())) return false;
    return std::none_of(binders_.begin(), binders_.end(), [&binder](const auto& other) {
        return other.get() != &binder && binder.Widget().IsDescendant(&other->Widget()) &&
               HoldsFocusOfWindow(other->Widget());
    });
}

void NativeForm::PutFocusOn(const Control& control, Arrival how) {
    Binder* binder = BinderOf(control);
    if (binder == nullptr) return;
    const Desktop::Mute mute(desktop_);
    arrivedAt_ = &control;
    if (!HoldsFocus(*binder)) {
        binder->Widget().SetFocus();
        // A list may select a line of its own when it gets the focus.
        binder->ToWidget();
    }
    if (how == Arrival::Tab) binder->SelectAll();
    if (how == Arrival::Typing) binder->GoToEnd();
}

bool NativeForm::IsSecondClick() const {
    return desktop_.IsSecondClick();
}

void NativeForm::Post(NativeAct::Kind kind, Control* control, std::function<bool(UserDoor&)> carry) {
    if (form_ == nullptr || desktop_.Muted()) return;
    desktop_.Post(
        {kind, form_, control, [this, carry = std::move(carry)] { return carry(desktop_.Door()); }});
}

void NativeForm::PostTyping(const std::string& characters) {
    Post(NativeAct::Kind::Act, nullptr, [this, characters](UserDoor& door) {
        desktop_.arrival_ = Arrival::Typing;
        return door.TypeBeside(*form_, characters);
    });
}

void NativeForm::OnKey(wxKeyEvent& event) {
    if (form_ == nullptr) return;
    if (event.GetKeyCode() == WXK_TAB && (event.GetModifiers() & ~wxMOD_SHIFT) == 0) {
        const bool forward = !event.ShiftDown();
        Post(NativeAct::Kind::Act, nullptr, [this, forward](UserDoor& door) {
            desktop_.arrival_ = Arrival::Tab;
            return door.Tab(*form_, forward);
        });
        return;
    }
    if (event.GetKeyCode() == WXK_ESCAPE && event.GetModifiers() == wxMOD_NONE &&
        form_->WayOut() != nullptr) {
        // Held, it must not lead from window to window and out of the program.
        if (desktop_.KeyRepeats()) return;
        Post(NativeAct::Kind::Act, nullptr, [this](UserDoor& door) { return door.Escape(*form_); });
        return;
    }
    auto* option = dynamic_cast<OptionButton*>(desktop_.FocusOfProgram());
    const auto forward = ArrowForward(event);
    if (option != nullptr && &option->Owner() == form_ && forward) {
        Post(NativeAct::Kind::Act, nullptr,
             [option, forward](UserDoor& door) { return door.Arrow(*option, *forward); });
        return;
    }
    if (const auto meant = MeaningOf(event, *form_, desktop_.FocusOfProgram())) {
        if (desktop_.KeyRepeats() && !meant->repeats) return;
        Post(NativeAct::Kind::Act, nullptr,
             [this, key = meant->key](UserDoor& door) { return door.Key(*form_, key); });
        return;
    }
    event.Skip();
}

void NativeForm::OnArrival(wxChildFocusEvent& event) {
    event.Skip();
    if (form_ == nullptr) return;
    for (wxWindow* widget = event.GetWindow(); widget != nullptr && widget != page_;
         widget = widget->GetParent()) {
        const auto found = std::find_if(binders_.begin(), binders_.end(),
                                        [widget](const auto& b) { return &b->Widget() == widget; });
        if (found == binders_.end() || !(*found)->Bound().TakesFocus()) continue;
        // The same again: the window only came back to the front.
        if (std::exchange(arrivedAt_, &(*found)->Bound()) != &(*found)->Bound()) (*found)->Arrive();
        return;
    }
}

void NativeForm::OnActivate(wxActivateEvent& event) {
    event.Skip();
    if (form_ != nullptr && event.GetActive()) desktop_.ActivatedByUser(*this);
}

void NativeForm::OnClose(wxCloseEvent& event) {
    if (form_ == nullptr) {
        event.Skip();
        return;
    }
    event.Veto();
    Post(NativeAct::Kind::Act, nullptr, [this](UserDoor&) {
        desktop_.CloseByUser(*form_);
        return true;
    });
}

}  // namespace tarvex
