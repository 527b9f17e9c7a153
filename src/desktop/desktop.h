#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "desktop/double_click_guard.h"
#include "desktop/held_key.h"
#include "desktop/native_form.h"
#include "program/program.h"
#include "toolkit/act_queue.h"

namespace tarvex {

// The native windows of a program. What the user does in them is queued and carried out one by one from the
// event loop, never within a handler of the window system; afterwards the windows are brought in line with
// the program, the focus included.
class Desktop final : public FormObserver {
  public:
    explicit Desktop(Program& program);
    ~Desktop() override;

    // Queues the start of the program.
    void Start();

    void FormShown(Form& form) override;
    void FormHidden(Form& form) override;
    void FormUnloaded(Form& form) override;

    void Post(NativeAct act);
    // While the program itself changes widgets, their events are no acts of the user.
    bool Muted() const { return muted_ > 0; }

    UserDoor& Door() { return program_.door; }
    Control* FocusOfProgram() { return program_.host.GetFocus().Current(); }
    // Whether the click that is being handled is the second of a double click.
    bool IsSecondClick() const { return guard_.IsSecondClick(); }
    // Whether the key that is being handled is pressed again because it is held.
    bool KeyRepeats() const { return heldKey_.Repeats(); }
    void ActivatedByUser(NativeForm& window);
    void CloseByUser(const Form& form);

    // Brackets a message box: it stands over the windows in their present state, and what was done before it
    // was not done in its light.
    wxWindow* BeforeMessage();
    void AfterMessage();

  private:
    friend class NativeForm;

    struct Mute {
        explicit Mute(Desktop& desktop) : desktop_(desktop) { ++desktop_.muted_; }
        ~Mute() { --desktop_.muted_; }
        Mute(const Mute&) = delete;
        Mute& operator=(const Mute&) = delete;
        Desktop& desktop_;
    };

    NativeForm* WindowOf(const Form& form) const;
    NativeForm& MakeWindow(Form& form);
    void Drain();
    void FlushAll();
    void SettleFocus();
    void DropActs();
    void BringToFront(NativeForm& window);
    // The window that holds the focus of the program; null while none on the screen does.
    NativeForm* WindowOfFocus();
    void DestroyDetached();
    void End();

    Program& program_;
    DoubleClickGuard guard_;
    HeldKey heldKey_;
    ActQueue acts_;
    std::map<const Form*, NativeForm*> windows_;
    std::map<std::string, ChosenSize> sizes_;  // that the user gave to windows, by the names of their forms
    std::vector<NativeForm*> detached_;
    NativeForm* front_ = nullptr;    // the window that was activated last
    NativeForm* awaited_ = nullptr;  // brought to the front by the program, activation not yet told
    int muted_ = 0;
    bool drainPosted_ = false;
    bool draining_ = false;
    bool messageShown_ = false;
    Arrival arrival_ = Arrival::Led;
};

}  // namespace tarvex
