#include "desktop/painter.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <wx/brush.h>
#include <wx/fontenum.h>
#include <wx/settings.h>

#include "chart/symbols.h"
#include "desktop/window_system.h"

namespace tarvex {

namespace {

constexpr double BaselineShare =
    0.35;  // of the size of words: how far their baseline lies below their middle
constexpr double OverlineShare = 0.88;  // how far an overline lies above the baseline
constexpr double UnderlineShare = 0.16;
constexpr double RuleWidthShare = 0.09;
constexpr std::array<wxDash, 2> Dashes = {4, 3};  // times the line's width

wxColour ColourOf(const Ink& ink) {
    const auto part = [&ink](unsigned shift) { return static_cast<unsigned char>(ink.colour >> shift); };
    return {part(16), part(8), part(0), static_cast<unsigned char>(std::lround(ink.opacity * 255))};
}

#ifndef __WXGTK__
bool DrawsWords(wxGraphicsContext& canvas, const wxString& face) {
    double width = 0, height = 0;
    canvas.SetFont(canvas.CreateFont(10, face));
    canvas.GetTextExtent("Tarvex", &width, &height);
    return width > 0;
}

// The face of the windows' words. A canvas knows TrueType faces only and draws nothing in one that it lacks,
// as where the system's own stands for another: then one that it has.
wxString WordsFace(wxGraphicsContext& canvas) {
    const wxString face = wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT).GetFaceName();
    if (DrawsWords(canvas, face)) return face;
    wxArrayString others = wxFontEnumerator::GetFacenames();
    for (const char* usual : {"DejaVu Sans", "Arial", "Tahoma", "Segoe UI"}) others.Insert(usual, 0);
    const auto found = std::find_if(others.begin(), others.end(),
                                    [&canvas](const wxString& other) { return DrawsWords(canvas, other); });
    return found == others.end() ? face : *found;
}
#endif

// `size` is that of the letters' em square, as everywhere else that a drawing is written or painted.
wxGraphicsFont FontOf(wxGraphicsContext& canvas, double size, bool bold, const wxColour& colour) {
#ifdef __WXGTK__
    const wxString face = wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT).GetFaceName();
    // A size in pixels would be that of the line, which is higher. Whoever paints has scaled the canvas.
    return canvas.CreateFont(wxFontInfo(size * 72 / DotsPerInch()).FaceName(face).Bold(bold), colour);
#else
    static const wxString face = WordsFace(canvas);
    return canvas.CreateFont(size, face, bold ? wxFONTFLAG_BOLD : wxFONTFLAG_DEFAULT, colour);
#endif
}

}  // namespace

double PictureFonts::Width(const std::string& text, double size, bool bold) const {
    constexpr std::size_t MostKept = 20000;
    const std::string key = text + (bold ? '\1' : '\2') + std::to_string(size);
    const auto known = widths_.find(key);
    if (known != widths_.end()) return known->second;
    if (widths_.size() >= MostKept) widths_.clear();
    if (canvas_ == nullptr) canvas_.reset(wxGraphicsContext::Create());
    wxGraphicsFont& font = fonts_[{size, bold}];
    if (font.IsNull()) font = FontOf(*canvas_, size, bold, *wxBLACK);
    canvas_->SetFont(font);
    double width = 0, height = 0;
    canvas_->GetTextExtent(wxString::FromUTF8(text), &width, &height);
    return widths_.emplace(key, width).first->second;
}

void Painter::Paint(const Drawing& drawing) {
    if (palette_[Role::Page].opacity > 0) {
        canvas_.SetPen(wxNullPen);
        UseBrush(Role::Page);
        canvas_.DrawRectangle(0, 0, drawing.size.width, drawing.size.height);
    }
    for (const DrawnItem& item : drawing.items) {
        std::visit([this](const auto& each) { Paint(each); }, item);
    }
}

void Painter::UsePen(Role role, double width, bool dashed) {
    wxGraphicsPenInfo pen(ColourOf(palette_[role]), width);
    pen.Join(wxJOIN_ROUND).Cap(dashed ? wxCAP_BUTT : wxCAP_ROUND);
    if (dashed) pen.Style(wxPENSTYLE_USER_DASH).Dashes(Dashes.size(), Dashes.data());
    canvas_.SetPen(canvas_.CreatePen(pen));
}

void Painter::UseBrush(Role role) {
    canvas_.SetBrush(wxBrush(ColourOf(palette_[role])));
}

wxGraphicsPath Painter::PathOf(const std::vector<Point>& points, bool closed) const {
    wxGraphicsPath path = canvas_.CreatePath();
    path.MoveToPoint(points.front().x, points.front().y);
    for (const Point& point : points) path.AddLineToPoint(point.x, point.y);
    if (closed) path.CloseSubpath();
    return path;
}

void Painter::Paint(const Line& line) {
    if (line.points.empty()) return;
    if (line.filled) {
        UseBrush(line.role);
        canvas_.FillPath(PathOf(line.points, true));
        return;
    }
    UsePen(line.role, palette_[line.role].width * line.weight, line.dashed);
    canvas_.StrokePath(PathOf(line.points, line.closed));
}

void Painter::Paint(const Symbol& symbol) {
    for (const SymbolPart& part : PartsOf(symbol)) Paint(part, symbol.role);
}

void Painter::Paint(const SymbolPart& part, Role role) {
    const Role ground = part.fill == SymbolPart::Fill::Ink ? role : Role::Page;
    const bool filled = part.fill != SymbolPart::Fill::None && palette_[ground].opacity > 0;
    if (part.width > 0) {
        UsePen(role, part.width);
    } else {
        canvas_.SetPen(wxNullPen);
    }
    if (filled) {
        UseBrush(ground);
    } else {
        canvas_.SetBrush(wxNullBrush);
    }
    if (part.radius > 0) {
        const Point middle = part.points.front();
        canvas_.DrawEllipse(middle.x - part.radius, middle.y - part.radius, 2 * part.radius, 2 * part.radius);
        return;
    }
    canvas_.DrawPath(PathOf(part.points, part.closed), wxWINDING_RULE);
}

void Painter::UseFont(const Words& words) {
    wxGraphicsFont& font = fonts_[{words.role, {words.size, words.bold}}];
    if (font.IsNull()) font = FontOf(canvas_, words.size, words.bold, ColourOf(palette_[words.role]));
    canvas_.SetFont(font);
}

void Painter::Paint(const Words& words) {
    const wxString text = wxString::FromUTF8(words.text);
    UseFont(words);
    double width = 0, height = 0, descent = 0;
    canvas_.GetTextExtent(text, &width, &height, &descent);
    const double left = words.align == Words::Align::Left     ? 0
                        : words.align == Words::Align::Centre ? -width / 2
                                                              : -width;
    canvas_.PushState();
    canvas_.Translate(words.at.x, words.at.y);
    if (words.turn != 0) canvas_.Rotate(words.turn);
    canvas_.Translate(left, BaselineShare * words.size);
    canvas_.DrawText(text, 0, descent - height);
    if (words.underlined) Rule(width, UnderlineShare * words.size, words);
    if (words.overlined) Rule(width, -OverlineShare * words.size, words);
    canvas_.PopState();
}

void Painter::Rule(double width, double y, const Words& words) {
    UsePen(words.role, std::max(1.0, RuleWidthShare * words.size));
    canvas_.StrokeLine(0, y, width, y);
}

}  // namespace tarvex
