#pragma once

#include <functional>

#include "procedure/procedure_variables.h"
#include "toolkit/drive_lists.h"
#include "toolkit/failure.h"
#include "toolkit/form.h"
#include "toolkit/simple_controls.h"

namespace tarvex {

// The screen on which the user picks the stored procedure to modify.
class PickFile : public Form {
  public:
    // Whoever opens it: takes the choice, and a failure of its load, which leaves the list empty.
    struct Opener {
        // ProcedureFileName holds the name; folder and mode are those that the list was read with.
        std::function<void(const ProcedureVariables& listed)> picked;
        std::function<void(const Failure&)> failed;
    };

    PickFile(FormHost& host, FileSystem& files, ProcedureVariables& variables, Opener opener);

    tarvex::FileList FileList;  // tab order 0
    TextBox PickICAO{*this, "PickICAO", 4, 1};
    Label Label1{*this, "Label1", "Type in ICAO    to search", 2};
    Button DoneCommand{*this, "DoneCommand", " Oops!  Start Over", 3, Boxes::Dropped};

    void Form_Load() override;
    Button* WayOut() override { return &DoneCommand; }
    std::vector<Shortcut> Shortcuts() override {
        return {{ShortcutKey::Enter, &PickICAO, nullptr, [this] { PickOnlyFile(); }}};
    }
    TextBox* BoxOfLetters() override { return &PickICAO; }
    void PickICAO_Change();
    void FileList_Click();
    void DoneCommand_Click() { Unload(); }

  private:
    // Picks the file that is left in the list, if it is the only one.
    void PickOnlyFile();

    ProcedureVariables& variables_;
    const ProcedureVariables listed_;  // as the list was read
    Opener opener_;
};

}  // namespace tarvex
