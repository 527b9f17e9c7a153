#include <wx/anybutton.h>
#include <wx/textctrl.h>

#include "desktop/form_builder.h"
#include "desktop/layouts.h"
#include "procedure/pick_file.h"

namespace tarvex {

void LayOutPicker(Form& form, NativeForm& window) {
    auto& picker = static_cast<PickFile&>(form);
    FormBuilder put(window);
    const int gap = put.Gap();

    auto* search = new wxBoxSizer(wxHORIZONTAL);
    search->Add(put.Put(picker.Label1), wxSizerFlags().CentreVertical());
    search->AddSpacer(gap);
    search->Add(put.Put(picker.PickICAO, 6, "ICAO to search"), wxSizerFlags().CentreVertical());

    auto* page = put.Content();
    page->Add(search, wxSizerFlags().Expand());
    page->AddSpacer(gap);
    page->Add(put.Put(picker.FileList, {26, 7}, "Procedures"), wxSizerFlags(1).Expand());
    page->AddSpacer(2 * gap);
    page->Add(put.Put(picker.DoneCommand), wxSizerFlags().Right());
}

}  // namespace tarvex
