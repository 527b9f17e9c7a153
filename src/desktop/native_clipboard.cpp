#include "desktop/native_clipboard.h"

#include <wx/clipbrd.h>
#include <wx/dataobj.h>

namespace tarvex {

void NativeClipboard::Copy(const std::string& text) {
    const wxClipboardLocker clipboard;
    if (!clipboard) return;
    wxTheClipboard->SetData(new wxTextDataObject(wxString::FromUTF8(text)));
    wxTheClipboard->Flush();
}

std::string NativeClipboard::Text() {
    const wxClipboardLocker clipboard;
    wxTextDataObject data;
    if (!clipboard || !wxTheClipboard->GetData(data)) return {};
    return data.GetText().utf8_string();
}

#ifdef __WXGTK__
std::string NativeClipboard::Selection() {
    wxTheClipboard->UsePrimarySelection(true);
    std::string text = NativeClipboard().Text();
    wxTheClipboard->UsePrimarySelection(false);
    return text;
}
#endif

}  // namespace tarvex
