#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "findings/findings.h"
#include "startup/shared_state.h"
#include "toolkit/list_box.h"

namespace tarvex {

class ModifyProcedure;

// What the rules find in the procedure as it stands in the editor, a line for each. A click on one leads to
// its waypoint.
class ProcedureFindings {
  public:
    ProcedureFindings(ModifyProcedure& editor, SharedState& state);

    ColumnList FindingsList;

    // Looks again if the rows, their lines, the name of the file or the tables are no longer what they were.
    // `changes` counts the changes of the rows that `route` shows.
    void Update(const Route& route, int changes);
    int Count() const { return static_cast<int>(findings_.size()); }

    // The waypoint of a finding was chosen.
    std::function<void(int row)> OnRow;

  private:
    struct Seen {
        int changes;
        int tables;
        std::string fileName;
        friend bool operator==(const Seen&, const Seen&) = default;
    };

    ProcedureName Name() const;
    void Look(const Route& route);

    ModifyProcedure& editor_;
    SharedState& state_;
    std::optional<Seen> seen_;
    std::vector<Finding> findings_;
};

}  // namespace tarvex
