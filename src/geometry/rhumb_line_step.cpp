#include "geometry/rhumb_line_step.h"

#include "geometry/text_rules.h"
#include "startup/program.h"
#include "toolkit/failure.h"

namespace tarvex {

namespace {

void AddRow(Program& program, const PositionTexts& position) {
    SharedState& state = program.state;
    if (state.WaypointCount >= MaxWaypoints) throw Failure(BadArgument, "the procedure has no row left");

    const std::string label = program.addARC.Get()->ArcLabelText.Text() + NumberText(state.ArcPointNumber);
    program.modifyProcedure.Get()->WaypointList.AddItem(label);
    state.WaypointTable[static_cast<std::size_t>(state.WaypointCount)] = {
        .WaypointID = label,
        .WaypointType = "0",
        .LatDecimal = position.latDecimal,
        .LatDegrees = position.latDegrees,
        .LatMinutes = position.latMinutes,
        .CoordinatesEdited = False,
        .LongDecimal = position.longDecimal,
        .LongDegrees = position.SignedLongDegrees(),
        .LongMinutes = position.longMinutes,
        .Frequency = "0",
        .Airspeed = "0",
        .Altitude2 = "0",
        .Altitude1 = "0",
        .RestrictionType = "0",
    };
    ++state.WaypointCount;
    ++state.ArcPointNumber;
}

void FillBoxes(ModifyProcedure& editor, const PositionTexts& position) {
    editor.DDMLatText.SetText(position.latDegrees);
    editor.DMMLatText.SetText(position.latMinutes);
    (position.south ? editor.SLatOption : editor.NLatOption).Select();
    editor.DDMLongText.SetText(position.longDegrees);
    (position.west ? editor.WLongOption : editor.ELongOption).Select();
    editor.DMMLongText.SetText(position.longMinutes);
}

}  // namespace

void DeliverPosition(Program& program, const RhumbPoint& position, StepDelivery delivery) {
    const PositionTexts texts = PositionTextsOf(position);
    if (delivery == StepDelivery::NewRow) {
        AddRow(program, texts);
    } else {
        FillBoxes(*program.modifyProcedure.Get(), texts);
    }
}

bool RhumbLineStep(Program& program, double lat1, double lon1, double distance, double course,
                   StepDelivery delivery) {
    const auto reached = RhumbDestination({lat1, lon1}, distance, course);
    if (reached) DeliverPosition(program, *reached, delivery);
    return reached.has_value();
}

}  // namespace tarvex
