#include "geometry/text_rules.h"

#include <algorithm>
#include <array>

#include "toolkit/failure.h"

namespace tarvex {

namespace {

unsigned char ByteAt(std::string_view text, std::size_t index) {
    return index < text.size() ? static_cast<unsigned char>(text[index]) : 0;
}

// The well-formed sequences of UTF-8 by their first byte, with the range of the second; all further bytes
// are 80 to BF.
struct Utf8Form {
    unsigned char first, last;
    unsigned char secondFrom, secondTo;
    std::size_t length;
};
constexpr Utf8Form Utf8Forms[] = {
    {0xC2, 0xDF, 0x80, 0xBF, 2}, {0xE0, 0xE0, 0xA0, 0xBF, 3}, {0xE1, 0xEC, 0x80, 0xBF, 3},
    {0xED, 0xED, 0x80, 0x9F, 3}, {0xEE, 0xEF, 0x80, 0xBF, 3}, {0xF0, 0xF0, 0x90, 0xBF, 4},
    {0xF1, 0xF3, 0x80, 0xBF, 4}, {0xF4, 0xF4, 0x80, 0x8F, 4},
};

// Bytes of the multi-byte UTF-8 sequence at `index`; 0 if there is none.
std::size_t Utf8SequenceLength(std::string_view text, std::size_t index) {
    const unsigned char lead = ByteAt(text, index);
    for (const Utf8Form& form : Utf8Forms) {
        if (lead < form.first || lead > form.last) continue;
        const unsigned char second = ByteAt(text, index + 1);
        if (second < form.secondFrom || second > form.secondTo) return 0;
        for (std::size_t k = 2; k < form.length; ++k) {
            if ((ByteAt(text, index + k) & 0xC0) != 0x80) return 0;
        }
        return form.length;
    }
    return 0;
}

// Windows code page 1252. B5 and DF have no capital in it.
constexpr std::array<char, 256> MakeUpperTable() {
    std::array<char, 256> table{};
    for (unsigned code = 0; code < table.size(); ++code) {
        unsigned upper = code;
        if ((code >= 'a' && code <= 'z') || (code >= 0xE0 && code <= 0xFE && code != 0xF7))
            upper = code - 0x20;
        if (code == 0x9A || code == 0x9C || code == 0x9E) upper = code - 0x10;
        if (code == 0xFF) upper = 0x9F;
        table[code] = static_cast<char>(upper);
    }
    return table;
}
constexpr std::array<char, 256> UpperTable = MakeUpperTable();

std::size_t CheckedLength(std::ptrdiff_t length) {
    if (length < 0) throw Failure(BadArgument, "a part of a text cannot have a negative length");
    return static_cast<std::size_t>(length);
}

std::size_t IndexOfPosition(std::ptrdiff_t position) {
    if (position < 1) throw Failure(BadArgument, "positions in a text count from 1");
    return static_cast<std::size_t>(position - 1);
}

}  // namespace

std::string_view LeftTrim(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text;
}

std::string_view RightTrim(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string_view Trim(std::string_view text) {
    return LeftTrim(RightTrim(text));
}

std::string Upper(std::string_view text) {
    std::string result(text);
    for (std::size_t index = 0; index < text.size();) {
        if (const std::size_t kept = Utf8SequenceLength(text, index)) {
            index += kept;
        } else {
            result[index] = UpperTable[ByteAt(text, index)];
            ++index;
        }
    }
    return result;
}

std::string_view Left(std::string_view text, std::ptrdiff_t length) {
    return text.substr(0, CheckedLength(length));
}

std::string_view Right(std::string_view text, std::ptrdiff_t length) {
    return text.substr(text.size() - std::min(CheckedLength(length), text.size()));
}

std::string_view Mid(std::string_view text, std::ptrdiff_t start) {
    return text.substr(std::min(IndexOfPosition(start), text.size()));
}

std::string_view Mid(std::string_view text, std::ptrdiff_t start, std::ptrdiff_t length) {
    return Mid(text, start).substr(0, CheckedLength(length));
}

std::ptrdiff_t Find(std::ptrdiff_t start, std::string_view text, std::string_view what) {
    const std::size_t index = text.find(what, IndexOfPosition(start));
    return index == std::string_view::npos ? 0 : static_cast<std::ptrdiff_t>(index) + 1;
}

}  // namespace tarvex
