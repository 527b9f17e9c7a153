#pragma once

#include <optional>
#include <string>

#include "navigation/search.h"
#include "startup/program.h"
#include "support/findings.h"
#include "support/random_user.h"

namespace tarvex::testing {

// Follows the screens beside the editor from act to act: which stand on the screen, where the focus is, and
// what each of them shows and carries over. Several programs may come after each other.
class ScreensWatch {
  public:
    struct Counts {
        int transfers, centres, derived, folders;
    };
    const Counts& Seen() const { return seen_; }

    void Before(const Program& program);
    void After(Program& program, const RandomUser::Act& act, Findings& findings);

  private:
    void CheckMenu(const Program& program, const RandomUser::Act& act, Findings& findings);
    void CheckTransfer(const Program& program, Findings& findings);
    void CheckCentre(const Program& program, Findings& findings);
    void CheckDerived(const Program& program, Findings& findings);
    void CheckArc(const Program& program, Findings& findings);

    Counts seen_{};
    std::string folder_;         // when the folder screen was not there
    bool menuMayStand_ = false;  // beside the editor: a folder was chosen since it opened

    // Before the act.
    struct Chosen {
        SearchCaller caller;
        NavigationTable table;
        double lat;
        double lon;
    };
    std::optional<Chosen> chosen_;  // what the search would carry over, to a caller that is there
    std::string mode_;
    bool editorWasOpen_ = false;
    std::string derivedName_;
    std::string arcLabel_;
    std::int32_t rows_ = 0;
    bool designerWasOpen_ = false;
    bool centreWasOpen_ = false;
    bool derivingWasOpen_ = false;
};

}  // namespace tarvex::testing
