#pragma once

#include <string>
#include <string_view>

namespace tarvex {

// `path`, a text in a code page of the system, with each letter in upper case that the file system takes for
// the same. Where the code page lacks one of the upper letters only a to z change.
std::string UpperInCodePage(std::string_view path, unsigned codePage);

}  // namespace tarvex
