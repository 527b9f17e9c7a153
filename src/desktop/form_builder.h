#pragma once

#include <initializer_list>
#include <map>
#include <vector>

#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "desktop/glyphs.h"
#include "desktop/line_list.h"
#include "geometry/coordinate_group.h"
#include "toolkit/drive_lists.h"
#include "toolkit/list_box.h"
#include "toolkit/picture.h"
#include "toolkit/simple_controls.h"
#include "toolkit/tabs.h"

class wxAnyButton;
class wxBitmapButton;
class wxCheckBox;
class wxListBox;
class wxRadioButton;
class wxTextCtrl;

namespace tarvex {

class LabelBinder;
class NativeForm;

enum class LabelStyle { Plain, Section, Heading };

// What is seen of a latitude or a longitude.
struct Axis {
    Label& label;
    const CoordinateGroup& group;
    Frame& hemisphere;   // holds the options of the group
    const char* spoken;  // how a screen reader begins the names of the boxes
};

// Makes the widgets of a form's controls. A control goes onto the page, or into the box of its frame, which
// must have been put before it.
class FormBuilder {
  public:
    explicit FormBuilder(NativeForm& window) : window_(window) {}

    // Half the height of a line of text: the measure of all distances, so that they grow with the font.
    int Gap() const;

    wxStaticText* Put(Label& label, LabelStyle style = LabelStyle::Plain);
    // A label of any length: what its place has no room for is left out.
    wxStaticText* PutShort(Label& label, LabelStyle style = LabelStyle::Plain);
    // A label put together of fields, which is shown with all their blanks.
    wxStaticText* PutFields(Label& label);
    // `characters` is the width, `spoken` what a screen reader calls the box.
    wxTextCtrl* Put(TextBox& box, int characters, const wxString& spoken);
    wxAnyButton* Put(Button& button);
    // A small button without caption and its label, in a row; a click on the label presses the button too.
    wxSizer* PutSmall(Button& button, Glyph glyph, Label& label);
    wxRadioButton* Put(OptionButton& option);
    wxCheckBox* Put(CheckBox& check);
    wxListBox* Put(ListBox& list, wxSize characters, const wxString& spoken);
    wxChoice* Put(DriveList& list, const wxString& spoken);
    LineList* Put(FolderList& list, wxSize characters, const wxString& spoken);
    LineList* Put(FileList& list, wxSize characters, const wxString& spoken);

    LineList* Put(ColumnList& list, wxSize characters, const wxString& spoken);
    // A small button of a symbol alone; `spoken` is also its tip.
    wxAnyButton* PutSymbol(Button& button, Glyph glyph, const wxString& spoken);
    wxWindow* Put(Picture& picture);
    // The contents of the pages are put behind it; they go onto their pages.
    wxWindow* Put(Tabs& tabs, const wxString& spoken);

    // A frame. What is added to the sizer stands in it. With a caption it has a border, and the sizer is what
    // goes into the sizer around it; without one that is the widget that Inside gives.
    wxSizer* Put(Frame& frame, wxOrientation orientation);
    wxWindow* Inside(const Frame& frame) const;
    // Where controls stand that belong to no frame; null: on the page.
    void StandIn(wxWindow* parent) { parent_ = parent; }

    // Buttons side by side, all of the same width.
    wxSizer* Row(std::initializer_list<Button*> buttons);
    // A line of a grid of two columns: a label, and behind it its box.
    void Pair(wxFlexGridSizer& grid, Label& label, TextBox& box, int characters, const wxString& spoken);
    // A line of a grid of two columns: the name of the axis, and behind it all that belongs to it.
    void Put(const Axis& axis, wxFlexGridSizer& grid);

    wxWindow* Line(wxOrientation orientation);
    // A sizer that becomes the page's, with a margin round it.
    wxBoxSizer* Content();

  private:
    LabelBinder& PutText(Label& label, LabelStyle style, long flags);
    wxBitmapButton* PutGlyph(Button& button, Glyph glyph, const wxString& spoken);
    // Fills the page of a content of tabs with its widget.
    void FillPage(const Control& content, wxWindow* widget);
    wxWindow* ParentOf(const Control& control) const;
    wxSize SizeOf(wxSize characters) const;

    NativeForm& window_;
    wxWindow* parent_ = nullptr;
    std::map<const Control*, wxWindow*> frames_;
    std::map<const Control*, wxWindow*> pages_;  // of the contents of tabs
    std::map<const Control*, wxRadioButton*> none_;
};

}  // namespace tarvex
