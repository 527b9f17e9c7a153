#pragma once

#include <string>

#include <wx/panel.h>

namespace tarvex {

// The picture over the main menu: an arrival from the air, drawn as on a chart.
class MenuPicture final : public wxPanel {
  public:
    MenuPicture(wxWindow* parent, std::string title, std::string subtitle);

  private:
    void OnPaint(wxPaintEvent& event);

    std::string title_;
    std::string subtitle_;
};

}  // namespace tarvex
