#include <wx/anybutton.h>
#include <wx/textctrl.h>

#include "desktop/form_builder.h"
#include "desktop/layouts.h"
#include "geometry/create_waypoint_form.h"

namespace tarvex {

void LayOutCreateWaypoint(Form& form, NativeForm& window) {
    auto& screen = static_cast<CreateWaypointForm&>(form);
    FormBuilder put(window);
    const int gap = put.Gap();

    wxSizer* start = put.Put(screen.Frame1, wxVERTICAL);
    put.StandIn(put.Inside(screen.Frame1));
    auto* kinds = new wxGridSizer(3, 0, 2 * gap);
    kinds->Add(put.PutSmall(screen.NavaidCommand, Glyph::Navaid, screen.Label1));
    kinds->Add(put.PutSmall(screen.FixCommand, Glyph::Fix, screen.Label2));
    kinds->Add(put.PutSmall(screen.RunwayCommand, Glyph::Airport, screen.Label3));
    start->Add(kinds, wxSizerFlags().Expand().Border(wxALL, gap));
    start->Add(put.Put(screen.SelectedText),
               wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
    put.StandIn(nullptr);

    auto* boxes = new wxFlexGridSizer(2, gap, gap);
    put.Pair(*boxes, screen.Label4, screen.TrueCourseText, 8, "True Course");
    put.Pair(*boxes, screen.Label5, screen.DistText, 8, "Distance");
    put.Pair(*boxes, screen.Label6, screen.WaypointIDText, 8, "Waypoint ID");

    auto* page = put.Content();
    page->Add(start, wxSizerFlags().Expand());
    page->AddSpacer(2 * gap);
    page->Add(boxes, wxSizerFlags().Expand());
    page->AddSpacer(3 * gap);
    page->AddStretchSpacer();
    page->Add(put.Row({&screen.Command1, &screen.TransferCommand}), wxSizerFlags().Expand());
}

}  // namespace tarvex
