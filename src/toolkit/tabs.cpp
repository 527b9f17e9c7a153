#include "toolkit/tabs.h"

#include <utility>

namespace tarvex {

Tabs::Tabs(Form& form, std::string_view name, std::vector<Page> pages, int tabIndex)
    : Control(form, name, tabIndex), pages_(std::move(pages)) {
    ShowContent();
}

void Tabs::SetCaption(int page, std::string_view caption) {
    std::string& shown = pages_.at(static_cast<std::size_t>(page)).caption;
    if (shown == caption) return;
    shown = caption;
    Changed();
}

void Tabs::SetIndex(int index) {
    RequireIndex(index >= 0 && index < static_cast<int>(pages_.size()));
    if (index_ == index) return;
    index_ = index;
    ShowContent();
    Changed();
    Run(OnClick);
}

void Tabs::ShowContent() {
    for (int i = 0; const Page& page : pages_) page.content->SetVisible(i++ == index_);
}

}  // namespace tarvex
