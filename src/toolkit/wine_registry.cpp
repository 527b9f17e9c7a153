#include "toolkit/wine_registry.h"

#include <charconv>
#include <cstdint>
#include <utility>

#include "toolkit/characters.h"
#include "toolkit/folding.h"
#include "toolkit/lines.h"

namespace tarvex {

namespace {

constexpr char32_t Replacement = 0xFFFD;  // Unicode's mark for what is no character

bool TakeIfThere(std::string_view& text, std::string_view beginning) {
    if (!text.starts_with(beginning)) return false;
    text.remove_prefix(beginning.size());
    return true;
}

// Takes a number of at most `most` digits off the front; nothing when there is no digit.
std::optional<unsigned> TakeNumber(std::string_view& text, int base, std::size_t most) {
    unsigned number = 0;
    const auto digits = text.substr(0, most);
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number, base);
    if (error != std::errc()) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - digits.data()));
    return number;
}

// UTF-8 out of UTF-16 units and of bytes that stand for themselves.
class TextBuilder {
  public:
    void Byte(char byte) {
        EndPair();
        text_ += byte;
    }

    void Unit(char32_t unit) {
        if (unit >= 0xDC00 && unit <= 0xDFFF && high_ != 0) {
            AppendUtf8(text_, 0x10000 + ((std::exchange(high_, 0) - 0xD800) << 10) + (unit - 0xDC00));
            return;
        }
        EndPair();
        if (unit >= 0xD800 && unit <= 0xDBFF) {
            high_ = unit;
        } else {
            AppendUtf8(text_, unit >= 0xDC00 && unit <= 0xDFFF ? Replacement : unit);
        }
    }

    std::string Take() {
        EndPair();
        return std::move(text_);
    }

  private:
    void EndPair() {
        if (std::exchange(high_, 0) != 0) AppendUtf8(text_, Replacement);
    }

    std::string text_;
    char32_t high_ = 0;  // first half of a surrogate pair; 0 for none
};

// One escape, its backslash taken already.
void TakeEscape(std::string_view& rest, TextBuilder& text) {
    static constexpr std::string_view Letters = "abefnrtv";
    static constexpr std::string_view Meanings = "\a\b\x1B\f\n\r\t\v";
    if (rest.empty()) return;
    if (rest.front() == 'x') {
        std::string_view digits = rest.substr(1);
        if (const auto unit = TakeNumber(digits, 16, 4)) {
            rest = digits;
            text.Unit(*unit);
            return;
        }
    }
    if (const auto octal = TakeNumber(rest, 8, 3)) {
        text.Unit(*octal);
        return;
    }
    const auto letter = Letters.find(rest.front());
    text.Byte(letter == std::string_view::npos ? rest.front() : Meanings[letter]);
    rest.remove_prefix(1);
}

// Takes everything up to `end`, and it, off the front; nothing when the line has no such end.
std::optional<std::string> TakeText(std::string_view& rest, char end) {
    TextBuilder text;
    while (!rest.empty()) {
        const char c = rest.front();
        rest.remove_prefix(1);
        if (c == end) return text.Take();
        if (c == '\\') {
            TakeEscape(rest, text);
        } else {
            text.Byte(c);
        }
    }
    return std::nullopt;
}

// The bytes of a hex list, which runs over the lines that end in a backslash.
std::string HexBytes(std::string_view rest, LineCursor& lines) {
    std::string bytes;
    while (true) {
        const auto digit = rest.find_first_not_of(" ,");
        rest.remove_prefix(digit == std::string_view::npos ? rest.size() : digit);
        if (rest == "\\") {
            if (!lines.Next(rest)) return bytes;
        } else if (const auto byte = TakeNumber(rest, 16, 2)) {
            bytes += static_cast<char>(*byte);
        } else {
            return bytes;
        }
    }
}

std::string FromUtf16(std::string_view bytes) {
    TextBuilder text;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        text.Unit(static_cast<char32_t>(static_cast<unsigned char>(bytes[i]) |
                                        static_cast<unsigned char>(bytes[i + 1]) << 8));
    }
    return text.Take();
}

// Wine writes a text as hex when it lacks its closing zero.
std::string Terminated(std::string text) {
    if (text.empty() || text.back() != '\0') text += '\0';
    return text;
}

std::optional<std::string> ValueBytes(std::string_view rest, LineCursor& lines) {
    constexpr unsigned text = 1;
    constexpr unsigned textWithVariables = 2;

    if (TakeIfThere(rest, "dword:")) {
        const auto number = TakeNumber(rest, 16, 8);
        if (!number) return std::nullopt;
        std::string bytes;
        for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(*number >> shift & 0xFF);
        return bytes;
    }
    if (TakeIfThere(rest, "hex")) {
        std::optional<unsigned> type;
        if (TakeIfThere(rest, "(")) {
            type = TakeNumber(rest, 16, 8);
            if (!type || !TakeIfThere(rest, ")")) return std::nullopt;
        }
        if (!TakeIfThere(rest, ":")) return std::nullopt;
        std::string bytes = HexBytes(rest, lines);
        return type == text || type == textWithVariables ? Terminated(FromUtf16(bytes)) : bytes;
    }
    if (TakeIfThere(rest, "str(")) {
        if (!TakeNumber(rest, 16, 8) || !TakeIfThere(rest, "):")) return std::nullopt;
    }
    if (!TakeIfThere(rest, "\"")) return std::nullopt;
    auto value = TakeText(rest, '"');
    if (!value) return std::nullopt;
    return Terminated(std::move(*value));
}

WineKeyValues KeyValues(LineCursor& lines) {
    WineKeyValues values;
    std::string_view line;
    while (lines.Next(line) && !line.starts_with('[')) {
        std::optional<std::string> name;
        if (TakeIfThere(line, "@")) {
            name.emplace();
        } else if (TakeIfThere(line, "\"")) {
            name = TakeText(line, '"');
        }
        if (!name || !TakeIfThere(line, "=")) continue;
        if (auto bytes = ValueBytes(line, lines)) values.try_emplace(Folded(*name), std::move(*bytes));
    }
    return values;
}

}  // namespace

std::optional<WineKeyValues> FindWineKey(std::string_view text, std::string_view path) {
    if (!text.starts_with("WINE REGISTRY Version 2")) return std::nullopt;
    const std::string wanted = Folded(path);
    LineCursor lines(text);
    std::string_view line;
    while (lines.Next(line)) {
        if (!TakeIfThere(line, "[")) continue;
        const auto key = TakeText(line, ']');
        if (key && Folded(*key) == wanted) return KeyValues(lines);
    }
    return std::nullopt;
}

const std::string* FindWineValue(const WineKeyValues& values, std::string_view name) {
    const auto found = values.find(Folded(name));
    return found == values.end() ? nullptr : &found->second;
}

}  // namespace tarvex
