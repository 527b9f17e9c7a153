#pragma once

#include <wx/bmpbndl.h>
#include <wx/colour.h>

class wxGraphicsContext;

namespace tarvex {

// The symbols of aeronautical charts.
enum class Glyph { Navaid, Fix, Airport, Waypoint };

// Draws the symbol into a square of `size` with its upper left corner at (x, y).
void DrawGlyph(wxGraphicsContext& canvas, Glyph glyph, double x, double y, double size,
               const wxColour& colour);

// The symbol as an image of `size` by `size`, in the theme's colour of text, sharp at any scale.
wxBitmapBundle GlyphImage(Glyph glyph, int size);

}  // namespace tarvex
