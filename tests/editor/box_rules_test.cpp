#include "support/tool_road.h"

namespace tarvex::testing {
namespace {

constexpr const char* NumbersOnly = "Enter only numbers please.";
constexpr const char* TooFarNorth =
    "There are no Latitude values greater than 90.\r\n                       Please correct.";
constexpr const char* TooFarEast =
    "There are no Longitude values greater than 180.\r\n                       Please correct.";
constexpr const char* PastThePole =
    "Latitude degrees is 90. Minutes must be zero.\r\n                         Please correct.";
constexpr const char* PastTheDateLine =
    "Longitude degrees is 180. Minutes must be zero.\r\n                         Please correct.";
constexpr const char* SixtyMinutes = "Minutes must be less than 60.\r\n            Please correct.";
constexpr const char* RadialTooLarge =
    "This value must be less than or equal to 360.\r\n                       Please correct.";
constexpr const char* CourseTooLarge =
    "Magnetic course must be no more than 360.\r\n                       Please correct.";
constexpr const char* DerivedNumbersOnly =
    "Enter only numbers please.\r\n                       Please correct.";

class BoxRules : public ToolRoad {
  protected:
    // The rules from here on are those of boxes of `form`; the focus leaves them for `next`.
    void On(Form& form, Control& next) {
        form_ = &form;
        next_ = &next;
    }
    // Each of the texts, typed, brings the focus back with the complaint; "" lets it go.
    void Check(const char* name, std::initializer_list<const char*> texts, const char* complaint = "") {
        auto& box = dynamic_cast<TextBox&>(*form_->Find(name));
        for (const char* text : texts) {
            SCOPED_TRACE(std::string(name) + " " + text);
            user->Types(box, text);
            ExpectSilence();
            EXPECT_EQ(user->MovesTo(*next_), *complaint == '\0');
            EXPECT_EQ(box.Text(), text);
            if (*complaint == '\0') continue;
            ExpectComplaint(complaint, name);
            EXPECT_EQ(State().MessageAnswer, "1");
            user->Types(box, "0");
        }
        ExpectSilence();
    }

  private:
    Form* form_ = nullptr;
    Control* next_ = nullptr;
};

TEST_F(BoxRules, OfTheEditor) {
    ModifyProcedure& editor = CreateDP();
    user->Picks(editor.AtAboveAtBelowOption);
    On(editor, editor.FixNameText);
    for (const char* number : {"FreqText", "Alt1Text", "Alt2Text"}) {
        Check(number, {"-500", "1e3", " 5", ""});
        Check(number, {"FL350"}, NumbersOnly);
    }
    Check("DDMLatText", {"91"}, TooFarNorth);
    Check("DDMLatText", {"1a", " "}, NumbersOnly);
    Check("DDMLatText", {"", "-9", "90"});
    Check("DMMLatText", {"0.5", "75a"}, PastThePole);
    Check("DMMLatText", {"abc"}, NumbersOnly);
    Check("DMMLatText", {"", "0"});
    Check("DDMLatText", {""});
    Check("DMMLatText", {"60", "75a"}, SixtyMinutes);
    Check("DMMLatText", {"12a"}, NumbersOnly);
    Check("DMMLatText", {"59.999999"});
    Check("DDMLongText", {"181a", "1e3"}, TooFarEast);
    Check("DDMLongText", {"9x"}, NumbersOnly);
    Check("DDMLongText", {"90"});
    Check("DMMLongText", {"60"}, SixtyMinutes);
    Check("DMMLongText", {"1"});
    Check("DDMLongText", {"180"});
    Check("DMMLongText", {"1a"}, PastTheDateLine);
    Check("DMMLongText", {"x"}, NumbersOnly);
}

TEST_F(BoxRules, OfTheTools) {
    CreateDP();
    user->Presses(Editor().AddArcCommand);
    On(Designer(), Designer().RightOption);
    for (const char* radial : {"ArcStartText", "ArcEndText"}) {
        Check(radial, {"361", "9e9"}, RadialTooLarge);
        Check(radial, {"36a"}, NumbersOnly);
        Check(radial, {"360", ""});
    }
    for (const char* number : {"ArcRadiusText", "MagVarText"}) {
        Check(number, {"1x"}, NumbersOnly);
        Check(number, {"99", ""});
    }
    user->Presses(Designer().LatLongCommand);
    On(Centre(), Centre().SouthOption);
    Check("DLatCenterText", {"91"}, TooFarNorth);
    Check("DLatCenterText", {"3x"}, NumbersOnly);
    Check("DLatCenterText", {"", "90"});
    Check("MLatCenterText", {"", "1x"}, NumbersOnly);
    Check("MLatCenterText", {"0.5"}, PastThePole);
    Check("DLongCenterText", {"181"}, TooFarEast);
    Check("DLongCenterText", {"180"});
    Check("MLongCenterText", {"1x"}, PastTheDateLine);
    Check("DLongCenterText", {"117"});
    Check("MLongCenterText", {"61x"}, SixtyMinutes);
    Check("MLongCenterText", {""});
    user->Presses(Editor().CreateWaypointCommand);
    On(Deriving(), Deriving().NavaidCommand);
    Check("TrueCourseText", {"361"}, CourseTooLarge);
    Check("TrueCourseText", {"99x"}, DerivedNumbersOnly);
    Check("TrueCourseText", {"", "360"});
    Check("DistText", {"1nm"}, DerivedNumbersOnly);
    Check("DistText", {"9999"});
    Check("WaypointIDText", {"a b"});
}

TEST_F(BoxRules, HoldUpNoWayOutAndNoClearing) {
    ModifyProcedure& editor = CreateDP();
    const auto leaves = [&](FormSlotBase& slot, Button& opener, const char* name, const char* text) {
        for (const bool byKey : {false, true}) {
            user->Presses(opener);
            Form& form = **std::find_if(program->host.Visible().begin(), program->host.Visible().end(),
                                        [&](const Form* shown) { return shown->Find(name) != nullptr; });
            user->Types(dynamic_cast<TextBox&>(*form.Find(name)), text);
            EXPECT_TRUE(byKey ? program->door.Escape(form) : user->Presses(*form.WayOut())) << name;
            EXPECT_FALSE(slot.IsLoaded()) << name;
        }
    };
    leaves(program->createWaypointForm, editor.CreateWaypointCommand, "TrueCourseText", "361");
    leaves(program->addARC, editor.AddArcCommand, "ArcStartText", "361");
    user->Presses(editor.AddArcCommand);
    leaves(program->latLongForm, Designer().LatLongCommand, "MLatCenterText", "");
    ExpectSilence();

    user->Types(Designer().ArcStartText, "361");
    user->Presses(editor.ClearDataCommand);
    ExpectComplaint(RadialTooLarge, "ArcStartText");
    user->Presses(Designer().ExitCommand);

    user->Types(editor.AptNameText, "KXYZ");
    user->Presses(editor.ClearDataCommand);
    EXPECT_EQ(editor.FilenameText.Caption(), "KXYZ") << "what is not cleared has its rule";
    user->Types(editor.DDMLongText, "181");
    EXPECT_FALSE(user->Presses(editor.AddWaypointCommand));
    ExpectComplaint(TooFarEast, "DDMLongText");
    EXPECT_TRUE(user->Presses(editor.ClearDataCommand));
    EXPECT_EQ(user->FocusName() + editor.DDMLongText.Text(), "FixNameText");
    EXPECT_EQ(editor.LongEdited, False);
    user->Types(editor.Alt1Text, "FL350");
    EXPECT_TRUE(user->Presses(editor.OopsCommand));
    EXPECT_FALSE(program->modifyProcedure.IsLoaded());
    ExpectSilence();
}

TEST_F(BoxRules, AcceptedCoordinateMarksItsAxis) {
    ModifyProcedure& editor = CreateDP();
    const auto marks = [&] { return std::pair(editor.LatEdited, editor.LongEdited); };
    for (TextBox* box : {&editor.DDMLatText, &editor.DMMLatText, &editor.DDMLongText, &editor.DMMLongText}) {
        user->Types(*box, "x");
        user->MovesTo(editor.FixNameText);
        user->Types(*box, "");
        user->MovesTo(editor.FixNameText);
        EXPECT_EQ(marks(), std::pair(False, False)) << "neither a refused text nor an empty box marks";
        user->Types(*box, "-5");
        EXPECT_EQ(marks(), std::pair(False, False));
        user->MovesTo(editor.FixNameText);
        const bool lat = box == &editor.DDMLatText || box == &editor.DMMLatText;
        EXPECT_EQ(marks(), lat ? std::pair(True, False) : std::pair(False, True)) << box->Name();
        user->Presses(editor.ClearDataCommand);
    }
}

TEST_F(BoxRules, NamesBecomeCapitalsAndAirspeedsAreCheckedAtEveryCharacter) {
    ModifyProcedure& editor = CreateDP();
    user->Types(editor.FixNameText, "fix 1\xE9");
    EXPECT_EQ(editor.FixNameText.Text(), "fix 1\xE9");
    user->Types(editor.NAVIDText, "dmo");
    EXPECT_EQ(editor.FixNameText.Text(), "FIX 1\xC9");
    user->Types(editor.AirspeedText, "2");
    EXPECT_EQ(editor.NAVIDText.Text(), "DMO");
    ExpectSilence();
    program->door.Type(editor.AirspeedText, "2x");
    ExpectComplaint(NumbersOnly, "AirspeedText");
    EXPECT_EQ(editor.AirspeedText.Text(), "2x");
    EXPECT_TRUE(user->MovesTo(editor.FixNameText)) << "leaving checks nothing";
    ExpectSilence();
}

TEST_F(BoxRules, RestrictionOptionsShowOneAltitudeOrTwo) {
    ModifyProcedure& editor = CreateDP();
    user->Types(editor.Alt1Text, "3000");
    for (OptionButton* option :
         {&editor.NoRestrictionOption, &editor.AtOption, &editor.AtBelowOption, &editor.AtAboveOption}) {
        user->Picks(editor.AtAboveAtBelowOption);
        EXPECT_TRUE(editor.Alt2Text.Enabled() && editor.Alt2Label.Enabled());
        EXPECT_EQ(editor.Alt2Text.BackColor(), White);
        EXPECT_EQ(editor.Alt1Label.Caption() + editor.Alt2Label.Caption(),
                  " Lower\r\n Altitude Upper\r\n Altitude");
        user->Types(editor.Alt2Text, "9000");
        user->Picks(editor.AtAboveAtBelowOption);
        EXPECT_EQ(editor.Alt2Text.Text(), "9000") << "picked already";

        user->Picks(*option);
        EXPECT_FALSE(editor.Alt2Text.Enabled() || editor.Alt2Label.Enabled());
        EXPECT_EQ(editor.Alt2Text.BackColor(), Grey);
        EXPECT_EQ(editor.Alt1Text.Text() + editor.Alt2Text.Text(), "3000");
        EXPECT_EQ(editor.Alt1Label.Caption() + editor.Alt2Label.Caption(),
                  "      Altitude Upper\r\n Altitude");
    }
}

}  // namespace
}  // namespace tarvex::testing
