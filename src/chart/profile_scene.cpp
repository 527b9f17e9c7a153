#include "chart/profile_scene.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>
#include <numeric>

#include "chart/route_words.h"

namespace tarvex {

namespace {

using Kind = AltitudeRestriction::Kind;

constexpr double MarginLeft = 46;
constexpr double MarginRight = 64;
constexpr double MarginTop = 30;
constexpr double MarginBottom = 24;
constexpr double LeastMiles = 0.5;  // that a view shows
constexpr double MostMiles = 100000;
constexpr double ZoomStep = 1.25;
constexpr double FeetPerMile = 1852 / 0.3048;
constexpr double SymbolSize = 10;
constexpr double BarHalf = 7;  // half the width of the bar of a restriction
constexpr double TextSize = 11;
constexpr double SmallText = 10;
constexpr double Beside = 12;     // from the middle of a symbol to its words, to the right
constexpr double Off = 9;         // and upwards
constexpr double LeastRoom = 40;  // below which there is no profile

double PlotWidth(double width) {
    return std::max(LeastRoom, width - MarginLeft - MarginRight);
}

// 1, 2 or 5 times a power of ten, not below `least`.
double RoundStep(double least) {
    const double power = std::pow(10, std::floor(std::log10(least)));
    for (const double factor : {1, 2, 5}) {
        if (factor * power >= least) return factor * power;
    }
    return 10 * power;
}

bool HasAltitude(const RoutePoint& point) {
    return point.altitude.kind != Kind::None;
}

// Whether the line goes through it.
bool IsOnLine(const RoutePoint& point) {
    return point.position && HasAltitude(point);
}

double LineAltitude(const RoutePoint& point) {
    return (point.altitude.low + point.altitude.high) / 2;
}

std::string FigureText(double number) {
    char digits[32];
    return {digits, std::to_chars(digits, std::end(digits), number, std::chars_format::general, 6).ptr};
}

std::string GradientText(double feet, double miles) {
    const double degrees = std::atan(feet / (miles * FeetPerMile)) * 180 / std::numbers::pi;
    char digits[32];
    const auto end =
        std::to_chars(digits, std::end(digits), std::abs(degrees), std::chars_format::fixed, 1).ptr;
    return FeetText(std::abs(feet / miles)) + " ft/NM  " + std::string(digits, end) + "°";
}

class ProfileScene {
  public:
    ProfileScene(const Route& route, const ProfileView& view, int selected, Size size,
                 const TextMeasure& measure)
        : route_(route), view_(view), selected_(selected), measure_(measure), drawing_{size, {}} {}

    Drawing Make();

  private:
    double X(double miles) const {
        return MarginLeft + (miles - view_.from) / view_.miles * PlotWidth(drawing_.size.width);
    }
    double Y(double feet) const { return bottom_ - (feet - low_) / (high_ - low_) * (bottom_ - top_); }
    bool InSight(double x) const { return x >= MarginLeft - 1 && x <= right_ + 1; }
    void Rule(Point from, Point to, Role role) { Put(Line{.points = {from, to}, .role = role}); }
    void Put(DrawnItem item) { drawing_.items.push_back(std::move(item)); }

    void SetScale();
    void PutGrid();
    void PutLine();
    void PutPart(Line& line, Point from, Point to) const;
    void PutGradient(const RoutePoint& from, const RoutePoint& to);
    void PutNames();
    void PutRow(int row);
    void PutRestriction(const RoutePoint& point, Role role, Target target);
    void PutAltitude(std::size_t row, Role role, Target target);
    double BesideClimb(std::size_t runway) const;
    void Shade(double x, double low, double high);
    // Of a row without an altitude: where the line between its neighbours is.
    double AltitudeOf(std::size_t row) const;
    Role RoleOf(int row) const { return row == selected_ ? Role::Selected : Role::Route; }

    const Route& route_;
    ProfileView view_;
    int selected_;
    const TextMeasure& measure_;
    Drawing drawing_;
    double low_ = 0;  // feet at the lower end
    double high_ = 1000;
    double step_ = 500;  // feet between two lines of the grid
    double top_ = MarginTop;
    double bottom_ = 0;
    double right_ = 0;
};

void ProfileScene::SetScale() {
    constexpr double LineGap = 34;  // units of the picture between two lines of the grid
    constexpr double LeastFeet = 1000;
    bottom_ = drawing_.size.height - MarginBottom;
    right_ = drawing_.size.width - MarginRight;
    bool any = false;
    double least = 0, most = 0;
    for (const RoutePoint& point : route_.points) {
        if (!HasAltitude(point)) continue;
        least = any ? std::min(least, point.altitude.low) : point.altitude.low;
        most = std::max(most, point.altitude.high);
        any = true;
    }
    const double feet = std::max(LeastFeet, (most - least) * 1.15);
    step_ = RoundStep(feet * LineGap / (bottom_ - top_));
    low_ = std::max(0.0, std::floor((least - feet * 0.05) / step_) * step_);
    high_ = std::max(low_ + step_, std::ceil((most + feet * 0.05) / step_) * step_);
}

void ProfileScene::PutGrid() {
    const auto rules = static_cast<int>((high_ - low_ + 1) / step_);
    for (int rule = 0; rule <= rules; ++rule) {
        const double feet = low_ + rule * step_;
        Rule({MarginLeft, Y(feet)}, {right_, Y(feet)}, Role::Grid);
        Put(Words{.text = FeetText(feet),
                  .at = {MarginLeft - 6, Y(feet)},
                  .align = Words::Align::Right,
                  .role = Role::Scale,
                  .size = SmallText});
    }
    constexpr double MileGap = 70;
    const double step = RoundStep(view_.miles * MileGap / PlotWidth(drawing_.size.width));
    const double end = std::min(view_.from + view_.miles, route_.Miles());
    const double first = std::max(0.0, std::ceil(view_.from / step));
    const auto marks = static_cast<int>(std::floor(end / step + 0.001) - first);
    for (int mark = 0; mark <= marks; ++mark) {
        const double miles = (first + mark) * step;
        Rule({X(miles), bottom_}, {X(miles), bottom_ + 4}, Role::Scale);
        Put(Words{.text = FigureText(miles) + (miles == 0 ? " NM" : ""),
                  .at = {X(miles), bottom_ + 13},
                  .align = Words::Align::Centre,
                  .role = Role::Scale,
                  .size = SmallText});
    }
    Rule({MarginLeft, bottom_}, {right_, bottom_}, Role::Scale);
}

double ProfileScene::AltitudeOf(std::size_t row) const {
    const auto& points = route_.points;
    const RoutePoint* before = nullptr;
    for (std::size_t i = 0; i <= row; ++i) {
        if (IsOnLine(points[i])) before = &points[i];
    }
    if (before == &points[row]) return LineAltitude(points[row]);
    const auto after =
        std::find_if(points.begin() + static_cast<std::ptrdiff_t>(row), points.end(), IsOnLine);
    if (after == points.end()) return before == nullptr ? low_ : LineAltitude(*before);
    if (before == nullptr || after->distance <= before->distance) return LineAltitude(*after);
    const double share = (points[row].distance - before->distance) / (after->distance - before->distance);
    return std::lerp(LineAltitude(*before), LineAltitude(*after), share);
}

void ProfileScene::PutLine() {
    Line line{.role = Role::Route};
    const RoutePoint* before = nullptr;
    for (const RoutePoint& point : route_.points) {
        if (!IsOnLine(point)) continue;
        if (before != nullptr) {
            PutPart(line, {X(before->distance), Y(LineAltitude(*before))},
                    {X(point.distance), Y(LineAltitude(point))});
            PutGradient(*before, point);
        }
        before = &point;
    }
    if (!line.points.empty()) Put(line);
}

// What of a part of the line lies between the edges of the plot; `to` is not left of `from`.
void ProfileScene::PutPart(Line& line, Point from, Point to) const {
    if (to.x < MarginLeft || from.x > right_) return;
    const auto at = [&](double x) {
        return Point{x, std::lerp(from.y, to.y, (x - from.x) / (to.x - from.x))};
    };
    if (line.points.empty()) line.points.push_back(from.x < MarginLeft ? at(MarginLeft) : from);
    line.points.push_back(to.x > right_ ? at(right_) : to);
}

void ProfileScene::PutGradient(const RoutePoint& from, const RoutePoint& to) {
    const double miles = to.distance - from.distance;
    const double feet = LineAltitude(to) - LineAltitude(from);
    if (miles <= 0 || feet == 0) return;
    const Point begin{X(from.distance), Y(LineAltitude(from))};
    const Point end{X(to.distance), Y(LineAltitude(to))};
    const std::string text = GradientText(feet, miles);
    const double room = std::hypot(end.x - begin.x, end.y - begin.y) - 2 * SymbolSize - 30;
    const Point middle{(begin.x + end.x) / 2, (begin.y + end.y) / 2};
    if (measure_.Width(text, SmallText, false) > room || !InSight(middle.x)) return;
    const double turn = std::atan2(end.y - begin.y, end.x - begin.x);
    constexpr double Above = 12;
    Put(Words{.text = text,
              .at = {middle.x + Above * std::sin(turn), middle.y - Above * std::cos(turn)},
              .align = Words::Align::Centre,
              .role = Role::Note,
              .size = SmallText,
              .turn = turn});
}

void ProfileScene::Shade(double x, double low, double high) {
    Put(Line{.points = {{x - BarHalf, Y(low)},
                        {x + BarHalf, Y(low)},
                        {x + BarHalf, Y(high)},
                        {x - BarHalf, Y(high)}},
             .role = Role::Shade,
             .filled = true});
}

// A bar at each bound, with a triangle on the side that is free.
void ProfileScene::PutRestriction(const RoutePoint& point, Role role, Target target) {
    const double x = X(point.distance);
    const auto [kind, low, high] = point.altitude;
    const auto bound = [&](double feet, double side) {
        constexpr double Height = 7;
        Rule({x - BarHalf, Y(feet)}, {x + BarHalf, Y(feet)}, role);
        Put(Line{.points = {{x - BarHalf, Y(feet)}, {x + BarHalf, Y(feet)}, {x, Y(feet) - side * Height}},
                 .role = role,
                 .filled = true});
    };
    if (point.runway) {
        constexpr double RunwayHalf = 16;
        Put(Line{.points = {{x - RunwayHalf, Y(low)}, {x + RunwayHalf, Y(low)}},
                 .role = Role::Ground,
                 .weight = 3});
    } else if (kind == Kind::At) {
        Rule({x - BarHalf, Y(low) - 5}, {x + BarHalf, Y(low) - 5}, role);
        Rule({x - BarHalf, Y(low) + 5}, {x + BarHalf, Y(low) + 5}, role);
    } else {
        Shade(x, kind == Kind::AtOrBelow ? low_ : low, kind == Kind::AtOrAbove ? high_ : high);
        if (kind != Kind::AtOrBelow) bound(low, 1);
        if (kind != Kind::AtOrAbove) bound(high, -1);
    }
    Put(Symbol{.glyph = point.runway ? Glyph::Runway : Glyph::Waypoint,
               .at = {x, Y(LineAltitude(point))},
               .size = SymbolSize,
               .role = role,
               .turn = point.runway ? std::numbers::pi / 2 : 0,
               .target = target});
}

// How far behind a runway its elevation stands: below the line that climbs away, where that is steep.
double ProfileScene::BesideClimb(std::size_t runway) const {
    constexpr double Farthest = 40;
    const auto& points = route_.points;
    const auto next =
        std::find_if(points.begin() + static_cast<std::ptrdiff_t>(runway) + 1, points.end(), IsOnLine);
    if (next == points.end()) return Beside;
    const double climb = Y(LineAltitude(points[runway])) - Y(LineAltitude(*next));
    const double along = X(next->distance) - X(points[runway].distance);
    const double clear = climb > 0 ? (Off + TextSize / 2 + 2) * along / climb : Beside;
    return clear > Beside && clear < Farthest ? clear : Beside;
}

void ProfileScene::PutAltitude(std::size_t row, Role role, Target target) {
    const RoutePoint& point = route_.points[row];
    const auto [kind, low, high] = point.altitude;
    const std::string elevation = "elev " + FeetText(low);
    const double width = measure_.Width(point.runway ? elevation : FeetText(high), TextSize, false);
    const double left = X(point.distance) + (point.runway ? BesideClimb(row) : Beside);
    Words words{.at = {std::min(left, drawing_.size.width - width - 1), 0},
                .role = role == Role::Selected ? role : Role::Note,
                .size = TextSize,
                .target = target};
    const auto put = [&](double feet, double above, bool under, bool over) {
        words.text = point.runway ? elevation : FeetText(feet);
        words.at.y = std::clamp(Y(feet) + above, top_ + TextSize / 2, bottom_ - TextSize / 2);
        words.underlined = under;
        words.overlined = over;
        Put(words);
    };
    if (point.runway) {
        put(low, -Off, false, false);
    } else if (kind == Kind::Between) {
        put(high, -Off / 2, false, true);
        put(low, Off / 2, true, false);
    } else {
        put(low, -Off, kind != Kind::AtOrBelow, kind != Kind::AtOrAbove);
    }
}

void ProfileScene::PutRow(int row) {
    const auto index = static_cast<std::size_t>(row);
    const RoutePoint& point = route_.points[index];
    if (!point.position || !InSight(X(point.distance))) return;
    const Target target{Target::Kind::Row, row};
    if (HasAltitude(point)) {
        PutRestriction(point, RoleOf(row), target);
        PutAltitude(index, RoleOf(row), target);
        return;
    }
    Put(Symbol{.glyph = Glyph::Waypoint,
               .at = {X(point.distance), Y(AltitudeOf(index))},
               .size = SymbolSize,
               .role = RoleOf(row),
               .hollow = true,
               .target = target});
}

// The selected row's name first, then each that has room beside those before it.
void ProfileScene::PutNames() {
    constexpr double Gap = 8;
    std::vector<std::pair<double, double>> taken;
    std::vector<int> rows(route_.points.size());
    std::iota(rows.begin(), rows.end(), 0);
    std::stable_partition(rows.begin(), rows.end(), [this](int row) { return row == selected_; });
    for (const int row : rows) {
        const RoutePoint& point = route_.points[static_cast<std::size_t>(row)];
        const double x = X(point.distance);
        if (!point.position || !InSight(x)) continue;
        const bool selected = row == selected_;
        const double width = measure_.Width(point.name, TextSize, selected);
        const double left = std::clamp(x - width / 2, 2.0, std::max(2.0, drawing_.size.width - width - 2));
        const bool free = std::none_of(taken.begin(), taken.end(), [&](const auto& other) {
            return left < other.second + Gap && left + width + Gap > other.first;
        });
        Put(Line{.points = {{x, top_}, {x, bottom_}},
                 .role = selected ? Role::Selected : Role::Grid,
                 .weight = selected ? 0.5 : 1});
        if (!free) continue;
        taken.emplace_back(left, left + width);
        Put(Words{.text = point.name,
                  .at = {left, top_ - 12},
                  .role = RoleOf(row),
                  .size = TextSize,
                  .bold = selected,
                  .target = {Target::Kind::Row, row}});
    }
}

Drawing ProfileScene::Make() {
    const bool any = std::any_of(route_.points.begin(), route_.points.end(),
                                 [](const RoutePoint& point) { return point.position.has_value(); });
    if (drawing_.size.width < MarginLeft + MarginRight + LeastRoom ||
        drawing_.size.height < MarginTop + MarginBottom + LeastRoom) {
        return drawing_;
    }
    if (!any) {
        Put(Words{.text = "The profile begins with the first waypoint.",
                  .at = {drawing_.size.width / 2, drawing_.size.height / 2},
                  .align = Words::Align::Centre,
                  .role = Role::Note,
                  .size = 12});
        return drawing_;
    }
    SetScale();
    PutGrid();
    PutNames();
    PutLine();
    for (int row = 0; row < static_cast<int>(route_.points.size()); ++row) {
        if (row != selected_) PutRow(row);
    }
    if (selected_ >= 0 && selected_ < static_cast<int>(route_.points.size())) PutRow(selected_);
    return std::move(drawing_);
}

}  // namespace

ProfileView ProfileView::Whole(const Route& route) {
    return {0, std::max(LeastMiles, route.Miles())};
}

ProfileView ProfileView::Zoomed(double steps, double x, double width) const {
    const double share = (x - MarginLeft) / PlotWidth(width);
    const double wider = std::clamp(miles * std::pow(ZoomStep, -steps), LeastMiles, MostMiles);
    return {from + share * (miles - wider), wider};
}

ProfileView ProfileView::Moved(double x, double width) const {
    return {from - x / PlotWidth(width) * miles, miles};
}

Drawing ProfileDrawing(const Route& route, const ProfileView& view, int selected, Size size,
                       const TextMeasure& measure) {
    return ProfileScene(route, view, selected, size, measure).Make();
}

}  // namespace tarvex
