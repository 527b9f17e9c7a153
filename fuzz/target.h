#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace tarvex::fuzzing {

// What a target does with one input; each target defines it. It holds the properties, and any way out of it
// but returning is a find.
void TryInput(std::string_view input);

// Ends the process, as a find, with the property and the texts shown when it doesn't hold.
void Require(bool holds, std::string_view property, std::initializer_list<std::string_view> shown = {});

}  // namespace tarvex::fuzzing
