#include "chart/svg_writer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <numbers>
#include <string_view>

#include "chart/symbols.h"
#include "toolkit/characters.h"

namespace tarvex {

namespace {

constexpr int DecimalPlaces = 2;
constexpr double BaselineShare =
    0.35;  // of the size of words: how far their baseline lies below their middle

std::string Number(double number) {
    std::array<char, 400> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                   std::chars_format::fixed, DecimalPlaces)
                         .ptr;
    std::string text(buffer.data(), end);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text == "-0" ? "0" : text;
}

std::string ColourText(std::uint32_t colour) {
    constexpr std::string_view Digits = "0123456789abcdef";
    std::string text = "#";
    for (int shift = 20; shift >= 0; shift -= 4) text += Digits[colour >> shift & 0xF];
    return text;
}

// The length of the character in well-formed UTF-8 at the beginning of the text; 0 when there is none that
// XML can hold.
std::size_t CharacterLength(std::string_view text) {
    const auto first = static_cast<unsigned char>(text.front());
    if (first < 0x80) return first < ' ' ? 0 : 1;
    const Utf8Character found = Utf8CharacterAt(text);
    return found.character == 0xFFFE || found.character == 0xFFFF ? 0 : found.bytes;
}

std::string Escaped(std::string_view text) {
    constexpr std::string_view Replacement = "\xEF\xBF\xBD";
    std::string escaped;
    while (!text.empty()) {
        const std::size_t length = CharacterLength(text);
        switch (text.front()) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            default:
                escaped += length == 0 ? Replacement : text.substr(0, length);
        }
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return escaped;
}

class SvgWriter {
  public:
    explicit SvgWriter(const Palette& palette) : palette_(palette) {}

    void Write(const Line& line) {
        if (line.points.empty()) return;
        const Ink& ink = palette_[line.role];
        const double width = ink.width * line.weight;
        out_ += line.closed || line.filled ? "<polygon" : "<polyline";
        Points(line.points);
        if (line.filled) {
            Colour("fill", ink);
        } else {
            Colour("stroke", ink);
            Attribute("stroke-width", Number(width));
            out_ += " fill=\"none\"";
            if (line.dashed) Attribute("stroke-dasharray", Number(4 * width) + " " + Number(3 * width));
        }
        out_ += "/>\n";
    }

    void Write(const Symbol& symbol) {
        for (const SymbolPart& part : PartsOf(symbol)) Write(part, palette_[symbol.role]);
    }

    void Write(const Words& words) {
        constexpr std::array<std::string_view, 3> Anchors = {"start", "middle", "end"};
        out_ += "<text";
        Attribute("x", Number(words.at.x));
        Attribute("y", Number(words.at.y + BaselineShare * words.size));
        Attribute("font-size", Number(words.size));
        Attribute("text-anchor", Anchors.at(static_cast<std::size_t>(words.align)));
        Colour("fill", palette_[words.role]);
        if (words.bold) Attribute("font-weight", "bold");
        if (words.underlined || words.overlined) {
            Attribute("text-decoration", !words.overlined    ? "underline"
                                         : !words.underlined ? "overline"
                                                             : "underline overline");
        }
        if (words.turn != 0) {
            Attribute("transform", "rotate(" + Number(words.turn * 180 / std::numbers::pi) + " " +
                                       Number(words.at.x) + " " + Number(words.at.y) + ")");
        }
        out_ += ">" + Escaped(words.text) + "</text>\n";
    }

    std::string Take() { return std::move(out_); }

  private:
    void Write(const SymbolPart& part, const Ink& ink) {
        if (part.radius > 0) {
            out_ += "<circle";
            Attribute("cx", Number(part.points.front().x));
            Attribute("cy", Number(part.points.front().y));
            Attribute("r", Number(part.radius));
        } else {
            out_ += part.closed ? "<polygon" : "<polyline";
            Points(part.points);
        }
        if (part.fill == SymbolPart::Fill::None) {
            out_ += " fill=\"none\"";
        } else {
            Colour("fill", part.fill == SymbolPart::Fill::Ink ? ink : palette_[Role::Page]);
        }
        if (part.width > 0) {
            Colour("stroke", ink);
            Attribute("stroke-width", Number(part.width));
        }
        out_ += "/>\n";
    }

    void Attribute(std::string_view name, std::string_view value) {
        out_.append(" ").append(name).append("=\"").append(value).append("\"");
    }

    void Colour(std::string_view what, const Ink& ink) {
        Attribute(what, ColourText(ink.colour));
        if (ink.opacity < 1) Attribute(std::string(what) + "-opacity", Number(ink.opacity));
    }

    void Points(const std::vector<Point>& points) {
        std::string text;
        for (const Point& point : points) text += Number(point.x) + "," + Number(point.y) + " ";
        text.pop_back();
        Attribute("points", text);
    }

    const Palette& palette_;
    std::string out_;
};

}  // namespace

std::string SvgText(const Drawing& drawing, const Palette& palette, const std::string& title) {
    const std::string width = Number(drawing.size.width);
    const std::string height = Number(drawing.size.height);
    SvgWriter writer(palette);
    for (const DrawnItem& item : drawing.items) {
        std::visit([&writer](const auto& each) { writer.Write(each); }, item);
    }
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
           width + "\" height=\"" + height + "\" viewBox=\"0 0 " + width + " " + height +
           "\" font-family=\"sans-serif\" stroke-linejoin=\"round\" stroke-linecap=\"round\" "
           "xml:space=\"preserve\">\n<title>" +
           Escaped(title) + "</title>\n<rect width=\"100%\" height=\"100%\" fill=\"" +
           ColourText(palette[Role::Page].colour) + "\"/>\n" + writer.Take() + "</svg>\n";
}

}  // namespace tarvex
