#include "desktop/glyphs.h"

#include <algorithm>
#include <memory>

#include <wx/image.h>

#include "desktop/painter.h"
#include "desktop/theme.h"

namespace tarvex {

namespace {

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
            const double width = size.x;
            const Palette ink = TextPalette();
            const Symbol symbol{.glyph = glyph_, .at = {width / 2, width / 2}, .size = width, .hollow = true};
            Painter(*canvas, ink).Paint({{width, width}, {symbol}});
        }
        return wxBitmap(image);
    }

  private:
    Glyph glyph_;
    wxSize size_;
};

}  // namespace

wxBitmapBundle GlyphImage(Glyph glyph, int size) {
    // The bundle counts references to it.
    auto* image = new GlyphBundle(glyph, size);
    return wxBitmapBundle::FromImpl(image);  // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks)
}

}  // namespace tarvex
