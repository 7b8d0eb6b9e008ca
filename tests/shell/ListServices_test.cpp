#include "shell/ListServices.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {
namespace {

class ListServicesTest : public testing::Test {
  protected:
    ListView list{"lstvTest", "Test", {"Name", "Number"}, {}};
    ListRow& row = list.Add("A", "row", 1);
    Appearance appearance{11, 22, 33, 1};
    MemoryMachine machine;
};

TEST_F(ListServicesTest, MarksASuspiciousRow) {
    MarkRow(appearance, row, true, true);
    EXPECT_EQ(row.Mark(), ItemMark::Suspicious);
    EXPECT_EQ(row.TextColor(), 11u);
    EXPECT_TRUE(row.Bold());
}

TEST_F(ListServicesTest, MarksADisabledRow) {
    MarkRow(appearance, row, false, false);
    EXPECT_EQ(row.Mark(), ItemMark::Disabled);
    EXPECT_EQ(row.TextColor(), 22u);
    EXPECT_FALSE(row.Bold());
}

TEST_F(ListServicesTest, MarksARowThatIsSuspiciousAndDisabled) {
    MarkRow(appearance, row, false, true);
    EXPECT_EQ(row.Mark(), ItemMark::SuspiciousDisabled);
    EXPECT_EQ(row.TextColor(), 33u);
    EXPECT_TRUE(row.Bold());
}

TEST_F(ListServicesTest, MakesRowsBoldOnlyWhenFontBoldIsExactlyOne) {
    for (const std::int16_t bold : {std::int16_t{0}, std::int16_t{2}, std::int16_t{-1}}) {
        appearance.FontBold = bold;
        MarkRow(appearance, row, true, true);
        EXPECT_FALSE(row.Bold()) << bold;
    }
}

TEST_F(ListServicesTest, LeavesARowAsItWasWhenItIsEnabledAndNotSuspicious) {
    MarkRow(appearance, row, true, false);
    EXPECT_FALSE(row.TextColor().has_value());
    EXPECT_EQ(row.Mark(), ItemMark::None);
    MarkRow(appearance, row, true, true);
    MarkRow(appearance, row, true, false);
    EXPECT_EQ(row.Mark(), ItemMark::Suspicious);
    EXPECT_EQ(row.TextColor(), 11u);
    EXPECT_TRUE(row.Bold());
}

TEST_F(ListServicesTest, SortsDescendingAtTheFirstClickOnAnyColumn) {
    SortByColumn(list, 1);
    EXPECT_TRUE(list.Sorted());
    EXPECT_EQ(list.SortKey(), 1u);
    EXPECT_EQ(list.Order(), SortOrder::Descending);
}

TEST_F(ListServicesTest, TurnsTheOrderRoundAtEveryClickWhateverTheColumn) {
    SortByColumn(list, 1);
    SortByColumn(list, 1);
    EXPECT_EQ(list.Order(), SortOrder::Ascending);
    SortByColumn(list, 0);
    EXPECT_EQ(list.SortKey(), 0u);
    EXPECT_EQ(list.Order(), SortOrder::Descending);
}

TEST_F(ListServicesTest, TurnsTheOrderRoundAtASecondClickOnTheSameHeaderAlone) {
    ColumnSort sort;
    list.Sort(0, SortOrder::Ascending);
    const auto click = [&](int column, SortOrder order) {
        sort.Click(list, column);
        EXPECT_TRUE(list.Sorted());
        EXPECT_EQ(list.SortKey(), static_cast<std::size_t>(column));
        EXPECT_EQ(list.Order(), order) << column;
    };
    click(1, SortOrder::Ascending);
    click(1, SortOrder::Descending);
    click(0, SortOrder::Descending);
    click(1, SortOrder::Descending);
    click(1, SortOrder::Ascending);
}

// Before the first click the list is sorted by its first column.
TEST_F(ListServicesTest, TurnsTheOrderRoundAtAFirstClickOnTheFirstHeader) {
    ColumnSort sort;
    sort.Click(list, 0);
    EXPECT_EQ(list.Order(), SortOrder::Descending);
}

TEST_F(ListServicesTest, SwitchesSortingOnAtAClick) {
    ColumnSort sort;
    list.EndSort();
    sort.Click(list, 1);
    EXPECT_TRUE(list.Sorted());
    EXPECT_EQ(list.SortKey(), 1u);
}

TEST_F(ListServicesTest, SaysWhetherAnItemIsOn) {
    EXPECT_STREQ(EnabledText(true), "True");
    EXPECT_STREQ(EnabledText(false), "False");
}

TEST_F(ListServicesTest, AsksForTheColumnsToBeFitted) {
    struct : ControlView {
        void Changed(Aspect aspect) override { fitted += aspect == Aspect::ColumnWidths; }
        int fitted = 0;
    } view;
    list.AttachView(&view);
    AutoSizeColumns(list);
    EXPECT_EQ(view.fitted, 1);
    list.AttachView(nullptr);
}

TEST_F(ListServicesTest, SearchesTheWebForTheSelectedRowsTextAsItStands) {
    list.Add("B", "a b&c+d", 1);
    list.Select(&list.Row(1));
    SearchWeb(machine.shell, list);
    ASSERT_EQ(machine.shell.Opened().size(), 1u);
    EXPECT_EQ(machine.shell.Opened()[0],
              (ShellOpening{0, "Open", "http://www.google.com/search?q=a b&c+d", "", "", 1}));
}

TEST_F(ListServicesTest, SearchesNothingWithoutASelectedRow) {
    SearchWeb(machine.shell, list);
    EXPECT_TRUE(machine.shell.Opened().empty());
}

TEST(EncodeDigits, ReplacesEachDigitByALetter) {
    EXPECT_EQ(EncodeDigits(0), "A");
    EXPECT_EQ(EncodeDigits(4096), "EAJG");
    EXPECT_EQ(EncodeDigits(1234567890), "BCDEFGHIJA");
    EXPECT_EQ(EncodeDigits(-12), "-BC");
}

TEST(DecodeDigits, GivesTheNumberBack) {
    const std::int32_t numbers[] = {0, 4096, -1, std::numeric_limits<std::int32_t>::max(),
                                    std::numeric_limits<std::int32_t>::min()};
    for (const std::int32_t number : numbers) {
        EXPECT_EQ(DecodeDigits(EncodeDigits(number)), number);
    }
}

TEST(DecodeDigits, GivesNothingForWhatIsNoNumberOfThirtyTwoBits) {
    for (const char* text : {"", "K", "A B", "JJJJJJJJJJ", "-", "AB-"}) {
        EXPECT_FALSE(DecodeDigits(text).has_value()) << text;
    }
}

}  // namespace
}  // namespace velkarix
