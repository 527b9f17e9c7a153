#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "toolkit/control.h"

namespace tarvex {

// A list of lines of which at most one is selected, or several of them, one of which is the current line.
// Line indexes count from 0.
class ListBox : public Control {
  public:
    static constexpr int NoSelection = -1;

    ListBox(Form& form, std::string_view name, int tabIndex) : Control(form, name, tabIndex) {}

    int ListCount() const { return static_cast<int>(lines_.size()); }
    const std::string& List(int index) const { return lines_.at(static_cast<std::size_t>(index)); }
    const std::vector<std::string>& Lines() const { return lines_; }

    int ListIndex() const { return listIndex_; }
    // NoSelection ends the selection. Runs OnClick when the current line changes.
    void SetListIndex(int index);
    // The selected lines in rising order, with the current one.
    std::vector<int> Selected() const;
    // Selects several lines in rising order; `index`, one of them, becomes the current one as above.
    void SetSelected(std::vector<int> lines, int index) { SetSelected(std::move(lines), index, index); }
    void SetSelected(std::vector<int> lines, int index, int anchor);
    // The selected line at which a range begins that is selected next: the one that was picked last without
    // one. NoSelection without a selection.
    int Anchor() const;
    // Selects the range from there to `index`, which becomes the current line.
    void ExtendTo(int index);
    // The text of the current line; empty without a selection.
    std::string Text() const;

    void AddItem(std::string_view text);
    // Inserts in front of line `index`. The current line stays selected wherever it comes to stand, others
    // that were selected with it do not, here as in what follows.
    void AddItem(std::string_view text, int index);
    // Ends the selection, without OnClick, when the line is the current one.
    void RemoveItem(int index);
    // Ends the selection too, without OnClick.
    void Clear();
    // Replaces all lines, and ends the selection without OnClick.
    void SetLines(std::vector<std::string> lines);

    // The line that a window brings into sight: the one that was added or selected last. NoSelection when
    // that has gone, or when all lines were replaced since.
    int NewestLine() const { return newestLine_; }

    bool TakesFocus() const override { return true; }

    std::function<void()> OnClick;

  private:
    std::vector<std::string> lines_;
    int listIndex_ = NoSelection;
    std::vector<int> block_;    // the selected lines where there are several
    int anchor_ = NoSelection;  // may have gone
    int newestLine_ = NoSelection;
};

// A list whose lines have columns, with a heading over each: in the text of a line a tab parts them. The user
// selects several of them where the list lets them be moved.
class ColumnList : public ListBox {
  public:
    struct Column {
        std::string heading;
        bool number = false;  // its texts stand at the right
    };

    ColumnList(Form& form, std::string_view name, std::vector<Column> columns, int tabIndex)
        : ListBox(form, name, tabIndex), columns_(std::move(columns)) {}

    const std::vector<Column>& Columns() const { return columns_; }
    // The texts of a line, one for each column.
    std::vector<std::string> Cells(int index) const;

    std::function<void()> OnCopy;
    // The user dragged the selected lines in front of line `before`, or behind the last one.
    std::function<void(int before)> OnMove;

  private:
    std::vector<Column> columns_;
};

}  // namespace tarvex
