#include "chart/surroundings.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "geometry/text_rules.h"
#include "navigation/entry_position.h"
#include "navigation/search_hit.h"
#include "toolkit/display_text.h"

namespace tarvex {

namespace {

constexpr double FarPixels = 200;  // from the procedure: what is further off counts as far
constexpr double WordSize = 9.5;
constexpr double CodeSize = 10.5;
constexpr double ShortestRunway = 14;  // pixels; shorter ones are one symbol of their airport

// From which scale on a table shows at the procedure and far from it, and how much room, in pixels, an entry
// has to itself.
struct Thinning {
    Target::Kind kind;
    double nearScale, farScale;  // pixels to a mile
    double nearRoom, farRoom;

    double Scale(double nearness) const { return nearScale + nearness * (farScale - nearScale); }
    double Room(double nearness) const { return nearRoom + nearness * (farRoom - nearRoom); }
};

constexpr Thinning ThinningOf(NavigationTable table) {
    switch (table) {
        case NavigationTable::Fixes:
            return {Target::Kind::Fix, 1.5, 5, 34, 68};
        case NavigationTable::Navaids:
            return {Target::Kind::Navaid, 0.3, 0.9, 30, 64};
        case NavigationTable::Airports:
            return {Target::Kind::Runway, 0.5, 2, 36, 72};
    }
    return {};
}

NavigationTable TableOf(Target::Kind kind) {
    if (kind == Target::Kind::Fix) return NavigationTable::Fixes;
    return kind == Target::Kind::Navaid ? NavigationTable::Navaids : NavigationTable::Airports;
}

NavigationEntry EntryOf(const NavigationTables& tables, const Target& target) {
    return EntryAt(tables, TableOf(target.kind), target.index);
}

double Distance(const Point& first, const Point& second) {
    return std::hypot(second.x - first.x, second.y - first.y);
}

Words WordsOf(std::string text, Role role, double size, bool bold = false) {
    return {.text = std::move(text), .role = role, .size = size, .bold = bold};
}

}  // namespace

Surroundings::Surroundings(PlanSketch& sketch, const PlanContent& content, const PlanRoute& route)
    : sketch_(sketch), content_(content), route_(route), nearness_(sketch.Map().View().size) {
    for (const auto& line : route.Lines()) {
        for (std::size_t i = 1; i < line.size(); ++i) nearness_.Mark(line[i - 1], line[i]);
    }
    for (const Point& place : route.Places()) nearness_.Mark(place, place);
    nearness_.Spread();

    for (const Target& hit : content.hits) FindWanted(hit);
    FindWanted(content.marked);
    Find(NavigationTable::Navaids);
    Find(NavigationTable::Airports);
    Find(NavigationTable::Fixes);
    std::stable_sort(shown_.begin(), shown_.end(), [](const Shown& a, const Shown& b) {
        constexpr double Near = 0.25;
        const auto rank = [](const Shown& each) { return each.wanted ? 0 : each.nearness < Near ? 1 : 2; };
        return rank(a) < rank(b);
    });
}

double Surroundings::NearnessOf(const Point& point, double lessPixels) const {
    return std::clamp((nearness_.PixelsTo(point) - lessPixels) / FarPixels, 0.0, 1.0);
}

void Surroundings::Find(NavigationTable table) {
    const Thinning thinning = ThinningOf(table);
    const Projection& map = sketch_.Map();
    const PlanView& view = map.View();
    if (view.scale < thinning.nearScale) return;
    const auto divides = [&](const Position& middle, double miles) {
        const double pixels = miles * view.scale;
        if (pixels > FarPixels) return true;
        const double nearness = NearnessOf(map.ToPoint(middle), pixels);
        return view.scale >= thinning.Scale(nearness) && pixels > thinning.Room(nearness);
    };
    const double miles = std::hypot(view.size.width, view.size.height) / 2 / view.scale;
    for (const PlacedEntry& entry : content_.grid.EntriesIn(table, {view.middle, miles}, divides)) {
        const Point at = map.ToPoint(entry.At());
        if (!map.Shows(at)) continue;
        const double nearness = NearnessOf(at);
        if (view.scale < thinning.Scale(nearness) || StandsForRow(at)) continue;
        shown_.push_back({{thinning.kind, entry.index}, at, nearness, false});
    }
}

void Surroundings::FindWanted(const Target& target) {
    if (target.kind == Target::Kind::None || target.kind == Target::Kind::Row) return;
    const auto position = PositionOf(EntryOf(content_.tables, target));
    if (!position) return;
    const Point at = sketch_.Map().ToPoint(*position);
    if (sketch_.Map().Shows(at)) shown_.push_back({target, at, 0, true});
}

// The symbol of a row there is enough.
bool Surroundings::StandsForRow(const Point& at) const {
    constexpr double Near = 4;  // pixels
    if (sketch_.Room().IsFree({at, {}}, PictureRoom::Over::Symbols)) return false;
    const auto& places = route_.Places();
    return std::any_of(places.begin(), places.end(),
                       [&](const Point& place) { return Distance(place, at) < Near; });
}

bool Surroundings::IsCovered(const Symbol& symbol) const {
    const double core = symbol.size / 2;
    return !sketch_.Room().IsFree({symbol.at, {core, core}}, PictureRoom::Over::Symbols);
}

void Surroundings::DrawSymbols() {
    for (const Shown& shown : shown_) {
        if (shown.wanted) {
            constexpr double HitRing = 10;
            constexpr double MarkedRing = 12;
            sketch_.AddRing(shown.at, shown.target == content_.marked ? MarkedRing : HitRing, Role::Mark);
        }
        if (shown.target.kind == Target::Kind::Runway) {
            DrawAirport(shown);
        } else if (shown.wanted || !sketch_.Room().HoldsSymbol(shown.at)) {
            DrawEntry(shown);
        }
    }
}

void Surroundings::DrawEntry(const Shown& shown) {
    Symbol symbol{.glyph = Glyph::Fix,
                  .at = shown.at,
                  .size = 8,
                  .role = Role::Fix,
                  .hollow = true,
                  .target = shown.target};
    if (shown.target.kind == Target::Kind::Navaid) {
        const auto& navaid = content_.tables.NavaidTable[static_cast<std::size_t>(shown.target.index)];
        symbol.glyph = IsInKilohertz(navaid.NavaidFreq) ? Glyph::Ndb : Glyph::Vor;
        symbol.size = 12;
        symbol.role = Role::Navaid;
        symbol.hollow = false;
    }
    symbols_.push_back({symbol, IsCovered(symbol), shown.wanted});
    sketch_.Room().TakeSymbol(shown.at, symbol.size);
}

void Surroundings::DrawAirport(const Shown& shown) {
    ShownAirport each{AirportOf(content_.tables, shown.target.index), {}, {}, 0, shown.wanted, {}};
    each.target = {Target::Kind::Runway, each.airport.ends.front().index};
    const auto isSame = [&](const ShownAirport& other) { return other.target == each.target; };
    if (std::any_of(airports_.begin(), airports_.end(), isSame)) return;
    const auto count = static_cast<double>(each.airport.ends.size());
    for (const RunwayEnd& end : each.airport.ends) {
        const Point at = sketch_.Map().ToPoint(end.position);
        each.places.push_back(at);
        each.middle = {each.middle.x + at.x / count, each.middle.y + at.y / count};
    }
    for (const auto& [end, other] : each.airport.runways) {
        each.longest = std::max(each.longest, Distance(each.places[end], each.places[other]));
    }
    if (each.longest < ShortestRunway) {
        const Symbol symbol{.glyph = Glyph::Airport,
                            .at = each.middle,
                            .size = 10,
                            .role = Role::Runway,
                            .target = each.target};
        sketch_.AddSymbol(PlanSketch::Layer::Around, symbol);
        sketch_.Room().TakeSymbol(each.middle, symbol.size);
    } else {
        DrawRunways(each);
    }
    airports_.push_back(std::move(each));
}

void Surroundings::DrawRunways(const ShownAirport& shown) {
    constexpr double LineRoom = 6;
    std::vector<double> turns(shown.places.size());
    for (const auto& [end, other] : shown.airport.runways) {
        const Point& from = shown.places[end];
        const Point& to = shown.places[other];
        sketch_.AddLine(PlanSketch::Layer::Ground, {from, to}, {.role = Role::Runway});
        sketch_.Room().TakeLineAround(from, to, LineRoom);
        turns[end] = turns[other] = std::atan2(to.y - from.y, to.x - from.x) + std::numbers::pi / 2;
    }
    for (std::size_t end = 0; end < shown.places.size(); ++end) {
        sketch_.AddSymbol(PlanSketch::Layer::Around,
                          {.glyph = Glyph::Runway,
                           .at = shown.places[end],
                           .size = 8,
                           .role = Role::Runway,
                           .turn = turns[end],
                           .target = {Target::Kind::Runway, shown.airport.ends[end].index}});
    }
}

void Surroundings::DrawWords() {
    for (const ShownAirport& airport : airports_) LabelAirport(airport);
    for (const EntrySymbol& each : symbols_) {
        if (!each.onRoute && !each.wanted && IsCovered(each.symbol)) continue;
        sketch_.AddSymbol(PlanSketch::Layer::Around, each.symbol);
        LabelEntry(each.symbol, each.wanted);
    }
}

void Surroundings::LabelAirport(const ShownAirport& shown) {
    constexpr double ShortestWithNames = 60;  // pixels
    const Role role = shown.wanted ? Role::Mark : Role::Runway;
    const WordBlock code{{{WordsOf(ShownUtf8(Trim(shown.airport.code)), role, CodeSize, true)}},
                         shown.target};
    const double gaps[] = {8, 20, shown.longest / 2 + 8};
    const bool placed = std::any_of(std::begin(gaps), std::end(gaps), [&](double gap) {
        return sketch_.PlaceBlock(code, shown.middle, gap, PictureRoom::Over::Nothing, {1, -0.3});
    });
    if (!placed || shown.longest < ShortestWithNames) return;
    for (std::size_t end = 0; end < shown.places.size(); ++end) {
        const RunwayEnd& runway = shown.airport.ends[end];
        const WordBlock name{{{WordsOf(ShownUtf8(runway.name), Role::Runway, WordSize)}},
                             {Target::Kind::Runway, runway.index}};
        const Point outward{shown.places[end].x - shown.middle.x, shown.places[end].y - shown.middle.y};
        sketch_.PlaceBlock(name, shown.places[end], 5, PictureRoom::Over::Nothing, outward);
    }
}

void Surroundings::LabelEntry(const Symbol& symbol, bool wanted) {
    const NavigationEntry entry = EntryOf(content_.tables, symbol.target);
    constexpr double Gap = 8;
    const bool navaid = symbol.target.kind == Target::Kind::Navaid;
    const Role role = wanted ? Role::Mark : symbol.role;
    WordBlock label{{{WordsOf(ShownUtf8(Trim(entry.identifier)), role, WordSize, navaid)}}, symbol.target};
    const auto place = [&] {
        return sketch_.PlaceBlock(label, symbol.at, Gap, PictureRoom::Over::Nothing, {1, -0.3});
    };
    if (navaid) {
        const auto& frequency =
            content_.tables.NavaidTable[static_cast<std::size_t>(symbol.target.index)].NavaidFreq;
        label.lines[0].push_back(WordsOf(ShownUtf8(Trim(frequency)), role, WordSize));
        if (place()) return;
        label.lines[0].pop_back();
    }
    place();
}

}  // namespace tarvex
