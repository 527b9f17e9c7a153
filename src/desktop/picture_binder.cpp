#include "desktop/picture_binder.h"

#include <cstdlib>
#include <memory>

#include <wx/bookctrl.h>
#include <wx/dcbuffer.h>
#include <wx/menu.h>
#include <wx/settings.h>

#include "desktop/native_text.h"
#include "desktop/painter.h"
#include "desktop/theme.h"
#include "desktop/window_system.h"

namespace tarvex {

namespace {

constexpr double ArrowStep = 40;  // units of the picture

struct Step {
    int key;
    double x, y;
};

constexpr Step Steps[] = {
    {WXK_LEFT, ArrowStep, 0}, {WXK_RIGHT, -ArrowStep, 0}, {WXK_UP, 0, ArrowStep}, {WXK_DOWN, 0, -ArrowStep}};

}  // namespace

PictureBinder::PictureBinder(NativeForm& window, Picture& picture, wxWindow& widget)
    : Binder(window, picture, widget), picture_(picture), widget_(widget), scale_(PixelsOfUnit(widget)) {
    widget.SetBackgroundStyle(wxBG_STYLE_PAINT);
    widget.Bind(wxEVT_PAINT, &PictureBinder::OnPaint, this);
    widget.Bind(wxEVT_SIZE, &PictureBinder::OnSize, this);
    widget.Bind(wxEVT_LEFT_DOWN, &PictureBinder::OnButtonDown, this);
    widget.Bind(wxEVT_MOTION, &PictureBinder::OnMotion, this);
    widget.Bind(wxEVT_ENTER_WINDOW, &PictureBinder::OnMotion, this);
    widget.Bind(wxEVT_LEFT_UP, &PictureBinder::OnButtonUp, this);
    widget.Bind(wxEVT_LEFT_DCLICK, &PictureBinder::OnDoubleClick, this);
    widget.Bind(wxEVT_MOUSEWHEEL, &PictureBinder::OnWheel, this);
    widget.Bind(wxEVT_KEY_DOWN, &PictureBinder::OnKey, this);
    widget.Bind(wxEVT_CONTEXT_MENU, &PictureBinder::OnMenu, this);
    widget.Bind(wxEVT_MOUSE_CAPTURE_LOST, [this](wxMouseCaptureLostEvent&) { pressedAt_.reset(); });
    widget.Bind(wxEVT_LEAVE_WINDOW, [this](wxMouseEvent& event) {
        event.Skip();
        PostLook([this](UserDoor& door) { return door.PointAt(picture_, std::nullopt); });
    });
    const auto repaint = [&widget](auto& event) {
        event.Skip();
        widget.Refresh();
    };
    widget.Bind(wxEVT_SET_FOCUS, [repaint](wxFocusEvent& event) { repaint(event); });
    widget.Bind(wxEVT_KILL_FOCUS, [repaint](wxFocusEvent& event) { repaint(event); });
    widget.Bind(wxEVT_SYS_COLOUR_CHANGED, [repaint](wxSysColourChangedEvent& event) { repaint(event); });
}

void PictureBinder::ToWidget() {
    if (std::exchange(painted_, picture_.Version()) != picture_.Version()) widget_.Refresh();
    const wxString tip = Shown(picture_.Tip());
    if (widget_.GetToolTipText() != tip) {
        tip.empty() ? widget_.UnsetToolTip() : widget_.SetToolTip(tip);
    }
    const wxString spoken = Shown(picture_.Sentence());
    if (std::exchange(spoken_, spoken) != spoken) NameForAccess(widget_, picture_.Name(), spoken);
    Binder::ToWidget();
}

Point PictureBinder::PlaceOf(const wxPoint& pixel) const {
    return {pixel.x / scale_, pixel.y / scale_};
}

void PictureBinder::OnPaint(wxPaintEvent&) {
    wxAutoBufferedPaintDC paper(&widget_);
    const std::unique_ptr<wxGraphicsContext> canvas(wxGraphicsContext::Create(paper));
    const wxSize size = widget_.GetClientSize();
    TellRoom();  // a size may have come while the program itself laid its window out
    canvas->PushState();
    canvas->Scale(scale_, scale_);
    Painter(*canvas, ThemePalette()).Paint(picture_.Shown());
    canvas->PopState();
    if (!widget_.HasFocus()) return;
    canvas->SetPen(wxPen(wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT), 2));
    canvas->SetBrush(wxNullBrush);
    canvas->DrawRectangle(1, 1, size.x - 2, size.y - 2);
}

void PictureBinder::OnSize(wxSizeEvent& event) {
    event.Skip();
    TellRoom();
}

void PictureBinder::TellRoom() {
    const Point corner = PlaceOf({widget_.GetClientSize().x, widget_.GetClientSize().y});
    if (picture_.Room() == Size{corner.x, corner.y}) return;
    PostLook([this, corner](UserDoor& door) { return door.Resize(picture_, {corner.x, corner.y}); });
}

void PictureBinder::OnButtonDown(wxMouseEvent& event) {
    pressedAt_ = event.GetPosition();
    dragged_ = false;
    widget_.CaptureMouse();
}

void PictureBinder::OnMotion(wxMouseEvent& event) {
    constexpr int DragBegins = 4;  // pixels
    const wxPoint place = event.GetPosition();
    if (!pressedAt_) {
        PostLook([this, at = PlaceOf(place)](UserDoor& door) { return door.PointAt(picture_, at); });
        return;
    }
    const wxPoint way = place - *pressedAt_;
    if (!dragged_ && std::abs(way.x) + std::abs(way.y) < DragBegins) return;
    dragged_ = true;
    pressedAt_ = place;
    PostLook([this, by = PlaceOf(way)](UserDoor& door) { return door.Pan(picture_, by.x, by.y); });
}

void PictureBinder::OnButtonUp(wxMouseEvent& event) {
    if (widget_.HasCapture()) widget_.ReleaseMouse();
    if (!std::exchange(pressedAt_, std::nullopt) || dragged_) return;
    Post([this, at = PlaceOf(event.GetPosition())](UserDoor& door) { return door.Choose(picture_, at); });
}

void PictureBinder::OnDoubleClick(wxMouseEvent& event) {
    Post([this, at = PlaceOf(event.GetPosition())](UserDoor& door) { return door.TakeAt(picture_, at); });
}

void PictureBinder::OnWheel(wxMouseEvent& event) {
    const double steps = static_cast<double>(event.GetWheelRotation()) / event.GetWheelDelta();
    PostLook([this, steps, at = PlaceOf(event.GetPosition())](UserDoor& door) {
        return door.Zoom(picture_, steps, at);
    });
}

void PictureBinder::OnKey(wxKeyEvent& event) {
    for (const Step& step : Steps) {
        if (event.GetKeyCode() != step.key) continue;
        PostLook([this, step](UserDoor& door) { return door.Pan(picture_, step.x, step.y); });
        return;
    }
    switch (event.GetUnicodeKey() != WXK_NONE ? event.GetUnicodeKey() : event.GetKeyCode()) {
        case '+':
        case '=':
        case WXK_NUMPAD_ADD:
            PostLook([this](UserDoor& door) { return door.Zoom(picture_, 1, std::nullopt); });
            return;
        case '-':
        case WXK_NUMPAD_SUBTRACT:
            PostLook([this](UserDoor& door) { return door.Zoom(picture_, -1, std::nullopt); });
            return;
        case '0':
        case WXK_NUMPAD0:
            PostLook([this](UserDoor& door) { return door.Fit(picture_); });
            return;
        case WXK_RETURN:
        case WXK_NUMPAD_ENTER:
            Post([this, also = event.ControlDown()](UserDoor& door) { return door.Take(picture_, also); });
            return;
        default:
            event.Skip();
    }
}

void PictureBinder::OnMenu(wxContextMenuEvent& event) {
    // The menu key comes without a place: the menu is that of what was chosen before.
    if (event.GetPosition() != wxDefaultPosition) {
        const Point at = PlaceOf(widget_.ScreenToClient(event.GetPosition()));
        Post([this, at](UserDoor& door) { return door.Choose(picture_, at); });
    }
    widget_.CallAfter([this] { PopUpMenu(); });
}

void PictureBinder::PopUpMenu() {
    wxMenu menu;
    for (int i = 0; const MenuEntry& entry : picture_.Menu()) {
        menu.Append(++i, Shown(entry.caption))->Enable(entry.enabled);
    }
    if (menu.GetMenuItemCount() == 0) return;
    const int chosen = widget_.GetPopupMenuSelectionFromUser(menu);
    if (chosen == wxID_NONE) return;
    Post([this, chosen](UserDoor& door) { return door.PickMenuEntry(picture_, chosen - 1); });
}

TabsBinder::TabsBinder(NativeForm& window, Tabs& tabs, wxBookCtrlBase& widget, const wxString& spoken)
    : Binder(window, tabs, widget, spoken), tabs_(tabs), widget_(widget) {
    widget.Bind(wxEVT_NOTEBOOK_PAGE_CHANGED, [this](wxBookCtrlEvent& event) {
        event.Skip();
        if (event.GetEventObject() != &widget_) return;
        Post([this, page = event.GetSelection()](UserDoor& door) { return door.ShowPage(tabs_, page); });
    });
}

void TabsBinder::ToWidget() {
    for (std::size_t page = 0; const auto& [caption, content] : tabs_.Pages()) {
        const wxString shown = Shown(caption);
        if (widget_.GetPageText(page) != shown) widget_.SetPageText(page, shown);
        ++page;
    }
    if (widget_.GetSelection() != tabs_.Index()) {
        widget_.ChangeSelection(static_cast<std::size_t>(tabs_.Index()));
    }
    Binder::ToWidget();
}

}  // namespace tarvex
