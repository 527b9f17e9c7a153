#pragma once

#include "editor/editor_tools.h"
#include "editor/procedure_picture.h"
#include "geometry/coordinate_group.h"
#include "geometry/position_boxes.h"
#include "navigation/search_hit.h"
#include "procedure/procedure_rows.h"
#include "startup/workplace.h"
#include "toolkit/form.h"
#include "toolkit/list_box.h"
#include "toolkit/simple_controls.h"

namespace tarvex {

struct PositionTexts;

// The editing screen of all three kinds of procedure, for creating and for modifying. Its boxes are the
// working copy of one waypoint; row i of the waypoint table and line i of WaypointList stand for the same
// waypoint.
class ModifyProcedure : public Form, private RowsObserver {
  public:
    ModifyProcedure(const Workplace& workplace, const EditorTools& tools);
    ~ModifyProcedure() override;

    // Name boxes and file name.
    Label ActionLabel{*this, "ActionLabel", "", 43};
    Label FilenameLabel{*this, "FilenameLabel", "Filename", 28};
    Label FilenameText{*this, "FilenameText", "", 49};
    Label ICAOLabel{*this, "ICAOLabel", "ICAO", 30};
    TextBox AptNameText{*this, "AptNameText", 4, 0};
    Label BasicNameLabel{*this, "BasicNameLabel", "Basic Name", 27};
    TextBox BasicNameText{*this, "BasicNameText", 7, 1};
    Label TransitionLabel1{*this, "TransitionLabel1", "Transition", 29};
    TextBox TransitionText{*this, "TransitionText", 7, 2};
    CheckBox RwySpecificCheck{*this, "RwySpecificCheck", "Runway Specific", 48};

    // Boxes of one waypoint.
    Label FixLabel{*this, "FixLabel", "Fix ID", 34};
    TextBox FixNameText{*this, "FixNameText", 7, 3};
    Label Label1{*this, "Label1", "Navaid ID", 35};
    TextBox NAVIDText{*this, "NAVIDText", 4, 19};
    Label Label2{*this, "Label2", "Navaid Freq", 36};
    TextBox FreqText{*this, "FreqText", 6, 20};
    Label DMLatLabel{*this, "DMLatLabel", "D     M   Latitude", 33};
    TextBox DDMLatText{*this, "DDMLatText", 2, 4};
    TextBox DMMLatText{*this, "DMMLatText", 9, 5};
    Label DMLongLabel{*this, "DMLongLabel", " D      M  Longitude", 32};
    TextBox DDMLongText{*this, "DDMLongText", 4, 6};
    TextBox DMMLongText{*this, "DMMLongText", 9, 7};
    Frame Frame1{*this, "Frame1", "", 24};
    OptionButton NLatOption{Frame1, "NLatOption", "North Lat", 26};
    OptionButton SLatOption{Frame1, "SLatOption", "South Lat", 25};
    Frame Frame2{*this, "Frame2", "", 21};
    OptionButton ELongOption{Frame2, "ELongOption", "East Long", 23};
    OptionButton WLongOption{Frame2, "WLongOption", "West Long", 22};
    Label Alt1Label{*this, "Alt1Label", "      Altitude", 31};
    TextBox Alt1Text{*this, "Alt1Text", 5, 8};
    Label Alt2Label{*this, "Alt2Label", " Upper      Altitude", 46};
    TextBox Alt2Text{*this, "Alt2Text", 5, 10};
    Label Label4{*this, "Label4", "   Airspeed", 47};
    TextBox AirspeedText{*this, "AirspeedText", 3, 9};
    Frame Frame4{*this, "Frame4", "Type of Restriction", 38};
    OptionButton NoRestrictionOption{Frame4, "NoRestrictionOption", "No Restriction", 39};
    OptionButton AtOption{Frame4, "AtOption", "At", 45};
    OptionButton AtBelowOption{Frame4, "AtBelowOption", "At or Below", 40};
    OptionButton AtAboveOption{Frame4, "AtAboveOption", "At or Above", 41};
    OptionButton AtAboveAtBelowOption{Frame4, "AtAboveAtBelowOption", "At or Above & At or Below", 42};

    // Commands and the list.
    Label Label3{*this, "Label3", "Waypoint Options", 50};
    Button AddWaypointCommand{*this, "AddWaypointCommand", "Add", 11};
    Button ModifyWaypointCommand{*this, "ModifyWaypointCommand", "Modify", 15};
    Button DeleteWaypointCommand{*this, "DeleteWaypointCommand", "Delete", 14};
    Button AddArcCommand{*this, "AddArcCommand", "Add ARC", 55};
    Button ClearDataCommand{*this, "ClearDataCommand", "   Clear All    Input Boxes", 44, Boxes::Dropped};
    Button OopsCommand{*this, "OopsCommand", "No Changes Just Exit", 13, Boxes::Dropped};
    Button SaveCommand{*this, "SaveCommand", "Save Procedure", 12};
    Label Label6{*this, "Label6", "List of Waypoints", 37};
    ListBox WaypointList{*this, "WaypointList", 16};
    Button MoveUp{*this, "MoveUp", "Move Up", 17};
    Button MoveDown{*this, "MoveDown", "Move Down", 18};
    Button CreateWaypointCommand{*this, "CreateWaypointCommand", "", 58};
    Label Label9{*this, "Label9", "Create Waypoint", 59};
    Button FindNavCommand{*this, "FindNavCommand", "", 53};
    Label Label7{*this, "Label7", "Find Navaid", 54};
    Button FindFixCommand{*this, "FindFixCommand", "", 51};
    Label Label5{*this, "Label5", "Find Fix", 52};
    Button FindAirportCommand{*this, "FindAirportCommand", "", 56};
    Label Label8{*this, "Label8", "Find Airport", 57};
    Label RowsLabel{*this, "RowsLabel", "", 60};  // rows in use, of all there are; red when few are left

    Label PendingLabel{*this, "PendingLabel", "", 73};  // what of the boxes a save would drop

    Button UndoCommand{*this, "UndoCommand", "", 70};
    Button RedoCommand{*this, "RedoCommand", "", 71};

    const CoordinateGroup Latitude{LatitudeAxis, DDMLatText, DMMLatText, NLatOption, SLatOption};
    const CoordinateGroup Longitude{LongitudeAxis, DDMLongText, DMMLongText, ELongOption, WLongOption};

    // The latitude, and the longitude, boxes were left with an accepted text since the flag was last cleared.
    Flag LatEdited = False;
    Flag LongEdited = False;

    std::vector<Shortcut> Shortcuts() override;

    // Opening and closing (modify_procedure.cpp).
    void Form_Load() override;
    void Form_Unload() override;
    void OopsCommand_Click();
    void ClearDataCommand_Click();
    // Whether a new procedure can be runway specific; unchecks RwySpecificCheck.
    void LetChooseRunway(bool usable);

    // Sets the caption of FilenameText from the name boxes (modify_procedure_save.cpp).
    void BuildFilename();
    void AptNameText_LostFocus() { BuildFilename(); }
    void BasicNameText_LostFocus() { BuildFilename(); }
    void TransitionText_LostFocus() { BuildFilename(); }
    void SaveCommand_Click();

    // Rules of the boxes (modify_procedure_fields.cpp).
    void FixNameText_lostfocus() { PutIntoCapitals(FixNameText); }
    void NAVIDText_LostFocus() { PutIntoCapitals(NAVIDText); }
    void FreqText_LostFocus() { RequireNumber(FreqText); }
    void Alt1Text_LostFocus() { RequireNumber(Alt1Text); }
    void Alt2Text_LostFocus() { RequireNumber(Alt2Text); }
    void AirspeedText_Change() { RequireNumber(AirspeedText); }
    void DDMLatText_LostFocus() { LeaveCoordinate(DDMLatText, Latitude.DegreesComplaint(), LatEdited); }
    void DMMLatText_LostFocus() { LeaveCoordinate(DMMLatText, Latitude.MinutesComplaint(), LatEdited); }
    void DDMLongText_LostFocus() { LeaveCoordinate(DDMLongText, Longitude.DegreesComplaint(), LongEdited); }
    void DMMLongText_LostFocus() { LeaveCoordinate(DMMLongText, Longitude.MinutesComplaint(), LongEdited); }
    void NorestrictionOption_Click() { ShowOneAltitude(); }
    void AtOption_Click() { ShowOneAltitude(); }
    void AtBelowOption_Click() { ShowOneAltitude(); }
    void AtAboveOption_Click() { ShowOneAltitude(); }
    void AtAboveAtBelowOption_Click();
    void RwySpecificCheck_Click();

    // The boxes as the row that Add would make of them. Its decimals are those of the last search whatever
    // the boxes hold: degrees and minutes are the current form.
    WaypointRecord BoxesAsRow() const;
    // What a save would write of their position; none while an axis is empty, or past its range.
    std::optional<Position> HeldPosition() const;

    // Rows (modify_procedure_rows.cpp, modify_procedure_select.cpp, modify_procedure_undo.cpp).
    void WaypointList_Click();
    void AddWaypointCommand_Click();
    void ModifyWaypointCommand_Click();
    void DeleteWaypointCommand_Click();
    void MoveUp_Click();
    void MoveDown_Click();
    // The same of all rows that are selected in LegsList, which keeps the focus: delete them, move each by
    // one, up (-1) or down (1), or together in front of a row (modify_procedure_blocks.cpp).
    void DeleteBlock();
    void MoveBlock(int by);
    void MoveBlockBefore(int row);
    // Take back the last act on the rows, or do it again, and select the row that it came to. Where that has
    // gone, a selection ends, and the boxes of a waypoint that is not in the procedure yet stay.
    void UndoCommand_Click() { Retrace(&ProcedureRows::Undo); }
    void RedoCommand_Click() { Retrace(&ProcedureRows::Redo); }

    // Opening the tools, and what they bring (modify_procedure_tools.cpp).
    void FindFixCommand_Click() { SearchForBoxes("F"); }
    void FindNavCommand_Click() { SearchForBoxes("N"); }
    void FindAirportCommand_Click() { SearchForBoxes("AP"); }
    void AddArcCommand_Click();
    void CreateWaypointCommand_Click();
    // Puts the name and the position of a found entry into the boxes. An airport entry becomes a runway
    // waypoint in an approach.
    void TakeHit(const SearchHit& hit);
    // What a search for the entry, clicked and transferred, would do: into the boxes, as the centre of an ARC
    // (a navaid), as the start of a derived waypoint. The two tools are opened for it.
    void TakeEntry(const SearchHit& hit);
    void CenterArcOn(const SearchHit& hit);
    void DeriveFrom(const SearchHit& hit);

    ProcedurePicture Pictures;

    void EventEnded() override;

  private:
    // Connects the events of the controls with the operations.
    void Connect();

    // Gives each box its tip.
    void TellBoxes();

    void RowsChanged(const ProcedureRows::Change& change) override;

    // Steps of Form_Load.
    void OpenNameBoxes(bool open);
    void LoadStoredProcedure();
    void ShowStoredName();
    void OrderStoredAltitudes();

    static void PutIntoCapitals(TextBox& box);
    void RequireNumber(TextBox& box);
    void LeaveCoordinate(TextBox& box, std::string_view complaint, Flag& edited);
    void ShowOneAltitude();

    // Steps of SaveCommand_Click; false: the user was told why the save ends here.
    bool NameCanBeSaved();
    bool MayReplaceStoredFile();
    bool WriteProcedure();
    void KeepHemispheres();
    void SaveFailed(const Failure& failure);

    // What stands in the boxes of a waypoint.
    struct Held {
        AxisEntry latitude;
        AxisEntry longitude;
        std::vector<std::string> texts{};
        std::vector<bool> options{};
        friend bool operator==(const Held&, const Held&) = default;
    };
    Held HeldByBoxes() const;
    void NoteWritten();
    bool WouldBeWritten(const CoordinateGroup& axis, Flag edited) const;
    void ShowPending();

    void ShowRowsInUse();
    void ShowSteps();
    void Retrace(std::optional<int> (ProcedureRows::*step)());
    // Exchanges the selected row with its neighbour, one up (-1) or down (1), and selects it there.
    void MoveSelected(int by);
    std::string BlockStepName(const std::string& act) const;
    void ArrangeBlock(const std::vector<int>& order);

    // Opens the search anew as a tool of `opener`.
    void OpenSearch(std::string_view kind, const Form& opener, std::function<void(const SearchHit&)> take);
    void SearchForBoxes(std::string_view kind);
    void SearchForCenter();
    void SearchForStart(std::string_view kind);
    void TakeStart(std::string_view kind, const SearchHit& hit);
    void Chose(std::string_view kind, const SearchHit& hit);
    void FillPosition(const SearchHit& hit);
    void AppendArcPoint(const std::string& name, const PositionTexts& position);
    void TakeDerived(const std::string& name, const PositionTexts& position);

    const Workplace& workplace_;
    SharedState& state_;
    Dialogue& dialogue_;
    EditorTools tools_;
    PositionBoxes positions_;
    Held shown_;  // as the selected row came into the boxes, or was written from them, last
};

}  // namespace tarvex
