#include "shell/ItemChange.h"

#include <gtest/gtest.h>

#include "tests/machine/TestProgram.h"

namespace velkarix {
namespace {

TEST(ItemChangeTest, BeginsWhenNoOtherRuns) {
    TestProgram program;
    EXPECT_TRUE(ItemChange(program.application).Begun());
}

TEST(ItemChangeTest, IsNotBegunInTheMiddleOfAnother) {
    TestProgram program;
    const ItemChange first(program.application);
    EXPECT_FALSE(ItemChange(program.application).Begun());
    EXPECT_TRUE(first.Begun());
}

TEST(ItemChangeTest, RunsOnWhenOneThatWasNotBegunGoes) {
    TestProgram program;
    const ItemChange first(program.application);
    { const ItemChange second(program.application); }
    EXPECT_FALSE(ItemChange(program.application).Begun());
}

TEST(ItemChangeTest, LetsTheNextBeginWhenItIsDone) {
    TestProgram program;
    { const ItemChange first(program.application); }
    EXPECT_TRUE(ItemChange(program.application).Begun());
}

}  // namespace
}  // namespace velkarix
