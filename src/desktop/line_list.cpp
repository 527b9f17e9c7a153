#include "desktop/line_list.h"

#include <algorithm>
#include <utility>

#include "desktop/window_system.h"

namespace tarvex {

class LineList::Model final : public wxDataViewVirtualListModel {
  public:
    Model(unsigned columns, bool icons) : columns_(columns), icons_(icons) {}

    void Put(unsigned count, TextOfCell text, IconOfLine icon) {
        text_ = std::move(text);
        icon_ = std::move(icon);
        Reset(count);
    }
    // The list stays where it was scrolled to.
    void Change(unsigned count, TextOfCell text) {
        text_ = std::move(text);
        while (GetCount() > count) RowDeleted(GetCount() - 1);
        for (unsigned line = 0; line < GetCount(); ++line) RowChanged(line);
        while (GetCount() < count) RowAppended();
    }

    unsigned GetColumnCount() const override { return columns_; }
    wxString GetColumnType(unsigned) const override {
        return icons_ ? wxDataViewIconTextRenderer::GetDefaultType()
                      : wxDataViewTextRenderer::GetDefaultType();
    }
    void GetValueByRow(wxVariant& value, unsigned line, unsigned column) const override {
        if (icons_) {
            value << wxDataViewIconText(text_(line, column), icon_ ? icon_(line) : wxBitmapBundle());
        } else {
            value = text_(line, column);
        }
    }
    bool SetValueByRow(const wxVariant&, unsigned, unsigned) override { return false; }

  private:
    unsigned columns_;
    bool icons_;
    TextOfCell text_;
    IconOfLine icon_;
};

LineList::LineList(wxWindow* parent, long style, Model* model)
    : wxDataViewCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, style), model_(model) {
    AssociateModel(model_);
    model_->DecRef();
}

LineList::LineList(wxWindow* parent, bool icons)
    : LineList(parent, wxDV_SINGLE | wxDV_NO_HEADER, new Model(1, icons)) {
    if (icons) {
        Append(new wxDataViewIconTextRenderer, {}, 0, wxCOL_WIDTH_AUTOSIZE, false);
    } else {
        // A column that finds its own width would have every line laid out.
        Append(NewTextRenderer(), {}, 0, GetCharWidth(), false);
        LevelLines(*this);
    }
}

LineList::LineList(wxWindow* parent, const std::vector<Column>& columns, bool blocks)
    : LineList(parent, blocks ? wxDV_MULTIPLE : wxDV_SINGLE,
               new Model(static_cast<unsigned>(columns.size()), false)) {
    for (unsigned i = 0; const Column& column : columns) {
        Append(NewTextRenderer(), column.heading, i++, wxCOL_WIDTH_AUTOSIZE, column.number);
    }
}

void LineList::Append(wxDataViewRenderer* renderer, const wxString& heading, unsigned column, int width,
                      bool number) {
    const int align = number ? wxALIGN_RIGHT : wxALIGN_LEFT;
    renderer->SetAlignment(align | wxALIGN_CENTRE_VERTICAL);
    AppendColumn(new wxDataViewColumn(heading, renderer, column, width, static_cast<wxAlignment>(align)));
}

void LineList::MakeRoomFor(std::size_t characters) {
    GetColumn(0)->SetWidth(GetTextExtent(wxString('N', characters)).x + 2 * GetCharWidth());
}

void LineList::Put(unsigned count, TextOfLine text, IconOfLine icon) {
    model_->Put(
        count, [text = std::move(text)](unsigned line, unsigned) { return text(line); }, std::move(icon));
}

void LineList::Put(unsigned count, TextOfCell text) {
    model_->Change(count, std::move(text));
}

int LineList::LineOf(const wxDataViewItem& item) const {
    return item.IsOk() ? static_cast<int>(model_->GetRow(item)) : NoLine;
}

int LineList::Count() const {
    return static_cast<int>(model_->GetCount());
}

wxDataViewItem LineList::ItemOf(int line) const {
    return model_->GetItem(static_cast<unsigned>(line));
}

void LineList::SelectLine(int line) {
    if (line == Line()) return;
    if (line == NoLine) {
        UnselectAll();
        return;
    }
    SetCurrentItem(ItemOf(line));
    Select(ItemOf(line));
    Show(line);
}

std::vector<int> LineList::Selected() const {
    wxDataViewItemArray items;
    GetSelections(items);
    std::vector<int> lines;
    for (const wxDataViewItem& item : items) lines.push_back(LineOf(item));
    std::sort(lines.begin(), lines.end());
    return lines;
}

void LineList::SelectLines(const std::vector<int>& lines, int cursor) {
    if (lines == Selected()) return;
    if (cursor != NoLine) SetCurrentItem(ItemOf(cursor));
    UnselectAll();
    for (const int line : lines) Select(ItemOf(line));
    if (cursor == NoLine) return;
    Show(cursor == lines.front() ? lines.back() : lines.front());
    Show(cursor);
}

int LineList::LineAt(const wxPoint& place) {
    wxDataViewItem item;
    wxDataViewColumn* column = nullptr;
    HitTest(ScreenToClient(place), item, column);
    const int line = LineOf(item);
    return line < Count() ? line : NoLine;
}

int LineList::GapAt(const wxPoint& place) {
    const int y = ScreenToClient(place).y;
    const int line = LineAt(place);
    const int near = line == NoLine ? LineOf(GetTopItem()) : line;
    if (near == NoLine) return Count();
    const wxRect room = GetItemRect(ItemOf(near));
    const bool above = y < room.y + room.height / 2;
    if (line == NoLine) return above ? near : Count();
    return above ? line : line + 1;
}

void LineList::MarkGap(int gap) {
    const bool last = gap > 0 && gap == Count();
    MarkEdge(*this, last ? gap - 1 : gap, last);
}

void LineList::GoToLine(int line) {
    SetCurrentItem(ItemOf(line));
    UnselectAll();
}

}  // namespace tarvex
