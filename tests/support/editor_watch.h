#pragma once

#include <map>
#include <string>
#include <vector>

#include "support/faulty_file_system.h"
#include "support/findings.h"
#include "support/memory_file_system.h"
#include "support/random_user.h"
#include "support/screens.h"

namespace tarvex::testing {

// Follows the editor from act to act with rows and lines of its own, and the procedures that it saves from
// file to file. Several programs may come after each other.
class EditorWatch {
  public:
    EditorWatch(MemoryFileSystem& stored, const FaultyFileSystem& files) : stored_(stored), files_(files) {}

    struct Counts {
        int added, modified, deleted, moved, saved, reopened, arcs, most;
    };
    const Counts& Seen() const { return seen_; }

    void Before(const Program& program);
    void After(const Program& program, const RandomUser::Act& act, Findings& findings);
    // The stored procedures are no longer what was saved.
    void ForgetFiles() { saved_.clear(); }

  private:
    struct Pair {
        std::string line;
        WaypointRecord row;
        friend bool operator==(const Pair&, const Pair&) = default;
    };
    struct SavedRow {
        std::string name;
        double lat;
        double lon;
    };

    void CheckSaved(const Program& program, Findings& findings);
    void CheckFile(const std::string& path, Findings& findings);
    void CheckRows(const Program& program, const RandomUser::Act& act, Findings& findings);
    void CheckOpened(const Program& program, Findings& findings);
    void Expect(const Program& program, const RandomUser::Act& act, Findings& findings);
    void CheckAdded(const Pair& added, Findings& findings);
    void CheckControls(const ModifyProcedure& editor, Findings& findings);
    bool MatchesShadow(const Program& program) const;

    static Pair PairAt(const Program& program, std::size_t index);
    static SavedRow AsSaved(const WaypointRecord& row);
    static bool CameBack(const Pair& read, const SavedRow& saved);

    MemoryFileSystem& stored_;
    const FaultyFileSystem& files_;
    Counts seen_{};
    std::vector<Pair> shadow_;
    bool everSelected_ = false;                           // since the editor opened
    std::map<std::string, std::vector<SavedRow>> saved_;  // by path

    // Before the act.
    bool wasOpen_ = false;
    int selected_ = ListBox::NoSelection;
    std::string fix_;
    std::string navaid_;
};

}  // namespace tarvex::testing
