#pragma once

#include "toolkit/clipboard.h"

namespace tarvex {

class NativeClipboard final : public Clipboard {
  public:
    void Copy(const std::string& text) override;
    std::string Text() override;
#ifdef __WXGTK__
    // What is selected anywhere, which a middle click pastes.
    static std::string Selection();
#endif
};

}  // namespace tarvex
