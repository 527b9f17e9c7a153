#include "toolkit/form.h"

#include <algorithm>

#include "toolkit/form_host.h"
#include "toolkit/simple_controls.h"

namespace tarvex {

Form::Form(FormHost& host, std::string_view name, std::string_view caption)
    : host_(host), name_(name), caption_(caption) {}

void Form::Hide() {
    if (FormSlotBase* slot = host_.SlotOf(*this)) slot->Hide();
}

void Form::Unload() {
    if (FormSlotBase* slot = host_.SlotOf(*this)) slot->Unload();
}

Control* Form::Find(std::string_view name) const {
    const auto found = std::find_if(controls_.begin(), controls_.end(),
                                    [name](const Control* control) { return control->Name() == name; });
    return found == controls_.end() ? nullptr : *found;
}

std::vector<Control*> Form::TabStops() const {
    std::vector<Control*> stops;
    std::copy_if(controls_.begin(), controls_.end(), std::back_inserter(stops), [](const Control* control) {
        return control->TabIndex() != Control::NoTabIndex && control->CanTakeFocus() && control->IsTabStop();
    });
    std::stable_sort(stops.begin(), stops.end(),
                     [](const Control* a, const Control* b) { return a->TabIndex() < b->TabIndex(); });
    return stops;
}

Control* Form::NextTabStop(const Control* from, bool forward) const {
    const auto stops = TabStops();
    if (stops.empty()) return nullptr;
    if (from == nullptr) return forward ? stops.front() : stops.back();
    const int here = from->TabIndex();
    if (forward) {
        const auto next = std::find_if(stops.begin(), stops.end(),
                                       [here](const Control* stop) { return stop->TabIndex() > here; });
        return next == stops.end() ? stops.front() : *next;
    }
    const auto previous = std::find_if(stops.rbegin(), stops.rend(),
                                       [here](const Control* stop) { return stop->TabIndex() < here; });
    return previous == stops.rend() ? stops.back() : *previous;
}

void Form::NameKeys() {
    for (const Shortcut& shortcut : Shortcuts()) {
        if (shortcut.button == nullptr || !shortcut.button->Key().empty()) continue;
        std::string name(NameOf(shortcut.key));
        if (shortcut.where != nullptr) name += shortcut.key == ShortcutKey::Enter ? "" : " in the list";
        shortcut.button->SetKey(name);
    }
    if (Button* way = WayOut()) way->SetKey("Escape");
}

}  // namespace tarvex
