#include "toolkit/list_box.h"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <numeric>
#include <utility>

namespace tarvex {

void ListBox::SetListIndex(int index) {
    RequireIndex(index >= NoSelection && index < ListCount());
    SetSelected(index == NoSelection ? std::vector<int>() : std::vector{index}, index);
}

std::vector<int> ListBox::Selected() const {
    if (!block_.empty()) return block_;
    return listIndex_ == NoSelection ? std::vector<int>() : std::vector{listIndex_};
}

void ListBox::SetSelected(std::vector<int> lines, int index, int anchor) {
    const bool rising = std::adjacent_find(lines.begin(), lines.end(), std::greater_equal()) == lines.end();
    const bool there = lines.empty() || (lines.front() >= 0 && lines.back() < ListCount());
    RequireIndex(rising && there && std::binary_search(lines.begin(), lines.end(), index) != lines.empty());
    if (lines.size() < 2) lines.clear();
    anchor_ = anchor;
    if (listIndex_ == index && block_ == lines) return;
    block_ = std::move(lines);
    const bool clicked = std::exchange(listIndex_, index) != index;
    if (index != NoSelection) newestLine_ = index;
    Changed();
    if (clicked) Run(OnClick);
}

int ListBox::Anchor() const {
    const auto lines = Selected();
    return std::binary_search(lines.begin(), lines.end(), anchor_) ? anchor_ : listIndex_;
}

void ListBox::ExtendTo(int index) {
    const int anchor = listIndex_ == NoSelection ? index : Anchor();
    std::vector<int> lines(static_cast<std::size_t>(std::abs(index - anchor)) + 1);
    std::iota(lines.begin(), lines.end(), std::min(index, anchor));
    SetSelected(std::move(lines), index, anchor);
}

std::string ListBox::Text() const {
    return listIndex_ == NoSelection ? std::string() : List(listIndex_);
}

void ListBox::AddItem(std::string_view text) {
    AddItem(text, ListCount());
}

void ListBox::AddItem(std::string_view text, int index) {
    RequireIndex(index >= 0 && index <= ListCount());
    lines_.emplace(lines_.begin() + index, text);
    block_.clear();
    if (listIndex_ >= index) ++listIndex_;
    newestLine_ = index;
    Changed();
}

void ListBox::RemoveItem(int index) {
    RequireIndex(index >= 0 && index < ListCount());
    lines_.erase(lines_.begin() + index);
    block_.clear();
    if (listIndex_ == index) {
        listIndex_ = NoSelection;
    } else if (listIndex_ > index) {
        --listIndex_;
    }
    newestLine_ = NoSelection;
    Changed();
}

void ListBox::Clear() {
    SetLines({});
}

void ListBox::SetLines(std::vector<std::string> lines) {
    lines_ = std::move(lines);
    block_.clear();
    listIndex_ = NoSelection;
    newestLine_ = NoSelection;
    Changed();
}

std::vector<std::string> ColumnList::Cells(int index) const {
    std::vector<std::string> cells(columns_.size());
    std::string_view rest = List(index);
    for (std::string& cell : cells) {
        const auto end = std::min(rest.find('\t'), rest.size());
        cell = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return cells;
}

}  // namespace tarvex
