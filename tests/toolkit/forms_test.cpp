#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>

#include "support/test_services.h"
#include "toolkit/dialogue.h"
#include "toolkit/user_door.h"

namespace tarvex {
namespace {

using Names = std::vector<std::string>;

// A form whose load and unload are told from outside.
struct Screen : Form {
    Screen(FormHost& formHost, std::string_view name, std::function<void()>& load,
           std::function<void()>& unload)
        : Form(formHost, name, ""), load_(load), unload_(unload) {}

    TextBox Box{*this, "Box", 3, 3};
    Button Go{*this, "Go", "Go", 2};
    Frame Group{*this, "Group", ""};
    OptionButton First{Group, "First", "First", 0};
    OptionButton Second{Group, "Second", "Second", 1};
    Frame OtherGroup{*this, "OtherGroup", ""};
    OptionButton Lone{OtherGroup, "Lone", "Lone", 4};
    CheckBox Check{*this, "Check", "Check", 5};
    Button Drop{*this, "Drop", "Drop", Control::NoTabIndex, Boxes::Dropped};

    Button* WayOut() override { return &Go; }
    std::vector<Shortcut> Shortcuts() override {
        return {{ShortcutKey::Delete, &Box, &Go}, {ShortcutKey::CtrlUp, nullptr, &Go}};
    }
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
        a.slot.Show();
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
    int acts = 0;  // for the rules of a test to count
};

TEST_F(FormsTest, FrontFormHasTheFocusAndGivesItBack) {
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
    a->Box.SetFocus();
    const auto loads = [&](const std::function<void()>& load, bool loaded, bool shown) {
        b.load = load;
        host.RunEvent([&] { b.slot.Show(); });
        EXPECT_EQ(b.slot.IsLoaded(), loaded);
        EXPECT_EQ(OnScreen(), shown ? (Names{"A", "B"}) : Names{"A"});
        EXPECT_EQ(FocusOn().substr(0, 1), shown ? "B" : "A");
        b.slot.Unload();
        EXPECT_EQ(FocusOn(), "A.Box");
    };
    loads([&] { b->Go.SetFocus(); }, true, true);
    loads([&] { b->Go.SetFocus(), b.slot.Hide(); }, true, false);
    loads([&] { b.slot.Hide(), b.slot.Show(); }, true, true);
    loads([&] { b->Go.SetFocus(), b.slot.Unload(); }, false, false);
    loads([&] { b->Go.SetFocus(), throw Failure(FileNotFound, "fails"); }, false, false);
    loads([] {}, true, true);
    EXPECT_EQ(reported, Names{"fails"});
}

TEST_F(FormsTest, UnloadInsideOwnOperationIsSafe) {
    for (const bool inEvent : {true, false}) {
        a.slot.Show();
        Screen& form = *a;
        form.Box.OnChange = [&] {
            a.slot.Unload();
            form.Go.SetCaption("still there");
        };
        if (inEvent) {
            EXPECT_TRUE(door.Type(form.Box, "x"));
        } else {
            form.Box.SetText("x");
        }
        EXPECT_FALSE(a.slot.IsLoaded());
        EXPECT_EQ(FocusOn(), "");
    }
}

TEST_F(FormsTest, UnloadRulesRunOnceAndMayUnloadOthers) {
    b.slot.Show();
    a.unload = [&] {
        ++acts;
        b.slot.Unload();
        a.slot.Unload();
    };
    b.unload = [&] { a.slot.Unload(); };
    EXPECT_TRUE(door.CloseWindow(a.slot));
    EXPECT_EQ(acts, 1);
    EXPECT_TRUE(host.Visible().empty());
    EXPECT_FALSE(door.CloseWindow(a.slot));
}

TEST_F(FormsTest, StopEndsTheRunFromAnyDepth) {
    a->Box.OnChange = [&] {
        try {
            throw ProgramStopped{1, "reason"};
        } catch (const std::exception&) {
            ++acts;
        }
    };
    a->Go.OnClick = [&] {
        a->Box.SetText("x");
        ++acts;
    };
    door.Press(a->Go);
    ASSERT_TRUE(host.Stopped());
    EXPECT_EQ(host.Stopped()->reason, "reason");
    EXPECT_EQ(acts, 0);
    EXPECT_FALSE(door.Type(a->Box, "y") || door.CloseWindow(a.slot));
    EXPECT_TRUE(reported.empty());
}

TEST_F(FormsTest, FailureEndsItsEventAndIsReported) {
    a->Go.OnClick = [] { throw Failure(DiskFull, "full"); };
    a->Check.OnClick = [] { throw std::runtime_error("unexpected"); };
    EXPECT_TRUE(door.Press(a->Go));
    EXPECT_TRUE(door.Toggle(a->Check));
    EXPECT_EQ(reported, (Names{"full", "unexpected"}));
    EXPECT_TRUE(door.Type(a->Box, "on"));
}

TEST_F(FormsTest, OptionsOfAFrameExcludeEachOther) {
    Names clicks;
    for (OptionButton* option : {&a->First, &a->Second, &a->Lone}) {
        option->OnClick = [&clicks, option] { clicks.push_back(option->Name()); };
    }
    a->First.SelectAtFirst();
    for (OptionButton* option : {&a->Lone, &a->First, &a->Second}) door.Pick(*option);
    a->First.Select();
    EXPECT_TRUE(a->First.Value() && !a->Second.Value() && a->Lone.Value());
    EXPECT_EQ(clicks, (Names{"Lone", "Second", "First"}));
}

TEST_F(FormsTest, ArrowsLeadRoundTheOptionsOfAFrame) {
    EXPECT_TRUE(door.Arrow(a->First, true));
    EXPECT_TRUE(a->Second.Value() && a->Second.HasFocus());
    EXPECT_TRUE(door.Arrow(a->Second, true));
    EXPECT_TRUE(a->First.Value());
    EXPECT_TRUE(door.Arrow(a->First, false));
    EXPECT_TRUE(a->Second.Value());
    a->First.SetEnabled(false);
    EXPECT_EQ(&a->Second.Neighbour(true), &a->Second);
}

TEST_F(FormsTest, TabWalksTheUsableStopsInOrderAndRound) {
    const auto walk = [&](bool forward) {
        std::string names;
        for (int i = 0; i < 4; ++i) {
            door.Tab(*a, forward);
            names += host.GetFocus().Current()->Name() + " ";
        }
        return names;
    };
    a->Second.Select();
    a->Check.SetEnabled(false);
    a->Lone.SetFocus();
    EXPECT_EQ(walk(true), "Second Go Box Lone ") << "the selected option stands for its frame";
    EXPECT_EQ(walk(false), "Box Go Second Lone ");
    a->OtherGroup.SetVisible(false);
    EXPECT_EQ(FocusOn(), "") << "a control out of sight loses the focus";
    EXPECT_EQ(walk(true), "Second Go Box Second ");
    a->Box.SetFocus();
    b.slot.Show();
    EXPECT_TRUE(door.Tab(*a, true));
    EXPECT_EQ(FocusOn(), "A.Second") << "from another form the first";
}

TEST_F(FormsTest, ActivatedFormComesToTheFrontWithItsFocusUnlessThatIsHeld) {
    a->Go.SetFocus();
    b.slot.Show();
    EXPECT_TRUE(door.Activate(*a));
    EXPECT_EQ(OnScreen(), (Names{"B", "A"}));
    EXPECT_EQ(FocusOn(), "A.Go");
    a->Go.OnLostFocus = [&] { a->Go.SetFocus(); };
    EXPECT_TRUE(door.Activate(*a));
    EXPECT_FALSE(door.Activate(*b));
    EXPECT_EQ(OnScreen(), (Names{"B", "A"}));
    a->Go.OnLostFocus = nullptr;
    b.slot.Hide();
    EXPECT_FALSE(door.Activate(*b));
    EXPECT_EQ(FocusOn(), "A.Go");
}

TEST_F(FormsTest, ButtonThatDropsTheBoxesComesBeforeTheLeavingRule) {
    Names order;
    Screen& form = *a;
    form.Box.OnLostFocus = [&] { order.push_back("left"); };
    form.Drop.OnClick = [&] { order.push_back("pressed"); };
    form.Box.SetFocus();
    EXPECT_TRUE(door.Press(form.Drop));
    EXPECT_TRUE(door.Press(form.Drop));
    EXPECT_EQ(order, (Names{"pressed", "left", "pressed"}));
    form.Box.SetFocus();
    form.Drop.SetEnabled(false);
    EXPECT_FALSE(door.Press(form.Drop));
    EXPECT_EQ(FocusOn(), "A.Box");
    form.Drop.SetEnabled(true);
    form.Drop.OnClick = [&] { form.Box.SetFocus(); };
    EXPECT_TRUE(door.Press(form.Drop));
    form.Drop.OnClick = [&] { form.Box.SetEnabled(false); };
    EXPECT_TRUE(door.Press(form.Drop));
    EXPECT_EQ(order.size(), 3U) << "a box that is not left, or out of use, has no leaving rule";
}

TEST_F(FormsTest, ControlsOutOfUseTakeNoAct) {
    Screen& form = *a;
    form.Go.OnClick = form.Check.OnClick = form.Second.OnClick = form.Box.OnChange = [&] { ++acts; };
    form.Go.SetEnabled(false);
    form.Check.SetVisible(false);
    form.Group.SetEnabled(false);
    form.Box.SetLocked(true);
    EXPECT_FALSE(door.Press(form.Go) || door.Escape(form) || door.Toggle(form.Check) ||
                 door.Pick(form.Second) || door.Type(form.Box, "x"));
    EXPECT_EQ(acts, 0);
    form.Check.SetValue(1);
    EXPECT_EQ(acts, 1) << "operations reach what users can't";
}

TEST_F(FormsTest, LeavingRuleMayKeepTheFocusOrTakeTheTargetAway) {
    b.slot.Show();
    Screen& form = *a;
    form.Go.OnClick = [&] { ++acts; };
    form.Second.OnLostFocus = [] { FAIL() << "it never had the focus"; };
    const auto press = [&](const std::function<void()>& rule) {
        form.Go.SetEnabled(true);
        b->Box.OnLostFocus = nullptr;
        b->Box.SetFocus();
        b->Box.OnLostFocus = rule;
        return door.Press(form.Go);
    };
    EXPECT_FALSE(press([&] { b->Box.SetFocus(); })) << "a complaint ends the press";
    EXPECT_FALSE(door.MoveFocus(form.Second));
    EXPECT_EQ(FocusOn(), "B.Box");
    EXPECT_FALSE(press([&] { form.Go.SetEnabled(false); }));
    EXPECT_TRUE(press([&] { form.Go.SetFocus(); })) << "a rule that leads to the target takes nothing away";
    EXPECT_FALSE(press([&] { throw Failure(NotANumber, "no number"); }));
    EXPECT_EQ(FocusOn(), "B.Box");
    EXPECT_EQ(acts, 1);
    EXPECT_EQ(reported, Names{"no number"});
}

TEST_F(FormsTest, ShortcutPressesItsButtonOnlyWhereItBelongs) {
    a->Box.SetFocus();
    a->Go.OnClick = [&] { ++acts; };
    EXPECT_TRUE(door.Key(*a, ShortcutKey::Delete));
    EXPECT_EQ(acts, 1);
    EXPECT_EQ(FocusOn(), "A.Box") << "the focus stays where the key was pressed";
    EXPECT_FALSE(door.Key(*a, ShortcutKey::CtrlS));
    a->Go.SetEnabled(false);
    EXPECT_TRUE(door.Key(*a, ShortcutKey::Delete)) << "no other use of the key either";
    EXPECT_EQ(acts, 1);
    a->Go.SetEnabled(true);
    a->Go.OnClick = [&] { a->Check.SetFocus(); };
    EXPECT_TRUE(door.Key(*a, ShortcutKey::Delete));
    EXPECT_EQ(FocusOn(), "A.Check");
    EXPECT_FALSE(door.Key(*a, ShortcutKey::Delete));
    b.slot.Show();
    EXPECT_FALSE(door.Key(*a, ShortcutKey::CtrlUp)) << "another form has the keyboard";
    EXPECT_EQ(FocusOn().front(), 'B');
}

TEST_F(FormsTest, TypingIsCutAtTheLimitAndTakingAwayIsFree) {
    const auto typed = [&](const char* text) {
        door.Type(a->Box, text);
        return a->Box.Text();
    };
    EXPECT_EQ(typed("12345"), "123");
    EXPECT_EQ(typed("1x23"), "123");
    a->Box.SetText("ABCDEFGHIJ");
    EXPECT_EQ(typed("ABCDEFGHI"), "ABCDEFGHI");
    EXPECT_EQ(typed("ABCDEFGHIx"), "ABCDEFGHI");
    EXPECT_EQ(typed("AxCDEFGHI"), "ABCDEFGHI") << "an exchange that has no room changes nothing";
    a->Box.SetText("13");
    EXPECT_EQ(typed("1223"), "123");
    EXPECT_EQ(typed("1xyz"), "1xy");
    a->Box.SetText("aa");
    EXPECT_EQ(typed("aaaa"), "aaa");
    a->Box.SetText("A       ");
    EXPECT_EQ(typed("AB       "), "AB      ") << "blanks at the end give way";
    EXPECT_EQ(typed("ABCD      "), "ABC     ");
    EXPECT_EQ(typed("ABCx     "), "ABC     ");
    EXPECT_EQ(typed("ABC      x"), "ABC     ");
    EXPECT_EQ(typed("AB     "), "AB     ");
}

TEST(DialogueTest, KeepsTheLastAnswerAsItsNumber) {
    testing::ScriptedMessageBox messages;
    std::string answer;
    Dialogue dialogue(messages, answer);
    dialogue.Ask({.prompt = "done"});
    EXPECT_EQ(answer, "1");
    for (const auto& [given, number] : {std::pair{MessageAnswer::Yes, "6"}, {MessageAnswer::No, "7"}}) {
        messages.Answer(given);
        EXPECT_EQ(dialogue.Ask({.prompt = "again?", .buttons = MessageButtons::YesNo}), given);
        EXPECT_EQ(answer, number);
    }
}

}  // namespace
}  // namespace tarvex
