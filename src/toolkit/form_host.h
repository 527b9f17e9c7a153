#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "toolkit/failure.h"
#include "toolkit/focus.h"
#include "toolkit/form.h"

namespace tarvex {

class FormSlotBase;

// What a window system is told about the forms. Every call comes from within an operation.
class FormObserver {
  public:
    virtual ~FormObserver() = default;
    // The form is to be on the screen, in front of the others; also when it is there already.
    virtual void FormShown(Form&) {}
    virtual void FormHidden(Form&) {}
    // The form is on its way out; its object lives until the outermost event has ended.
    virtual void FormUnloaded(Form&) {}
};

// The forms of one program: which are loaded, which stands in front, which control has the focus.
class FormHost {
  public:
    FormHost() : focus_(*this) {}
    FormHost(const FormHost&) = delete;
    FormHost& operator=(const FormHost&) = delete;

    Focus& GetFocus() { return focus_; }
    // Whether the form is on the screen or is being loaded.
    bool IsInUse(const Form& form) const;
    // The slot that holds the form; null for one that is on its way out.
    FormSlotBase* SlotOf(const Form& form) const;
    // The visible forms, the one in front last.
    const std::vector<Form*>& Visible() const { return visible_; }

    // A form came to the front with the focus, or because the window system brought it there. Does nothing
    // with one that isn't on the screen.
    void Raised(Form& form);

    // Null ends the observation.
    void SetObserver(FormObserver* observer) { observer_ = observer; }
    FormObserver& Notify() { return observer_ != nullptr ? *observer_ : silent_; }

    // What F1 does on any form.
    void SetHelp(std::function<void()> help) { help_ = std::move(help); }
    void Help() const {
        if (help_) help_();
    }

    // What becomes of a failure that no operation expected; the event ends with it.
    void SetFailureReport(std::function<void(const Failure&)> report) { report_ = std::move(report); }

    // Runs one event of the outside world, or an operation within one. The outermost event takes what no
    // operation caught: a failure goes to the failure report (any other exception too, as a DeviceError), a
    // stop ends the run. Forms that were unloaded on the way are destroyed behind it. Does nothing once the
    // program has stopped.
    void RunEvent(const std::function<void()>& event);

    // How the program stopped; nothing while it runs.
    const std::optional<ProgramStopped>& Stopped() const { return stopped_; }

  private:
    friend class FormSlotBase;

    void RunOutermost(const std::function<void()>& event);
    void BringToFront(Form& form);
    // Takes the focus from a form that is no longer visible, to the form `opener` holds if it is on the
    // screen, else to the one in front.
    void TakeOffScreen(Form& form, const FormSlotBase* opener);
    void UnloadToolsOf(const FormSlotBase& slot);
    void Bury(std::unique_ptr<Form> form);

    FormObserver silent_;
    FormObserver* observer_ = nullptr;
    Focus focus_;
    std::vector<FormSlotBase*> slots_;
    std::vector<Form*> visible_;
    std::vector<std::unique_ptr<Form>> graveyard_;
    int eventDepth_ = 0;
    std::optional<ProgramStopped> stopped_;
    std::function<void(const Failure&)> report_;
    std::function<void()> help_;
};

// The place of one form. The form is made at its first showing, with Form_Load, and again at the first
// showing after each unload, so that it always starts from its initial state.
class FormSlotBase {
  public:
    explicit FormSlotBase(FormHost& host);
    virtual ~FormSlotBase() = default;
    FormSlotBase(const FormSlotBase&) = delete;
    FormSlotBase& operator=(const FormSlotBase&) = delete;

    bool IsLoaded() const { return form_ != nullptr; }
    // Loads the form if need be and brings it to the front with the focus. A form that hides or unloads
    // itself in its Form_Load does not come up.
    void Show();
    // The same as a tool of `opener`, which must be loaded: the tool is unloaded in front of it, and one that
    // goes away gives the focus back to it.
    void ShowAsToolOf(const Form& opener);
    // Takes the form off the screen and keeps it loaded. Does nothing when it is not loaded.
    void Hide();
    // Unloads the form's tools, runs Form_Unload and ends the form. A form may do so in the middle of its own
    // operation: its object lives until the outermost event has ended. Does nothing when it is not loaded.
    void Unload();

  protected:
    virtual std::unique_ptr<Form> Make() = 0;
    Form* Loaded() const { return form_.get(); }

  private:
    friend class FormHost;

    void End();  // takes the loaded form off the screen and out of the slot

    FormHost& host_;
    std::unique_ptr<Form> form_;
    const FormSlotBase* opener_ = nullptr;  // of the form whose tool this one is; null for none
    bool loading_ = false;
    bool unloading_ = false;
    bool hiddenInLoad_ = false;
};

template <class T>
class FormSlot final : public FormSlotBase {
  public:
    FormSlot(FormHost& host, std::function<std::unique_ptr<T>()> make)
        : FormSlotBase(host), make_(std::move(make)) {}

    // The loaded form; null when there is none.
    T* Get() const { return static_cast<T*>(Loaded()); }

  private:
    std::unique_ptr<Form> Make() override { return make_(); }

    std::function<std::unique_ptr<T>()> make_;
};

}  // namespace tarvex
