#pragma once

#include "toolkit/form.h"
#include "toolkit/simple_controls.h"

namespace tarvex {

class Program;

// The first screen: its load is the start of the program, and then it stands as the main menu.
class InitialLoad : public Form {
  public:
    explicit InitialLoad(Program& program);

    Button CreateDP{*this, "CreateDP", "Create a New DP (SID)", 0};
    Button ModifyDP{*this, "ModifyDP", "Modify a DP (SID)", 1};
    Button ModifySTAR{*this, "ModifySTAR", "Modify a STAR", 2};
    Button ModifyIAP{*this, "ModifyIAP", "Modify an IAP", 3};
    Button ExitCommand{*this, "ExitCommand", "EXIT", 4};
    Button CreateIAP{*this, "CreateIAP", "Create a New IAP", 5};
    Button CreateSTAR{*this, "CreateSTAR", "Create a New STAR", 6};

    // The start sequence: settings, navigation tables.
    void Form_Load() override;
    // Ends a normal run.
    void Form_Unload() override;

  private:
    Program& program_;
};

}  // namespace tarvex
