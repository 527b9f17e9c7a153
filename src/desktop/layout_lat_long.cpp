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
    put.Put({centre.Label1, centre.Latitude, centre.Frame1, "Latitude"}, *grid);
    put.Put({centre.Label2, centre.Longitude, centre.Frame2, "Longitude"}, *grid);

    auto* page = put.Content();
    page->Add(grid, wxSizerFlags().Expand());
    page->AddSpacer(3 * gap);
    page->AddStretchSpacer();
    page->Add(put.Row({&centre.OopsCommand, &centre.DoneCommand}), wxSizerFlags().Right());
}

}  // namespace tarvex
