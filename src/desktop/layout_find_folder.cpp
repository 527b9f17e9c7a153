#include <wx/anybutton.h>

#include "desktop/form_builder.h"
#include "desktop/layouts.h"
#include "startup/find_fs2000_form.h"

namespace tarvex {

void LayOutFindFolder(Form& form, NativeForm& window) {
    auto& screen = static_cast<FindFS2000Form&>(form);
    FormBuilder put(window);
    const int gap = put.Gap();

    wxSizer* box = put.Put(screen.Frame1, wxVERTICAL);
    put.StandIn(put.Inside(screen.Frame1));
    auto* inner = new wxBoxSizer(wxVERTICAL);
    for (Label* label : {&screen.Label1, &screen.Label2, &screen.Label3}) {
        inner->Add(put.Put(*label), wxSizerFlags().Border(wxBOTTOM, gap / 3));
    }
    inner->AddSpacer(gap);
    inner->Add(put.Put(screen.Drive1, "Drive"), wxSizerFlags().Expand());
    inner->AddSpacer(gap);
    inner->Add(put.Put(screen.Dir1, {34, 6}, "Folder"), wxSizerFlags(1).Expand());
    inner->AddSpacer(gap);
    inner->Add(put.PutShort(screen.DataHintLabel), wxSizerFlags().Expand());
    inner->Add(put.Put(screen.WayBackLabel), wxSizerFlags().Border(wxTOP, gap / 3));
    inner->AddSpacer(gap);
    wxAnyButton* done = put.Put(screen.FindDoneCommand);
    done->SetMinSize({12 * gap, -1});
    inner->Add(done, wxSizerFlags().Right());
    box->Add(inner, wxSizerFlags(1).Expand().Border(wxALL, gap));
    put.Content()->Add(box, wxSizerFlags(1).Expand());
}

}  // namespace tarvex
