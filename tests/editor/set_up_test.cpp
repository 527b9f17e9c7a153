#include <functional>
#include <tuple>

#include "support/tool_road.h"

namespace tarvex::testing {
namespace {

using SettingUp = ToolRoad;

TEST_F(SettingUp, EachModeHasItsFolderItsCaptionsAndItsNameBoxes) {
    const struct {
        const char* mode;
        Button InitialLoad::*button;
        const char *folder, *heading;
    } actions[] = {
        {"E", &InitialLoad::CreateDP, "Sids", "Create a Departure Procedure"},
        {"T", &InitialLoad::CreateSTAR, "Stars", "Create a Standard Terminal Arrival Procedure"},
        {"J", &InitialLoad::CreateIAP, "Approaches", "Create an Instrument Approach Procedure"},
        {"D", &InitialLoad::ModifyDP, "Sids", "Modify a Departure Procedure"},
        {"S", &InitialLoad::ModifySTAR, "Stars", "Modify a Standard Terminal Arrival Procedure"},
        {"I", &InitialLoad::ModifyIAP, "Approaches", "Modify an Instrument Approach Procedure"},
    };
    for (const auto& [mode, button, name, heading] : actions) {
        SCOPED_TRACE(mode);
        const bool creates = *heading == 'C';
        const std::string folder = "C:\\FS2000\\Giostam\\navdata\\" + std::string(name) + "\\";
        services.files.Put(folder + "KXYZ-DEMO1.27L.rwy",
                           "; 2.35\r\nW,ROBUC,,0,1,1,0,0,0,0,0,\r\nW,B,,0,1,1,0,0,0,0,0,\r\n");
        user->Presses(Menu().*button);
        if (!creates) {
            user->PicksFile(program->pickFile.Get()->FileList, "KXYZ-DEMO1.27L.rwy");
        }
        ModifyProcedure& editor = Editor();
        EXPECT_EQ(State().ProcedureMode, mode);
        EXPECT_EQ(State().ProcedureFolder, folder);
        EXPECT_EQ(editor.Caption(), creates ? "Create a Procedure" : "Modify a Procedure");
        EXPECT_EQ(editor.ActionLabel.Caption(), heading);
        EXPECT_EQ(editor.FilenameText.Caption(), creates ? "" : "KXYZ-DEMO1.27L.rwy");
        EXPECT_EQ(editor.AptNameText.Text() + "|" + editor.BasicNameText.Text() + "|" +
                      editor.TransitionText.Text(),
                  creates ? "||" : "KXYZ|DEMO1|27L");
        EXPECT_EQ(editor.TransitionLabel1.Caption(), creates ? "Transition" : "Runway");
        for (TextBox* box : {&editor.AptNameText, &editor.BasicNameText, &editor.TransitionText}) {
            EXPECT_EQ(box->Enabled(), creates) << box->Name();
            EXPECT_EQ(box->BackColor(), creates ? White : LightGrey) << box->Name();
            EXPECT_EQ(box->Locked(), !creates && box != &editor.AptNameText) << box->Name();
        }
        EXPECT_EQ(editor.RwySpecificCheck.Enabled(), *mode == 'E');
        EXPECT_EQ(editor.RwySpecificCheck.Value(), creates ? 0 : 1);
        EXPECT_EQ(State().WaypointCount, creates ? 0 : 2);
        EXPECT_EQ(Lines(), creates ? std::vector<std::string>{}
                                   : (std::vector<std::string>{"ROBUC     ", "B         "}));
        EXPECT_EQ(program->host.Visible(), std::vector<Form*>{&editor});
        EXPECT_EQ(user->FocusName(), creates ? "AptNameText" : "FixNameText");
        program->host.RunEvent([&editor] {
            editor.OopsCommand_Click();
            EXPECT_EQ(editor.FilenameText.Caption(), "");
        });
        EXPECT_EQ(program->host.Visible(), std::vector<Form*>{&Menu()});
    }
    ExpectSilence();
}

TEST_F(SettingUp, OpensInTheHemispheresOfTheSettings) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"N", "W", "N/ W/"}, {"S", "E", "S/ E/"}, {"", "", "S/ W/"}, {"n", "e", "S/ W/"}};
    for (const auto& [lat, lon, position] : cases) {
        State().DefaultLatHemisphere = lat;
        State().DefaultLongHemisphere = lon;
        CreateDP();
        EXPECT_EQ(Position(), position);
        user->Presses(Editor().OopsCommand);
    }
}

TEST_F(SettingUp, TabLeadsThroughTheControlsInTheOrderOfWork) {
    const auto walk = [&] {
        std::string names;
        for (std::size_t left = Editor().TabStops().size(); left > 0; --left) {
            names += user->FocusName() + " ";
            user->Tabs(Editor());
        }
        return names;
    };
    CreateDP();
    EXPECT_EQ(walk(),
              "AptNameText BasicNameText TransitionText FixNameText DDMLatText DMMLatText DDMLongText "
              "DMMLongText Alt1Text AirspeedText AddWaypointCommand SaveCommand OopsCommand WaypointList "
              "NAVIDText FreqText WLongOption NLatOption NoRestrictionOption ClearDataCommand "
              "RwySpecificCheck FindFixCommand FindNavCommand AddArcCommand FindAirportCommand "
              "CreateWaypointCommand ");
    user->Presses(Editor().OopsCommand);
    ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd", "W,A,,0,-1.5,2.5,0,0,3000,9000,3,\r\n");
    user->PicksLine(editor.WaypointList, 0);
    user->MovesTo(editor.FixNameText);
    EXPECT_EQ(walk(),
              "FixNameText DDMLatText DMMLatText DDMLongText DMMLongText Alt1Text AirspeedText Alt2Text "
              "SaveCommand OopsCommand DeleteWaypointCommand ModifyWaypointCommand WaypointList MoveUp "
              "MoveDown ELongOption SLatOption AtAboveAtBelowOption ClearDataCommand FindFixCommand "
              "FindNavCommand AddArcCommand FindAirportCommand CreateWaypointCommand ");
    ExpectSilence();
}

TEST_F(SettingUp, WhatCanNotBeOpenedSaysWhyAndStaysAsItIs) {
    const std::string path = Path("KXYZ-DEMO1.wsd");
    const std::string mendable = "W,A,,0,40.5 N,-73.5 W,0,0,0,0,0,\r\n";
    std::string full = "; 2.35\r\n";
    for (int i = 0; i < 202; ++i) full += "W,A,,0,1,1,0,0,0,0,0,\r\n";
    const struct {
        std::string name, text, reason;
        std::function<void()> meanwhile;  // happens while the picker is open
    } cases[] = {
        {"README", mendable, "README: the name has no \"-\" behind the airport's code", [] {}},
        {"KXYZ-DEMO1.wsd", "", path + ": no such file", [&] { services.files.Remove(path); }},
        {"KXYZ-DEMO1.wsd", full, path + ", line 203: more than 201 waypoints", [] {}},
        {"KXYZ-DEMO1.wsd", mendable + "W,B,,0,1,", path + ", line 2: the file ends inside this waypoint",
         [] {}},
        {"KXYZ-DEMO1.wsd", mendable, path + ": cannot be written",
         [&] { services.files.FailWrite(path, DiskFull); }},
    };
    for (const auto& [name, text, reason, meanwhile] : cases) {
        services.files.Put(Path(name), text);
        State().WaypointCount = 7;
        user->Presses(Menu().ModifyDP);
        meanwhile();
        user->PicksFile(program->pickFile.Get()->FileList, name);
        const Message expected{.prompt = "The procedure " + name + " could not be opened:\r\n" + reason,
                               .title = "Procedure not opened."};
        EXPECT_EQ(services.messages.Take(), std::vector{expected});
        EXPECT_FALSE(program->modifyProcedure.IsLoaded());
        EXPECT_EQ(program->host.Visible(), std::vector<Form*>{&Menu()});
        EXPECT_EQ(State().WaypointCount, 7);
        EXPECT_EQ(services.files.Writes(), 0);
        if (services.files.Has(Path(name))) {
            EXPECT_EQ(services.files.Content(Path(name)), text);
        }
    }
}

TEST_F(SettingUp, DamagedDataStopTheProgram) {
    services.files.Put(Path("KXYZ-DEMO1.wsd"), "; 2.35\r\nW,A,,0,1,1,0,0,0,0,\r\nW,B,,0,1,1,0,0,0,0,0,\r\n");
    user->Presses(Menu().ModifyDP);
    user->PicksFile(program->pickFile.Get()->FileList, "KXYZ-DEMO1.wsd");
    const Message expected{.prompt =
                               "Procedure KXYZ-DEMO1.wsd is missing some of it's data.\r\n"
                               "You will need to correct the procedure file in order to continue.\r\n"
                               "This prodram will have to terminate now.",
                           .title = "Fatal Data Error."};
    EXPECT_EQ(services.messages.Take(), std::vector{expected});
    ASSERT_TRUE(program->host.Stopped());
    EXPECT_EQ(program->host.Stopped()->reason,
              Path("KXYZ-DEMO1.wsd") + ", line 2: the waypoint has lost or surplus items");
}

TEST_F(SettingUp, ClosingTheWindowTakesTheToolsAlongAndComplainsOfNothing) {
    ModifyProcedure& editor = CreateDP();
    user->Presses(editor.CreateWaypointCommand);
    user->Presses(editor.AddArcCommand);
    user->Presses(Designer().Command1);
    user->Presses(Designer().LatLongCommand);
    user->Types(editor.Alt1Text, "12x");
    EXPECT_TRUE(program->door.CloseWindow(program->modifyProcedure));
    EXPECT_EQ(program->host.Visible(), std::vector<Form*>{&Menu()});
    EXPECT_FALSE(program->findWaypointForm.IsLoaded() || program->addARC.IsLoaded() ||
                 program->latLongForm.IsLoaded() || program->createWaypointForm.IsLoaded());
    EXPECT_EQ(user->FocusName(), "CreateDP");
    ExpectSilence();
}

TEST_F(SettingUp, ClearingTheBoxesEndsTheSelectionAndKeepsTheProcedure) {
    ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd",
                                     "W,A,,0,-1.5,2.5,0,250,0,5000,1,\r\n"
                                     "W,DMO,,0,-1.5,2.5,113.60,250,3000,9000,3,\r\n");
    for (const int line : {0, 1}) {
        user->PicksLine(editor.WaypointList, line);
        user->MovesTo(editor.DMMLatText);
        user->Presses(editor.ClearDataCommand);
        EXPECT_EQ(editor.WaypointList.ListIndex(), ListBox::NoSelection);
        EXPECT_EQ(user->FocusName(), "FixNameText");
        EXPECT_FALSE(editor.LatEdited || editor.LongEdited);
        EXPECT_EQ(Position(), "S/ E/");
        for (TextBox* box : {&editor.FixNameText, &editor.NAVIDText, &editor.FreqText, &editor.Alt1Text,
                             &editor.AirspeedText, &editor.Alt2Text}) {
            const bool inUse = box != &editor.Alt2Text;
            EXPECT_EQ(box->Text(), "") << box->Name();
            EXPECT_EQ(box->Enabled(), inUse) << box->Name();
            EXPECT_EQ(box->BackColor(), inUse ? White : Grey) << box->Name();
        }
        EXPECT_TRUE(editor.NoRestrictionOption.Value());
    }
    EXPECT_EQ(editor.AptNameText.Text(), "KXYZ");
    EXPECT_EQ(State().WaypointCount, 2);
    ExpectSilence();
}

}  // namespace
}  // namespace tarvex::testing
