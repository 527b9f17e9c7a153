#include "desktop/native_text.h"

#include "toolkit/display_text.h"

namespace tarvex {

wxString Shown(std::string_view text) {
    wxString shown;
    for (const char32_t character : ShownText(text)) shown += wxUniChar(static_cast<wxUint32>(character));
    return shown;
}

wxString ShownLines(std::string_view text) {
    wxString shown;
    while (true) {
        const auto end = text.find("\r\n");
        shown += Shown(text.substr(0, end));
        if (end == std::string_view::npos) return shown;
        shown += '\n';
        text.remove_prefix(end + 2);
    }
}

std::string Typed(std::string_view before, const wxString& shown) {
    std::u32string characters;
    for (const wxUniChar character : shown) characters += static_cast<char32_t>(character.GetValue());
    return TypedText(before, characters);
}

}  // namespace tarvex
