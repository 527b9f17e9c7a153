#include "geometry/coordinate_rules.h"
#include "support/tool_road.h"

namespace tarvex::testing {
namespace {

class ArcCentre : public ToolRoad {
  protected:
    ArcCentre() {
        CreateDP();
        user->Presses(Editor().AddArcCommand);
        user->Presses(Designer().LatLongCommand);
    }
};

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
    constexpr std::string_view NoLat =
        "You must type in the Latitude degrees.\r\n                  Please correct.";
    constexpr std::string_view NoLong =
        "You must type in the Longitude degrees.\r\n                   Please correct.";
    constexpr std::string_view Negative = "Enter positive numbers and select the hemisphere please.";
    const struct {
        const char *latDegrees, *latMinutes, *longDegrees, *longMinutes;
        std::string_view complaint;
        const char* focus;
    } cases[] = {
        {"", "", "", "", NoLat, "DLatCenterText"},
        {"33", "30", "", "15", NoLong, "DLongCenterText"},
        {"91", "1x", "181", "", LatitudeAxis.tooManyDegrees, "DLatCenterText"},
        {"90", "1", "", "", LatitudeAxis.minutesPastLimit, "MLatCenterText"},
        {"33", "1x", "117", "", EnterOnlyNumbers, "MLatCenterText"},
        {"33", "", "180", "1", LongitudeAxis.minutesPastLimit, "MLongCenterText"},
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
