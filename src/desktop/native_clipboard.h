#pragma once

#include "toolkit/clipboard.h"

namespace tarvex {

class NativeClipboard final : public Clipboard {
  public:
    void Copy(const std::string& text) override;
    std::string Text() override;
};

}  // namespace tarvex
