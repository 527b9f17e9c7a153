#pragma once

#include "toolkit/browser.h"

namespace tarvex {

// The browser that the user has chosen for the machine.
class NativeBrowser final : public Browser {
  public:
    bool Open(const std::string& path) override;
};

}  // namespace tarvex
