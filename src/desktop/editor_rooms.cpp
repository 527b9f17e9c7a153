#include "desktop/editor_rooms.h"

#include <wx/statline.h>

#include "desktop/native_form.h"

namespace tarvex {

namespace {

wxWindow* LineOn(NativeForm& window, long style) {
    return new wxStaticLine(&window.Page(), wxID_ANY, wxDefaultPosition, wxDefaultSize, style);
}

}  // namespace

EditorRooms::EditorRooms(NativeForm& window, wxBoxSizer& body, const Parts& parts, int gap)
    : window_(window),
      body_(body),
      parts_(parts),
      gap_(gap),
      level_(LineOn(window, wxLI_HORIZONTAL)),
      upright_(LineOn(window, wxLI_VERTICAL)),
      besidePicture_(LineOn(window, wxLI_VERTICAL)) {
    Arrange(false);
}

// Once the parts have what they show, which is behind their making.
void EditorRooms::Measure() {
    for (const bool wide : {true, false}) {
        Arrange(wide);
        (wide ? leastWide_ : leastHigh_) = window_.Page().GetSizer()->CalcMin();
    }
    measured_ = true;
}

// The arrangement that leaves more to the picture.
bool EditorRooms::HasRoomForWide() const {
    const wxSize room = window_.Page().GetClientSize();
    if (room.x < leastWide_.x || room.y < leastWide_.y) return false;
    const wxSize least = parts_.picture->CalcMin();
    const int leftOfIt = parts_.list->CalcMin().x + 2 * gap_;
    const int aboveIt = parts_.boxes->CalcMin().y + 4 * gap_;
    const int wideArea = (room.x - leastWide_.x + least.x) * (room.y - leastHigh_.y + least.y + aboveIt);
    const int highArea = (room.x - leftOfIt) * (room.y - leastHigh_.y + least.y);
    return wideArea > highArea;
}

void EditorRooms::Follow() {
    if (!measured_) Measure();
    const bool wide = HasRoomForWide();
    if (wide == wide_) return;
    Arrange(wide);
    window_.Page().Layout();
}

void EditorRooms::Arrange(bool wide) {
    for (const auto& [holder, part] : held_) holder->Detach(part);
    held_.clear();
    body_.Clear();
    wide_ = wide;
    besidePicture_->Show(wide);
    wide ? ArrangeWide() : ArrangeHigh();
}

void EditorRooms::Put(wxSizer& into, wxSizer* part, const wxSizerFlags& flags) {
    into.Add(part, flags);
    held_.emplace_back(&into, part);
}

void EditorRooms::PutLine(wxSizer& into, wxWindow* line) {
    const int across = line == level_ ? wxTOP | wxBOTTOM : wxLEFT | wxRIGHT;
    into.Add(line, wxSizerFlags().Expand().Border(across, 2 * gap_));
}

void EditorRooms::ArrangeHigh() {
    auto* upper = new wxBoxSizer(wxHORIZONTAL);
    Put(*upper, parts_.boxes, wxSizerFlags());
    PutLine(*upper, upright_);
    Put(*upper, parts_.commands, wxSizerFlags());

    auto* foot = new wxBoxSizer(wxHORIZONTAL);
    foot->Add(parts_.pictureWords, wxSizerFlags(1).CentreVertical());
    foot->AddSpacer(2 * gap_);
    Put(*foot, parts_.waysOut, wxSizerFlags());
    auto* right = new wxBoxSizer(wxVERTICAL);
    Put(*right, parts_.picture, wxSizerFlags(1).Expand());
    right->AddSpacer(gap_);
    right->Add(foot, wxSizerFlags().Expand());

    auto* lower = new wxBoxSizer(wxHORIZONTAL);
    Put(*lower, parts_.list, wxSizerFlags().Expand());
    lower->AddSpacer(2 * gap_);
    lower->Add(right, wxSizerFlags(1).Expand());

    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(upper, wxSizerFlags().Expand());
    PutLine(*column, level_);
    column->Add(lower, wxSizerFlags(1).Expand());
    body_.Add(column, wxSizerFlags(1).Expand());
    window_.SetSpare(*upper);
}

void EditorRooms::ArrangeWide() {
    auto* acts = new wxBoxSizer(wxVERTICAL);
    Put(*acts, parts_.commands, wxSizerFlags().Expand());
    acts->AddStretchSpacer();
    acts->AddSpacer(2 * gap_);
    Put(*acts, parts_.waysOut, wxSizerFlags().Expand());

    auto* lower = new wxBoxSizer(wxHORIZONTAL);
    Put(*lower, parts_.list, wxSizerFlags(1).Expand());
    PutLine(*lower, upright_);
    lower->Add(acts, wxSizerFlags().Expand());

    auto* column = new wxBoxSizer(wxVERTICAL);
    Put(*column, parts_.boxes, wxSizerFlags().Expand());
    PutLine(*column, level_);
    column->Add(lower, wxSizerFlags(1).Expand());

    auto* right = new wxBoxSizer(wxVERTICAL);
    Put(*right, parts_.picture, wxSizerFlags(1).Expand());
    right->AddSpacer(gap_);
    right->Add(parts_.pictureWords, wxSizerFlags().Expand());

    body_.Add(column, wxSizerFlags().Expand());
    PutLine(body_, besidePicture_);
    body_.Add(right, wxSizerFlags(1).Expand());
    window_.SetSpare(*parts_.boxes);
}

}  // namespace tarvex
