#include "geometry/lat_long_form.h"

#include "startup/program.h"

namespace tarvex {

LatLongForm::LatLongForm(Program& program)
    : Form(program.host, "LatLongForm", "Lat/Long Centerpoint"), program_(program) {}

}  // namespace tarvex
