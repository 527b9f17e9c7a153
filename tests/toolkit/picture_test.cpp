#include "toolkit/picture.h"

#include <gtest/gtest.h>

#include "support/failure_of.h"
#include "toolkit/form_host.h"
#include "toolkit/tabs.h"
#include "toolkit/user_door.h"

namespace tarvex::testing {
namespace {

constexpr Target Row{Target::Kind::Row, 3};
constexpr Target Fix{Target::Kind::Fix, 7};

struct Album : Form {
    explicit Album(FormHost& formHost) : Form(formHost, "Album", "") {
        Plan.OnPoint = [this](Target target) { Tell("point", target); };
        Plan.OnChoose = [this](Target target) { Tell("choose", target); };
        Plan.OnTake = [this](bool also) { told += also ? "take+ " : "take "; };
        Plan.OnZoom = [this](double steps, Point at) {
            told += "zoom" + std::to_string(static_cast<int>(steps)) + "@" +
                    std::to_string(static_cast<int>(at.x)) + " ";
        };
        Plan.OnPan = [this](double, double) { told += "pan "; };
        Plan.OnFit = [this] { told += "fit "; };
        Plan.OnResize = [this] { told += "resize "; };
        Plan.SetDrawing(
            {{100, 60},
             {Symbol{.at = {20, 20}, .target = Row}, Symbol{.at = {24, 20}, .target = Fix},
              Symbol{.at = {60, 20}, .size = 40, .target = Fix},
              Words{.text = "ABC", .at = {90, 50}, .align = Words::Align::Right, .target = Row}}});
    }
    void Tell(const char* what, Target target) {
        told +=
            std::string(what) + std::to_string(target.kind == Target::Kind::None ? -1 : target.index) + " ";
    }

    TextBox Box{*this, "Box", 0, 0};
    Picture Plan{*this, "Plan", 2};
    ColumnList List{*this, "List", {{"Name", false}, {"Miles", true}}, 3};
    Tabs Pages{*this, "Pages", {{"Plan", &Plan}, {"List", &List}}, 1};
    std::string told;
};

class PictureTest : public ::testing::Test {
  protected:
    PictureTest() { slot.Show(); }
    Album& Form() { return *slot.Get(); }
    std::string Told() { return std::exchange(Form().told, {}); }

    FormHost host;
    FormSlot<Album> slot{host, [this] { return std::make_unique<Album>(host); }};
    UserDoor door{host};
};

TEST_F(PictureTest, WhatIsMeantIsTheNearestAndARowBeforeAll) {
    const std::pair<Point, int> cases[] = {{{24, 20}, 3},  {{29, 20}, 7}, {{60, 39}, 7},
                                           {{60, 41}, -1}, {{80, 50}, 3}, {{92, 50}, -1}};
    for (const auto& [point, index] : cases) {
        door.PointAt(Form().Plan, point);
        EXPECT_EQ(Told(), "point" + std::to_string(index) + " ") << point.x;
    }
}

TEST_F(PictureTest, LookingLeavesTheFocusAndChoosingTakesIt) {
    Picture& plan = Form().Plan;
    EXPECT_TRUE(door.Resize(plan, {100, 60}));
    EXPECT_TRUE(door.Resize(plan, {100, 60}));
    EXPECT_TRUE(door.PointAt(plan, std::nullopt));
    EXPECT_TRUE(door.Zoom(plan, 2, std::nullopt));
    EXPECT_TRUE(door.Pan(plan, 5, 5));
    EXPECT_TRUE(door.TakeAt(plan, {0, 60}));
    EXPECT_EQ(Told(), "resize point-1 zoom2@50 pan fit ");
    EXPECT_TRUE(Form().Box.HasFocus());

    // The rule of the box that is left may take the focus back.
    Form().Box.OnLostFocus = [this] { Form().Box.SetFocus(); };
    EXPECT_FALSE(door.Choose(plan, {20, 20}));
    Form().Box.OnLostFocus = nullptr;
    EXPECT_TRUE(door.TakeAt(plan, {60, 20}));
    EXPECT_TRUE(door.Take(plan, true));
    EXPECT_TRUE(plan.HasFocus());
    EXPECT_EQ(Told(), "choose7 take take+ ");

    // What a choice leads to may be elsewhere; there is nothing to be taken then.
    plan.OnChoose = [this](Target) { Form().Box.SetFocus(); };
    EXPECT_TRUE(door.TakeAt(plan, {20, 20}));
    EXPECT_EQ(Told(), "");
}

TEST_F(PictureTest, AMenuEntryThatIsOutOfUseDoesNothing) {
    Picture& plan = Form().Plan;
    plan.SetMenu({{"Off", false, [this] { Form().told += "off "; }},
                  {"On", true, [this] { Form().Plan.SetMenu({}), Form().told += "on "; }}});
    for (const int entry : {-1, 0, 1, 1}) door.PickMenuEntry(plan, entry);
    EXPECT_EQ(Told(), "on ");
}

TEST_F(PictureTest, OnlyTheShownPageIsInUse) {
    Tabs& pages = Form().Pages;
    EXPECT_TRUE(Form().Plan.Usable());
    EXPECT_FALSE(Form().List.Usable());
    EXPECT_FALSE(door.Choose(Form().Plan, {0, 0}) && door.PickLine(Form().List, 0));
    EXPECT_TRUE(door.ShowPage(pages, 1));
    EXPECT_FALSE(door.Fit(Form().Plan));
    EXPECT_TRUE(Form().List.Usable());
    EXPECT_EQ(NumberOf([&] { pages.SetIndex(2); }), BadArgument);
    EXPECT_EQ(pages.Index(), 1);
}

TEST_F(PictureTest, TheCellsOfALineStandBetweenItsTabs) {
    Form().List.SetLines({"ABC\t12\tmore", "D", "\t5"});
    using Cells = std::vector<std::string>;
    EXPECT_EQ(Form().List.Cells(0), (Cells{"ABC", "12"}));
    EXPECT_EQ(Form().List.Cells(1), (Cells{"D", ""}));
    EXPECT_EQ(Form().List.Cells(2), (Cells{"", "5"}));
}

}  // namespace
}  // namespace tarvex::testing
