#include "geometry/text_rules.h"

#include <algorithm>

#include "toolkit/characters.h"
#include "toolkit/failure.h"

namespace tarvex {

namespace {

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
        if (const std::size_t kept = Utf8CharacterAt(text.substr(index)).bytes) {
            index += kept;
        } else {
            result[index] = UpperInCodePage(text[index]);
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
