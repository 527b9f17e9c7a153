#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace tarvex {

// Texts without regard to case, for finding what has a name: the letters A to Z stand for a to z. All other
// bytes stand for themselves.

constexpr char Folded(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

inline std::string Folded(std::string_view text) {
    std::string folded(text);
    for (char& c : folded) c = Folded(c);
    return folded;
}

// The text with A to Z for a to z.
inline std::string Capitals(std::string_view text) {
    std::string capitals(text);
    for (char& c : capitals) {
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - ('a' - 'A'));
    }
    return capitals;
}

constexpr bool BeginsFolded(std::string_view text, std::string_view beginning) {
    return text.size() >= beginning.size() &&
           std::equal(beginning.begin(), beginning.end(), text.begin(),
                      [](char x, char y) { return Folded(x) == Folded(y); });
}

constexpr bool EqualFolded(std::string_view a, std::string_view b) {
    return a.size() == b.size() && BeginsFolded(a, b);
}

}  // namespace tarvex
