#pragma once

#include <string>
#include <variant>
#include <vector>

namespace tarvex {

// A picture that knows no window system: what is drawn, in which role, and what it stands for. Whoever paints
// it gives each role its colour and weight, of a light or a dark palette.

// x to the right, y down, in units of the picture: pixels of a screen at 100 %.
struct Point {
    double x = 0;
    double y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
    double width = 0;
    double height = 0;

    friend bool operator==(const Size&, const Size&) = default;
};

enum class Role {
    Page,   // the ground of the whole picture
    Grid,   // graticule and axes, with their figures
    Scale,  // the scale bar
    Fix,    // of the navigation tables, as the next two
    Navaid,
    Runway,
    Route,     // the procedure's line, symbols and names
    Note,      // words along the route: restrictions, speeds, courses, distances
    Selected,  // the selected row
    Draft,     // what is not yet a row
    Mark,      // what is marked: a hit of the search, a point that was clicked
    Shade,     // room between two bounds
    Ground,    // an elevation
    Sky,       // the start menu's picture, as the next two
    Land,
    Paper,
};

// What stands at a point of the picture and can be pointed at.
struct Target {
    enum class Kind { None, Row, Fix, Navaid, Runway };

    Kind kind = Kind::None;
    int index = 0;  // of the row, or in its navigation table

    friend bool operator==(const Target&, const Target&) = default;
};

struct Line {
    std::vector<Point> points{};
    Role role = Role::Route;
    bool dashed = false;
    bool closed = false;
    bool filled = false;  // the area, without its outline
    double weight = 1;    // times the role's own weight
};

// A symbol of printed charts round a point.
enum class Glyph { Fix, Vor, Ndb, Runway, Waypoint, Airport, Navaid, Plus, Minus, Fit, Save, Undo, Redo };

struct Symbol {
    Glyph glyph = Glyph::Fix;
    Point at{};        // its middle
    double size = 10;  // of the square that holds it
    Role role = Role::Route;
    bool hollow = false;
    double turn = 0;  // radians clockwise
    Target target{};
};

// A line of words.
struct Words {
    enum class Align { Left, Centre, Right };

    std::string text{};  // UTF-8
    Point at{};          // left end, middle or right end of the line, at half its height
    Align align = Align::Left;
    Role role = Role::Route;
    double size = 11;  // height of the letters' line
    bool bold = false;
    bool underlined = false;  // at or above
    bool overlined = false;   // at or below
    double turn = 0;          // radians clockwise round `at`
    Target target{};
};

using DrawnItem = std::variant<Line, Symbol, Words>;

// Painted in the order of its items.
struct Drawing {
    Size size;
    std::vector<DrawnItem> items;
};

// What stands at a point of the drawing, or so near that it is meant: the nearest, a row before all others.
Target TargetAt(const Drawing& drawing, Point point);

// Widths of words, which only a font can tell.
class TextMeasure {
  public:
    virtual ~TextMeasure() = default;
    // Of a text in UTF-8 whose line is `size` high.
    virtual double Width(const std::string& text, double size, bool bold) const = 0;
};

}  // namespace tarvex
