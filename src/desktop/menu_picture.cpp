#include "desktop/menu_picture.h"

#include <array>
#include <memory>

#include <wx/dcbuffer.h>
#include <wx/graphics.h>

#include "desktop/glyphs.h"

namespace tarvex {

namespace {

const wxColour SkyAbove(16, 42, 72);
const wxColour SkyBelow(44, 105, 158);
const wxColour Ink(255, 255, 255);
const wxColour FaintInk(255, 255, 255, 38);
const wxColour RouteInk(255, 205, 110);

struct RoutePoint {
    double x, y;  // shares of the picture's width and height
    Glyph glyph;
};

constexpr std::array<RoutePoint, 4> Route = {{
    {0.52, 0.20, Glyph::Fix},
    {0.66, 0.34, Glyph::Waypoint},
    {0.74, 0.68, Glyph::Navaid},
    {0.91, 0.78, Glyph::Airport},
}};

void DrawRings(wxGraphicsContext& canvas, double x, double y, double step) {
    canvas.SetPen(canvas.CreatePen(wxGraphicsPenInfo(FaintInk, 1)));
    canvas.SetBrush(wxNullBrush);
    for (int ring = 1; ring <= 5; ++ring) {
        const double radius = ring * step;
        canvas.DrawEllipse(x - radius, y - radius, 2 * radius, 2 * radius);
    }
}

void DrawRoute(wxGraphicsContext& canvas, const wxSize& size, double line) {
    std::array<wxPoint2DDouble, Route.size()> points;
    for (std::size_t i = 0; i < Route.size(); ++i) points[i] = {Route[i].x * size.x, Route[i].y * size.y};
    canvas.SetPen(canvas.CreatePen(wxGraphicsPenInfo(RouteInk, line * 0.14)));
    for (std::size_t i = 1; i < points.size(); ++i) {
        // The line ends where the symbols begin.
        wxPoint2DDouble step = points[i] - points[i - 1];
        step.SetVectorLength(line * 0.75);
        const auto from = points[i - 1] + step;
        const auto to = points[i] - step;
        canvas.StrokeLine(from.m_x, from.m_y, to.m_x, to.m_y);
    }
    for (std::size_t i = 0; i < points.size(); ++i) {
        DrawGlyph(canvas, Route[i].glyph, points[i].m_x - line / 2, points[i].m_y - line / 2, line, Ink);
    }
}

}  // namespace

MenuPicture::MenuPicture(wxWindow* parent, const wxString& title, const wxString& subtitle)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxBORDER_NONE | wxFULL_REPAINT_ON_RESIZE),
      title_(title),
      subtitle_(subtitle) {
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    SetMinSize({GetCharHeight() * 30, GetCharHeight() * 9});
    Bind(wxEVT_PAINT, &MenuPicture::OnPaint, this);
}

void MenuPicture::OnPaint(wxPaintEvent&) {
    wxAutoBufferedPaintDC paper(this);
    const std::unique_ptr<wxGraphicsContext> canvas(wxGraphicsContext::Create(paper));
    const wxSize size = GetClientSize();
    const double line = GetCharHeight();

    canvas->SetPen(wxNullPen);
    canvas->SetBrush(canvas->CreateLinearGradientBrush(0, 0, 0, size.y, SkyAbove, SkyBelow));
    canvas->DrawRectangle(0, 0, size.x, size.y);
    DrawRings(*canvas, Route[2].x * size.x, Route[2].y * size.y, line * 1.9);
    DrawRoute(*canvas, size, line);

    canvas->SetFont(GetFont().Scaled(2.6f).Bold(), Ink);
    canvas->DrawText(title_, line * 1.4, line * 2.0);
    double width = 0, height = 0;
    canvas->GetTextExtent(title_, &width, &height);
    canvas->SetFont(GetFont(), wxColour(255, 255, 255, 215));
    canvas->DrawText(subtitle_, line * 1.4, line * 2.3 + height);
}

}  // namespace tarvex
