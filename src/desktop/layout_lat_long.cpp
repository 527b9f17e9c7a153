#include <wx/anybutton.h>
#include <wx/radiobut.h>
#include <wx/textctrl.h>

#include "desktop/form_builder.h"
#include "desktop/layouts.h"
#include "geometry/lat_long_form.h"

namespace tarvex {

namespace {

struct Axis {
    Label& label;
    TextBox& degrees;
    TextBox& minutes;
    Frame& hemisphere;
    OptionButton& first;
    OptionButton& second;
    const char* spoken;
};

void PutAxis(FormBuilder& put, wxFlexGridSizer& grid, const Axis& axis) {
    const auto middle = wxSizerFlags().CentreVertical();
    const auto labels = put.PutInParts(axis.label, 3);
    const wxString spoken(axis.spoken);
    grid.Add(labels[0], middle);
    grid.Add(labels[1], middle);
    grid.Add(put.Put(axis.degrees, 5, spoken + " degrees"), middle);
    grid.Add(labels[2], middle);
    grid.Add(put.Put(axis.minutes, 10, spoken + " minutes"), middle);
    wxSizer* options = put.Put(axis.hemisphere, wxHORIZONTAL);
    options->Add(put.Put(axis.first), middle);
    options->AddSpacer(put.Gap());
    options->Add(put.Put(axis.second), middle);
    grid.Add(put.Inside(axis.hemisphere), wxSizerFlags(middle).Border(wxLEFT, put.Gap()));
}

}  // namespace

void LayOutLatLong(Form& form, NativeForm& window) {
    auto& centre = static_cast<LatLongForm&>(form);
    FormBuilder put(window);
    const int gap = put.Gap();

    auto* grid = new wxFlexGridSizer(6, gap, gap);
    PutAxis(put, *grid,
            {centre.Label1, centre.DLatCenterText, centre.MLatCenterText, centre.Frame1, centre.NorthOption,
             centre.SouthOption, "Latitude"});
    PutAxis(put, *grid,
            {centre.Label2, centre.DLongCenterText, centre.MLongCenterText, centre.Frame2, centre.EastOption,
             centre.WestOption, "Longitude"});

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
