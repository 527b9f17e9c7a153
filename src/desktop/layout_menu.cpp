#include <wx/anybutton.h>

#include "desktop/form_builder.h"
#include "desktop/layouts.h"
#include "desktop/menu_picture.h"
#include "desktop/native_form.h"
#include "startup/initial_load.h"

namespace tarvex {

void LayOutMenu(Form& form, NativeForm& window) {
    auto& menu = static_cast<InitialLoad&>(form);
    FormBuilder put(window);
    const int gap = put.Gap();

    auto* actions = new wxFlexGridSizer(2, 2 * gap, 2 * gap);
    actions->AddGrowableCol(0, 1);
    actions->AddGrowableCol(1, 1);
    for (int row = 0; row < 3; ++row) actions->AddGrowableRow(static_cast<std::size_t>(row), 1);
    const wxSize size(22 * gap, 5 * gap);
    for (Button* button : {&menu.CreateDP, &menu.ModifyDP, &menu.CreateSTAR, &menu.ModifySTAR,
                           &menu.CreateIAP, &menu.ModifyIAP}) {
        wxAnyButton* widget = put.Put(*button);
        widget->SetMinSize(size);
        actions->Add(widget, wxSizerFlags(1).Expand());
    }
    wxAnyButton* exit = put.Put(menu.ExitCommand);
    exit->SetMinSize({14 * gap, 4 * gap});

    auto* page = new wxBoxSizer(wxVERTICAL);
    page->Add(new MenuPicture(&window.Page(), "Tarvex", "Departures, arrivals and approaches"),
              wxSizerFlags(0).Expand());
    page->Add(actions, wxSizerFlags(1).Expand().Border(wxALL, 3 * gap));
    page->Add(exit, wxSizerFlags().Centre().Border(wxLEFT | wxRIGHT | wxBOTTOM, 3 * gap));
    window.Page().SetSizer(page);
}

}  // namespace tarvex
