#pragma once

#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "startup/program.h"
#include "support/scripted_user.h"
#include "support/test_services.h"

namespace tarvex::testing {

// What a user keys in for one waypoint, a box or an option each; what is empty, or null, is not touched.
struct TypedWaypoint {
    const char* fix = "";
    const char* navaid = "";
    const char* frequency = "";
    const char* latDegrees = "";
    const char* latMinutes = "";
    const char* longDegrees = "";
    const char* longMinutes = "";
    const char* altitude = "";
    const char* upperAltitude = "";
    const char* airspeed = "";
    OptionButton ModifyProcedure::*restriction = nullptr;
};

// A user at the menu of a program with a simulator folder, on the way into the editor and out of it.
class EditorRoad : public ::testing::Test {
  protected:
    EditorRoad() {
        services.PutSimulator();
        program.emplace(services.ForProgram());
        program->Start();
        user.emplace(*program);
    }

    InitialLoad& Menu() { return *program->initialLoad.Get(); }
    ModifyProcedure& Editor() { return *program->modifyProcedure.Get(); }
    SharedState& State() { return program->state; }
    const WaypointRecord& Row(std::size_t index) { return State().WaypointTable.at(index); }

    ModifyProcedure& CreateDP() {
        user->Presses(Menu().CreateDP);
        return Editor();
    }
    // Opens a stored departure through menu and picker.
    ModifyProcedure& OpenDP(const std::string& name) {
        user->Presses(Menu().ModifyDP);
        EXPECT_TRUE(user->PicksFile(program->pickFile.Get()->FileList, name)) << name;
        return Editor();
    }
    ModifyProcedure& OpenDP(const std::string& name, const std::string& lines) {
        services.files.Put(Path(name),
                           "; by hand 2.35\r\n\r\n" + lines + "\r\nEnd of Terminal Procedure\r\n");
        return OpenDP(name);
    }

    void Name(const char* airport, const char* basic) {
        user->Types(Editor().AptNameText, airport);
        user->Types(Editor().BasicNameText, basic);
    }
    void Fill(const TypedWaypoint& typed) {
        ModifyProcedure& editor = Editor();
        if (typed.restriction != nullptr) user->Picks(editor.*typed.restriction);
        const std::pair<TextBox*, const char*> boxes[] = {
            {&editor.FixNameText, typed.fix},         {&editor.NAVIDText, typed.navaid},
            {&editor.FreqText, typed.frequency},      {&editor.DDMLatText, typed.latDegrees},
            {&editor.DMMLatText, typed.latMinutes},   {&editor.DDMLongText, typed.longDegrees},
            {&editor.DMMLongText, typed.longMinutes}, {&editor.Alt1Text, typed.altitude},
            {&editor.Alt2Text, typed.upperAltitude},  {&editor.AirspeedText, typed.airspeed},
        };
        for (const auto& [box, text] : boxes) {
            if (*text != '\0') user->Types(*box, text);
        }
    }
    void Add(const TypedWaypoint& typed) {
        Fill(typed);
        user->Presses(Editor().AddWaypointCommand);
    }
    void AddFixes(int count) {
        for (int i = 0; i < count; ++i) {
            const std::string name = "FIX" + std::to_string(State().WaypointCount);
            Add({.fix = name.c_str(), .latDegrees = "33", .longDegrees = "117"});
        }
    }

    // Saves and gives the file; empty when the editor is still there.
    std::string Save(const std::string& name) {
        user->Presses(Editor().SaveCommand);
        return program->modifyProcedure.IsLoaded() ? std::string() : services.files.Content(Path(name));
    }
    // A whole file as a save writes it.
    static std::string Saved(const std::string& lines) {
        return "; This Terminal Procedure generated on 5/14/2001 by Tarvex 2.35\r\n\r\n" + lines +
               "\r\nEnd of Terminal Procedure\r\n";
    }
    static std::string Path(const std::string& name) { return "C:\\FS2000\\Giostam\\navdata\\Sids\\" + name; }

    // One message with an OK button was shown since the last look, no other, and the focus is there now.
    void ExpectMessage(std::string_view prompt, std::string_view title, std::string_view focus) {
        ExpectMessage(Message{.prompt = std::string(prompt), .title = std::string(title)}, focus);
    }
    void ExpectMessage(const Message& message, std::string_view focus) {
        EXPECT_EQ(services.messages.Take(), std::vector{message});
        EXPECT_EQ(user->FocusName(), focus);
    }
    void ExpectSilence() { EXPECT_EQ(services.messages.Take(), std::vector<Message>()); }
    std::vector<std::string> Lines() { return Editor().WaypointList.Lines(); }

    TestServices services;
    std::optional<Program> program;
    std::optional<ScriptedUser> user;
};

}  // namespace tarvex::testing
