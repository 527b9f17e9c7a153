#include "toolkit/form_host.h"

#include <algorithm>
#include <utility>

namespace tarvex {

bool FormHost::IsInUse(const Form& form) const {
    const FormSlotBase* slot = SlotOf(form);
    return slot != nullptr && (form.Visible() || slot->loading_);
}

FormSlotBase* FormHost::SlotOf(const Form& form) const {
    const auto found = std::find_if(slots_.begin(), slots_.end(),
                                    [&form](const FormSlotBase* slot) { return slot->Loaded() == &form; });
    return found == slots_.end() ? nullptr : *found;
}

void FormHost::RunEvent(const std::function<void()>& event) {
    if (stopped_) return;
    if (eventDepth_ > 0) {
        event();
        return;
    }
    ++eventDepth_;
    RunOutermost(event);
    if (!stopped_) {
        RunOutermost([this] {
            for (Form* form : visible_) form->EventEnded();
        });
    }
    --eventDepth_;
    graveyard_.clear();
}

void FormHost::RunOutermost(const std::function<void()>& event) {
    try {
        try {
            event();
        } catch (const Failure& failure) {
            if (report_) report_(failure);
        } catch (const std::exception& unexpected) {
            if (report_) report_(Failure(DeviceError, unexpected.what()));
        }
    } catch (const ProgramStopped& stop) {
        stopped_ = stop;
    }
}

void FormHost::Raised(Form& form) {
    if (std::erase(visible_, &form) > 0) visible_.push_back(&form);
}

void FormHost::BringToFront(Form& form) {
    std::erase(visible_, &form);
    visible_.push_back(&form);
    Notify().FormShown(form);
    focus_.Activate(form);
}

void FormHost::TakeOffScreen(Form& form, const FormSlotBase* opener) {
    // A form can have the focus before it is on the screen, given in its Form_Load.
    const Control* current = focus_.Current();
    const bool hadFocus = current != nullptr && &current->Owner() == &form;
    const bool wasVisible = std::erase(visible_, &form) > 0;
    focus_.FormGone(form);
    const bool focusIsFree = hadFocus || (wasVisible && current == nullptr);
    if (!focusIsFree || visible_.empty()) return;
    const bool openerIsThere = opener != nullptr && opener->form_ != nullptr && opener->form_->Visible();
    focus_.Activate(openerIsThere ? *opener->form_ : *visible_.back());
}

void FormHost::UnloadToolsOf(const FormSlotBase& slot) {
    for (FormSlotBase* tool : slots_) {
        if (tool->opener_ == &slot) tool->Unload();
    }
}

void FormHost::Bury(std::unique_ptr<Form> form) {
    graveyard_.push_back(std::move(form));
}

FormSlotBase::FormSlotBase(FormHost& host) : host_(host) {
    host.slots_.push_back(this);
}

void FormSlotBase::Show() {
    if (loading_) {
        hiddenInLoad_ = false;
        return;
    }
    if (form_ == nullptr) {
        form_ = Make();
        form_->NameKeys();
        const Form* made = form_.get();
        loading_ = true;
        hiddenInLoad_ = false;
        try {
            form_->Form_Load();
        } catch (...) {
            loading_ = false;
            if (form_.get() == made) End();
            throw;
        }
        loading_ = false;
        if (form_.get() != made) return;
        if (hiddenInLoad_) return host_.TakeOffScreen(*form_, opener_);
    }
    form_->visible_ = true;
    host_.BringToFront(*form_);
}

void FormSlotBase::ShowAsToolOf(const Form& opener) {
    opener_ = host_.SlotOf(opener);
    Show();
}

void FormSlotBase::Hide() {
    if (form_ == nullptr) return;
    if (loading_) hiddenInLoad_ = true;
    if (!form_->visible_) return;
    form_->visible_ = false;
    host_.Notify().FormHidden(*form_);
    host_.TakeOffScreen(*form_, opener_);
}

void FormSlotBase::Unload() {
    if (form_ == nullptr || unloading_) return;
    unloading_ = true;
    try {
        host_.UnloadToolsOf(*this);
        form_->Form_Unload();
    } catch (...) {
        unloading_ = false;
        throw;
    }
    unloading_ = false;
    End();
}

void FormSlotBase::End() {
    auto form = std::move(form_);
    form->visible_ = false;
    host_.Notify().FormUnloaded(*form);
    host_.TakeOffScreen(*form, std::exchange(opener_, nullptr));
    host_.Bury(std::move(form));
}

}  // namespace tarvex
