#include "desktop/native_browser.h"

#include <algorithm>

#include "desktop/window_system.h"

namespace tarvex {

bool NativeBrowser::Open(const std::string& path) {
    std::string native = path;
#ifndef __WINDOWS__
    std::replace(native.begin(), native.end(), '\\', '/');
#endif
    return OpenDocument(native);
}

}  // namespace tarvex
