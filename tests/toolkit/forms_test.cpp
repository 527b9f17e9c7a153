#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>

#include "toolkit/user_door.h"

namespace tarvex {
namespace {

using Names = std::vector<std::string>;

// A form whose load and unload are told from outside.
struct Screen : Form {
    Screen(FormHost& formHost, std::string_view name, std::function<void()>& load,
           std::function<void()>& unload)
        : Form(formHost, name, ""), load_(load), unload_(unload) {}

    TextBox Box{*this, "Box", 0, 3};
    Button Go{*this, "Go", "Go", 2};
    Frame Group{*this, "Group", ""};
    OptionButton First{Group, "First", "First", 0};
    OptionButton Second{Group, "Second", "Second", 1};
    Frame OtherGroup{*this, "OtherGroup", ""};
    OptionButton Lone{OtherGroup, "Lone", "Lone", 4};
    CheckBox Check{*this, "Check", "Check", 5};
    Label Note{*this, "Note", "&Note"};

    Button* WayOut() override { return &Go; }
    void Form_Load() override {
        if (load_) load_();
    }
    void Form_Unload() override {
        if (unload_) unload_();
    }

  private:
    std::function<void()>& load_;
    std::function<void()>& unload_;
};

class FormsTest : public ::testing::Test {
  protected:
    struct Place {
        Place(FormHost& host, const char* name)
            : slot(host, [this, &host, name] { return std::make_unique<Screen>(host, name, load, unload); }) {
        }
        Screen& operator*() { return *slot.Get(); }
        Screen* operator->() { return slot.Get(); }

        std::function<void()> load;
        std::function<void()> unload;
        FormSlot<Screen> slot;
    };

    FormsTest() {
        host.SetFailureReport([this](const Failure& failure) { reported.push_back(failure.Reason()); });
    }
    Names OnScreen() {
        Names names;
        for (const Form* form : host.Visible()) names.push_back(form->Name());
        return names;
    }
    std::string FocusOn() {
        const Control* current = host.GetFocus().Current();
        return current == nullptr ? "" : current->Owner().Name() + "." + current->Name();
    }

    FormHost host;
    Place a{host, "A"};
    Place b{host, "B"};
    UserDoor door{host};
    Names reported;
};

TEST_F(FormsTest, FormIsMadeAnewAfterEachUnload) {
    int loads = 0;
    a.load = [&] { ++loads; };
    a.slot.Show();
    a->Box.SetText("typed");
    a.slot.Hide();
    a.slot.Show();
    EXPECT_EQ(a->Box.Text(), "typed");
    EXPECT_EQ(loads, 1);
    a.slot.Unload();
    a.slot.Show();
    EXPECT_EQ(a->Box.Text(), "");
    EXPECT_EQ(loads, 2);
}

TEST_F(FormsTest, FrontFormHasTheFocusAndGivesItBack) {
    a.slot.Show();
    a->Box.SetFocus();
    b.slot.Show();
    EXPECT_EQ(OnScreen(), (Names{"A", "B"}));
    EXPECT_EQ(FocusOn(), "B.First");
    EXPECT_TRUE(door.MoveFocus(a->Go));
    EXPECT_EQ(OnScreen(), (Names{"B", "A"}));
    b->Box.SetFocus();
    b.slot.Hide();
    EXPECT_EQ(FocusOn(), "A.Go");
    EXPECT_FALSE(door.Press(b->Go));
    b->Box.SetFocus();
    EXPECT_EQ(FocusOn(), "A.Go") << "a hidden form takes no focus";
    a.slot.Unload();
    EXPECT_EQ(FocusOn(), "");
    b.slot.Show();
    EXPECT_EQ(FocusOn(), "B.Box");
}

TEST_F(FormsTest, LoadDecidesWhetherTheFormComesUp) {
    a.slot.Show();
    a->Box.SetFocus();
    struct Case {
        const char* what;
        std::function<void()> load;
        bool loaded;
        bool shown;
    };
    const Case cases[] = {
        {"plain", [&] { b->Go.SetFocus(); }, true, true},
        {"hides itself", [&] { b->Go.SetFocus(), b.slot.Hide(); }, true, false},
        {"hides, then shows itself", [&] { b.slot.Hide(), b.slot.Show(); }, true, true},
        {"unloads itself", [&] { b->Go.SetFocus(), b.slot.Unload(); }, false, false},
        {"fails", [&] { b->Go.SetFocus(), throw Failure(FileNotFound, "fails"); }, false, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        b.load = c.load;
        host.RunEvent([&] { b.slot.Show(); });
        EXPECT_EQ(b.slot.IsLoaded(), c.loaded);
        EXPECT_EQ(OnScreen(), c.shown ? (Names{"A", "B"}) : Names{"A"});
        EXPECT_EQ(FocusOn().substr(0, 1), c.shown ? "B" : "A");
        b.slot.Unload();
        EXPECT_EQ(FocusOn(), "A.Box");
    }
    EXPECT_EQ(reported, Names{"fails"});
}

TEST_F(FormsTest, UnloadInsideOwnOperationIsSafeOutsideAnEventToo) {
    a.load = [&] {
        a.slot.Unload();
        a.load = nullptr;
    };
    a.slot.Show();
    EXPECT_FALSE(a.slot.IsLoaded());
    a.slot.Show();
    Screen& form = *a;
    form.Box.OnChange = [&] {
        a.slot.Unload();
        form.Note.SetCaption("still there");
    };
    form.Box.SetText("x");
    EXPECT_FALSE(a.slot.IsLoaded());
}

TEST_F(FormsTest, UnloadRulesRunOnceAndMayUnloadOthers) {
    a.slot.Show();
    b.slot.Show();
    int unloads = 0;
    a.unload = [&] {
        ++unloads;
        b.slot.Unload();
        a.slot.Unload();
    };
    b.unload = [&] { a.slot.Unload(); };
    EXPECT_TRUE(door.CloseWindow(a.slot));
    EXPECT_EQ(unloads, 1);
    EXPECT_TRUE(host.Visible().empty());
    EXPECT_FALSE(door.CloseWindow(a.slot));
}

TEST_F(FormsTest, StopEndsTheRunFromAnyDepth) {
    a.slot.Show();
    bool wentOn = false;
    a->Box.OnChange = [&] {
        try {
            throw ProgramStopped{1, "reason"};
        } catch (const std::exception&) {
            wentOn = true;
        }
    };
    a->Go.OnClick = [&] {
        a->Box.SetText("x");
        wentOn = true;
    };
    EXPECT_FALSE(host.Stopped());
    door.Press(a->Go);
    ASSERT_TRUE(host.Stopped());
    EXPECT_EQ(host.Stopped()->exitStatus, 1);
    EXPECT_EQ(host.Stopped()->reason, "reason");
    EXPECT_FALSE(wentOn);
    EXPECT_FALSE(door.Type(a->Box, "y"));
    EXPECT_FALSE(door.CloseWindow(a.slot));
    EXPECT_TRUE(reported.empty());
}

TEST_F(FormsTest, FailureEndsItsEventAndIsReported) {
    a.slot.Show();
    a->Go.OnClick = [] { throw Failure(DiskFull, "full"); };
    a->Check.OnClick = [] { throw std::runtime_error("unexpected"); };
    EXPECT_TRUE(door.Press(a->Go));
    EXPECT_TRUE(door.Toggle(a->Check));
    EXPECT_EQ(reported, (Names{"full", "unexpected"}));
    EXPECT_TRUE(door.Type(a->Box, "goes on"));
}

TEST_F(FormsTest, OptionsOfAFrameExcludeEachOther) {
    a.slot.Show();
    Screen& form = *a;
    Names clicks;
    for (OptionButton* option : {&form.First, &form.Second, &form.Lone}) {
        option->OnClick = [&clicks, option] { clicks.push_back(option->Name()); };
    }
    form.First.SelectAtFirst();
    door.Pick(form.Lone);
    door.Pick(form.First);
    door.Pick(form.Second);
    form.First.Select();
    EXPECT_TRUE(form.First.Value() && !form.Second.Value() && form.Lone.Value());
    EXPECT_EQ(clicks, (Names{"Lone", "Second", "First"}));
}

TEST_F(FormsTest, TabWalksTheUsableStopsInOrderAndRound) {
    a.slot.Show();
    Screen& form = *a;
    const auto walk = [&](bool forward) {
        Names names;
        for (int i = 0; i < 4; ++i) {
            door.Tab(form, forward);
            names.push_back(host.GetFocus().Current()->Name());
        }
        return names;
    };
    form.Second.Select();
    form.Check.SetEnabled(false);
    form.Lone.SetFocus();
    EXPECT_EQ(walk(true), (Names{"Second", "Go", "Box", "Lone"}))
        << "the selected option stands for its frame";
    EXPECT_EQ(walk(false), (Names{"Box", "Go", "Second", "Lone"}));
    form.OtherGroup.SetVisible(false);
    EXPECT_EQ(FocusOn(), "") << "a control out of sight loses the focus";
    EXPECT_EQ(walk(true), (Names{"Second", "Go", "Box", "Second"}));
}

TEST_F(FormsTest, ControlsOutOfUseTakeNoAct) {
    a.slot.Show();
    Screen& form = *a;
    int acts = 0;
    form.Go.OnClick = form.Check.OnClick = form.Second.OnClick = [&] { ++acts; };
    form.Box.OnChange = [&] { ++acts; };
    form.Go.SetEnabled(false);
    form.Check.SetVisible(false);
    form.Group.SetEnabled(false);
    form.Box.SetLocked(true);
    EXPECT_FALSE(door.Press(form.Go));
    EXPECT_FALSE(door.Escape(form));
    EXPECT_FALSE(door.Toggle(form.Check));
    EXPECT_FALSE(door.Pick(form.Second));
    EXPECT_FALSE(door.Type(form.Box, "x"));
    EXPECT_EQ(acts, 0);
    EXPECT_EQ(form.Box.Text(), "");
    form.Check.SetValue(1);
    EXPECT_EQ(acts, 1) << "operations reach what users can't";
}

TEST_F(FormsTest, LeavingRuleMayTakeTheTargetAway) {
    a.slot.Show();
    b.slot.Show();
    int presses = 0;
    Screen& form = *a;
    form.Go.OnClick = [&] { ++presses; };
    b->Box.SetFocus();
    b->Box.OnLostFocus = [&] { form.Go.SetEnabled(false); };
    EXPECT_FALSE(door.Press(form.Go)) << "the rule runs across forms";
    form.Go.SetEnabled(true);
    b->Box.SetFocus();
    b->Box.OnLostFocus = [&] { form.Go.SetFocus(); };
    EXPECT_TRUE(door.Press(form.Go)) << "a rule that leads to the target itself takes nothing away";
    b->Box.SetFocus();
    b->Box.OnLostFocus = [&] { throw Failure(NotANumber, "no number"); };
    EXPECT_FALSE(door.Press(form.Go));
    EXPECT_EQ(FocusOn(), "B.Box");
    EXPECT_EQ(presses, 1);
    EXPECT_EQ(reported, Names{"no number"});
}

}  // namespace
}  // namespace tarvex
