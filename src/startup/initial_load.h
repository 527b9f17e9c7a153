#pragma once

#include <functional>

#include "startup/workplace.h"
#include "toolkit/form.h"
#include "toolkit/simple_controls.h"

namespace tarvex {

// The first screen: its load is the start of the program, and then it stands as the main menu.
class InitialLoad : public Form {
  public:
    // `letChooseRunway`: makes the new procedure in the editor one that can, or can't, be runway specific.
    InitialLoad(const Workplace& workplace, std::function<void(bool)> letChooseRunway);

    Button CreateDP{*this, "CreateDP", "Create a New DP (SID)", 0};
    Button ModifyDP{*this, "ModifyDP", "Modify a DP (SID)", 1};
    Button ModifySTAR{*this, "ModifySTAR", "Modify a STAR", 2};
    Button ModifyIAP{*this, "ModifyIAP", "Modify an IAP", 3};
    Button ExitCommand{*this, "ExitCommand", "EXIT", 4};
    Button CreateIAP{*this, "CreateIAP", "Create a New IAP", 5};
    Button CreateSTAR{*this, "CreateSTAR", "Create a New STAR", 6};

    Button* WayOut() override { return &ExitCommand; }
    // The digits go by the rows of the window.
    std::vector<Shortcut> Shortcuts() override {
        return {{ShortcutKey::Digit1, nullptr, &CreateDP},   {ShortcutKey::Digit2, nullptr, &ModifyDP},
                {ShortcutKey::Digit3, nullptr, &CreateSTAR}, {ShortcutKey::Digit4, nullptr, &ModifySTAR},
                {ShortcutKey::Digit5, nullptr, &CreateIAP},  {ShortcutKey::Digit6, nullptr, &ModifyIAP}};
    }

    // The start sequence: settings, navigation tables. Without settings and without the simulator's registry
    // value it ends with the menu hidden and FindFS2000Form on the screen. Stops the program where it can't
    // go on.
    void Form_Load() override;
    // Ends a normal run.
    void Form_Unload() override;

    void CreateDP_Click() { Create("E"); }
    void CreateSTAR_Click() { Create("T"); }
    void CreateIAP_Click() { Create("J"); }
    void ModifyDP_Click() { Modify("D"); }
    void ModifySTAR_Click() { Modify("S"); }
    void ModifyIAP_Click() { Modify("I"); }
    void ExitCommand_Click() { Unload(); }

  private:
    // Bring the settings into the shared state; false when the user has to choose the folder first.
    bool ReadSettings();
    bool RecoverShortSettings();
    bool RecoverMissingSettings();
    void RewriteSettings(const Settings& settings);

    // The menu stands beside the editor when the user chose the folder anew meanwhile. Any action then leads
    // back to the procedure that is open, which keeps its kind and is saved in the new folder.
    bool ReturnToEditor();
    // What the actions do, by the mode that they fix.
    void Create(std::string_view mode);
    void Modify(std::string_view mode);
    void SetProcedure(std::string_view mode);

    const Workplace& workplace_;
    SharedState& state_;
    std::function<void(bool)> letChooseRunway_;
};

}  // namespace tarvex
