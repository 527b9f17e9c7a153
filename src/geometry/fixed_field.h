#pragma once

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>

namespace tarvex {

// A text of exactly `Width` characters: a shorter text is padded with blanks on the right when it is
// assigned, a longer one is cut. Starts as blanks.
template <std::size_t Width>
class FixedField {
  public:
    constexpr FixedField() { characters_.fill(' '); }
    constexpr FixedField(std::string_view text) { Assign(text); }
    constexpr FixedField(const char* text) { Assign(text); }
    FixedField(const std::string& text) { Assign(text); }

    constexpr void Assign(std::string_view text) {
        const std::size_t taken = std::min(text.size(), Width);
        std::copy_n(text.data(), taken, characters_.begin());
        std::fill(characters_.begin() + static_cast<std::ptrdiff_t>(taken), characters_.end(), ' ');
    }

    // All `Width` characters, trailing blanks included.
    constexpr std::string_view View() const { return {characters_.data(), Width}; }
    std::string Text() const { return std::string(View()); }
    constexpr operator std::string_view() const { return View(); }

    friend constexpr bool operator==(const FixedField&, const FixedField&) = default;
    // A text is compared with all `Width` characters: a shorter or longer one is another.
    friend constexpr bool operator==(const FixedField& field,
                                     const std::convertible_to<std::string_view> auto& text) {
        return field.View() == std::string_view(text);
    }

  private:
    std::array<char, Width> characters_;
};

}  // namespace tarvex
