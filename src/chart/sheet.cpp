#include "chart/sheet.h"

#include <array>

#include "chart/route_words.h"

namespace tarvex {

namespace {

constexpr double Margin = 40;
constexpr double TitleSize = 22;
constexpr double TextSize = 11;
constexpr double LineHeight = 17;
constexpr double Gap = 14;

struct Column {
    const char* heading;
    std::string LegsLine::*text;
    double x;
    Words::Align align;
};

constexpr std::array<Column, 8> Columns = {{
    {"No.", &LegsLine::number, 24, Words::Align::Right},
    {"Name", &LegsLine::name, 44, Words::Align::Left},
    {"True course", &LegsLine::course, 196, Words::Align::Right},
    {"Distance", &LegsLine::distance, 266, Words::Align::Right},
    {"Sum", &LegsLine::sum, 326, Words::Align::Right},
    {"Altitude", &LegsLine::altitude, 356, Words::Align::Left},
    {"Speed", &LegsLine::speed, 560, Words::Align::Right},
    {"Position", &LegsLine::position, 590, Words::Align::Left},
}};

Point Moved(Point point, Point by) {
    return {point.x + by.x, point.y + by.y};
}

void Move(Line& line, Point by) {
    for (Point& point : line.points) point = Moved(point, by);
}

void Move(auto& item, Point by) {
    item.at = Moved(item.at, by);
}

class Sheet {
  public:
    Drawing Make(const SheetContent& content);

  private:
    void Put(DrawnItem item) { drawing_.items.push_back(std::move(item)); }
    // A picture with a frame round it, below what is there.
    void PutPicture(Drawing picture);
    void PutLegs(const Route& route);
    void PutCell(const Column& column, const std::string& text, bool bold);
    void PutRule(Role role);

    Drawing drawing_;
    double y_ = Margin;
};

void Sheet::PutPicture(Drawing picture) {
    for (DrawnItem& item : picture.items) {
        std::visit([this](auto& each) { Move(each, {Margin, y_}); }, item);
        Put(std::move(item));
    }
    const auto [width, height] = picture.size;
    Line frame{
        .points = {{0, 0}, {width, 0}, {width, height}, {0, height}}, .role = Role::Scale, .closed = true};
    Move(frame, {Margin, y_});
    Put(std::move(frame));
    y_ += height + Gap;
}

void Sheet::PutRule(Role role) {
    Put(Line{.points = {{Margin, y_}, {Margin + SheetPlanSize.width, y_}}, .role = role});
}

void Sheet::PutCell(const Column& column, const std::string& text, bool bold) {
    if (text.empty()) return;
    Put(Words{.text = text,
              .at = {Margin + column.x, y_ + LineHeight / 2},
              .align = column.align,
              .size = TextSize,
              .bold = bold});
}

void Sheet::PutLegs(const Route& route) {
    for (const Column& column : Columns) PutCell(column, column.heading, true);
    y_ += LineHeight;
    PutRule(Role::Scale);
    for (const LegsLine& line : LegsLines(route)) {
        for (const Column& column : Columns) PutCell(column, line.*column.text, false);
        y_ += LineHeight;
        PutRule(Role::Grid);
    }
    y_ += Gap;
}

Drawing Sheet::Make(const SheetContent& content) {
    const double right = Margin + SheetPlanSize.width;
    Put(Words{.text = content.title, .at = {Margin, y_}, .size = TitleSize, .bold = true});
    y_ += TitleSize;
    Put(Words{
        .text = RouteSentence(content.route), .at = {Margin, y_}, .role = Role::Note, .size = TextSize});
    y_ += LineHeight;
    PutPicture(content.plan);
    PutPicture(content.profile);
    PutLegs(content.route);
    Put(Words{.text = "Not for navigation",
              .at = {right, y_},
              .align = Words::Align::Right,
              .role = Role::Selected,
              .size = TextSize,
              .bold = true});
    drawing_.size = {right + Margin, y_ + Margin};
    return std::move(drawing_);
}

}  // namespace

Drawing SheetDrawing(const SheetContent& content) {
    return Sheet().Make(content);
}

}  // namespace tarvex
