// The tree of the startup page chooses whose items and which places the list shows.
#include "Input.h"
#include "StartupRows.h"
#include "StartupTest.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class StartupTree : public StartupTest {
  protected:
    static std::vector<RowTexts> TextsOf(const StartupNode& node) {
        std::vector<RowTexts> texts;
        for (const StartupRow& row : StartupRowsOf(node.path)) texts.push_back(row.texts);
        return texts;
    }
    void ExpectShown(const StartupNode& node) {
        EXPECT_TRUE(WaitUntil([&] { return Caption() == StartupCaption(node.selection); }))
            << node.path << " isn't shown, but: " << Caption();
        EXPECT_EQ(Places().Selected(), node.path);
        EXPECT_EQ(Items().Rows(), TextsOf(node)) << node.path;
    }
};

class EverySystemStartupTree : public StartupTree {};

TEST_F(EverySystemStartupTree, AClickOnANodeShowsItsItems) {
    OpenStartup();
    ExpectShown(StartupNodes.front());
    for (auto node = StartupNodes.rbegin(); node != StartupNodes.rend(); ++node) {
        ShowNode(*node);
        ExpectShown(*node);
    }
}

TEST_F(EverySystemStartupTree, TheArrowKeysWalkTheNodes) {
    OpenStartup();
    ASSERT_TRUE(BringToFront(Running().Main()));
    ASSERT_TRUE(TabTo("tvwStartup"));
    for (std::size_t i = 1; i < StartupNodes.size(); ++i) {
        PressKey(VK_DOWN);
        ExpectShown(StartupNodes[i]);
    }
    PressKey(VK_HOME);
    ExpectShown(StartupNodes.front());
    EXPECT_EQ(Running().Focus(), "tvwStartup");
}

TEST_F(StartupTree, ShowsItsSevenPlacesAndNoneIsClosed) {
    OpenStartup();
    std::vector<std::string> paths;
    for (const StartupNode& node : StartupNodes) paths.emplace_back(node.path);
    EXPECT_EQ(Places().Nodes(), paths);
    for (const char* each : {"All Items", "All Items/Local Machine", "All Items/Current User"}) {
        EXPECT_TRUE(Places().Expanded(each)) << each;
    }
}

TEST_F(StartupTree, ASecondClickOnANodeReadsNothingAgain) {
    const StartupItem& item = StartupItems.front();
    OpenStartup();
    ShowNode(StartupNodes[2]);
    Tick(Items(), 1);
    RemoveItem(item, true);
    ClickAt(Inside(Places().LabelArea(StartupNodes[2].path)));
    // The next click is only answered once that one is.
    SelectRow(Items(), 0);
    EXPECT_TRUE(IsListed(item, true));
    EXPECT_TRUE(Items().Checked(1));
    ShowNode(StartupNodes[0]);
    EXPECT_FALSE(IsListed(item, true));
}

TEST_F(StartupTree, RefreshKeepsTheSelectedNode) {
    OpenStartup();
    ShowNode(StartupNodes[6]);
    ASSERT_TRUE(Running().Press("cmdRefresh"));
    ExpectShown(StartupNodes[6]);
}

TEST_F(StartupTree, TheLeftArrowClosesABranchAndShowsWhatIsSelectedThen) {
    OpenStartup();
    ShowNode(StartupNodes[3]);
    ASSERT_TRUE(TabTo("tvwStartup"));
    PressKey(VK_LEFT);
    ExpectShown(StartupNodes[1]);
    PressKey(VK_LEFT);
    EXPECT_TRUE(WaitUntil([this] { return !Places().Expanded(StartupNodes[1].path); }));
    ExpectShown(StartupNodes[1]);
}

TEST_F(StartupTree, NoNodeCanBeEdited) {
    OpenStartup();
    ShowNode(StartupNodes[2]);
    PressKey(VK_F2);
    SelectRow(Items(), 0);
    for (const Window& child : Window(Places()).Children()) EXPECT_NE(child.Class(), "Edit");
    EXPECT_EQ(Places().Style() & TVS_EDITLABELS, 0);
}

}  // namespace
}  // namespace velkarix::e2e
