#pragma once

#include <string>

#include "navigation/search.h"
#include "support/findings.h"
#include "support/random_user.h"
#include "support/screens.h"

namespace tarvex::testing {

// Follows the screens beside the editor from act to act: which stand on the screen, where the focus is, and
// what search and picker show. Several programs may come after each other.
class ScreensWatch {
  public:
    struct Counts {
        int transfers, folders;
    };
    const Counts& Seen() const { return seen_; }

    void Before(const Program& program);
    void After(Program& program, const RandomUser::Act& act, Findings& findings);

  private:
    void CheckMenu(const Program& program, const RandomUser::Act& act, Findings& findings);
    Counts seen_{};
    std::string folder_;         // when the folder screen was not there
    bool menuMayStand_ = false;  // beside the editor: a folder was chosen since it opened

    // Before the act.
    std::string mode_;
    bool editorWasOpen_ = false;
};

}  // namespace tarvex::testing
