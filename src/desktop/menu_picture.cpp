#include "desktop/menu_picture.h"

#include <array>
#include <cmath>
#include <memory>
#include <numbers>

#include <wx/dcbuffer.h>

#include "desktop/painter.h"

namespace tarvex {

namespace {

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
constexpr std::size_t Navaid = 2;

Point Place(const RoutePoint& point, const Size& size) {
    return {point.x * size.width, point.y * size.height};
}

std::vector<Point> Ring(Point middle, double radius) {
    constexpr int Corners = 72;
    std::vector<Point> points;
    for (int i = 0; i < Corners; ++i) {
        const double angle = 2 * std::numbers::pi * i / Corners;
        points.push_back({middle.x + radius * std::cos(angle), middle.y + radius * std::sin(angle)});
    }
    return points;
}

// The line ends where the symbols begin.
Line Leg(Point from, Point to, double gap) {
    const double share = gap / std::hypot(to.x - from.x, to.y - from.y);
    const Point step{(to.x - from.x) * share, (to.y - from.y) * share};
    return {.points = {{from.x + step.x, from.y + step.y}, {to.x - step.x, to.y - step.y}},
            .role = Role::Mark};
}

// `line` is the height of a line of text.
Drawing MenuDrawing(const Size& size, double line, const std::string& title, const std::string& subtitle) {
    Drawing drawing{size, {}};
    auto& items = drawing.items;
    items.push_back(Line{.points = {{0, 0}, {size.width, 0}, {size.width, size.height}, {0, size.height}},
                         .role = Role::Sky,
                         .filled = true});
    for (int ring = 5; ring > 0; --ring) {
        items.push_back(Line{.points = Ring(Place(Route[Navaid], size), ring * 1.9 * line),
                             .role = Role::Land,
                             .filled = true});
    }
    for (std::size_t i = 1; i < Route.size(); ++i) {
        items.push_back(Leg(Place(Route[i - 1], size), Place(Route[i], size), line * 0.75));
    }
    for (const RoutePoint& point : Route) {
        items.push_back(Symbol{.glyph = point.glyph,
                               .at = Place(point, size),
                               .size = line,
                               .role = Role::Paper,
                               .hollow = true});
    }
    items.push_back(Words{.text = title,
                          .at = {line * 1.4, line * 3.4},
                          .role = Role::Paper,
                          .size = line * 2.1,
                          .bold = true});
    items.push_back(
        Words{.text = subtitle, .at = {line * 1.4, line * 5.6}, .role = Role::Paper, .size = line * 0.8});
    return drawing;
}

}  // namespace

MenuPicture::MenuPicture(wxWindow* parent, std::string title, std::string subtitle)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxBORDER_NONE | wxFULL_REPAINT_ON_RESIZE),
      title_(std::move(title)),
      subtitle_(std::move(subtitle)) {
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    SetMinSize({GetCharHeight() * 30, GetCharHeight() * 9});
    Bind(wxEVT_PAINT, &MenuPicture::OnPaint, this);
}

void MenuPicture::OnPaint(wxPaintEvent&) {
    wxAutoBufferedPaintDC paper(this);
    const std::unique_ptr<wxGraphicsContext> canvas(wxGraphicsContext::Create(paper));
    const wxSize size = GetClientSize();
    const Drawing drawing = MenuDrawing({static_cast<double>(size.x), static_cast<double>(size.y)},
                                        GetCharHeight(), title_, subtitle_);
    Palette palette = DarkPalette();
    palette[Role::Page].opacity = 0;  // the symbols stand on the sky
    Painter(*canvas, palette).Paint(drawing);
}

}  // namespace tarvex
