#include "support/editor_road.h"

namespace tarvex::testing {
namespace {

class SetUp : public EditorRoad {
  protected:
    struct Action {
        const char* mode;
        Button InitialLoad::*button;
        const char* folder;
        const char* caption;
        const char* heading;
    };

    // Presses the action of the menu and picks the file, if there is one to pick.
    ModifyProcedure* Open(const Action& action, const std::string& fileName) {
        user->Presses(Menu().*action.button);
        if (PickFile* picker = program->pickFile.Get(); picker != nullptr && picker->Visible()) {
            EXPECT_TRUE(user->PicksFile(picker->FileList, fileName)) << fileName;
        }
        return program->modifyProcedure.Get();
    }
    // The editor does not open, the menu is there, one message tells why, and nothing has changed.
    void ExpectNotOpened(const std::string& fileName, const std::string& reason) {
        State().WaypointCount = 7;
        user->Presses(Menu().ModifyDP);
        PickAfter(fileName);
        const Message expected{.prompt = "The procedure " + fileName + " could not be opened:\r\n" + reason,
                               .title = "Procedure not opened."};
        EXPECT_EQ(services.messages.Take(), std::vector{expected});
        EXPECT_FALSE(program->modifyProcedure.IsLoaded());
        EXPECT_EQ(program->host.Visible(), std::vector<Form*>{&Menu()});
        EXPECT_EQ(State().WaypointCount, 7);
        EXPECT_TRUE(services.files.Written().empty());
    }
    void PickAfter(const std::string& fileName) {
        if (between) between();
        EXPECT_TRUE(user->PicksFile(program->pickFile.Get()->FileList, fileName));
    }

    std::function<void()> between;  // what happens while the picker is open
};

constexpr const char* Sids = "C:\\FS2000\\Giostam\\navdata\\Sids\\";
constexpr const char* Stars = "C:\\FS2000\\Giostam\\navdata\\Stars\\";
constexpr const char* Approaches = "C:\\FS2000\\Giostam\\navdata\\Approaches\\";

TEST_F(SetUp, EachModeHasItsCaptionsAndItsNameBoxes) {
    const Action actions[] = {
        {"E", &InitialLoad::CreateDP, Sids, "Create a Procedure", "Create a Departure Procedure"},
        {"T", &InitialLoad::CreateSTAR, Stars, "Create a Procedure",
         "Create a Standard Terminal Arrival Procedure"},
        {"J", &InitialLoad::CreateIAP, Approaches, "Create a Procedure",
         "Create an Instrument Approach Procedure"},
        {"D", &InitialLoad::ModifyDP, Sids, "Modify a Procedure", "Modify a Departure Procedure"},
        {"S", &InitialLoad::ModifySTAR, Stars, "Modify a Procedure",
         "Modify a Standard Terminal Arrival Procedure"},
        {"I", &InitialLoad::ModifyIAP, Approaches, "Modify a Procedure",
         "Modify an Instrument Approach Procedure"},
    };
    for (const Action& action : actions) {
        const std::string mode = action.mode;
        SCOPED_TRACE(mode);
        const bool creates = mode == "E" || mode == "T" || mode == "J";
        services.files.Put(std::string(action.folder) + "KXYZ-DEMO1.27L.rwy",
                           "; 2.35\r\nW,ROBUC,,0,1,1,0,0,0,0,0,\r\nW,B,,0,1,1,0,0,0,0,0,\r\n");
        ModifyProcedure& editor = *Open(action, "KXYZ-DEMO1.27L.rwy");
        EXPECT_EQ(State().ProcedureMode, mode);
        EXPECT_EQ(editor.Caption(), action.caption);
        EXPECT_EQ(editor.ActionLabel.Caption(), action.heading);
        EXPECT_EQ(editor.FilenameText.Caption(), creates ? "" : "KXYZ-DEMO1.27L.rwy");
        EXPECT_EQ(editor.AptNameText.Text(), creates ? "" : "KXYZ");
        EXPECT_EQ(editor.BasicNameText.Text(), creates ? "" : "DEMO1");
        EXPECT_EQ(editor.TransitionText.Text(), creates ? "" : "27L");
        EXPECT_EQ(editor.TransitionLabel1.Caption(), creates ? "Transition" : "Runway");
        for (TextBox* box : {&editor.AptNameText, &editor.BasicNameText, &editor.TransitionText}) {
            EXPECT_EQ(box->Enabled(), creates) << box->Name();
            EXPECT_EQ(box->BackColor(), creates ? White : LightGrey) << box->Name();
            EXPECT_EQ(box->Locked(), !creates && box != &editor.AptNameText) << box->Name();
        }
        EXPECT_EQ(editor.RwySpecificCheck.Enabled(), mode == "E");
        EXPECT_EQ(editor.RwySpecificCheck.Value(), creates ? 0 : 1);
        EXPECT_EQ(State().WaypointCount, creates ? 0 : 2);
        EXPECT_EQ(Lines(), creates ? std::vector<std::string>{}
                                   : (std::vector<std::string>{"ROBUC     ", "B         "}));
        EXPECT_EQ(editor.WaypointList.ListIndex(), ListBox::NoSelection);
        EXPECT_EQ(program->host.Visible(), std::vector<Form*>{&editor});
        EXPECT_EQ(user->FocusName(), creates ? "AptNameText" : "FixNameText");
        for (Button* button : {&editor.ModifyWaypointCommand, &editor.DeleteWaypointCommand, &editor.MoveUp,
                               &editor.MoveDown}) {
            EXPECT_FALSE(button->Enabled()) << button->Name();
        }
        EXPECT_FALSE(editor.Alt2Text.Enabled());
        EXPECT_FALSE(editor.Alt2Label.Enabled());
        EXPECT_EQ(editor.Alt2Text.BackColor(), Grey);
        EXPECT_TRUE(editor.NoRestrictionOption.Value());
        program->host.RunEvent([&editor] {
            editor.OopsCommand_Click();
            EXPECT_EQ(editor.FilenameText.Caption(), "");
        });
        EXPECT_EQ(program->host.Visible(), std::vector<Form*>{&Menu()});
    }
    ExpectSilence();
}

TEST_F(SetUp, OpensInTheHemispheresOfTheSettings) {
    const struct {
        const char* lat;
        const char* lon;
        bool north;
        bool east;
    } cases[] = {
        {"N", "W", true, false}, {"S", "E", false, true}, {"", "", false, false}, {"n", "e", false, false}};
    for (const auto& [lat, lon, north, east] : cases) {
        State().DefaultLatHemisphere = lat;
        State().DefaultLongHemisphere = lon;
        ModifyProcedure& editor = CreateDP();
        EXPECT_EQ(editor.NLatOption.Value(), north) << lat;
        EXPECT_EQ(editor.SLatOption.Value(), !north) << lat;
        EXPECT_EQ(editor.ELongOption.Value(), east) << lon;
        EXPECT_EQ(editor.WLongOption.Value(), !east) << lon;
        user->Presses(editor.OopsCommand);
    }
}

TEST_F(SetUp, NameWithoutItsSeparatorsIsNotOpened) {
    // What reading would mend must stay as it is.
    const std::string text = "W,A,,0,40.5 N,-73.5 W,0,0,0,0,0,\r\n";
    const struct {
        const char* fileName;
        const char* reason;
    } cases[] = {
        {"README", "README: the name has no \"-\" behind the airport's code"},
        {"KXYZ-DEMO1", "KXYZ-DEMO1: the name has no \".\" that ends the basic name"},
        {"KXYZ-DEMO1.tr", "KXYZ-DEMO1.tr: the name has no second \".\" that ends the transition or runway"},
    };
    for (const auto& [fileName, reason] : cases) {
        services.files.Put(Path(fileName), text);
        ExpectNotOpened(fileName, reason);
        EXPECT_EQ(services.files.Content(Path(fileName)), text);
    }
}

TEST_F(SetUp, FileThatCanNotBeReadOrMendedIsNotOpened) {
    const std::string name = "KXYZ-DEMO1.wsd", path = Path(name);
    const auto put = [&](const std::string& text) { services.files.Put(path, text); };
    put("");
    between = [&] { services.files.Remove(path); };
    ExpectNotOpened(name, path + ": no such file");

    put("");
    between = [&] { services.files.RemoveFolder("C:\\FS2000\\Giostam"); };
    ExpectNotOpened(name, "C:\\FS2000\\Giostam\\navdata\\Sids: no such folder");

    between = {};
    std::string full = "; 2.35\r\n";
    for (int i = 0; i < 202; ++i) full += "W,A,,0,1,1,0,0,0,0,0,\r\n";
    put(full);
    ExpectNotOpened(name, path + ", line 203: more than 201 waypoints");

    put("W,A,,0,40.5 N,-73.5 W,0,0,0,0,0,\r\n");
    services.files.FailWrite(path, PermissionDenied);
    ExpectNotOpened(name, path + ": cannot be written");

    services.files.FailRead(path, PermissionDenied);
    ExpectNotOpened(name, path + ": cannot be read");
    EXPECT_FALSE(program->host.Stopped());
}

TEST_F(SetUp, DamagedDataStopTheProgram) {
    const std::string text = "; 2.35\r\nW,A,,0,1,1,0,0,0,0,\r\nW,B,,0,1,1,0,0,0,0,0,\r\n";
    services.files.Put(Path("KXYZ-DEMO1.wsd"), text);
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
    EXPECT_EQ(services.files.Content(Path("KXYZ-DEMO1.wsd")), text);
}

TEST_F(SetUp, ClosingTheWindowTakesTheToolsAlongAndComplainsOfNothing) {
    ModifyProcedure& editor = CreateDP();
    user->Presses(editor.FindFixCommand);
    user->Presses(editor.AddArcCommand);
    user->Presses(program->addARC.Get()->LatLongCommand);
    user->Presses(editor.CreateWaypointCommand);
    user->Types(editor.Alt1Text, "12x");
    EXPECT_TRUE(program->door.CloseWindow(program->modifyProcedure));
    EXPECT_EQ(program->host.Visible(), std::vector<Form*>{&Menu()});
    for (const FormSlotBase* slot : std::initializer_list<const FormSlotBase*>{
             &program->modifyProcedure, &program->findWaypointForm, &program->addARC, &program->latLongForm,
             &program->createWaypointForm}) {
        EXPECT_FALSE(slot->IsLoaded());
    }
    EXPECT_EQ(user->FocusName(), "CreateDP");
    ExpectSilence();
}

TEST_F(SetUp, ClearingTheBoxesEndsTheSelectionAndKeepsTheProcedure) {
    ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd",
                                     "W,A,,0,-1.5,2.5,0,250,0,5000,1,\r\n"
                                     "W,DMO,,0,-1.5,2.5,113.60,250,3000,9000,3,\r\n");
    user->PicksLine(editor.WaypointList, 1);
    user->MovesTo(editor.DMMLatText);
    user->Presses(editor.ClearDataCommand);
    EXPECT_EQ(editor.WaypointList.ListIndex(), ListBox::NoSelection);
    EXPECT_EQ(user->FocusName(), "FixNameText");
    EXPECT_EQ(editor.LatEdited, False);
    EXPECT_EQ(editor.LongEdited, False);
    EXPECT_TRUE(editor.AddWaypointCommand.Enabled());
    EXPECT_FALSE(editor.ModifyWaypointCommand.Enabled());
    EXPECT_FALSE(editor.DeleteWaypointCommand.Enabled());
    EXPECT_TRUE(editor.MoveUp.Enabled());
    for (TextBox* box :
         {&editor.FixNameText, &editor.NAVIDText, &editor.FreqText, &editor.DDMLatText, &editor.DMMLatText,
          &editor.DDMLongText, &editor.DMMLongText, &editor.Alt1Text, &editor.AirspeedText}) {
        EXPECT_EQ(box->Text(), "") << box->Name();
        EXPECT_TRUE(box->Enabled()) << box->Name();
        EXPECT_EQ(box->BackColor(), White) << box->Name();
    }
    EXPECT_EQ(editor.Alt2Text.Text(), "");
    EXPECT_FALSE(editor.Alt2Text.Enabled());
    EXPECT_TRUE(editor.NoRestrictionOption.Value());
    EXPECT_TRUE(editor.SLatOption.Value());
    EXPECT_EQ(editor.AptNameText.Text(), "KXYZ");
    EXPECT_EQ(State().WaypointCount, 2);
    EXPECT_EQ(Lines().size(), 2U);
    ExpectSilence();
}

}  // namespace
}  // namespace tarvex::testing
