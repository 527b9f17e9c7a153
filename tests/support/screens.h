#pragma once

// All screens of a program.
#include "editor/modify_procedure.h"
#include "geometry/add_arc.h"
#include "geometry/create_waypoint_form.h"
#include "geometry/lat_long_form.h"
#include "navigation/find_waypoint_form.h"
#include "procedure/pick_file.h"
#include "program/program.h"
#include "startup/find_fs2000_form.h"
#include "startup/initial_load.h"
