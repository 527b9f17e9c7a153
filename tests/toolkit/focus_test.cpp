#include <gtest/gtest.h>

#include "toolkit/user_door.h"

namespace tarvex {
namespace {

struct TwoBoxes : Form {
    explicit TwoBoxes(FormHost& host) : Form(host, "TwoBoxes", "") {}

    TextBox First{*this, "First", 3, 0};
    TextBox Second{*this, "Second", 0, 1};
    Button Go{*this, "Go", "Go", 2};

    std::vector<Shortcut> Shortcuts() override { return {{ShortcutKey::Delete, &First, &Go}}; }
};

class FocusTest : public ::testing::Test {
  protected:
    FocusTest() { slot.Show(); }

    FormHost host;
    FormSlot<TwoBoxes> slot{host, [this] { return std::make_unique<TwoBoxes>(host); }};
    UserDoor door{host};
};

TEST_F(FocusTest, ComplaintKeepsTheFocusAndEndsThePress) {
    TwoBoxes& form = *slot.Get();
    int complaints = 0;
    int presses = 0;
    form.First.OnLostFocus = [&] {
        ++complaints;
        form.First.SetFocus();
    };
    form.Second.OnLostFocus = [] { FAIL() << "the second box never had the focus"; };
    form.Go.OnClick = [&] { ++presses; };

    EXPECT_FALSE(door.Press(form.Go));
    EXPECT_FALSE(door.MoveFocus(form.Second));
    EXPECT_EQ(complaints, 2);
    EXPECT_EQ(presses, 0);
    EXPECT_EQ(host.GetFocus().Current(), &form.First);
}

TEST_F(FocusTest, ShortcutPressesItsButtonOnlyWhereItBelongs) {
    TwoBoxes& form = *slot.Get();
    int presses = 0;
    form.Go.OnClick = [&] { ++presses; };
    EXPECT_TRUE(door.Key(form, ShortcutKey::Delete));
    EXPECT_EQ(presses, 1);
    EXPECT_TRUE(form.First.HasFocus()) << "the focus stays where the key was pressed";
    EXPECT_FALSE(door.Key(form, ShortcutKey::CtrlS));

    form.Go.SetEnabled(false);
    EXPECT_TRUE(door.Key(form, ShortcutKey::Delete)) << "no other use of the key either";
    EXPECT_EQ(presses, 1);
    form.Go.SetEnabled(true);
    form.Go.OnClick = [&] { form.Second.SetFocus(); };
    EXPECT_TRUE(door.Key(form, ShortcutKey::Delete));
    EXPECT_TRUE(form.Second.HasFocus());
    EXPECT_FALSE(door.Key(form, ShortcutKey::Delete));
}

TEST_F(FocusTest, FormMayUnloadItselfInItsOwnRule) {
    TwoBoxes& form = *slot.Get();
    form.Go.OnClick = [&] {
        slot.Unload();
        form.First.SetText("still there");
    };
    EXPECT_TRUE(door.Press(form.Go));
    EXPECT_FALSE(slot.IsLoaded());
    EXPECT_EQ(host.GetFocus().Current(), nullptr);
}

TEST_F(FocusTest, TypingIsCutAtTheLimitAndTakingAwayIsFree) {
    TextBox& box = slot.Get()->First;
    door.Type(box, "12345");
    EXPECT_EQ(box.Text(), "123");
    door.Type(box, "1x23");
    EXPECT_EQ(box.Text(), "123");
    box.SetText("ABCDEFGHIJ");
    door.Type(box, "ABCDEFGHI");
    EXPECT_EQ(box.Text(), "ABCDEFGHI");
    door.Type(box, "ABCDEFGHIx");
    EXPECT_EQ(box.Text(), "ABCDEFGHI");
}

}  // namespace
}  // namespace tarvex
