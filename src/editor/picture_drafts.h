#pragma once

#include <optional>
#include <vector>

#include "chart/plan_scene.h"
#include "editor/editor_tools.h"
#include "navigation/search_hit.h"

namespace tarvex {

class ModifyProcedure;
struct SharedState;

// What the boxes of the editor and of its tools hold that is not yet a row, as far as they suffice.
PlanDrafts DraftsOf(const ModifyProcedure& editor, const EditorTools& tools, const SharedState& state,
                    const Route& route);

// What an open search has found, and which of it is clicked.
struct SearchTargets {
    std::vector<Target> hits;
    Target clicked;
};
SearchTargets TargetsOf(const EditorTools& tools);

// The entry of the tables that a target stands for; nothing for a row, and for an entry without a position.
std::optional<SearchHit> HitOf(const Target& target, const NavigationTables& tables);

}  // namespace tarvex
