#include "toolkit/act_queue.h"

#include <gtest/gtest.h>

#include "toolkit/form_host.h"
#include "toolkit/simple_controls.h"

namespace tarvex {
namespace {

using Kind = NativeAct::Kind;

class ActQueueTest : public ::testing::Test {
  protected:
    FormHost host;
    Form form{host, "Form", ""};
    Form other{host, "Other", ""};
    TextBox box{form, "Box", 0, 0};
    Button button{form, "Go", "Go", 1};
    ActQueue queue;
    std::string carried;

    void Put(char name, Kind kind, const Form& where, const Control* control) {
        queue.Push({kind, &where, control, [this, name] { return carried += name, true; }});
    }
    std::string Drain() {
        while (auto act = queue.Next()) act->carry();
        return std::exchange(carried, {});
    }
};

TEST_F(ActQueueTest, MovesThatTheNextActMakesAnywayAreLeftOut) {
    Put('a', Kind::Activate, form, nullptr);
    Put('b', Kind::Arrive, form, &button);
    Put('c', Kind::Act, form, &button);
    EXPECT_EQ(Drain(), "c");

    // What the next act does not make stays, and so does the order.
    Put('a', Kind::Activate, form, nullptr);
    Put('b', Kind::Act, form, nullptr);
    Put('c', Kind::Arrive, form, &box);
    Put('d', Kind::Arrive, form, &button);
    Put('e', Kind::Act, form, &box);
    Put('f', Kind::Act, form, &box);
    Put('g', Kind::Activate, other, nullptr);
    Put('h', Kind::Act, form, &button);
    EXPECT_EQ(Drain(), "abcdefgh");
}

TEST_F(ActQueueTest, ActsOfAFormThatGoesAreForgotten) {
    Put('a', Kind::Act, form, &box);
    Put('b', Kind::Act, other, nullptr);
    queue.Forget(form);
    EXPECT_EQ(Drain(), "b");
    Put('c', Kind::Act, form, &box);
    queue.Clear();
    EXPECT_TRUE(queue.Empty());
}

}  // namespace
}  // namespace tarvex
