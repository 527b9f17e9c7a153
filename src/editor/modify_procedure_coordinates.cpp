#include "editor/modify_procedure.h"
#include "geometry/coordinate_rules.h"
#include "startup/program.h"

namespace tarvex {

namespace {

void LeaveBox(Program& program, TextBox& box, std::string_view complaint, Flag& edited) {
    if (!program.Complain(complaint, box) && !box.Text().empty()) edited = True;
}

}  // namespace

void ModifyProcedure::ConnectCoordinates() {
    DDMLatText.OnLostFocus = [this] { DDMLatText_LostFocus(); };
    DMMLatText.OnLostFocus = [this] { DMMLatText_LostFocus(); };
    DDMLongText.OnLostFocus = [this] { DDMLongText_LostFocus(); };
    DMMLongText.OnLostFocus = [this] { DMMLongText_LostFocus(); };
}

void ModifyProcedure::DDMLatText_LostFocus() {
    LeaveBox(program_, DDMLatText, DegreesComplaint(LatitudeAxis, DDMLatText.Text()), LatEdited);
}

void ModifyProcedure::DMMLatText_LostFocus() {
    LeaveBox(program_, DMMLatText, MinutesComplaint(LatitudeAxis, DDMLatText.Text(), DMMLatText.Text()),
             LatEdited);
}

void ModifyProcedure::DDMLongText_LostFocus() {
    LeaveBox(program_, DDMLongText, DegreesComplaint(LongitudeAxis, DDMLongText.Text()), LongEdited);
}

void ModifyProcedure::DMMLongText_LostFocus() {
    LeaveBox(program_, DMMLongText, MinutesComplaint(LongitudeAxis, DDMLongText.Text(), DMMLongText.Text()),
             LongEdited);
}

}  // namespace tarvex
