#include "desktop/message_dialog.h"

#include <wx/artprov.h>
#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>
#include <wx/tokenzr.h>

#include "desktop/native_text.h"
#include "desktop/program_icon.h"
#include "desktop/window_system.h"

namespace tarvex {

namespace {

// The lines without the blanks that would centre them in a font of fixed width.
wxString Trimmed(const wxString& text) {
    wxString trimmed;
    wxStringTokenizer lines(text, "\n", wxTOKEN_RET_EMPTY);
    while (lines.HasMoreTokens()) {
        trimmed += lines.GetNextToken().Trim(false).Trim(true);
        if (lines.HasMoreTokens()) trimmed += '\n';
    }
    return trimmed;
}

}  // namespace

MessageDialog::MessageDialog(wxWindow* parent, const Message& message)
    : wxDialog(parent, wxID_ANY, Shown(message.title), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE) {
    MarkAsAlert(*this);
    SetIcons(ProgramIcons());
    const int gap = (GetCharHeight() + 1) / 2;
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    if (message.icon == MessageIcon::Critical) {
        row->Add(new wxStaticBitmap(this, wxID_ANY,
                                    wxArtProvider::GetBitmapBundle(wxART_ERROR, wxART_MESSAGE_BOX)),
                 wxSizerFlags().CentreVertical());
        row->AddSpacer(2 * gap);
    }
    row->Add(MakeText(message), wxSizerFlags(1).CentreVertical());

    auto* page = new wxBoxSizer(wxVERTICAL);
    page->Add(row, wxSizerFlags(1).Expand().Border(wxALL, 3 * gap));
    page->Add(MakeButtons(message), wxSizerFlags().Centre().Border(wxLEFT | wxRIGHT | wxBOTTOM, 2 * gap));
    page->SetMinSize({30 * gap, -1});
    SetSizerAndFit(page);
    CentreOnParent();
}

wxWindow* MessageDialog::MakeText(const Message& message) {
    const wxString text = ShownLines(message.prompt);
    auto* widget = new wxStaticText(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                                    wxALIGN_CENTRE_HORIZONTAL);
    widget->SetLabelText(Trimmed(text));
    NameForAccess(*widget, "Prompt", text);
    return widget;
}

wxSizer* MessageDialog::MakeButtons(const Message& message) {
    const bool question = message.buttons == MessageButtons::YesNo;
    auto* buttons = new wxGridSizer(question ? 2 : 1, 0, GetCharHeight());
    const auto add = [&](wxWindowID id, const char* label, MessageAnswer answer) {
        auto* button = new wxButton(this, id, label);
        button->SetMinSize({8 * GetCharHeight(), -1});
        button->Bind(wxEVT_BUTTON, [this, id](wxCommandEvent&) { EndModal(id); });
        buttons->Add(button, wxSizerFlags().Expand());
        if (!question || answer == message.defaultAnswer) {
            button->SetDefault();
            first_ = button;
        }
    };
    if (question) {
        add(wxID_YES, "Yes", MessageAnswer::Yes);
        add(wxID_NO, "No", MessageAnswer::No);
    } else {
        add(wxID_OK, "OK", MessageAnswer::Ok);
    }
    SetEscapeId(question ? wxID_NO : wxID_OK);
    return buttons;
}

int MessageDialog::ShowModal() {
    if (first_ != nullptr) first_->SetFocus();
    Present(*this);
    return wxDialog::ShowModal();
}

}  // namespace tarvex
