#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace tarvex {

// The first CR or LF, or `end`. Lines are short: eight characters at a time in plain arithmetic find their
// ends faster than a library call for each line does.
inline const char* FindLineEnd(const char* at, const char* end) {
    using Word = std::uint64_t;
    constexpr Word EachByte = 0x0101010101010101;
    static_assert(std::endian::native == std::endian::little, "the first character is the lowest byte");
    while (end - at >= static_cast<std::ptrdiff_t>(sizeof(Word))) {
        Word word = 0;
        std::memcpy(&word, at, sizeof word);
        // The high bit of the lowest byte that is CR or below.
        const Word low = (word - EachByte * ('\r' + 1)) & ~word & (EachByte * 0x80);
        if (low == 0) {
            at += sizeof word;
            continue;
        }
        at += std::countr_zero(low) / 8;
        if (*at == '\r' || *at == '\n') return at;
        ++at;
    }
    while (at != end && *at != '\r' && *at != '\n') ++at;
    return at;
}

// Characters of the line end at `at`: none at `end`, two of CR LF.
inline std::ptrdiff_t LineEndLength(const char* at, const char* end) {
    if (at == end) return 0;
    return end - at >= 2 && at[0] == '\r' && at[1] == '\n' ? 2 : 1;
}

// The lines of a text, each ended by CR, CR LF or LF; the last one may lack its end.
class LineCursor {
  public:
    explicit LineCursor(std::string_view text) : position_(text.data()), end_(text.data() + text.size()) {}

    // The next line, without its end. False when there is none.
    bool Next(std::string_view& line) {
        if (position_ == end_) return false;
        const char* const lineEnd = FindLineEnd(position_, end_);
        line = {position_, static_cast<std::size_t>(lineEnd - position_)};
        ++number_;
        position_ = lineEnd + LineEndLength(lineEnd, end_);
        return true;
    }

    std::size_t Number() const { return number_; }  // of the line taken last, from 1

  private:
    const char* position_;
    const char* end_;
    std::size_t number_ = 0;
};

}  // namespace tarvex
