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
    // With columns, a heading over each; texts of numbers stand at the right.
    struct Column {
        wxString heading;
        bool number;
    };
    LineList(wxWindow* parent, const std::vector<Column>& columns);

    using TextOfCell = std::function<wxString(unsigned line, unsigned column)>;
    using TextOfLine = std::function<wxString(unsigned)>;
    using IconOfLine = std::function<wxBitmapBundle(unsigned)>;
    void Put(unsigned count, TextOfLine text, IconOfLine icon = {});

    void Put(unsigned count, TextOfCell text);
    // Of a list without icons and columns, which does not measure its lines: the most that a line has.
    void MakeRoomFor(std::size_t characters);

    static constexpr int NoLine = -1;
    int Line() const { return LineOf(GetSelection()); }
    int LineOf(const wxDataViewItem& item) const;
    void SelectLine(int line);  // and brings it into sight
    void GoToLine(int line);    // the keys lead on from there; no line is selected

  private:
    class Model;
    LineList(wxWindow* parent, long style, Model* model);
    void Append(wxDataViewRenderer* renderer, const wxString& heading, unsigned column, int width,
                bool number);
    Model* model_;
};

}  // namespace tarvex
