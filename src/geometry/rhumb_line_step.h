#pragma once

#include "geometry/rhumb_line.h"

namespace tarvex {

class Program;

// Where a computed position goes: into a new row behind all others, with its line in the editor's list, as
// the next point of the ARC that the ARC designer makes; or into the boxes of the editor, whose hemisphere
// options follow.
enum class StepDelivery { NewRow, EditorBoxes };

// The editor must be open, and for a new row the ARC designer, whose label names it. BadArgument (5), with
// nothing changed, when there is no row left.
void DeliverPosition(Program& program, const RhumbPoint& position, StepDelivery delivery);

// Delivers the point reached from (lat1, lon1) by flying `distance` on the true course `course`; angles in
// radians, longitude west positive, distance in radians of arc. False, with nothing changed, if the line
// starts at a pole, or reaches or passes one.
bool RhumbLineStep(Program& program, double lat1, double lon1, double distance, double course,
                   StepDelivery delivery);

}  // namespace tarvex
