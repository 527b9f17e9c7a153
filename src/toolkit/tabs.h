#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/control.h"

namespace tarvex {

// Pages of which one is shown, each with a caption on its tab and one control on it.
class Tabs : public Control {
  public:
    struct Page {
        std::string caption;
        Control* content;
    };

    // The first page is shown. The contents must outlive the last call.
    Tabs(Form& form, std::string_view name, std::vector<Page> pages, int tabIndex);

    const std::vector<Page>& Pages() const { return pages_; }
    // The caption of an existing page.
    void SetCaption(int page, std::string_view caption);
    int Index() const { return index_; }
    // Shows that page, and hides the content of the others. Runs OnClick when it was not shown before.
    void SetIndex(int index);

    bool TakesFocus() const override { return true; }

    std::function<void()> OnClick;

  private:
    void ShowContent();

    std::vector<Page> pages_;
    int index_ = 0;
};

}  // namespace tarvex
