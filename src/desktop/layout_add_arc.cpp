#include <wx/anybutton.h>
#include <wx/radiobut.h>
#include <wx/textctrl.h>

#include "desktop/form_builder.h"
#include "desktop/layouts.h"
#include "geometry/add_arc.h"

namespace tarvex {

void LayOutAddArc(Form& form, NativeForm& window) {
    auto& arc = static_cast<AddARC&>(form);
    FormBuilder put(window);
    const int gap = put.Gap();
    const auto middle = wxSizerFlags().CentreVertical();

    auto* boxes = new wxFlexGridSizer(2, gap, gap);
    boxes->Add(put.Put(arc.Label1), middle);
    boxes->Add(put.Put(arc.ArcStartText, 6, "ARC Start"), middle);
    boxes->Add(put.Put(arc.Label2), middle);
    boxes->Add(put.Put(arc.ArcEndText, 6, "ARC End"), middle);
    boxes->Add(put.Put(arc.Label3), middle);
    boxes->Add(put.Put(arc.ArcRadiusText, 6, "ARC Radius"), middle);

    wxSizer* turn = put.Put(arc.Frame1, wxVERTICAL);
    turn->Add(put.Put(arc.RightOption), wxSizerFlags().Border(wxALL, gap));
    turn->Add(put.Put(arc.LeftOption), wxSizerFlags().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));

    wxSizer* variation = put.Put(arc.Frame2, wxHORIZONTAL);
    put.StandIn(put.Inside(arc.Frame2));
    variation->Add(put.Put(arc.MagVarText, 6, "Magnetic Variation"), wxSizerFlags(middle).Border(wxALL, gap));
    variation->Add(put.Put(arc.EastVarOption), wxSizerFlags(middle).Border(wxALL, gap));
    variation->Add(put.Put(arc.WestVarOption), wxSizerFlags(middle).Border(wxALL, gap));
    put.StandIn(nullptr);

    auto* upper = new wxBoxSizer(wxHORIZONTAL);
    upper->Add(boxes, wxSizerFlags().CentreVertical());
    upper->AddSpacer(3 * gap);
    upper->Add(turn, wxSizerFlags(1).Top());

    auto* centre = new wxGridSizer(2, 0, gap);
    centre->Add(put.Put(arc.Command1), wxSizerFlags().Expand());
    centre->Add(put.Put(arc.LatLongCommand), wxSizerFlags().Expand());

    auto* label = new wxBoxSizer(wxHORIZONTAL);
    label->Add(put.Put(arc.Label4), wxSizerFlags().CentreVertical().ReserveSpaceEvenIfHidden());
    label->AddSpacer(gap);
    label->Add(put.Put(arc.ArcLabelText, 8, "ARC Label"),
               wxSizerFlags(1).CentreVertical().ReserveSpaceEvenIfHidden());

    auto* ways = new wxGridSizer(2, 0, gap);
    ways->Add(put.Put(arc.ExitCommand), wxSizerFlags().Expand());
    ways->Add(put.Put(arc.TransferCommand), wxSizerFlags().Expand());

    auto* page = put.Content();
    page->Add(upper, wxSizerFlags().Expand());
    page->AddSpacer(gap);
    page->Add(variation, wxSizerFlags().Expand().ReserveSpaceEvenIfHidden());
    page->AddSpacer(2 * gap);
    page->Add(centre, wxSizerFlags().Expand());
    page->AddSpacer(gap);
    page->Add(label, wxSizerFlags().Expand());
    page->AddSpacer(2 * gap);
    page->AddStretchSpacer();
    page->Add(ways, wxSizerFlags().Expand());
}

}  // namespace tarvex
