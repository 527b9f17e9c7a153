#include "geometry/text_file.h"

#include <algorithm>

#include "geometry/text_rules.h"
#include "toolkit/failure.h"
#include "toolkit/lines.h"

namespace tarvex {

namespace {

constexpr std::string_view LineEndCharacters = "\r\n";
constexpr std::string_view ItemEndCharacters = ",\r\n";

std::size_t FindOrEnd(std::string_view text, std::string_view characters, std::size_t from) {
    return std::min(text.find_first_of(characters, from), text.size());
}

// The index behind the line end at `index`.
std::size_t BehindLineEnd(std::string_view text, std::size_t index) {
    return index + static_cast<std::size_t>(LineEndLength(text.data() + index, text.data() + text.size()));
}

}  // namespace

bool TextReader::AtEndOfFile() const {
    return position_ >= text_.size() && !itemOwed_;
}

std::string TextReader::ReadItem() {
    RequireMore();
    itemOwed_ = false;
    const std::size_t start = std::min(text_.find_first_not_of(" \t", position_), text_.size());
    if (text_.substr(start).starts_with('"')) {
        const std::size_t quote = FindOrEnd(text_, "\"", start + 1);
        PassItemEnd(FindOrEnd(text_, ItemEndCharacters, quote + 1));
        return std::string(text_.substr(start + 1, quote - start - 1));
    }
    const std::size_t end = FindOrEnd(text_, ItemEndCharacters, start);
    PassItemEnd(end);
    return std::string(RightTrim(text_.substr(start, end - start)));
}

std::string_view TextReader::ReadTextLine() {
    RequireMore();
    itemOwed_ = false;
    const std::size_t start = position_;
    const std::size_t end = FindOrEnd(text_, LineEndCharacters, start);
    position_ = BehindLineEnd(text_, end);
    return text_.substr(start, end - start);
}

std::size_t TextReader::LineNumber() const {
    std::size_t line = 1;
    for (std::size_t index = 0; (index = FindOrEnd(text_, LineEndCharacters, index)) < position_;) {
        index = BehindLineEnd(text_, index);
        ++line;
    }
    return line;
}

void TextReader::RequireMore() const {
    if (AtEndOfFile()) throw Failure(PastEndOfFile, std::string(name_) + ": nothing is left to read");
}

void TextReader::PassItemEnd(std::size_t end) {
    position_ = end;
    if (end == text_.size()) return;
    const bool comma = text_[end] == ',';
    position_ = comma ? end + 1 : BehindLineEnd(text_, end);
    itemOwed_ = comma && position_ == text_.size();
}

void WriteTextLine(std::string& file, std::initializer_list<std::string_view> pieces) {
    for (std::string_view piece : pieces) file.append(piece);
    file.append("\r\n");
}

}  // namespace tarvex
