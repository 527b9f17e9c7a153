#pragma once

#include <vector>

#include "chart/airport.h"
#include "chart/nearness.h"
#include "chart/plan_route.h"
#include "chart/plan_scene.h"
#include "chart/plan_sketch.h"

namespace tarvex {

// What the tables have around the procedure: symbols, which words of the procedure had better keep off, and
// their own words, where room is left. The smaller the scale, the fewer of them, and those far from the
// procedure go first.
class Surroundings {
  public:
    Surroundings(PlanSketch& sketch, const PlanContent& content, const PlanRoute& route);

    void DrawSymbols();
    void DrawWords();

  private:
    struct Shown {
        Target target;
        Point at;
        double nearness;  // 0 at the procedure, 1 far off
        bool wanted;      // a hit or marked: whatever the scale
    };

    struct ShownAirport {
        Airport airport;
        std::vector<Point> places;  // of its runway ends
        Point middle;
        double longest;  // of its runways, pixels
        bool wanted;
        Target target;  // its first runway end
    };

    double NearnessOf(const Point& point, double lessPixels = 0) const;
    void Find(NavigationTable table);
    void FindWanted(const Target& target);
    bool StandsForRow(const Point& at) const;
    bool IsCovered(const Symbol& symbol) const;  // by lines or words
    void DrawEntry(const Shown& shown);
    // Its runways, or one symbol for all, once.
    void DrawAirport(const Shown& shown);
    void DrawRunways(const ShownAirport& shown);
    void LabelEntry(const Symbol& symbol, bool wanted);
    void LabelAirport(const ShownAirport& shown);

    PlanSketch& sketch_;
    const PlanContent& content_;
    const PlanRoute& route_;
    Nearness nearness_;
    std::vector<Shown> shown_;
    struct EntrySymbol {
        Symbol symbol;
        bool onRoute;  // it lies on the procedure's line, and shows all the same
        bool wanted;
    };
    std::vector<EntrySymbol> symbols_;  // drawn last: words of the procedure may have covered some
    std::vector<ShownAirport> airports_;
};

}  // namespace tarvex
