#include "shell/Application.h"

#include <gtest/gtest.h>

#include "tests/machine/TestProgram.h"

namespace velkarix {
namespace {

TEST(ApplicationVersion, IsMajorAndMinor) {
    EXPECT_EQ(ApplicationVersion(), "1.0");
}

TEST(Application, TitlesItsMessages) {
    TestProgram program;
    program.desktop.answers = {MessageAnswer::Yes};
    EXPECT_EQ(program.application.Tell(MessageIcon::Question, "Go on?", MessageButtons::YesNo),
              MessageAnswer::Yes);
    ASSERT_EQ(program.desktop.messages.size(), 1u);
    EXPECT_EQ(program.desktop.messages[0].title, "Velkarix");
    EXPECT_EQ(program.desktop.messages[0].text, "Go on?");
    EXPECT_EQ(program.desktop.messages[0].buttons, MessageButtons::YesNo);
}

TEST(Application, HasAMainWindowOnlyWhileItIsLoaded) {
    TestProgram program;
    EXPECT_EQ(program.application.MainWindow(), 0u);
    program.Start();
    EXPECT_NE(program.application.MainWindow(), 0u);
    program.application.forms.UnloadAll("frmMain");
    EXPECT_EQ(program.application.MainWindow(), 0u);
}

TEST(Application, EndsByAFaultOnceItIsTold) {
    TestProgram program;
    EXPECT_FALSE(program.application.Ended());
    program.application.EndWithFault(13, "Type mismatch");
    EXPECT_TRUE(program.application.Ended());
    EXPECT_TRUE(program.desktop.quit);
}

}  // namespace
}  // namespace velkarix
