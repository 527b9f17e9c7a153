#include <memory>

#include <wx/anybutton.h>
#include <wx/checkbox.h>
#include <wx/listbox.h>
#include <wx/radiobut.h>
#include <wx/textctrl.h>

#include "desktop/editor_rooms.h"
#include "desktop/form_builder.h"
#include "desktop/layouts.h"
#include "desktop/native_form.h"
#include "desktop/native_text.h"
#include "editor/modify_procedure.h"

namespace tarvex {

namespace {

// The parts of the editor's window. A label and its box are told apart from the next pair by a wider gap.
class EditorLayout {
  public:
    EditorLayout(ModifyProcedure& editor, NativeForm& window)
        : editor_(editor), window_(window), put_(window), gap_(put_.Gap()) {}

    void LayOut();

  private:
    wxSizer* Names();
    wxSizer* WaypointBoxes();
    wxSizer* Restriction();
    wxSizer* Commands();
    wxSizer* List();
    wxSizer* Pictures();

    // Adds a label and its box to a row.
    void Pair(wxSizer& row, Label& label, TextBox& box, int characters, const wxString& spoken);
    void Box(wxSizer& row, TextBox& box, int characters, const wxString& spoken);
    // Adds a line of the grid: a label, and what stands behind it.
    wxSizer* Row(wxFlexGridSizer& grid, wxWindow* label);
    // The label with room for another caption that it gets later.
    wxStaticText* RoomFor(Label& label, const wxString& caption);

    ModifyProcedure& editor_;
    NativeForm& window_;
    FormBuilder put_;
    int gap_;
    wxSizerFlags middle_ = wxSizerFlags().CentreVertical();
};

wxStaticText* EditorLayout::RoomFor(Label& label, const wxString& caption) {
    wxStaticText* widget = put_.Put(label);
    widget->SetMinSize({widget->GetTextExtent(caption).x + 1, -1});
    return widget;
}

void EditorLayout::Box(wxSizer& row, TextBox& box, int characters, const wxString& spoken) {
    row.Add(put_.Put(box, characters, spoken), middle_);
}

void EditorLayout::Pair(wxSizer& row, Label& label, TextBox& box, int characters, const wxString& spoken) {
    if (!row.IsEmpty()) row.AddSpacer(2 * gap_);
    row.Add(put_.Put(label), middle_);
    row.AddSpacer(gap_);
    Box(row, box, characters, spoken);
}

wxSizer* EditorLayout::Row(wxFlexGridSizer& grid, wxWindow* label) {
    grid.Add(label, middle_);
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    grid.Add(row, wxSizerFlags().CentreVertical());
    return row;
}

wxSizer* EditorLayout::Names() {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    Pair(*row, editor_.ICAOLabel, editor_.AptNameText, 6, "ICAO");
    Pair(*row, editor_.BasicNameLabel, editor_.BasicNameText, 9, "Basic Name");
    row->AddSpacer(2 * gap_);
    row->Add(RoomFor(editor_.TransitionLabel1, "Transition"), middle_);
    row->AddSpacer(gap_);
    Box(*row, editor_.TransitionText, 9, "Transition or Runway");
    row->AddSpacer(2 * gap_);
    row->Add(put_.Put(editor_.RwySpecificCheck), middle_);
    row->AddSpacer(3 * gap_);
    row->Add(put_.Put(editor_.FilenameLabel), middle_);
    row->AddSpacer(gap_);
    wxStaticText* name = put_.PutShort(editor_.FilenameText, LabelStyle::Section);
    name->SetMinSize({name->GetTextExtent("KWWW-WWWWWWW.WWW.wwy").x, name->GetMinHeight()});
    row->Add(name, wxSizerFlags(1).CentreVertical());
    return row;
}

wxSizer* EditorLayout::WaypointBoxes() {
    auto* grid = new wxFlexGridSizer(2, gap_, gap_);
    wxSizer* row = Row(*grid, put_.Put(editor_.FixLabel));
    Box(*row, editor_.FixNameText, 9, "Fix ID");
    Pair(*row, editor_.Label1, editor_.NAVIDText, 6, "Navaid ID");
    Pair(*row, editor_.Label2, editor_.FreqText, 8, "Navaid Frequency");
    put_.Put({editor_.DMLatLabel, editor_.Latitude, editor_.Frame1, "Latitude"}, *grid);
    put_.Put({editor_.DMLongLabel, editor_.Longitude, editor_.Frame2, "Longitude"}, *grid);
    row = Row(*grid, RoomFor(editor_.Alt1Label, "Lower Altitude"));
    Box(*row, editor_.Alt1Text, 9, "Altitude or Lower Altitude");
    Pair(*row, editor_.Alt2Label, editor_.Alt2Text, 9, "Upper Altitude");
    Pair(*row, editor_.Label4, editor_.AirspeedText, 5, "Airspeed");

    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(grid);
    column->AddSpacer(gap_);
    column->Add(Restriction(), wxSizerFlags().Expand());
    column->AddSpacer(gap_);
    column->Add(put_.PutShort(editor_.PendingLabel), wxSizerFlags().Expand());
    return column;
}

wxSizer* EditorLayout::Restriction() {
    wxSizer* box = put_.Put(editor_.Frame4, wxVERTICAL);
    auto* grid = new wxFlexGridSizer(3, gap_ / 2, 3 * gap_);
    // Column by column in the order in which the arrow keys go.
    for (OptionButton* option : {&editor_.NoRestrictionOption, &editor_.AtBelowOption,
                                 &editor_.AtAboveAtBelowOption, &editor_.AtOption, &editor_.AtAboveOption}) {
        grid->Add(put_.Put(*option), middle_);
    }
    box->Add(grid, wxSizerFlags().Border(wxALL, gap_));
    return box;
}

wxSizer* EditorLayout::Commands() {
    auto* buttons = new wxFlexGridSizer(2, gap_, gap_);
    buttons->AddGrowableCol(0, 1);
    buttons->AddGrowableCol(1, 1);
    for (Button* button : {&editor_.AddWaypointCommand, &editor_.ModifyWaypointCommand,
                           &editor_.DeleteWaypointCommand, &editor_.AddArcCommand}) {
        buttons->Add(put_.Put(*button), wxSizerFlags().Expand());
    }
    auto* searches = new wxFlexGridSizer(2, gap_, 2 * gap_);
    searches->Add(put_.PutSmall(editor_.FindNavCommand, Glyph::Navaid, editor_.Label7));
    searches->Add(put_.PutSmall(editor_.FindFixCommand, Glyph::Fix, editor_.Label5));
    searches->Add(put_.PutSmall(editor_.FindAirportCommand, Glyph::Airport, editor_.Label8));
    searches->Add(put_.PutSmall(editor_.CreateWaypointCommand, Glyph::Waypoint, editor_.Label9));

    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(put_.Put(editor_.Label3, LabelStyle::Section));
    column->AddSpacer(gap_);
    column->Add(buttons, wxSizerFlags().Expand());
    column->AddSpacer(gap_);
    column->Add(put_.Put(editor_.ClearDataCommand), wxSizerFlags().Expand());
    column->AddSpacer(2 * gap_);
    column->Add(searches);
    return column;
}

wxSizer* EditorLayout::List() {
    auto* heading = new wxBoxSizer(wxHORIZONTAL);
    heading->Add(put_.Put(editor_.Label6, LabelStyle::Section));
    heading->AddStretchSpacer();
    heading->Add(put_.Put(editor_.RowsLabel));

    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(heading, wxSizerFlags().Expand());
    column->AddSpacer(gap_);
    column->Add(put_.Put(editor_.WaypointList, {24, 5}, "List of Waypoints"), wxSizerFlags(1).Expand());
    column->AddSpacer(gap_);
    auto* moves = new wxBoxSizer(wxHORIZONTAL);
    moves->Add(put_.Row({&editor_.MoveUp, &editor_.MoveDown}), wxSizerFlags(1).Expand());
    for (const auto& [button, glyph] :
         {std::pair(&editor_.UndoCommand, Glyph::Undo), std::pair(&editor_.RedoCommand, Glyph::Redo)}) {
        moves->AddSpacer(gap_ / 2);
        moves->Add(put_.PutSymbol(*button, glyph, Shown(button->Tip())), wxSizerFlags().Expand());
    }
    column->Add(moves, wxSizerFlags().Expand());
    return column;
}

wxSizer* EditorLayout::Pictures() {
    ProcedurePicture& pictures = editor_.Pictures;
    wxWindow* tabs = put_.Put(pictures.PictureTabs, "Pictures");
    put_.Put(pictures.PlanPicture);
    put_.Put(pictures.ProfilePicture);
    put_.Put(pictures.LegsList, {20, 4}, "Legs");
    put_.Put(pictures.Findings.FindingsList, {20, 4}, "Findings");
    tabs->SetMinSize({40 * gap_, 22 * gap_});

    auto* bar = new wxBoxSizer(wxVERTICAL);
    bar->AddSpacer(4 * gap_);  // beside the picture, not its tabs
    bar->Add(put_.PutSymbol(pictures.ZoomInCommand, Glyph::Plus, "Zoom in"));
    bar->AddSpacer(gap_ / 2);
    bar->Add(put_.PutSymbol(pictures.ZoomOutCommand, Glyph::Minus, "Zoom out"));
    bar->AddSpacer(gap_ / 2);
    bar->Add(put_.PutSymbol(pictures.FitCommand, Glyph::Fit, "Fit"));
    bar->AddStretchSpacer();
    bar->Add(put_.PutSymbol(pictures.SavePictureCommand, Glyph::Save, "Save picture"));

    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(tabs, wxSizerFlags(1).Expand());
    row->AddSpacer(gap_ / 2);
    row->Add(bar, wxSizerFlags().Expand());
    return row;
}

void EditorLayout::LayOut() {
    auto* page = put_.Content();
    page->Add(put_.Put(editor_.ActionLabel, LabelStyle::Heading));
    page->AddSpacer(2 * gap_);
    page->Add(Names(), wxSizerFlags().Expand());
    page->Add(put_.Line(wxHORIZONTAL), wxSizerFlags().Expand().Border(wxTOP | wxBOTTOM, 2 * gap_));
    auto* body = new wxBoxSizer(wxHORIZONTAL);
    page->Add(body, wxSizerFlags(1).Expand());
    const EditorRooms::Parts parts{.boxes = WaypointBoxes(),
                                   .commands = Commands(),
                                   .list = List(),
                                   .picture = Pictures(),
                                   .pictureWords = put_.PutShort(editor_.Pictures.PictureLabel),
                                   .waysOut = put_.Row({&editor_.OopsCommand, &editor_.SaveCommand})};
    const auto rooms = std::make_shared<EditorRooms>(window_, *body, parts, gap_);
    window_.Page().Bind(wxEVT_SIZE, [rooms](wxSizeEvent& event) {
        rooms->Follow();
        event.Skip();
    });
}

}  // namespace

void LayOutEditor(Form& form, NativeForm& window) {
    EditorLayout(static_cast<ModifyProcedure&>(form), window).LayOut();
}

}  // namespace tarvex
