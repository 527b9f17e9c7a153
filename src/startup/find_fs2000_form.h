#pragma once

#include <string>

#include "startup/workplace.h"
#include "toolkit/drive_lists.h"
#include "toolkit/form.h"
#include "toolkit/simple_controls.h"

namespace tarvex {

// The screen that asks for the simulator folder.
class FindFS2000Form : public Form {
  public:
    explicit FindFS2000Form(const Workplace& workplace);

    Frame Frame1{*this, "Frame1", "Find Flight Sim 2000"};
    Label Label1{*this, "Label1", "I could not find your Flight Simulator 2000. "};
    Label Label2{*this, "Label2", "Please locate the program.   Click Done after"};
    Label Label3{*this, "Label3", "you've clicked on your Flight Sim 2000 folder."};
    DriveList Drive1;
    FolderList Dir1;
    Label DataHintLabel{*this, "DataHintLabel", ""};  // whether the folder chosen holds the add-on's data
    Label WayBackLabel{*this, "WayBackLabel", "The folder can be chosen again by deleting Tarvex.INI."};
    Button FindDoneCommand{*this, "FindDoneCommand", "Done", 2};

    // The folder chosen so far; empty for none. It becomes the program's with Done.
    std::string SimulatorPath;

    void Form_Load() override;
    // The way out without Done. The menu comes back, unless the editor keeps it away; the run ends when
    // nothing else is on the screen.
    void Form_Unload() override;
    void Drive1_Change();
    void Dir1_Change();
    void Dir1_Click();
    // Takes and keeps the folder, whatever it holds, loads its navigation data and leads to the menu. Where
    // the settings file can't be written the screen stays.
    void FindDoneCommand_Click();

  private:
    void Choose(const std::string& folder);
    void LoadTables();

    const Workplace& workplace_;
    bool done_ = false;
};

}  // namespace tarvex
