#pragma once

#include <string>

#include "toolkit/drive_lists.h"
#include "toolkit/form.h"
#include "toolkit/simple_controls.h"

namespace tarvex {

class Program;

// The screen on which the user picks the stored procedure to modify.
class PickFile : public Form {
  public:
    explicit PickFile(Program& program);

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
    void DoneCommand_Click();

  private:
    // Picks the file that is left in the list, if it is the only one.
    void PickOnlyFile();

    Program& program_;
    std::string folder_;  // that the list shows
    std::string mode_;    // in which its procedures open
};

}  // namespace tarvex
