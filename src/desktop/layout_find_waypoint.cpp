#include <wx/anybutton.h>
#include <wx/listbox.h>
#include <wx/textctrl.h>

#include "desktop/form_builder.h"
#include "desktop/layouts.h"
#include "desktop/native_form.h"
#include "navigation/find_waypoint_form.h"

namespace tarvex {

namespace {

// Twips from the top of the frame down to the lower end of the labels with the frequency.
constexpr int FrequencyBottom = 1335;

}  // namespace

void LayOutFindWaypoint(Form& form, NativeForm& window) {
    auto& search = static_cast<FindWaypointForm&>(form);
    FormBuilder put(window);
    const int gap = put.Gap();

    auto* identifier = new wxBoxSizer(wxHORIZONTAL);
    identifier->Add(put.Put(search.Label1), wxSizerFlags().CentreVertical());
    identifier->AddSpacer(gap);
    identifier->Add(put.Put(search.SearchText, 7, "Search for"), wxSizerFlags(1).CentreVertical());
    identifier->AddSpacer(gap);
    identifier->Add(put.Put(search.SearchCommand), wxSizerFlags().CentreVertical());

    wxSizer* position = put.Put(search.Frame1, wxVERTICAL);
    put.StandIn(put.Inside(search.Frame1));
    const auto steady = wxSizerFlags().Expand().ReserveSpaceEvenIfHidden();
    position->Add(put.PutFields(search.LatText), steady);
    position->AddSpacer(gap / 2);
    position->Add(put.PutFields(search.LongText), steady);
    if (search.Frame1.Height() >= FrequencyBottom) {
        auto* frequency = new wxBoxSizer(wxHORIZONTAL);
        frequency->Add(put.Put(search.FreqLabel), wxSizerFlags().ReserveSpaceEvenIfHidden());
        frequency->AddSpacer(gap);
        frequency->Add(put.PutFields(search.FreqText), wxSizerFlags(1).ReserveSpaceEvenIfHidden());
        position->AddSpacer(gap / 2);
        position->Add(frequency, wxSizerFlags().Expand());
    }
    put.StandIn(nullptr);

    auto* page = put.Content();
    page->Add(put.Put(search.Label3, LabelStyle::Heading));
    page->AddSpacer(2 * gap);
    page->Add(identifier, wxSizerFlags().Expand());
    page->AddSpacer(gap);
    page->Add(put.Put(search.WaypointListBox, {26, 5}, "Found"), wxSizerFlags(1).Expand());
    page->AddSpacer(gap);
    page->Add(put.Inside(search.Frame1), wxSizerFlags().Expand());
    page->AddSpacer(2 * gap);
    page->Add(put.Row({&search.GoBackCommand, &search.AddWaypoint}), wxSizerFlags().Expand());
}

}  // namespace tarvex
