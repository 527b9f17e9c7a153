#include "toolkit/display_text.h"

#include <algorithm>
#include <array>
#include <vector>

namespace tarvex {

namespace {

constexpr char32_t ControlPictures = 0x2400;
constexpr char32_t DeletePicture = 0x2421;

// The characters of the bytes 80 to 9F in Windows-1252; the five that it leaves open stand for themselves.
constexpr std::array<char32_t, 32> UpperControls = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

char32_t ShownByte(unsigned char byte) {
    if (byte < 0x20) return ControlPictures + byte;
    if (byte == 0x7F) return DeletePicture;
    if (byte >= 0x80 && byte < 0xA0) return UpperControls[byte - 0x80u];
    return byte;
}

// The byte of a typed character; 0 where there is none.
char TypedByte(char32_t character) {
    if (character >= 0x20 && character < 0x7F) return static_cast<char>(character);
    if (character >= 0xA0 && character <= 0xFF) return static_cast<char>(character);
    const auto found = std::find(UpperControls.begin(), UpperControls.end(), character);
    return found == UpperControls.end() ? '\0' : static_cast<char>(0x80 + (found - UpperControls.begin()));
}

struct Piece {
    char32_t shown;
    std::string_view bytes;
};

bool IsContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0u) == 0x80u;
}

// The UTF-8 character of two to four bytes that `text` begins with; no bytes when there is none.
Piece Utf8Character(std::string_view text) {
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
    return {character, text.substr(0, length)};
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

std::vector<Piece> Pieces(std::string_view text) {
    std::vector<Piece> pieces;
    while (!text.empty()) {
        Piece piece = Utf8Character(text);
        if (piece.bytes.empty()) {
            piece = {ShownByte(static_cast<unsigned char>(text.front())), text.substr(0, 1)};
        }
        pieces.push_back(piece);
        text.remove_prefix(piece.bytes.size());
    }
    return pieces;
}

}  // namespace

std::u32string ShownText(std::string_view text) {
    std::u32string shown;
    for (const Piece& piece : Pieces(text)) shown += piece.shown;
    return shown;
}

std::string ShownUtf8(std::string_view text) {
    std::string shown;
    for (const char32_t character : ShownText(text)) AppendUtf8(shown, character);
    return shown;
}

std::string TypedText(std::string_view before, std::u32string_view shown) {
    const auto pieces = Pieces(before);
    const std::size_t common = std::min(pieces.size(), shown.size());
    std::size_t head = 0;
    while (head < common && pieces[head].shown == shown[head]) ++head;
    std::size_t tail = 0;
    while (tail < common - head && pieces[pieces.size() - 1 - tail].shown == shown[shown.size() - 1 - tail]) {
        ++tail;
    }

    std::string text;
    for (std::size_t i = 0; i < head; ++i) text += pieces[i].bytes;
    for (const char32_t character : shown.substr(head, shown.size() - head - tail)) {
        if (const char byte = TypedByte(character); byte != '\0') text += byte;
    }
    for (std::size_t i = pieces.size() - tail; i < pieces.size(); ++i) text += pieces[i].bytes;
    return text;
}

std::string PlainCaption(std::string_view caption) {
    std::string plain;
    bool gap = false;
    for (const char c : caption) {
        if (c == ' ' || c == '\r' || c == '\n') {
            gap = true;
            continue;
        }
        if (gap && !plain.empty()) plain += ' ';
        gap = false;
        plain += c;
    }
    return plain;
}

}  // namespace tarvex
