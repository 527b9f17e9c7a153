#pragma once

#include <functional>
#include <string>

namespace tarvex {

// One line of the menu of a control.
struct MenuEntry {
    std::string caption;
    bool enabled = true;
    std::function<void()> onClick;
    std::string key = {};  // the name of the key that does the same; empty for none
};

}  // namespace tarvex
