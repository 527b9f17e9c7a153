#pragma once

#include "toolkit/form_host.h"

namespace tarvex {

class AddARC;
class CreateWaypointForm;
class FindWaypointForm;

// The tool screens that the editor opens.
struct EditorTools {
    FormSlot<FindWaypointForm>& findWaypointForm;
    FormSlot<AddARC>& addARC;
    FormSlot<CreateWaypointForm>& createWaypointForm;
};

}  // namespace tarvex
