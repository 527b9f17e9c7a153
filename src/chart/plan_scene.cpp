#include "chart/plan_scene.h"

#include "chart/graticule.h"
#include "chart/plan_route.h"
#include "chart/plan_sketch.h"
#include "chart/surroundings.h"

namespace tarvex {

Drawing PlanScene(const PlanView& view, const PlanContent& content, const TextMeasure& measure) {
    PlanSketch sketch(view, measure);
    DrawGraticule(sketch);
    PlanRoute route(sketch, content);
    route.DrawLinesAndSymbols();
    Surroundings surroundings(sketch, content, route);
    surroundings.DrawSymbols();
    DrawScaleBar(sketch);
    route.DrawWords();
    DrawGraticuleFigures(sketch);
    surroundings.DrawWords();
    return sketch.Finish();
}

std::vector<Position> PositionsOf(const Route& route, const PlanDrafts& drafts) {
    std::vector<Position> positions;
    for (const auto& point : route.points) {
        if (point.position) positions.push_back(*point.position);
    }
    if (drafts.waypoint && drafts.waypoint->position) positions.push_back(*drafts.waypoint->position);
    positions.insert(positions.end(), drafts.arc.begin(), drafts.arc.end());
    if (drafts.derived) positions.insert(positions.end(), {drafts.derived->start, drafts.derived->end});
    return positions;
}

}  // namespace tarvex
