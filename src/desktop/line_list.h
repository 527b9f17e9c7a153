#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include <wx/dataview.h>

namespace tarvex {

// A native list that asks for its lines as it shows them, so that its length costs nothing.
class LineList final : public wxDataViewCtrl {
  public:
    // `icons`: each line has one beside its text.
    LineList(wxWindow* parent, bool icons);
    // With columns, a heading over each; texts of numbers stand at the right. `blocks`: several lines can be
    // selected.
    struct Column {
        wxString heading;
        bool number;
    };
    LineList(wxWindow* parent, const std::vector<Column>& columns, bool blocks);

    using TextOfCell = std::function<wxString(unsigned line, unsigned column)>;
    using TextOfLine = std::function<wxString(unsigned)>;
    using IconOfLine = std::function<wxBitmapBundle(unsigned)>;
    void Put(unsigned count, TextOfLine text, IconOfLine icon = {});

    // Leaves the list where it was scrolled to. On the way the list may ask for lines that have gone.
    void Put(unsigned count, TextOfCell text);
    // Of a list without icons and columns, which does not measure its lines: the most that a line has.
    void MakeRoomFor(std::size_t characters);

    static constexpr int NoLine = -1;
    int Line() const { return LineOf(GetSelection()); }
    int LineOf(const wxDataViewItem& item) const;
    int Count() const;
    void SelectLine(int line);  // and brings it into sight
    // The selected lines in rising order, and the one that has the keys.
    std::vector<int> Selected() const;
    int Cursor() const { return LineOf(GetCurrentItem()); }
    void SelectLines(const std::vector<int>& lines, int cursor);  // and brings that one into sight
    void Show(int line) { EnsureVisible(ItemOf(line)); }

    // The line at a place on the screen, and the gap that is nearest to it, told by the line behind it.
    int LineAt(const wxPoint& place);
    int GapAt(const wxPoint& place);
    // Marks the gap, and no other; NoLine: none.
    void MarkGap(int gap);
    void GoToLine(int line);  // the keys lead on from there; no line is selected

  private:
    class Model;
    wxDataViewItem ItemOf(int line) const;
    LineList(wxWindow* parent, long style, Model* model);
    void Append(wxDataViewRenderer* renderer, const wxString& heading, unsigned column, int width,
                bool number);
    Model* model_;
};

}  // namespace tarvex
