#pragma once

#include "chart/plan_sketch.h"

namespace tarvex {

// Meridians and parallels, nearer to each other the larger the scale, and the earth's rim where it's in view.
void DrawGraticule(PlanSketch& sketch);
// What they stand for, at the picture's edges, where there is room.
void DrawGraticuleFigures(PlanSketch& sketch);

// A length in whole nautical miles, or a tenth or hundredth of one, in the first free corner of the picture.
void DrawScaleBar(PlanSketch& sketch);

}  // namespace tarvex
