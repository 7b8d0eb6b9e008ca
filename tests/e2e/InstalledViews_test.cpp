// The two views of the installed applications, large icons and details, and which of them is kept.
#include "Input.h"
#include "InstalledTest.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class InstalledViews : public InstalledTest {
  protected:
    std::string KeptView() const { return install_.Ini("Settings.ini", "Main", "View"); }
    void ExpectView(bool details) {
        EXPECT_EQ(InDetails(), details);
        EXPECT_EQ(Running().Control("optReport").Checked(), details);
        EXPECT_EQ(Running().Control("optIcon").Checked(), !details);
    }
};

class EverySystemInstalledViews : public InstalledViews {};

TEST_F(EverySystemInstalledViews, TheChosenViewIsThereAgainAfterARestart) {
    OpenInstalled();
    ExpectView(false);
    for (const bool details : {true, false}) {
        ChooseView(details);
        ASSERT_EQ(Running().Close(), 0u);
        EXPECT_EQ(KeptView(), details ? "3" : "0");
        OpenInstalled();
        ExpectView(details);
    }
}

TEST_F(InstalledViews, LeavingThePageKeepsTheView) {
    OpenInstalled();
    ChooseView(true);
    EXPECT_EQ(KeptView(), "");
    ASSERT_TRUE(Running().Press("cmdProcess"));
    EXPECT_EQ(KeptView(), "3");
    ASSERT_TRUE(Running().Press("cmdAddremove"));
    ExpectView(true);
}

TEST_F(InstalledViews, AnotherViewKeepsRowsAndSelection) {
    OpenInstalled();
    const std::vector<RowTexts> rows = Applications().Rows();
    SelectApplication("Sample Maths");
    const std::optional<int> selected = Applications().Selected();
    DeleteEntries();
    for (const bool details : {true, false}) {
        ChooseView(details);
        EXPECT_EQ(Applications().Rows(), rows) << "nothing is read again";
        EXPECT_EQ(Applications().Selected(), selected);
    }
}

TEST_F(InstalledViews, ARefreshKeepsTheView) {
    OpenInstalled();
    for (const bool details : {true, false}) {
        ChooseView(details);
        ASSERT_TRUE(Running().Press("cmdRefresh"));
        ExpectView(details);
    }
}

TEST_F(InstalledViews, TheArrowKeysChooseTheView) {
    OpenInstalled();
    ASSERT_TRUE(BringToFront(Running().Main()));
    ASSERT_TRUE(TabTo("optIcon"));
    PressKey(VK_RIGHT);
    EXPECT_TRUE(WaitUntil([this] { return InDetails(); }));
    ExpectView(true);
    PressKey(VK_LEFT);
    EXPECT_TRUE(WaitUntil([this] { return !InDetails(); }));
    ExpectView(false);
}

TEST_F(InstalledViews, TheArrowKeysWalkTheIcons) {
    OpenInstalled();
    SelectApplication(InstalledApplications().front().name);
    const auto moves = [this](WORD key) {
        const std::optional<int> before = Applications().Selected();
        PressKey(key);
        return WaitUntil([&] { return Applications().Selected() != before; }, 2000);
    };
    EXPECT_TRUE(moves(VK_RIGHT));
    EXPECT_EQ(Applications().Selected(), 1);
    EXPECT_TRUE(moves(VK_DOWN));
    const int below = Applications().Selected().value_or(0);
    EXPECT_GT(Applications().IconArea(below).top, Applications().IconArea(1).top);
    EXPECT_EQ(Applications().IconArea(below).left, Applications().IconArea(1).left);
    EXPECT_TRUE(moves(VK_UP));
    EXPECT_TRUE(moves(VK_LEFT));
    EXPECT_EQ(Applications().Selected(), 0);
    EXPECT_TRUE(moves(VK_END));
    EXPECT_EQ(Applications().Selected(), Applications().RowCount() - 1);
}

}  // namespace
}  // namespace velkarix::e2e
