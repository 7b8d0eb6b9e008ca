// Commands that are cut: the program ends in the middle of them, at any of its changes of the
// registry and of files, as it would by a power cut.
#pragma once

#include <gtest/gtest.h>

#include <functional>

#include "AskInside.h"
#include "Wait.h"

namespace velkarix::e2e {

struct CutCommand {
    int leastChanges;  // that it makes, and that are counted
    // Puts there what the command works on, while no program runs.
    std::function<void()> place;
    // Starts the program and brings it to where the command can be given.
    std::function<void()> open;
    // Gives the command and waits until it is done or the program has ended.
    std::function<void()> give;
    // The program has ended at that change, or, where `done` is true, has done what it should.
    std::function<void(bool done)> look;
};

// `Test` is what the tests of the command's page begin with.
template <typename Test>
class CutTest : public Test {
  protected:
    // Gives the command with the program ending at the first of its changes, at the second, and so
    // on, until it has none left.
    void CutAtEachChange(const CutCommand& command) {
        constexpr int MostChanges = 100;
        for (int change = 1; change < MostChanges; ++change) {
            SCOPED_TRACE("change " + std::to_string(change));
            this->EndProgram();
            command.place();
            command.open();
            ASSERT_EQ(AskInside(this->Running().Main(), EndAtChangeQuestion, change), "ready");
            command.give();
            const bool done = IsRunning();
            if (!done) {
                EXPECT_EQ(this->Running().OwnProcess().WaitForExit(), EndedAtChange);
            }
            command.look(done);
            if (done) {
                EXPECT_GT(change, command.leastChanges);  // it outlived as many as it makes
                return;
            }
        }
        FAIL() << "the command has no end";
    }
    bool IsRunning() { return this->Running().OwnProcess().Running(); }
    // Waits until that is so, or the program has ended.
    template <typename Condition>
    void WaitUntilDoneOrEnded(Condition condition) {
        EXPECT_TRUE(WaitUntil([&] { return !IsRunning() || condition(); }));
    }
    // The message box that comes, closed by that button; none where the program ends before.
    void AnswerMessage(int button) {
        const Window box = this->Running().Message();
        EXPECT_TRUE(box || !IsRunning());
        if (box) Window(GetDlgItem(box.Handle(), button)).Click();
    }
};

}  // namespace velkarix::e2e
