#pragma once

#include <cstdint>

namespace tarvex {

// A truth value of 16 bits: 0 false, -1 true.
using Flag = std::int16_t;
inline constexpr Flag False = 0;
inline constexpr Flag True = -1;

}  // namespace tarvex
