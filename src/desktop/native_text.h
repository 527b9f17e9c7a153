#pragma once

#include <string>
#include <string_view>

#include <wx/string.h>

namespace tarvex {

// A text of the program as a window shows it.
wxString Shown(std::string_view text);

// The same of a text of several lines, as messages are.
wxString ShownLines(std::string_view text);

// What the user made of a box that held `before`, as a text of the program.
std::string Typed(std::string_view before, const wxString& shown);

}  // namespace tarvex
