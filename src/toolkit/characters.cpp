#include "toolkit/characters.h"

#include <algorithm>
#include <array>

namespace tarvex {

namespace {

// The characters of the bytes 80 to 9F.
constexpr unsigned FirstSpecial = 0x80;
constexpr std::array<char32_t, 32> Specials = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

bool IsContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0u) == 0x80u;
}

}  // namespace

Utf8Character Utf8CharacterAt(std::string_view text) {
    if (text.empty()) return {};
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead >= 0xF0 && lead < 0xF5 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC2 ? 2 : 0;
    if (length == 0 || lead >= 0xF5 || text.size() < length) return {};
    char32_t character = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if (!IsContinuation(text[i])) return {};
        character = character << 6 | (static_cast<unsigned char>(text[i]) & 0x3Fu);
    }
    const bool overlong = (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
    const bool surrogate = character >= 0xD800 && character < 0xE000;
    if (overlong || surrogate || character > 0x10FFFF) return {};
    return {character, length};
}

void AppendUtf8(std::string& text, char32_t character) {
    constexpr std::array<char32_t, 3> Leads = {0xC0, 0xE0, 0xF0};  // of two, three and four bytes
    if (character < 0x80) {
        text += static_cast<char>(character);
        return;
    }
    const int following = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    text += static_cast<char>(Leads[static_cast<std::size_t>(following - 1)] | character >> 6 * following);
    for (int i = following - 1; i >= 0; --i) text += static_cast<char>(0x80 | (character >> 6 * i & 0x3F));
}

char32_t CharacterOfCodePage(unsigned char byte) {
    const bool special = byte >= FirstSpecial && byte < FirstSpecial + Specials.size();
    return special ? Specials[byte - FirstSpecial] : byte;
}

char ByteOfCodePage(char32_t character) {
    if (character < FirstSpecial || (character >= 0xA0 && character <= 0xFF)) {
        return static_cast<char>(character);
    }
    const auto found = std::find(Specials.begin(), Specials.end(), character);
    return found == Specials.end() ? '\0' : static_cast<char>(FirstSpecial + (found - Specials.begin()));
}

char UpperInCodePage(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    if ((code >= 'a' && code <= 'z') || (code >= 0xE0 && code <= 0xFE && code != 0xF7)) {
        return static_cast<char>(code - 0x20);
    }
    if (code == 0x9A || code == 0x9C || code == 0x9E) return static_cast<char>(code - 0x10);
    return code == 0xFF ? '\x9F' : byte;
}

}  // namespace tarvex
