// What the startup list shows: live and disabled items of all places, their files, their marks.
#include <algorithm>
#include <fstream>

#include "AskInside.h"
#include "Input.h"
#include "Screen.h"
#include "StartupRows.h"
#include "StartupTest.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

constexpr const char* All = "All Items";

class StartupList : public StartupTest {
  protected:
    static std::vector<RowTexts> ExpectedTexts(const std::string& node) {
        std::vector<RowTexts> texts;
        for (const StartupRow& row : StartupRowsOf(node)) texts.push_back(row.texts);
        return texts;
    }
    // Two clicks at one place would be a double click.
    void ClickHeader(int column) {
        POINT place = Items().Header(column);
        aside_ = !aside_;
        if (aside_) place.x += 15;
        ClickAt(place);
    }
    bool IsSorted(int column, bool ascending) {
        std::vector<std::string> texts = Items().Column(column);
        if (!ascending) std::ranges::reverse(texts);
        return std::ranges::is_sorted(texts, [](const std::string& a, const std::string& b) {
            return _stricmp(a.c_str(), b.c_str()) < 0;
        });
    }

  private:
    bool aside_ = false;
};

class EverySystemStartupList : public StartupList {};

TEST_F(EverySystemStartupList, ShowsTheItemsOfAllPlacesByName) {
    OpenStartup();
    EXPECT_EQ(Items().Rows(), ExpectedTexts(All));
    EXPECT_EQ(Caption(), StartupCaption("All Items"));
}

TEST_F(StartupList, HasItsColumnsWideEnoughToRead) {
    OpenStartup();
    EXPECT_EQ(Items().ColumnCaptions(), StartupColumns());
    for (const int width : Items().ColumnWidths()) EXPECT_GT(width, 20);
}

TEST_F(StartupList, BeginsWithItsFirstRowSelectedAndTheFocusInThePage) {
    OpenStartup();
    EXPECT_EQ(Items().Selected(), 0);
    EXPECT_NE(Running().Focus(), "");
}

TEST_F(StartupList, TheColoursTellWhatIsSuspiciousAndWhatIsDisabled) {
    OpenStartup();
    const std::vector<StartupRow> rows = StartupRowsOf(All);
    for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
        const StartupRow& expected = rows[static_cast<std::size_t>(row)];
        // What is selected has the colours of the selection.
        SelectRow(Items(), row == 0 ? 1 : 0);
        Items().Show(row);
        const RECT label = Items().LabelArea(row);
        const COLORREF color = ColorOf(expected.mark);
        EXPECT_TRUE(WaitUntil([&] { return TextColor(label) == color; }, 2000))
            << expected.texts[0] << std::hex << " has " << TextColor(label) << " instead of "
            << color;
    }
}

TEST_F(StartupList, ASecondClickOnAHeaderTurnsTheOrderAndAnotherHeaderKeepsIt) {
    OpenStartup();
    BringToFront(Running().Main());
    ASSERT_TRUE(IsSorted(0, true));
    ClickHeader(0);
    EXPECT_TRUE(WaitUntil([this] { return IsSorted(0, false); }));
    ClickHeader(2);
    EXPECT_TRUE(WaitUntil([this] { return IsSorted(2, false); }));
    ClickHeader(2);
    EXPECT_TRUE(WaitUntil([this] { return IsSorted(2, true); }));
    ClickHeader(1);
    EXPECT_TRUE(WaitUntil([this] { return IsSorted(1, true); }));
}

TEST_F(StartupList, RefreshShowsWhatHasComeAndWhatHasGone) {
    OpenStartup();
    for (const StartupItem& item : StartupItems) {
        WriteItem(item, false, *ReadItem(item, true));
        RemoveItem(item, true);
        EXPECT_TRUE(IsListed(item, true)) << "a list shows what was read: " << item;
    }
    ASSERT_TRUE(Running().Press("cmdRefresh"));
    for (const StartupItem& item : StartupItems) {
        EXPECT_FALSE(IsListed(item, true)) << item;
        EXPECT_TRUE(IsListed(item, false)) << item;
    }
}

TEST_F(StartupList, F5RefreshesAndDropsTicks) {
    OpenStartup();
    BringToFront(Running().Main());
    Tick(Items(), 1);
    PressKey(VK_F5);
    EXPECT_TRUE(WaitUntil([this] { return !Items().Checked(1); }));
    EXPECT_EQ(Items().Rows(), ExpectedTexts(All));
}

TEST_F(StartupList, AnItemThatIsLiveAndDisabledAtOnceIsTwoRows) {
    for (const StartupItem& item : StartupItems) WriteItem(item, false, *ReadItem(item, true));
    OpenStartup();
    for (const StartupItem& item : StartupItems) {
        EXPECT_TRUE(IsListed(item, true)) << item;
        EXPECT_TRUE(IsListed(item, false)) << item;
    }
}

TEST_F(StartupList, AShortcutWhoseTargetHasComeBackIsListedAgain) {
    const StartupItem lost = MakeStartupItem("", "Sample Lost.lnk", "Startup CU");
    const std::string folder = "C:\\Program Files\\Sample Gone";
    OpenStartup();
    EXPECT_TRUE(ReadItem(lost, false));
    EXPECT_FALSE(IsListed(lost, false));
    CreateDirectoryA(folder.c_str(), nullptr);
    std::ofstream(folder + "\\gone.exe") << "back";
    ASSERT_TRUE(Running().Press("cmdRefresh"));
    EXPECT_TRUE(IsListed(lost, false));
    DeleteFileA((folder + "\\gone.exe").c_str());
    RemoveDirectoryA(folder.c_str());
}

TEST_F(StartupList, EveryTextOfThePageFitsItsPlace) {
    OpenStartup();
    EXPECT_EQ(AskInside(Running().Main(), CutTextsQuestion), "");
}

}  // namespace
}  // namespace velkarix::e2e
