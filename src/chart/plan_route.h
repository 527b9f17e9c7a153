#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "chart/plan_scene.h"
#include "chart/plan_sketch.h"

namespace tarvex {

// The procedure of a chart and what is drafted for it: first the lines and symbols, which take their room,
// then the words, the most important first.
class PlanRoute {
  public:
    PlanRoute(PlanSketch& sketch, const PlanContent& content);

    void DrawLinesAndSymbols();
    void DrawWords();

    // The lines of the procedure and of its drafts in the picture, without breaks.
    const std::vector<std::vector<Point>>& Lines() const { return lines_; }
    // Where the rows with a position stand.
    const std::vector<Point>& Places() const { return places_; }

  private:
    // A leg as the picture has it.
    struct Leg {
        std::vector<Point> points;
        RhumbLeg flown;  // nothing for what is no leg of a rhumb line
        Role role;
    };

    void AddLeg(const Position& from, const Position& to, Role role);
    void AddDrafts();
    void DrawLeg(const Leg& leg);
    double SizeOf(std::size_t row) const;  // of its symbol
    void DrawRow(std::size_t row);
    void LabelRow(std::size_t row);
    void LabelLeg(const Leg& leg);
    void LabelDraft();
    // Away from the legs that meet at a row.
    Point FreeSide(std::size_t row) const;

    PlanSketch& sketch_;
    const PlanContent& content_;
    std::vector<std::optional<Point>> rowPlaces_;  // of each row
    std::vector<Leg> legs_;
    std::vector<std::vector<Point>> lines_;
    std::vector<Point> places_;
};

}  // namespace tarvex
