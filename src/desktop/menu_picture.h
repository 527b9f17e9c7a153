#pragma once

#include <wx/panel.h>

namespace tarvex {

// The picture over the main menu: an arrival from the air, drawn as on a chart.
class MenuPicture final : public wxPanel {
  public:
    MenuPicture(wxWindow* parent, const wxString& title, const wxString& subtitle);

  private:
    void OnPaint(wxPaintEvent& event);

    wxString title_;
    wxString subtitle_;
};

}  // namespace tarvex
