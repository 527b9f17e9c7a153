#include "desktop/form_builder.h"

#include <wx/bmpbuttn.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/listbox.h>
#include <wx/notebook.h>
#include <wx/radiobut.h>
#include <wx/statbox.h>
#include <wx/statline.h>
#include <wx/textctrl.h>

#include "desktop/act_binders.h"
#include "desktop/box_binder.h"
#include "desktop/list_binders.h"
#include "desktop/native_form.h"
#include "desktop/native_text.h"
#include "desktop/picture_binder.h"

namespace tarvex {

int FormBuilder::Gap() const {
    return (window_.Page().GetCharHeight() + 1) / 2;
}

wxWindow* FormBuilder::Inside(const Frame& frame) const {
    return frames_.at(&frame);
}

wxWindow* FormBuilder::ParentOf(const Control& control) const {
    if (control.Container() != nullptr) return frames_.at(control.Container());
    const auto page = pages_.find(&control);
    if (page != pages_.end()) return page->second;
    return parent_ != nullptr ? parent_ : &window_.Page();
}

wxSize FormBuilder::SizeOf(wxSize characters) const {
    const wxWindow& page = window_.Page();
    return {page.GetTextExtent(wxString('N', static_cast<std::size_t>(characters.x))).x,
            characters.y * (page.GetCharHeight() + Gap())};
}

wxStaticText* FormBuilder::Put(Label& label, LabelStyle style) {
    return PutText(label, style, 0).Text();
}

wxStaticText* FormBuilder::PutShort(Label& label, LabelStyle style) {
    wxStaticText* widget = PutText(label, style, wxST_ELLIPSIZE_MIDDLE | wxST_NO_AUTORESIZE).Text();
    widget->SetMinSize({1, widget->GetCharHeight() + 2});
    return widget;
}

wxStaticText* FormBuilder::PutFields(Label& label) {
    LabelBinder& binder = PutText(label, LabelStyle::Plain, 0);
    binder.KeepBlanks();
    return binder.Text();
}

LabelBinder& FormBuilder::PutText(Label& label, LabelStyle style, long flags) {
    auto* widget =
        new wxStaticText(ParentOf(label), wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, flags);
    wxFont font = widget->GetFont();
    if (style == LabelStyle::Heading) font.Scale(1.5f);
    if (style != LabelStyle::Plain) widget->SetFont(font.Bold());
    return window_.Tie<LabelBinder>(label, std::vector{widget});
}

wxTextCtrl* FormBuilder::Put(TextBox& box, int characters, const wxString& spoken) {
    auto* widget = new wxTextCtrl(ParentOf(box), wxID_ANY);
    widget->SetInitialSize(widget->GetSizeFromTextSize(SizeOf({characters, 1}).x));
    window_.Tie<TextBoxBinder>(box, *widget, spoken);
    return widget;
}

wxAnyButton* FormBuilder::Put(Button& button) {
    auto* widget = new wxButton(ParentOf(button), wxID_ANY, wxString(" "));
    window_.Tie<ButtonBinder>(button, *widget);
    return widget;
}

wxBitmapButton* FormBuilder::PutGlyph(Button& button, Glyph glyph, const wxString& spoken) {
    const int size = 2 * Gap();
    auto* widget = new wxBitmapButton(ParentOf(button), wxID_ANY, GlyphImage(glyph, size));
    widget->Bind(wxEVT_SYS_COLOUR_CHANGED, [widget, glyph, size](wxSysColourChangedEvent& event) {
        event.Skip();
        widget->SetBitmap(GlyphImage(glyph, size));
    });
    window_.Tie<ButtonBinder>(button, *widget, spoken);
    return widget;
}

wxAnyButton* FormBuilder::PutSymbol(Button& button, Glyph glyph, const wxString& spoken) {
    wxBitmapButton* widget = PutGlyph(button, glyph, spoken);
    widget->SetToolTip(spoken);
    return widget;
}

wxSizer* FormBuilder::PutSmall(Button& button, Glyph glyph, Label& label) {
    wxBitmapButton* widget = PutGlyph(button, glyph, ShownLines(label.Caption()));
    auto* text = new wxStaticText(ParentOf(label), wxID_ANY, wxString());
    window_.Tie<LabelBinder>(label, std::vector{text}).PressesButton(button);
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(widget, wxSizerFlags().CentreVertical());
    row->AddSpacer(Gap() * 3 / 4);
    row->Add(text, wxSizerFlags().CentreVertical());
    return row;
}

wxRadioButton* FormBuilder::Put(OptionButton& option) {
    wxWindow* parent = ParentOf(option);
    wxRadioButton*& none = none_[option.Container()];
    if (none == nullptr) {
        none = new wxRadioButton(parent, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, wxRB_GROUP);
        none->Hide();
    }
    auto* widget = new wxRadioButton(parent, wxID_ANY, Shown(option.Caption()));
    window_.Tie<OptionBinder>(option, *widget, *none);
    return widget;
}

wxCheckBox* FormBuilder::Put(CheckBox& check) {
    auto* widget = new wxCheckBox(ParentOf(check), wxID_ANY, Shown(check.Caption()));
    window_.Tie<CheckBoxBinder>(check, *widget);
    return widget;
}

wxListBox* FormBuilder::Put(ListBox& list, wxSize characters, const wxString& spoken) {
    auto* widget = new wxListBox(ParentOf(list), wxID_ANY);
    widget->SetMinSize(SizeOf(characters));
    window_.Tie<ListBoxBinder>(list, *widget, spoken);
    return widget;
}

wxChoice* FormBuilder::Put(DriveList& list, const wxString& spoken) {
    auto* widget = new wxChoice(ParentOf(list), wxID_ANY);
    window_.Tie<DriveListBinder>(list, *widget, spoken);
    return widget;
}

LineList* FormBuilder::Put(FolderList& list, wxSize characters, const wxString& spoken) {
    auto* widget = new LineList(ParentOf(list), true);
    widget->SetMinSize(SizeOf(characters));
    window_.Tie<FolderListBinder>(list, *widget, spoken);
    return widget;
}

LineList* FormBuilder::Put(FileList& list, wxSize characters, const wxString& spoken) {
    auto* widget = new LineList(ParentOf(list), false);
    widget->SetMinSize(SizeOf(characters));
    window_.Tie<FileListBinder>(list, *widget, spoken);
    return widget;
}

void FormBuilder::FillPage(const Control& content, wxWindow* widget) {
    const auto page = pages_.find(&content);
    if (page == pages_.end()) return;
    page->second->SetSizer(new wxBoxSizer(wxVERTICAL));
    // It has its place also while another page is shown.
    page->second->GetSizer()->Add(widget, wxSizerFlags(1).Expand().ReserveSpaceEvenIfHidden());
}

LineList* FormBuilder::Put(ColumnList& list, wxSize characters, const wxString& spoken) {
    std::vector<LineList::Column> columns;
    for (const auto& [heading, number] : list.Columns()) columns.push_back({Shown(heading), number});
    auto* widget = new LineList(ParentOf(list), columns, list.OnMove != nullptr);
    widget->SetMinSize(SizeOf(characters));
    window_.Tie<ColumnListBinder>(list, *widget, spoken);
    FillPage(list, widget);
    return widget;
}

wxWindow* FormBuilder::Put(Picture& picture) {
    auto* widget = new wxWindow(ParentOf(picture), wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                wxWANTS_CHARS | wxFULL_REPAINT_ON_RESIZE);
    window_.Tie<PictureBinder>(picture, *widget);
    FillPage(picture, widget);
    return widget;
}

wxWindow* FormBuilder::Put(Tabs& tabs, const wxString& spoken) {
    auto* widget = new wxNotebook(ParentOf(tabs), wxID_ANY);
    for (const auto& [caption, content] : tabs.Pages()) {
        auto* page = new wxPanel(widget);
        widget->AddPage(page, Shown(caption));
        pages_[content] = page;
    }
    window_.Tie<TabsBinder>(tabs, *widget, spoken);
    return widget;
}

wxSizer* FormBuilder::Put(Frame& frame, wxOrientation orientation) {
    if (frame.Caption().empty()) {
        auto* panel = new wxPanel(ParentOf(frame));
        frames_[&frame] = panel;
        panel->SetSizer(new wxBoxSizer(orientation));
        window_.Tie<FrameBinder>(frame, *panel);
        return panel->GetSizer();
    }
    auto* box = new wxStaticBox(ParentOf(frame), wxID_ANY, Shown(frame.Caption()));
    frames_[&frame] = box;
    window_.Tie<FrameBinder>(frame, *box);
    return new wxStaticBoxSizer(box, orientation);
}

wxSizer* FormBuilder::Row(std::initializer_list<Button*> buttons) {
    auto* row = new wxGridSizer(static_cast<int>(buttons.size()), 0, Gap());
    for (Button* button : buttons) row->Add(Put(*button), wxSizerFlags().Expand());
    return row;
}

void FormBuilder::Pair(wxFlexGridSizer& grid, Label& label, TextBox& box, int characters,
                       const wxString& spoken) {
    grid.Add(Put(label), wxSizerFlags().CentreVertical());
    grid.Add(Put(box, characters, spoken), wxSizerFlags().CentreVertical());
}

void FormBuilder::Put(const Axis& axis, wxFlexGridSizer& grid) {
    const auto middle = wxSizerFlags().CentreVertical();
    // The caption names the two boxes and the axis; each name has its own place.
    std::vector<wxStaticText*> labels(3);
    for (wxStaticText*& label : labels) {
        label = new wxStaticText(ParentOf(axis.label), wxID_ANY, wxString());
    }
    window_.Tie<LabelBinder>(axis.label, labels);
    const wxString spoken(axis.spoken);

    wxSizer* options = Put(axis.hemisphere, wxHORIZONTAL);
    wxRadioButton* first = Put(axis.group.positive);
    // Lined up with the options of the other axis.
    first->SetMinSize({first->GetTextExtent("North Long").x + 3 * Gap(), -1});
    options->Add(first, middle);
    options->AddSpacer(Gap());
    options->Add(Put(axis.group.negative), middle);

    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(labels[1], middle);
    row->AddSpacer(Gap());
    row->Add(Put(axis.group.degrees, 5, spoken + " degrees"), middle);
    row->AddSpacer(2 * Gap());
    row->Add(labels[2], middle);
    row->AddSpacer(Gap());
    row->Add(Put(axis.group.minutes, 10, spoken + " minutes"), middle);
    row->AddSpacer(2 * Gap());
    row->Add(Inside(axis.hemisphere), middle);
    grid.Add(labels[0], middle);
    grid.Add(row, middle);
}

wxWindow* FormBuilder::Line(wxOrientation orientation) {
    return new wxStaticLine(&window_.Page(), wxID_ANY, wxDefaultPosition, wxDefaultSize,
                            orientation == wxHORIZONTAL ? wxLI_HORIZONTAL : wxLI_VERTICAL);
}

wxBoxSizer* FormBuilder::Content() {
    auto* margin = new wxBoxSizer(wxVERTICAL);
    auto* content = new wxBoxSizer(wxVERTICAL);
    margin->Add(content, wxSizerFlags(1).Expand().Border(wxALL, 2 * Gap()));
    window_.Page().SetSizer(margin);
    return content;
}

}  // namespace tarvex
