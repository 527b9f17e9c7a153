#include "support/editor_road.h"

namespace tarvex::testing {
namespace {

using BoxRules = EditorRoad;

TEST_F(BoxRules, NamesBecomeCapitalsWhenTheFocusLeaves) {
    ModifyProcedure& editor = CreateDP();
    user->Types(editor.FixNameText, "fix 1\xE9");
    EXPECT_EQ(editor.FixNameText.Text(), "fix 1\xE9");
    user->Types(editor.NAVIDText, "dmo");
    EXPECT_EQ(editor.FixNameText.Text(), "FIX 1\xC9");
    user->MovesTo(editor.FixNameText);
    EXPECT_EQ(editor.NAVIDText.Text(), "DMO");
    ExpectSilence();
}

TEST_F(BoxRules, NumbersAreCheckedWhenTheFocusLeaves) {
    ModifyProcedure& editor = CreateDP();
    user->Picks(editor.AtAboveAtBelowOption);
    for (TextBox* box : {&editor.FreqText, &editor.Alt1Text, &editor.Alt2Text}) {
        for (const char* accepted : {"-500", "1.5", " 5", "1e3", ""}) {
            user->Types(*box, accepted);
            EXPECT_TRUE(user->MovesTo(editor.FixNameText)) << box->Name() << accepted;
        }
        user->Types(*box, "FL350");
        ExpectSilence();
        EXPECT_FALSE(user->MovesTo(editor.FixNameText));
        ExpectMessage("Enter only numbers please.", "Tarvex 2.35", box->Name());
        EXPECT_EQ(State().MessageAnswer, "1");
        EXPECT_EQ(box->Text(), "FL350");
        user->Types(*box, "");
    }
}

TEST_F(BoxRules, AirspeedIsCheckedAtEveryCharacter) {
    ModifyProcedure& editor = CreateDP();
    user->Types(editor.AirspeedText, "2");
    ExpectSilence();
    program->door.Type(editor.AirspeedText, "2x");
    ExpectMessage("Enter only numbers please.", "Tarvex 2.35", "AirspeedText");
    EXPECT_EQ(editor.AirspeedText.Text(), "2x");
    EXPECT_TRUE(user->MovesTo(editor.FixNameText)) << "leaving checks nothing";
    user->Presses(editor.ClearDataCommand);
    ExpectSilence();
}

TEST_F(BoxRules, PressPickAndClickEndWithAComplaint) {
    ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd", "W,ALPHA,,0,33.5,-118.25,0,250,0,5000,1,\r\n");
    user->Types(editor.Alt1Text, "x");
    const auto refused = [&](bool acted) {
        EXPECT_FALSE(acted);
        ExpectMessage("Enter only numbers please.", "Tarvex 2.35", "Alt1Text");
    };
    refused(user->Presses(editor.OopsCommand));
    refused(user->Picks(editor.AtOption));
    refused(user->PicksLine(editor.WaypointList, 0));
    refused(user->Tabs(editor));
    EXPECT_TRUE(program->door.Key(editor, ShortcutKey::CtrlS));
    refused(false);
    EXPECT_TRUE(program->modifyProcedure.IsLoaded());
    EXPECT_TRUE(editor.NoRestrictionOption.Value());
    EXPECT_EQ(editor.WaypointList.ListIndex(), ListBox::NoSelection);
}

TEST_F(BoxRules, CoordinateBoxesCheckThemselvesAndMarkTheirAxis) {
    constexpr const char* NumbersOnly = "Enter only numbers please.";
    ModifyProcedure& editor = CreateDP();
    const struct {
        TextBox& degrees;
        TextBox& minutes;
        const char* tooFar;
        const char* complaint;
        const char* limit;
        const char* limitComplaint;
        Flag ModifyProcedure::*edited;
        Flag ModifyProcedure::*other;
    } axes[] = {
        {editor.DDMLatText, editor.DMMLatText, "91",
         "There are no Latitude values greater than 90.\r\n                       Please correct.", "90",
         "Latitude degrees is 90. Minutes must be zero.\r\n                         Please correct.",
         &ModifyProcedure::LatEdited, &ModifyProcedure::LongEdited},
        {editor.DDMLongText, editor.DMMLongText, "181",
         "There are no Longitude values greater than 180.\r\n                       Please correct.", "180",
         "Longitude degrees is 180. Minutes must be zero.\r\n                         Please correct.",
         &ModifyProcedure::LongEdited, &ModifyProcedure::LatEdited},
    };
    for (const auto& axis : axes) {
        user->Presses(editor.ClearDataCommand);
        const auto refused = [&](TextBox& box, const char* text, const char* prompt) {
            user->Types(box, text);
            EXPECT_FALSE(user->MovesTo(editor.FixNameText));
            ExpectMessage(prompt, "Tarvex 2.35", box.Name());
            EXPECT_EQ(box.Text(), text);
            EXPECT_EQ(editor.*axis.edited, False);
            user->Types(box, "");
            EXPECT_TRUE(user->MovesTo(editor.FixNameText));
            EXPECT_EQ(editor.*axis.edited, False) << "an empty box marks nothing";
        };
        refused(axis.degrees, axis.tooFar, axis.complaint);
        refused(axis.degrees, "x", NumbersOnly);
        axis.degrees.SetText(axis.limit);
        refused(axis.minutes, "0.5", axis.limitComplaint);
        refused(axis.minutes, "1a", axis.limitComplaint);
        axis.degrees.SetText("");
        refused(axis.minutes, "60", "Minutes must be less than 60.\r\n            Please correct.");
        refused(axis.minutes, "1a", NumbersOnly);

        for (TextBox* box : {&axis.degrees, &axis.minutes}) {
            user->Types(*box, "-5");
            EXPECT_EQ(editor.*axis.edited, False);
            EXPECT_TRUE(user->MovesTo(editor.FixNameText));
            EXPECT_EQ(editor.*axis.edited, True);
            EXPECT_EQ(editor.*axis.other, False);
            user->Presses(editor.ClearDataCommand);
        }
    }
    ExpectSilence();
}

TEST_F(BoxRules, RestrictionOptionsShowOneAltitudeOrTwo) {
    ModifyProcedure& editor = CreateDP();
    user->Types(editor.Alt1Text, "3000");
    user->Picks(editor.AtAboveAtBelowOption);
    EXPECT_EQ(editor.Alt1Label.Caption(), " Lower\r\n Altitude");
    EXPECT_EQ(editor.Alt2Label.Caption(), " Upper\r\n Altitude");
    EXPECT_TRUE(editor.Alt2Label.Enabled());
    for (OptionButton* option :
         {&editor.NoRestrictionOption, &editor.AtOption, &editor.AtBelowOption, &editor.AtAboveOption}) {
        user->Picks(editor.AtAboveAtBelowOption);
        EXPECT_TRUE(editor.Alt2Text.Enabled());
        EXPECT_EQ(editor.Alt2Text.BackColor(), White);
        EXPECT_EQ(editor.Alt2Text.Text(), "");
        user->Types(editor.Alt2Text, "9000");
        user->Picks(editor.AtAboveAtBelowOption);
        EXPECT_EQ(editor.Alt2Text.Text(), "9000") << "picked already";

        user->Picks(*option);
        EXPECT_FALSE(editor.Alt2Text.Enabled());
        EXPECT_FALSE(editor.Alt2Label.Enabled());
        EXPECT_EQ(editor.Alt2Text.BackColor(), Grey);
        EXPECT_EQ(editor.Alt2Text.Text(), "");
        EXPECT_EQ(editor.Alt1Text.Text(), "3000");
        EXPECT_EQ(editor.Alt1Label.Caption(), "      Altitude");
        EXPECT_EQ(editor.Alt2Label.Caption(), " Upper\r\n Altitude");
    }
}

TEST_F(BoxRules, RunwaySpecificNamesTheTransitionLabel) {
    ModifyProcedure& editor = CreateDP();
    user->Toggles(editor.RwySpecificCheck);
    EXPECT_EQ(editor.TransitionLabel1.Caption(), "Runway");
    user->Toggles(editor.RwySpecificCheck);
    EXPECT_EQ(editor.TransitionLabel1.Caption(), "Transition");
    EXPECT_EQ(editor.FilenameText.Caption(), "");
}

}  // namespace
}  // namespace tarvex::testing
