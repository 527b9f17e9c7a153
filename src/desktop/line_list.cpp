#include "desktop/line_list.h"

#include <utility>

namespace tarvex {

class LineList::Model final : public wxDataViewVirtualListModel {
  public:
    explicit Model(bool icons) : icons_(icons) {}

    void Put(unsigned count, TextOfLine text, IconOfLine icon) {
        text_ = std::move(text);
        icon_ = std::move(icon);
        Reset(count);
    }

    unsigned GetColumnCount() const override { return 1; }
    wxString GetColumnType(unsigned) const override {
        return icons_ ? wxDataViewIconTextRenderer::GetDefaultType()
                      : wxDataViewTextRenderer::GetDefaultType();
    }
    void GetValueByRow(wxVariant& value, unsigned line, unsigned) const override {
        if (icons_) {
            value << wxDataViewIconText(text_(line), icon_ ? icon_(line) : wxBitmapBundle());
        } else {
            value = text_(line);
        }
    }
    bool SetValueByRow(const wxVariant&, unsigned, unsigned) override { return false; }

  private:
    bool icons_;
    TextOfLine text_;
    IconOfLine icon_;
};

LineList::LineList(wxWindow* parent, bool icons)
    : wxDataViewCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxDV_SINGLE | wxDV_NO_HEADER),
      model_(new Model(icons)) {
    AssociateModel(model_);
    model_->DecRef();
    wxDataViewRenderer* renderer = icons ? static_cast<wxDataViewRenderer*>(new wxDataViewIconTextRenderer)
                                         : static_cast<wxDataViewRenderer*>(new wxDataViewTextRenderer);
    renderer->SetAlignment(wxALIGN_LEFT | wxALIGN_CENTRE_VERTICAL);
    AppendColumn(new wxDataViewColumn(wxString(), renderer, 0));
}

void LineList::Put(unsigned count, TextOfLine text, IconOfLine icon) {
    model_->Put(count, std::move(text), std::move(icon));
}

int LineList::LineOf(const wxDataViewItem& item) const {
    return item.IsOk() ? static_cast<int>(model_->GetRow(item)) : NoLine;
}

void LineList::SelectLine(int line) {
    if (line == Line()) return;
    if (line == NoLine) {
        UnselectAll();
        return;
    }
    const wxDataViewItem item = model_->GetItem(static_cast<unsigned>(line));
    SetCurrentItem(item);
    Select(item);
    EnsureVisible(item);
}

}  // namespace tarvex
