#include <wx/anybutton.h>

#include "desktop/form_builder.h"
#include "desktop/layouts.h"
#include "geometry/lat_long_form.h"

namespace tarvex {

void LayOutLatLong(Form& form, NativeForm& window) {
    auto& centre = static_cast<LatLongForm&>(form);
    FormBuilder put(window);
    const int gap = put.Gap();

    auto* grid = new wxFlexGridSizer(2, gap, 2 * gap);
    put.Put({centre.Label1, centre.DLatCenterText, centre.MLatCenterText, centre.Frame1, centre.NorthOption,
             centre.SouthOption, "Latitude"},
            *grid);
    put.Put({centre.Label2, centre.DLongCenterText, centre.MLongCenterText, centre.Frame2, centre.EastOption,
             centre.WestOption, "Longitude"},
            *grid);

    auto* ways = new wxGridSizer(2, 0, gap);
    ways->Add(put.Put(centre.OopsCommand), wxSizerFlags().Expand());
    ways->Add(put.Put(centre.DoneCommand), wxSizerFlags().Expand());

    auto* page = put.Content();
    page->Add(grid, wxSizerFlags().Expand());
    page->AddSpacer(3 * gap);
    page->AddStretchSpacer();
    page->Add(ways, wxSizerFlags().Right());
}

}  // namespace tarvex
