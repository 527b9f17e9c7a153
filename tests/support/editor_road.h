#pragma once

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "geometry/text_rules.h"
#include "startup/program.h"
#include "support/scripted_user.h"
#include "support/test_services.h"

namespace tarvex::testing {

// What a user keys in for one waypoint, a box or an option each; what is empty, or null, is not touched.
struct TypedWaypoint {
    std::string_view fix{};
    std::string_view navaid{};
    std::string_view frequency{};
    std::string_view lat{};  // degrees, and minutes behind a blank
    std::string_view lon{};
    std::string_view altitude{};
    std::string_view upperAltitude{};
    std::string_view airspeed{};
    std::string_view restriction{};  // the option's caption
};

inline constexpr std::string_view Band = "At or Above & At or Below";

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

    // Name, type, decimals, degrees and minutes, frequency, airspeed, both altitudes and restriction of a
    // row.
    std::string Fields(std::size_t index) {
        const WaypointRecord& row = Row(index);
        std::string all{RightTrim(row.WaypointID)};
        for (const std::string_view field : std::initializer_list<std::string_view>{
                 row.WaypointType, row.LatDecimal, row.LatDegrees, row.LatMinutes, row.LongDecimal,
                 row.LongDegrees, row.LongMinutes, row.Frequency, row.Airspeed, row.Altitude2, row.Altitude1,
                 row.RestrictionType}) {
            all.append("|").append(RightTrim(field));
        }
        return all;
    }

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
    std::vector<OptionButton*> Restrictions() {
        ModifyProcedure& form = Editor();
        return {&form.NoRestrictionOption, &form.AtOption, &form.AtBelowOption, &form.AtAboveOption,
                &form.AtAboveAtBelowOption};
    }
    void Fill(const TypedWaypoint& typed) {
        ModifyProcedure& editor = Editor();
        for (OptionButton* option : Restrictions()) {
            if (option->Caption() == typed.restriction) user->Picks(*option);
        }
        const auto degrees = [](std::string_view text) { return text.substr(0, text.find(' ')); };
        const auto minutes = [&](std::string_view text) {
            return text.substr(std::min(degrees(text).size() + 1, text.size()));
        };
        user->Fills(
            {&editor.FixNameText, &editor.NAVIDText, &editor.FreqText, &editor.DDMLatText, &editor.DMMLatText,
             &editor.DDMLongText, &editor.DMMLongText, &editor.Alt1Text, &editor.Alt2Text,
             &editor.AirspeedText},
            {typed.fix, typed.navaid, typed.frequency, degrees(typed.lat), minutes(typed.lat),
             degrees(typed.lon), minutes(typed.lon), typed.altitude, typed.upperAltitude, typed.airspeed});
    }
    void Add(const TypedWaypoint& typed) {
        Fill(typed);
        user->Presses(Editor().AddWaypointCommand);
    }
    void AddFixes(int count) {
        for (int i = 0; i < count; ++i) {
            const std::string name = "FIX" + std::to_string(State().WaypointCount);
            Add({.fix = name, .lat = "33", .lon = "117"});
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
    // The same by its words, under the program's own title.
    void ExpectComplaint(std::string_view prompt, std::string_view focus) {
        ExpectMessage(prompt, ProgramTitle, focus);
    }
    void ExpectSilence() { EXPECT_EQ(services.messages.Take(), std::vector<Message>()); }
    // The editor's position, as "N33/30. W117/15.".
    std::string Position() {
        ModifyProcedure& editor = Editor();
        return (editor.NLatOption.Value() ? "N" : "S") + editor.DDMLatText.Text() + "/" +
               editor.DMMLatText.Text() + (editor.ELongOption.Value() ? " E" : " W") +
               editor.DDMLongText.Text() + "/" + editor.DMMLongText.Text();
    }
    std::vector<std::string> Lines() { return Editor().WaypointList.Lines(); }

    TestServices services;
    std::optional<Program> program;
    std::optional<ScriptedUser> user;
};

}  // namespace tarvex::testing
