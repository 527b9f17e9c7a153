#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace tarvex {

// A text file being read from its start: by items or by lines. A line ends at CR LF, at CR, or at LF as
// editors on other systems write it.
class TextReader {
  public:
    // `text` is the file's whole content and must outlive the reader. `name` is the file's, for failures.
    TextReader(std::string_view text, std::string_view name) : text_(text), name_(name) {}

    bool AtEndOfFile() const;

    // The next item of a comma-separated list that runs over the lines: without the blanks and tabs in front,
    // up to a comma or a line end without trailing blanks, or what a pair of double quotes holds. Consumes
    // the comma or line end. A comma right before the end of the file gives one empty item behind it.
    // PastEndOfFile (62) when nothing is left.
    std::string ReadItem();

    // Everything up to the next line end, without it. PastEndOfFile (62) when nothing is left.
    std::string_view ReadTextLine();

    // Number of the line, from 1, in which the next read begins.
    std::size_t LineNumber() const;

  private:
    void RequireMore() const;
    void PassItemEnd(std::size_t end);

    std::string_view text_;
    std::string_view name_;
    std::size_t position_ = 0;
    bool itemOwed_ = false;  // a comma was the file's last character
};

// Appends the pieces, with nothing between them, and CR LF.
void WriteTextLine(std::string& file, std::initializer_list<std::string_view> pieces);

}  // namespace tarvex
