// What mouse and keyboard do on a list: sorting, selecting, double click.
#include <windows.h>
#include <commctrl.h>

#include <algorithm>

#include "Input.h"
#include "ProgramTest.h"
#include "Setup.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

bool LessWithoutCase(const std::string& a, const std::string& b) {
    return lstrcmpiA(a.c_str(), b.c_str()) < 0;
}

class ListGestures : public ProgramTest {
  protected:
    ListGestures() {
        Start();
        BringToFront(Running().Main());
    }
    bool Ascending(int column) {
        return std::ranges::is_sorted(List().Column(column), LessWithoutCase);
    }
    bool Descending(int column) {
        const std::vector<std::string> texts = List().Column(column);
        return std::is_sorted(texts.rbegin(), texts.rend(), LessWithoutCase);
    }
    // Two clicks at one place would be a double click.
    void ClickHeader(int column) {
        POINT place = List().Header(column);
        aside_ = !aside_;
        if (aside_) place.x += 15;
        ClickAt(place);
    }
    // Waits until the list has done what was asked for by mouse and keyboard before.
    void Settle() {
        SelectRow("SampleIdle.exe");
        SelectRow("SampleSafe.exe");
    }

  private:
    bool aside_ = false;
};

TEST_F(ListGestures, AHeaderClickSortsDescendingFirstAndAscendingNext) {
    ASSERT_TRUE(Ascending(0));
    ClickHeader(0);
    EXPECT_TRUE(WaitUntil([this] { return Descending(0); }));
    ClickHeader(0);
    EXPECT_TRUE(WaitUntil([this] { return Ascending(0); }));
}

TEST_F(ListGestures, AClickOnAnotherHeaderSortsByThatAndTurnsTheOrder) {
    ClickHeader(0);
    ASSERT_TRUE(WaitUntil([this] { return Descending(0); }));
    ClickHeader(1);
    EXPECT_TRUE(WaitUntil([this] { return Ascending(1); }));
}

TEST_F(ListGestures, TheSelectedRowStaysSelectedWhenTheOrderChanges) {
    SelectRow("SampleIdle.exe");
    ClickHeader(0);
    ASSERT_TRUE(WaitUntil([this] { return Descending(0); }));
    EXPECT_EQ(List().Selected(), List().Find("SampleIdle.exe"));
}

TEST_F(ListGestures, ATickGoesWithItsRowWhenTheOrderChanges) {
    ClickAt(List().CheckBox(RowOf("SampleIdle.exe")));
    ASSERT_TRUE(WaitUntil([this] { return List().Checked(RowOf("SampleIdle.exe")); }));
    ClickHeader(0);
    ASSERT_TRUE(WaitUntil([this] { return Descending(0); }));
    for (int row = 0; row < List().RowCount(); ++row) {
        EXPECT_EQ(List().Checked(row), List().Text(row, 0) == "SampleIdle.exe") << row;
    }
}

TEST_F(ListGestures, TheArrowKeysMoveTheSelection) {
    SelectRow("SampleIdle.exe");
    const int row = RowOf("SampleIdle.exe");
    PressKey(VK_DOWN);
    EXPECT_TRUE(WaitUntil([&] { return List().Selected() == row + 1; }));
    PressKey(VK_UP);
    EXPECT_TRUE(WaitUntil([&] { return List().Selected() == row; }));
    PressKey(VK_END);
    EXPECT_TRUE(WaitUntil([&] { return List().Selected() == List().RowCount() - 1; }));
    PressKey(VK_HOME);
    EXPECT_TRUE(WaitUntil([&] { return List().Selected() == 0; }));
}

TEST_F(ListGestures, TypedLettersSelectTheRowThatBeginsWithThem) {
    PressKey(VK_HOME);
    PressKey('S');
    PressKey('A');
    PressKey('M');
    PressKey('P');
    EXPECT_TRUE(WaitUntil([this] {
        const std::optional<int> selected = List().Selected();
        return selected && List().Text(*selected, 0).starts_with("Sample");
    }));
}

TEST_F(ListGestures, OnlyOneRowIsSelectedHoweverTheKeysAreHeld) {
    SelectRow("SampleIdle.exe");
    PressKey(VK_DOWN, {VK_SHIFT});
    EXPECT_TRUE(WaitUntil([this] {
        return List().Send(LVM_GETSELECTEDCOUNT) == 1 &&
               List().Selected() == RowOf("SampleIdle.exe") + 1;
    }));
}

TEST_F(ListGestures, NoLabelCanBeEdited) {
    SelectRow("SampleIdle.exe");
    PressKey(VK_F2);
    ClickAt(Inside(List().LabelArea(RowOf("SampleIdle.exe"))));
    Settle();
    for (const Window& child : Window(List()).Children()) {
        EXPECT_NE(child.Class(), "Edit");
    }
    EXPECT_EQ(List().Style() & LVS_EDITLABELS, 0);
    EXPECT_TRUE(List().Find("SampleIdle.exe"));
}

TEST_F(ListGestures, ADoubleClickSearchesTheWebForNameAndCompany) {
    SelectRow("SampleIdle.exe");
    DoubleClickAt(Inside(List().LabelArea(RowOf("SampleIdle.exe"))));
    const std::string opened = Opened();
    EXPECT_NE(opened.find("\"http://www.google.com/search?q=SampleIdle.exe+Sample+Works\""),
              std::string::npos)
        << opened;
}

TEST_F(ListGestures, EveryColumnShowsItsHeaderAndContent) {
    for (const int width : List().ColumnWidths()) EXPECT_GT(width, 20);
}

}  // namespace
}  // namespace velkarix::e2e
