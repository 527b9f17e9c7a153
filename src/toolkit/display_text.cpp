#include "toolkit/display_text.h"

#include <algorithm>
#include <vector>

#include "toolkit/characters.h"

namespace tarvex {

namespace {

constexpr char32_t ControlPictures = 0x2400;
constexpr char32_t DeletePicture = 0x2421;

char32_t ShownByte(unsigned char byte) {
    if (byte < 0x20) return ControlPictures + byte;
    return byte == 0x7F ? DeletePicture : CharacterOfCodePage(byte);
}

// The byte of a typed character; 0 where there is none.
char TypedByte(char32_t character) {
    return character < 0x20 || character == 0x7F ? '\0' : ByteOfCodePage(character);
}

struct Piece {
    char32_t shown;
    std::string_view bytes;
};

std::vector<Piece> Pieces(std::string_view text) {
    std::vector<Piece> pieces;
    while (!text.empty()) {
        if (const Utf8Character utf8 = Utf8CharacterAt(text); utf8.bytes != 0) {
            pieces.push_back({utf8.character, text.substr(0, utf8.bytes)});
        } else {
            pieces.push_back({ShownByte(static_cast<unsigned char>(text.front())), text.substr(0, 1)});
        }
        text.remove_prefix(pieces.back().bytes.size());
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
