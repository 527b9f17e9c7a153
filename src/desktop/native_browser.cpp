#include "desktop/native_browser.h"

#include <algorithm>

#include <wx/filename.h>
#include <wx/filesys.h>
#include <wx/log.h>
#include <wx/utils.h>

#include "desktop/native_text.h"

namespace tarvex {

bool NativeBrowser::Open(const std::string& path) {
    const wxLogNull quiet;
    std::string native = path;
#ifndef __WINDOWS__
    std::replace(native.begin(), native.end(), '\\', '/');
#endif
    return wxLaunchDefaultBrowser(wxFileName::FileNameToURL(wxFileName(wxString::FromUTF8(native))));
}

}  // namespace tarvex
