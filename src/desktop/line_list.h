#pragma once

#include <functional>

#include <wx/dataview.h>

namespace tarvex {

// A native list that asks for its lines as it shows them, so that its length costs nothing.
class LineList final : public wxDataViewCtrl {
  public:
    // `icons`: each line has one beside its text.
    LineList(wxWindow* parent, bool icons);

    using TextOfLine = std::function<wxString(unsigned)>;
    using IconOfLine = std::function<wxBitmapBundle(unsigned)>;
    void Put(unsigned count, TextOfLine text, IconOfLine icon = {});

    static constexpr int NoLine = -1;
    int Line() const { return LineOf(GetSelection()); }
    int LineOf(const wxDataViewItem& item) const;
    void SelectLine(int line);  // and brings it into sight

  private:
    class Model;
    Model* model_;
};

}  // namespace tarvex
