#pragma once

#include <optional>

#include "desktop/binder.h"
#include "toolkit/picture.h"
#include "toolkit/tabs.h"

class wxBookCtrlBase;

namespace tarvex {

// `widget` is an empty one, which the picture is painted on.
class PictureBinder final : public Binder {
  public:
    PictureBinder(NativeForm& window, Picture& picture, wxWindow& widget);
    void ToWidget() override;

  private:
    // In units of the picture.
    Point PlaceOf(const wxPoint& pixel) const;
    void OnPaint(wxPaintEvent& event);
    void OnSize(wxSizeEvent& event);
    void TellRoom();
    void OnButtonDown(wxMouseEvent& event);
    void OnMotion(wxMouseEvent& event);
    void OnButtonUp(wxMouseEvent& event);
    void OnDoubleClick(wxMouseEvent& event);
    void OnWheel(wxMouseEvent& event);
    void OnKey(wxKeyEvent& event);
    void OnMenu(wxContextMenuEvent& event);
    void PopUpMenu();

    Picture& picture_;
    wxWindow& widget_;
    double scale_;  // pixels of a unit of the picture
    int painted_ = -1;
    wxString spoken_;
    std::optional<wxPoint> pressedAt_;
    bool dragged_ = false;
};

class TabsBinder final : public Binder {
  public:
    TabsBinder(NativeForm& window, Tabs& tabs, wxBookCtrlBase& widget, const wxString& spoken);
    void ToWidget() override;

  private:
    Tabs& tabs_;
    wxBookCtrlBase& widget_;
};

}  // namespace tarvex
