#include "desktop/desktop.h"

#include <utility>

#include <wx/app.h>

#include "desktop/layouts.h"
#include "desktop/placement.h"
#include "desktop/window_system.h"

namespace tarvex {

Desktop::Desktop(Program& program) : program_(program) {
    program_.host.SetObserver(this);
}

Desktop::~Desktop() {
    program_.host.SetObserver(nullptr);
}

void Desktop::Start() {
    Post({NativeAct::Kind::Act, nullptr, nullptr, [this] {
              program_.Start();
              return true;
          }});
}

NativeForm* Desktop::WindowOf(const Form& form) const {
    const auto found = windows_.find(&form);
    return found == windows_.end() ? nullptr : found->second;
}

NativeForm& Desktop::MakeWindow(Form& form) {
    const ScreenLayout& layout = LayoutOf(form);
    NativeForm* anchor = nullptr;
    std::vector<wxRect> taken;
    for (const auto& [other, window] : windows_) {
        if (other->Name() == layout.beside) {
            anchor = window;
        } else if (window->IsShown()) {
            taken.push_back(window->GetRect());
        }
    }
    const Mute mute(*this);
    auto* window = new NativeForm(*this, form, layout.floats ? anchor : nullptr);
    windows_[&form] = window;
    layout.layOut(form, *window);
    window->Flush();
    FitToContent(*window, layout);
    const auto chosen = sizes_.find(form.Name());
    if (chosen != sizes_.end()) FitToChoice(*window, chosen->second);
    if (anchor != nullptr) {
        PlaceBeside(*window, *anchor, taken);
    } else {
        PlaceInMiddle(*window, layout);
    }
    window->KeepSize();
    if (chosen != sizes_.end() && chosen->second.maximized) window->Maximize();
    return *window;
}

void Desktop::FormShown(Form& form) {
    NativeForm* window = WindowOf(form);
    if (window == nullptr) window = &MakeWindow(form);
    window->Flush();
    const Mute mute(*this);
    if (!window->IsShown()) guard_.WindowsChanged();
    BringToFront(*window);
    window->Show();
}

void Desktop::FormHidden(Form& form) {
    NativeForm* window = WindowOf(form);
    if (window == nullptr) return;
    const Mute mute(*this);
    if (window->IsShown()) guard_.WindowsChanged();
    window->Hide();
    if (front_ == window) front_ = nullptr;
    if (awaited_ == window) awaited_ = nullptr;
}

void Desktop::FormUnloaded(Form& form) {
    acts_.Forget(form);
    NativeForm* window = WindowOf(form);
    if (window == nullptr) return;
    if (window->SizedByUser() || sizes_.contains(form.Name())) sizes_[form.Name()] = window->SizeNow();
    FormHidden(form);
    window->Detach();
    windows_.erase(&form);
    detached_.push_back(window);
}

void Desktop::Post(NativeAct act) {
    const bool reachesOut = act.kind == NativeAct::Kind::Arrive || act.kind == NativeAct::Kind::Act;
    if (awaited_ != nullptr && reachesOut && act.form != awaited_->Shows()) awaited_ = nullptr;
    acts_.Push(std::move(act));
    if (std::exchange(drainPosted_, true)) return;
    RunNext([this] {
        drainPosted_ = false;
        Drain();
    });
}

void Desktop::Drain() {
    // A message box runs the event loop within an act; what comes in waits for the act's end.
    if (draining_ || program_.host.Stopped()) return;
    draining_ = true;
    while (auto act = acts_.Next()) {
        messageShown_ = false;
        arrival_ = Arrival::Led;
        const bool carried = act->carry();
        if (program_.host.Stopped()) {
            End();
            return;
        }
        if (!carried || messageShown_) DropActs();
        if (!acts_.Empty()) continue;
        FlushAll();
        SettleFocus();
    }
    draining_ = false;
    DestroyDetached();
}

void Desktop::FlushAll() {
    for (const auto& [form, window] : windows_) window->Flush();
}

void Desktop::DropActs() {
    acts_.Clear();
    for (const auto& [form, window] : windows_) window->TouchAll();
}

void Desktop::SettleFocus() {
    const Control* focus = FocusOfProgram();
    if (focus == nullptr) {
        for (const auto& [form, window] : windows_) window->ForgetFocus();
        return;
    }
    NativeForm* window = WindowOf(focus->Owner());
    if (window == nullptr || !window->IsShown()) return;
    window->PutFocusOn(*focus, arrival_);
    if (window != front_) BringToFront(*window);
}

void Desktop::BringToFront(NativeForm& window) {
    front_ = &window;
    awaited_ = window.IsActive() ? nullptr : &window;
    Present(window);
}

NativeForm* Desktop::WindowOfFocus() {
    const Control* focus = FocusOfProgram();
    NativeForm* window = focus == nullptr ? nullptr : WindowOf(focus->Owner());
    return window != nullptr && window->IsShown() ? window : nullptr;
}

void Desktop::ActivatedByUser(NativeForm& window) {
    NativeForm* wanted = WindowOfFocus();
    if (wanted != nullptr && wanted != &window && guard_.WindowsJustChanged()) {
        // A click that is dropped brings no window to the front either.
        BringToFront(*wanted);
        return;
    }
    front_ = &window;
    if (awaited_ != nullptr) {
        // On the way to the window that the program wants in front, others may come by.
        if (awaited_ == &window) awaited_ = nullptr;
        return;
    }
    window.Post(NativeAct::Kind::Activate, nullptr, [this, &window](UserDoor& door) {
        return front_ != &window || door.Activate(*window.Shows());
    });
}

void Desktop::CloseByUser(const Form& form) {
    if (FormSlotBase* slot = program_.host.SlotOf(form)) program_.door.CloseWindow(*slot);
}

wxWindow* Desktop::BeforeMessage() {
    FlushAll();
    guard_.WindowsChanged();
    NativeForm* window = WindowOfFocus();
    if (window == nullptr && !program_.host.Visible().empty()) {
        window = WindowOf(*program_.host.Visible().back());
    }
    return window != nullptr && window->IsShown() ? window : nullptr;
}

void Desktop::AfterMessage() {
    messageShown_ = true;
    guard_.WindowsChanged();
    // The system may hand the front to any window now; the program's is brought back.
    front_ = nullptr;
}

void Desktop::DestroyDetached() {
    for (NativeForm* window : std::exchange(detached_, {})) window->Destroy();
}

void Desktop::End() {
    program_.host.SetObserver(nullptr);
    acts_.Clear();
    for (const auto& [form, window] : windows_) {
        window->Hide();
        window->Detach();
        detached_.push_back(window);
    }
    windows_.clear();
    draining_ = false;
    DestroyDetached();
    wxTheApp->ExitMainLoop();
}

}  // namespace tarvex
