#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarvex {

// Characters of 8-bit texts: UTF-8, and the Windows Latin-1 code page (1252).

struct Utf8Character {
    char32_t character = 0;
    std::size_t bytes = 0;  // 2 to 4; 0 for none
};

// The well-formed UTF-8 sequence of several bytes that the text begins with.
Utf8Character Utf8CharacterAt(std::string_view text);
void AppendUtf8(std::string& text, char32_t character);

// The five codes that the code page leaves open stand for the control characters of that number.
char32_t CharacterOfCodePage(unsigned char byte);
// 0 for a character that the code page lacks.
char ByteOfCodePage(char32_t character);
// The capital of a letter; B5 and DF have none in the code page. Every other byte stands for itself.
char UpperInCodePage(char byte);

}  // namespace tarvex
