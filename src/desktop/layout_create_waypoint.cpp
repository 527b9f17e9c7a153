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

    const auto middle = wxSizerFlags().CentreVertical();
    auto* boxes = new wxFlexGridSizer(2, gap, gap);
    boxes->Add(put.Put(screen.Label4), middle);
    boxes->Add(put.Put(screen.TrueCourseText, 8, "True Course"), middle);
    boxes->Add(put.Put(screen.Label5), middle);
    boxes->Add(put.Put(screen.DistText, 8, "Distance"), middle);
    boxes->Add(put.Put(screen.Label6), middle);
    boxes->Add(put.Put(screen.WaypointIDText, 8, "Waypoint ID"), middle);

    auto* ways = new wxGridSizer(2, 0, gap);
    ways->Add(put.Put(screen.Command1), wxSizerFlags().Expand());
    ways->Add(put.Put(screen.TransferCommand), wxSizerFlags().Expand());

    auto* page = put.Content();
    page->Add(start, wxSizerFlags().Expand());
    page->AddSpacer(2 * gap);
    page->Add(boxes, wxSizerFlags().Expand());
    page->AddSpacer(3 * gap);
    page->AddStretchSpacer();
    page->Add(ways, wxSizerFlags().Expand());
}

}  // namespace tarvex
