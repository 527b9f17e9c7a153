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
    put.Pair(*boxes, arc.Label1, arc.ArcStartText, 6, "ARC Start");
    put.Pair(*boxes, arc.Label2, arc.ArcEndText, 6, "ARC End");
    put.Pair(*boxes, arc.Label3, arc.ArcRadiusText, 6, "ARC Radius");

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

    auto* label = new wxBoxSizer(wxHORIZONTAL);
    label->Add(put.Put(arc.Label4), wxSizerFlags().CentreVertical().ReserveSpaceEvenIfHidden());
    label->AddSpacer(gap);
    label->Add(put.Put(arc.ArcLabelText, 8, "ARC Label"),
               wxSizerFlags(1).CentreVertical().ReserveSpaceEvenIfHidden());

    auto* page = put.Content();
    page->Add(upper, wxSizerFlags().Expand());
    page->AddSpacer(gap);
    page->Add(variation, wxSizerFlags().Expand().ReserveSpaceEvenIfHidden());
    page->AddSpacer(2 * gap);
    page->Add(put.Row({&arc.Command1, &arc.LatLongCommand}), wxSizerFlags().Expand());
    page->AddSpacer(gap);
    page->Add(label, wxSizerFlags().Expand());
    page->AddSpacer(2 * gap);
    page->AddStretchSpacer();
    page->Add(put.Row({&arc.ExitCommand, &arc.TransferCommand}), wxSizerFlags().Expand());
}

}  // namespace tarvex
