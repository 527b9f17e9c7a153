#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tarvex {

// The values of one key of a Wine registry file by their names in lower case (A to Z); "" is the unnamed one.
// Texts are UTF-8 with a closing zero, numbers four bytes, the lowest first, anything else the raw bytes.
using WineKeyValues = std::map<std::string, std::string>;

// Finds a key, as "Software\Microsoft\Windows", in the text of a registry file in Wine's own format, version
// 2, without regard to the case of A to Z. Nothing when it is not listed or the text is no such file. What
// can't be understood is passed over.
std::optional<WineKeyValues> FindWineKey(std::string_view text, std::string_view path);

// The value of that name, without regard to the case of A to Z; null for none.
const std::string* FindWineValue(const WineKeyValues& values, std::string_view name);

}  // namespace tarvex
