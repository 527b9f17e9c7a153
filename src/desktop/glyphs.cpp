#include "desktop/glyphs.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>

#include <wx/bitmap.h>
#include <wx/brush.h>
#include <wx/graphics.h>
#include <wx/image.h>
#include <wx/settings.h>

namespace tarvex {

namespace {

wxGraphicsPath Star(wxGraphicsContext& canvas, double x, double y, double outer, double inner, int points) {
    wxGraphicsPath path = canvas.CreatePath();
    for (int i = 0; i < 2 * points; ++i) {
        const double angle = std::numbers::pi * (i / static_cast<double>(points) - 0.5);
        const double radius = i % 2 == 0 ? outer : inner;
        const wxPoint2DDouble corner(x + radius * std::cos(angle), y + radius * std::sin(angle));
        i == 0 ? path.MoveToPoint(corner) : path.AddLineToPoint(corner);
    }
    path.CloseSubpath();
    return path;
}

wxGraphicsPath Polygon(wxGraphicsContext& canvas, double x, double y, double radius, int corners,
                       double turn) {
    wxGraphicsPath path = canvas.CreatePath();
    for (int i = 0; i < corners; ++i) {
        const double angle = 2 * std::numbers::pi * i / corners + turn;
        const wxPoint2DDouble corner(x + radius * std::cos(angle), y + radius * std::sin(angle));
        i == 0 ? path.MoveToPoint(corner) : path.AddLineToPoint(corner);
    }
    path.CloseSubpath();
    return path;
}

class GlyphBundle final : public wxBitmapBundleImpl {
  public:
    GlyphBundle(Glyph glyph, int size) : glyph_(glyph), size_(size, size) {}

    wxSize GetDefaultSize() const override { return size_; }
    wxSize GetPreferredBitmapSizeAtScale(double scale) const override { return size_ * scale; }
    wxBitmap GetBitmap(const wxSize& size) override {
        wxImage image(size);
        image.InitAlpha();
        std::fill_n(image.GetAlpha(), size.x * size.y, static_cast<unsigned char>(0));
        {
            const std::unique_ptr<wxGraphicsContext> canvas(wxGraphicsContext::Create(image));
            DrawGlyph(*canvas, glyph_, 0, 0, size.x, wxSystemSettings::GetColour(wxSYS_COLOUR_BTNTEXT));
        }
        return wxBitmap(image);
    }

  private:
    Glyph glyph_;
    wxSize size_;
};

}  // namespace

void DrawGlyph(wxGraphicsContext& canvas, Glyph glyph, double x, double y, double size,
               const wxColour& colour) {
    const double centreX = x + size / 2;
    const double centreY = y + size / 2;
    const double radius = size * 0.42;
    const double dot = size * 0.09;
    canvas.SetPen(canvas.CreatePen(wxGraphicsPenInfo(colour, size * 0.085)));
    canvas.SetBrush(wxNullBrush);
    switch (glyph) {
        case Glyph::Navaid:
            canvas.StrokePath(Polygon(canvas, centreX, centreY, radius, 6, 0));
            canvas.SetBrush(wxBrush(colour));
            canvas.DrawEllipse(centreX - dot, centreY - dot, 2 * dot, 2 * dot);
            break;
        case Glyph::Fix:
            canvas.StrokePath(
                Polygon(canvas, centreX, centreY + size * 0.08, radius, 3, -std::numbers::pi / 2));
            break;
        case Glyph::Airport: {
            canvas.DrawEllipse(centreX - radius, centreY - radius, 2 * radius, 2 * radius);
            const double half = radius * 0.5;
            canvas.SetPen(canvas.CreatePen(wxGraphicsPenInfo(colour, size * 0.17)));
            canvas.StrokeLine(centreX - half, centreY + half, centreX + half, centreY - half);
            break;
        }
        case Glyph::Waypoint:
            canvas.StrokePath(Star(canvas, centreX, centreY, radius * 1.05, radius * 0.36, 4));
            break;
    }
}

wxBitmapBundle GlyphImage(Glyph glyph, int size) {
    // The bundle counts references to it.
    auto* image = new GlyphBundle(glyph, size);
    return wxBitmapBundle::FromImpl(image);  // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks)
}

}  // namespace tarvex
