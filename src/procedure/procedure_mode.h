#pragma once

#include <string_view>

namespace tarvex {

// What the letters of SharedState::ProcedureMode mean.

constexpr bool IsDeparture(std::string_view mode) {
    return mode == "D" || mode == "E";
}

constexpr bool IsApproach(std::string_view mode) {
    return mode == "I" || mode == "J";
}

constexpr bool CreatesProcedure(std::string_view mode) {
    return mode == "E" || mode == "J" || mode == "T";
}

constexpr bool ModifiesProcedure(std::string_view mode) {
    return mode == "D" || mode == "I" || mode == "S";
}

}  // namespace tarvex
