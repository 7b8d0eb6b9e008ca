#include "shell/Progress.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {
namespace {

struct Shown {
    std::string text;
    std::optional<double> share;
    friend bool operator==(const Shown&, const Shown&) = default;
};

class ProgressTest : public testing::Test, protected Progress::View {
  protected:
    ProgressTest() { progress.SetView(this); }
    ~ProgressTest() override { progress.SetView(nullptr); }

    void ShowProgress(const std::string& text, std::optional<double> share) override {
        shown.push_back({text, share});
        machine.clock.Sleep(timeToShow);
    }
    void EndProgress() override { ++ends; }
    std::vector<double> Shares() const {
        std::vector<double> shares;
        for (const Shown& each : shown) shares.push_back(each.share.value_or(-1));
        return shares;
    }

    MemoryMachine machine;
    Progress progress{machine.clock};
    std::vector<Shown> shown;
    std::uint32_t timeToShow = 0;  // milliseconds
    int ends = 0;
};

TEST_F(ProgressTest, ShowsWhatIsLookedAtAndHowMuchIsDone) {
    machine.clock.SetTickStep(100);
    Progress::Work work(progress, "Items", 4);
    for (const char* item : {"a", "b", "c", "d"}) work.Step(item);
    EXPECT_EQ(shown,
              (std::vector<Shown>{
                  {"Items: a", 0.0}, {"Items: b", 0.25}, {"Items: c", 0.5}, {"Items: d", 0.75}}));
}

TEST_F(ProgressTest, ShowsNoShareWhereNobodyKnowsHowMuchThereIs) {
    machine.clock.SetTickStep(100);
    Progress::Work work(progress, "Items");
    work.Step("a");
    EXPECT_EQ(shown, (std::vector<Shown>{{"Items: a", std::nullopt}}));
}

TEST_F(ProgressTest, ShowsNothingOfWhatIsDoneAtOnce) {
    machine.clock.Sleep(1000);
    machine.clock.SetTickStep(1);
    {
        Progress::Work work(progress, "Items", 50);
        for (int i = 0; i < 50; ++i) work.Step("item");
    }
    EXPECT_TRUE(shown.empty());
    EXPECT_EQ(ends, 1);
}

TEST_F(ProgressTest, ShowsNoMoreThanTenStepsASecond) {
    machine.clock.SetTickStep(1);
    Progress::Work work(progress, "Items", 3000);
    for (int i = 0; i < 3000; ++i) work.Step("item");
    EXPECT_LE(shown.size(), 30u);
    EXPECT_GE(shown.size(), 28u);
}

TEST_F(ProgressTest, LeavesTheWorkItsTimeHoweverLongItTakesToShow) {
    machine.clock.SetTickStep(10);
    timeToShow = 500;
    Progress::Work work(progress, "Items", 40);
    for (int i = 0; i < 40; ++i) work.Step("item");
    EXPECT_LE(shown.size(), 4u);
}

TEST_F(ProgressTest, GoesOnWhenTheTicksBeginAnew) {
    machine.clock.SetTickStep(0xFFFFFFF0u);
    Progress::Work work(progress, "Items", 2);
    machine.clock.SetTickStep(100);
    work.Step("a");
    EXPECT_EQ(shown.size(), 1u);
}

TEST_F(ProgressTest, ShowsTheInnermostWorkThatLooksAtSomething) {
    machine.clock.SetTickStep(100);
    Progress::Work outer(progress, "Page", 2);
    outer.Step("first");
    {
        Progress::Work inner(progress, "List", 2);
        inner.Step("a");
        inner.Step("b");
    }
    outer.Step("second");
    EXPECT_EQ(
        shown,
        (std::vector<Shown>{
            {"Page: first", 0.0}, {"List: a", 0.0}, {"List: b", 0.25}, {"Page: second", 0.5}}));
}

TEST_F(ProgressTest, NeverGoesBackWithinAWork) {
    machine.clock.SetTickStep(100);
    Progress::Work outer(progress, "Page", 2);
    outer.Step("first");
    for (int list = 0; list < 2; ++list) {
        Progress::Work inner(progress, "List", 2);
        inner.Step("a");
        inner.Step("b");
    }
    EXPECT_EQ(Shares(), (std::vector<double>{0, 0, 0.25, 0.25, 0.25}));
}

TEST_F(ProgressTest, BeginsAnewForEachListOfAWorkWithoutSteps) {
    machine.clock.SetTickStep(100);
    const Progress::Work outer(progress, "Page");
    for (int list = 0; list < 2; ++list) {
        Progress::Work inner(progress, "List", 2);
        inner.Step("a");
        inner.Step("b");
    }
    EXPECT_EQ(Shares(), (std::vector<double>{0, 0.5, 0, 0.5}));
}

TEST_F(ProgressTest, NeverPassesTheEndWhateverIsAddedMeanwhile) {
    machine.clock.SetTickStep(100);
    Progress::Work work(progress, "Items", 1);
    for (int i = 0; i < 3; ++i) work.Step("item");
    EXPECT_EQ(Shares(), (std::vector<double>{0, 1, 1}));
}

TEST_F(ProgressTest, IsBusyUntilTheOutermostWorkEnds) {
    EXPECT_FALSE(progress.Busy());
    {
        const Progress::Work outer(progress, "Page");
        { const Progress::Work inner(progress, "List"); }
        EXPECT_TRUE(progress.Busy());
        EXPECT_EQ(ends, 0);
    }
    EXPECT_FALSE(progress.Busy());
    EXPECT_EQ(ends, 1);
}

TEST_F(ProgressTest, WorksWithoutAnybodyWhoShowsIt) {
    progress.SetView(nullptr);
    machine.clock.SetTickStep(100);
    Progress::Work work(progress, "Items", 2);
    work.Step("a");
    progress.SetView(this);
    work.Step("b");
    EXPECT_EQ(shown, (std::vector<Shown>{{"Items: b", 0.5}}));
}

}  // namespace
}  // namespace velkarix
