#pragma once

#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>

#include <wx/graphics.h>

#include "chart/palette.h"
#include "toolkit/drawing.h"

namespace tarvex {

struct SymbolPart;

// The letters that words of pictures are written in: the desktop's own font, in any size.
class PictureFonts final : public TextMeasure {
  public:
    double Width(const std::string& text, double size, bool bold) const override;

  private:
    mutable std::unique_ptr<wxGraphicsContext> canvas_;
    mutable std::map<std::pair<double, bool>, wxGraphicsFont> fonts_;
    mutable std::unordered_map<std::string, double> widths_;
};

// Paints drawings onto a canvas, whose scale and origin are those that the caller gave it.
class Painter {
  public:
    Painter(wxGraphicsContext& canvas, const Palette& palette) : canvas_(canvas), palette_(palette) {}

    void Paint(const Drawing& drawing);

  private:
    void Paint(const Line& line);
    void Paint(const Symbol& symbol);
    void Paint(const Words& words);
    void Paint(const SymbolPart& part, Role role);
    wxGraphicsPath PathOf(const std::vector<Point>& points, bool closed) const;
    void UsePen(Role role, double width, bool dashed = false);
    void UseBrush(Role role);
    void UseFont(const Words& words);
    void Rule(double width, double y, const Words& words);

    wxGraphicsContext& canvas_;
    const Palette& palette_;
    std::map<std::pair<Role, std::pair<double, bool>>, wxGraphicsFont> fonts_;
};

}  // namespace tarvex
