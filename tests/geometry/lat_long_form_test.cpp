#include "support/tool_road.h"

namespace tarvex::testing {
namespace {

constexpr const char* NumbersOnly = "Enter only numbers please.";
constexpr const char* SixtyMinutes = "Minutes must be less than 60.\r\n            Please correct.";
constexpr const char* LatMinutesPastPole =
    "Latitude degrees is 90. Minutes must be zero.\r\n                         Please correct.";
constexpr const char* LongMinutesPastLimit =
    "Longitude degrees is 180. Minutes must be zero.\r\n                         Please correct.";
constexpr const char* TooManyLatDegrees =
    "There are no Latitude values greater than 90.\r\n                       Please correct.";
constexpr const char* TooManyLongDegrees =
    "There are no Longitude values greater than 180.\r\n                       Please correct.";
constexpr const char* NoLatDegrees =
    "You must type in the Latitude degrees.\r\n                  Please correct.";
constexpr const char* NoLongDegrees =
    "You must type in the Longitude degrees.\r\n                   Please correct.";
constexpr const char* Negative = "Enter positive numbers and select the hemisphere please.";

class ArcCentre : public ToolRoad {
  protected:
    ArcCentre() {
        CreateDP();
        user->Presses(Editor().AddArcCommand);
        user->Presses(Designer().LatLongCommand);
    }
};

TEST_F(ArcCentre, BoxesAreCheckedWhenTheFocusLeaves) {
    const struct {
        TextBox LatLongForm::*degreesBox;
        TextBox LatLongForm::*minutesBox;
        const char *degrees, *minutes, *complaint;  // null minutes: leave the degrees
    } cases[] = {
        {&LatLongForm::DLatCenterText, {}, "90", nullptr, ""},
        {&LatLongForm::DLatCenterText, {}, "", nullptr, ""},
        {&LatLongForm::DLatCenterText, {}, "91", nullptr, TooManyLatDegrees},
        {&LatLongForm::DLatCenterText, {}, "3x", nullptr, NumbersOnly},
        {&LatLongForm::DLongCenterText, {}, "181", nullptr, TooManyLongDegrees},
        {&LatLongForm::DLongCenterText, {}, "180", nullptr, ""},
        {&LatLongForm::DLatCenterText, &LatLongForm::MLatCenterText, "33", "", NumbersOnly},
        {&LatLongForm::DLatCenterText, &LatLongForm::MLatCenterText, "90", "1x", NumbersOnly},
        {&LatLongForm::DLatCenterText, &LatLongForm::MLatCenterText, "90", "0.5", LatMinutesPastPole},
        {&LatLongForm::DLatCenterText, &LatLongForm::MLatCenterText, "90", "0", ""},
        {&LatLongForm::DLatCenterText, &LatLongForm::MLatCenterText, "33", "60", SixtyMinutes},
        {&LatLongForm::DLatCenterText, &LatLongForm::MLatCenterText, "33", "59.999999", ""},
        {&LatLongForm::DLongCenterText, &LatLongForm::MLongCenterText, "117", "", ""},
        {&LatLongForm::DLongCenterText, &LatLongForm::MLongCenterText, "180", "1x", LongMinutesPastLimit},
        {&LatLongForm::DLongCenterText, &LatLongForm::MLongCenterText, "117", "61x", SixtyMinutes},
        {&LatLongForm::DLongCenterText, &LatLongForm::MLongCenterText, "117", "1x", NumbersOnly},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.degrees) + " " + (c.minutes == nullptr ? "" : c.minutes));
        TextBox& degrees = Centre().*c.degreesBox;
        TextBox& left = c.minutes == nullptr ? degrees : Centre().*c.minutesBox;
        user->Types(degrees, c.degrees);
        if (c.minutes != nullptr) user->Types(left, c.minutes);
        user->MovesTo(Centre().SouthOption);
        if (*c.complaint == '\0') {
            ExpectSilence();
            continue;
        }
        ExpectComplaint(c.complaint, left.Name());
        user->Types(left, "0");
        user->MovesTo(Centre().SouthOption);
    }
}

TEST_F(ArcCentre, DoneTakesACompletePosition) {
    const struct {
        const char *latDegrees, *latMinutes, *longDegrees, *longMinutes;
        bool south, west;
        const char *lat, *lon;
    } cases[] = {
        {"33", "30", "117", "15", true, true, "-33.5", "-117.25"},
        {"33", "", "117", "", false, false, "33", "117"},
        {"0", "0.6", "0", "0", true, false, "-0.01", "0"},
        {"90", "0", "180", "0", false, true, "90", "-180"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.lat);
        user->Presses(Designer().LatLongCommand);
        EXPECT_TRUE(Centre().NorthOption.Value() && Centre().EastOption.Value());
        FillCentre(c.latDegrees, c.latMinutes, c.longDegrees, c.longMinutes);
        if (c.south) user->Picks(Centre().SouthOption);
        if (c.west) user->Picks(Centre().WestOption);
        EXPECT_TRUE(user->Presses(Centre().DoneCommand));
        EXPECT_FALSE(program->latLongForm.IsLoaded());
        EXPECT_EQ(State().ArcCenterLat, c.lat);
        EXPECT_EQ(State().ArcCenterLong, c.lon);
        EXPECT_EQ(Designer().ArcLabelText.Text(), "ARC");
        EXPECT_TRUE(Designer().ArcLabelText.Visible() && Designer().Label4.Visible());
        EXPECT_FALSE(Designer().Frame2.Visible());
    }
    ExpectSilence();
}

TEST_F(ArcCentre, DoneComplainsAboutTheFirstBoxThatIsWrong) {
    const struct {
        const char *latDegrees, *latMinutes, *longDegrees, *longMinutes, *complaint, *focus;
    } cases[] = {
        {"", "", "", "", NoLatDegrees, "DLatCenterText"},
        {"33", "30", "", "15", NoLongDegrees, "DLongCenterText"},
        {"91", "", "117", "", TooManyLatDegrees, "DLatCenterText"},
        {"90", "1", "117", "", LatMinutesPastPole, "MLatCenterText"},
        {"33", "1x", "117", "", NumbersOnly, "MLatCenterText"},
        {"33", "", "180", "1", LongMinutesPastLimit, "MLongCenterText"},
        {"33", "", "117", "60", SixtyMinutes, "MLongCenterText"},
        {"-3", "", "117", "", Negative, "DLatCenterText"},
        {"33", "", "117", "-1", Negative, "MLongCenterText"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.complaint);
        LatLongForm& form = Centre();
        // Put in by an operation, the texts of three boxes have met no rule of theirs.
        form.DLatCenterText.SetText(c.latDegrees);
        form.MLatCenterText.SetText(c.latMinutes);
        form.DLongCenterText.SetText(c.longDegrees);
        form.MLongCenterText.SetText(c.longMinutes);
        user->Presses(form.DoneCommand);
        ExpectComplaint(c.complaint, c.focus);
        EXPECT_EQ(State().ArcCenterLat + Designer().ArcLabelText.Text(), "");
        program->door.CloseWindow(program->latLongForm);
        user->Presses(Designer().LatLongCommand);
    }
}

TEST_F(ArcCentre, WithoutItsDesignerItCarriesNothingOver) {
    FillCentre("33", "30", "117", "15");
    user->Presses(Designer().ExitCommand);
    EXPECT_TRUE(user->Presses(Centre().DoneCommand));
    EXPECT_FALSE(program->latLongForm.IsLoaded());
    EXPECT_EQ(State().ArcCenterLat, "");
    ExpectSilence();
}

}  // namespace
}  // namespace tarvex::testing
