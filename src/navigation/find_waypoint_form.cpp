#include "navigation/find_waypoint_form.h"

#include <utility>
#include <vector>

#include "geometry/text_rules.h"

namespace tarvex {

namespace {

constexpr std::string_view NoUsablePosition =
    "The navigation data hold no usable position for this waypoint.\r\n"
    "                              It can not be transferred.";

// Places of the frame, in twips: as designed, and with room for the frequency.
constexpr std::pair<int, int> DesignedFrame{1320, 795};
constexpr std::pair<int, int> TallFrame{1080, 1395};

}  // namespace

FindWaypointForm::FindWaypointForm(FormHost& host, Dialogue& dialogue, const NavigationTables& tables,
                                   SearchVariables& variables)
    : Form(host, "FindWaypointForm", "Waypoint"),
      dialogue_(dialogue),
      tables_(tables),
      variables_(variables) {
    for (Control* control : {&LatText, &LongText, &FreqLabel, &FreqText}) control->PutInto(Frame1);
    Frame1.SetPlace(DesignedFrame.first, DesignedFrame.second);
    PointerListBox.SetVisible(false);
    FreqLabel.SetVisible(false);
    SetTips({{SearchText, "Identifier to look for, whole: a fix, a navaid, or the ICAO code of an airport"}});
    SearchCommand.OnClick = [this] { SearchCommand_Click(); };
    WaypointListBox.OnClick = [this] { WaypointListBox_Click(); };
    AddWaypoint.OnClick = [this] { AddWaypoint_Click(); };
    GoBackCommand.OnClick = [this] { GoBackCommand_Click(); };
}

void FindWaypointForm::Form_Load() {
    kind_ = &SearchKindNamed(variables_.SearchKind);
    AddWaypoint.SetEnabled(false);
    Label3.SetCaption(kind_->heading);
    SetCaption(kind_->caption);
    if (kind_->tallFrame) Frame1.SetPlace(TallFrame.first, TallFrame.second);
    WaypointListBox.Clear();
}

void FindWaypointForm::SearchCommand_Click() {
    SearchText.SetFocus();
    AddWaypoint.SetEnabled(false);
    HidePosition();
    SearchCommand.SetCaption("Searching");
    WaypointListBox.Clear();
    PointerListBox.Clear();
    SearchText.SetText(Upper(SearchText.Text()));
    searched_ = SearchText.Text();

    std::vector<std::string> identifiers;
    std::vector<std::string> pointers;
    for (const std::int32_t index : FindEntries(tables_, kind_->table, SearchText.Text())) {
        identifiers.emplace_back(EntryAt(tables_, kind_->table, index).identifier);
        pointers.push_back(NumberText(index));
    }
    PointerListBox.SetLines(std::move(pointers));
    WaypointListBox.SetLines(std::move(identifiers));

    SearchCommand.SetCaption("Start Search");
    if (WaypointListBox.ListCount() == 1) WaypointListBox.SetListIndex(0);
}

void FindWaypointForm::WaypointListBox_Click() {
    AddWaypoint.SetEnabled(true);
    if (WaypointListBox.ListIndex() == ListBox::NoSelection) return;
    PointerListBox.SetListIndex(WaypointListBox.ListIndex());
    hit_ = HitAt(tables_, kind_->table, WholeNumber32(LeadingNumber(PointerListBox.Text())));
    if (!hit_) {
        AddWaypoint.SetEnabled(false);
        HidePosition();
        dialogue_.Ask({.prompt = std::string(NoUsablePosition)});
        return;
    }
    Remember(*hit_, variables_);
    ShowHit();
}

void FindWaypointForm::AddWaypoint_Click() {
    variables_.RunwayTransfer = False;
    if (hit_ && OnTransfer) {
        // The name is the one that stands in the box now.
        if (hit_->table != NavigationTable::Airports) hit_->identifier = SearchText.Text();
        OnTransfer(*hit_);
    }
    Unload();
}

void FindWaypointForm::HidePosition() {
    LatText.SetVisible(false);
    LongText.SetVisible(false);
    FreqText.SetCaption("");
    FreqLabel.SetVisible(false);
}

void FindWaypointForm::ShowHit() {
    if (kind_->showsFrequency) {
        FreqText.SetVisible(true);
        FreqLabel.SetVisible(true);
        FreqText.SetCaption(FrequencyWithUnit(hit_->frequency));
    }
    const auto caption = [](const std::string& hemisphere, const std::string& degrees,
                            const FixedField<9>& minutes,
                            const char* name) { return hemisphere + degrees + " " + minutes.Text() + name; };
    LatText.SetCaption(caption(hit_->LatHemisphere, hit_->LatDegreesText, hit_->LatMinutesText, " Latitude"));
    LongText.SetCaption(
        caption(hit_->LongHemisphere, hit_->LongDegreesText, hit_->LongMinutesText, " Longitude"));
    LatText.SetVisible(true);
    LongText.SetVisible(true);
}

}  // namespace tarvex
