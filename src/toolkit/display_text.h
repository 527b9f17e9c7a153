#pragma once

#include <string>
#include <string_view>

namespace tarvex {

// Texts of the program are 8-bit; windows show Unicode. A well-formed UTF-8 sequence of several bytes, as in
// the name of a file, is shown as its character, any other byte by the Windows Latin-1 code page. A control
// character is shown by its picture (U+2400 and up).

// The text as a window shows it.
std::u32string ShownText(std::string_view text);
// The same in UTF-8.
std::string ShownUtf8(std::string_view text);

// What `shown`, to which the user changed a box that held `before`, is in the program: characters that were
// there keep their bytes, new ones are taken from the Windows Latin-1 code page, and what it lacks is left
// out.
std::string TypedText(std::string_view before, std::u32string_view shown);

// A caption without the blanks and line ends that only centred or wrapped it: runs of them become one blank,
// those at the ends vanish.
std::string PlainCaption(std::string_view caption);

}  // namespace tarvex
