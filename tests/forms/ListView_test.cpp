#include "forms/ListView.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "CountingView.h"
#include "forms/Controls.h"

namespace velkarix {
namespace {

// A view that writes down what it hears.
class HearingView : public ControlView {
  public:
    void Changed(Aspect aspect) override { heard.push_back(aspect); }
    std::vector<Aspect> heard;
};

class ListViewTest : public testing::Test {
  protected:
    std::string Order() {
        std::string names;
        for (std::size_t i = 0; i < list.RowCount(); ++i) names += list.Row(i).Text(0) + " ";
        return names;
    }
    void AddThree() {
        list.Add("B", "beta", 1).SetText(1, "2");
        list.Add("A", "Alpha", 1).SetText(1, "2");
        list.Add("C", "gamma", 1).SetText(1, "1");
    }

    std::vector<std::string> calls;
    ListView list{"lstvTest",
                  "Test",
                  {"Name", "Number"},
                  {[this](ListRow& row) { calls.push_back("item " + row.Text(0)); },
                   [this](int column) { calls.push_back("column " + std::to_string(column)); },
                   [this] { calls.push_back("double"); },
                   [this](MouseButton button) {
                       calls.push_back(button == MouseButton::Right ? "right" : "left");
                   }}};
};

TEST_F(ListViewTest, GivesEachColumnTheSameShareUntilItIsTold) {
    EXPECT_EQ(list.ColumnShares(), (std::vector<int>{1, 1}));
    list.SetColumnShares({3, 1});
    EXPECT_EQ(list.ColumnShares(), (std::vector<int>{3, 1}));
}

TEST_F(ListViewTest, KeepsTheOrderThatRowsCameInUntilItIsSorted) {
    AddThree();
    EXPECT_EQ(Order(), "beta Alpha gamma ");
}

TEST_F(ListViewTest, SortsByTextWithoutRegardToCase) {
    AddThree();
    list.Sort(0, SortOrder::Ascending);
    EXPECT_EQ(Order(), "Alpha beta gamma ");
    list.Sort(0, SortOrder::Descending);
    EXPECT_EQ(Order(), "gamma beta Alpha ");
}

TEST_F(ListViewTest, SortsNumbersAsTextToo) {
    list.Add("A", "a", 1).SetText(1, "10.0");
    list.Add("B", "b", 1).SetText(1, "9.0");
    list.Sort(1, SortOrder::Ascending);
    EXPECT_EQ(Order(), "a b ");
}

TEST_F(ListViewTest, KeepsTheOrderOfRowsThatCompareEqual) {
    AddThree();
    list.Sort(1, SortOrder::Ascending);
    EXPECT_EQ(Order(), "gamma beta Alpha ");
}

TEST_F(ListViewTest, PutsANewRowAtItsPlaceInASortedList) {
    AddThree();
    list.Sort(0, SortOrder::Ascending);
    EXPECT_EQ(Order(), "Alpha beta gamma ");
    list.Add("D", "delta", 1);
    EXPECT_EQ(Order(), "Alpha beta delta gamma ");
}

TEST_F(ListViewTest, PutsARowWhoseSortedTextChangesAtItsNewPlace) {
    AddThree();
    list.Sort(1, SortOrder::Ascending);
    EXPECT_EQ(Order(), "gamma beta Alpha ");
    list.Row(0).SetText(1, "3");
    EXPECT_EQ(Order(), "beta Alpha gamma ");
}

TEST_F(ListViewTest, StaysSortedAfterItIsClearedAndFilledAgain) {
    AddThree();
    list.Sort(0, SortOrder::Descending);
    list.Clear();
    AddThree();
    EXPECT_EQ(Order(), "gamma beta Alpha ");
}

TEST_F(ListViewTest, LeavesItsRowsAsTheyStandWhenItsSortEnds) {
    AddThree();
    list.Sort(0, SortOrder::Descending);
    list.EndSort();
    list.Add("D", "delta", 1);
    EXPECT_EQ(Order(), "gamma beta Alpha delta ");
    EXPECT_FALSE(list.Sorted());
    EXPECT_EQ(list.SortKey(), 0u);
    EXPECT_EQ(list.Order(), SortOrder::Ascending);
}

TEST_F(ListViewTest, KeepsTheSelectedRowWhenItSorts) {
    AddThree();
    list.Select(&list.Row(1));
    list.Sort(0, SortOrder::Descending);
    ASSERT_NE(list.SelectedRow(), nullptr);
    EXPECT_EQ(list.SelectedRow()->Text(0), "Alpha");
    EXPECT_EQ(list.PositionOf(*list.SelectedRow()), 2u);
}

TEST_F(ListViewTest, LosesTheSelectionWithTheSelectedRowAlone) {
    AddThree();
    list.Select(&list.Row(1));
    list.Remove(list.Row(0));
    ASSERT_NE(list.SelectedRow(), nullptr);
    EXPECT_EQ(list.PositionOf(*list.SelectedRow()), 0u);
    list.Remove(list.Row(0));
    EXPECT_EQ(list.SelectedRow(), nullptr);
    EXPECT_EQ(Order(), "gamma ");
}

TEST_F(ListViewTest, HasNoSelectionOnceCleared) {
    AddThree();
    list.Select(&list.Row(0));
    list.Clear();
    EXPECT_EQ(list.SelectedRow(), nullptr);
    EXPECT_EQ(list.RowCount(), 0u);
}

TEST_F(ListViewTest, RunsHandlersForGesturesOfTheUser) {
    AddThree();
    list.UserSelect(&list.Row(1));
    list.UserColumnClick(2);
    list.UserMouseUp(MouseButton::Right);
    EXPECT_TRUE(list.Raise("DblClick"));
    EXPECT_EQ(calls, (std::vector<std::string>{"item Alpha", "column 2", "right", "double"}));
}

TEST_F(ListViewTest, RunsNoHandlerForAChangeByTheProgram) {
    AddThree();
    list.Select(&list.Row(0));
    list.Row(0).SetChecked(true);
    list.Sort(0, SortOrder::Descending);
    EXPECT_TRUE(calls.empty());
}

TEST_F(ListViewTest, RunsNoHandlerForAClickBesideTheRows) {
    AddThree();
    list.UserSelect(&list.Row(0));
    calls.clear();
    list.UserSelect(nullptr);
    EXPECT_EQ(list.SelectedRow(), nullptr);
    EXPECT_TRUE(calls.empty());
}

TEST_F(ListViewTest, TellsItsViewOfChangesByTheProgramAlone) {
    AddThree();
    HearingView view;
    list.AttachView(&view);
    list.UserSelect(&list.Row(0));
    list.UserCheck(list.Row(0), true);
    EXPECT_TRUE(view.heard.empty());
    EXPECT_TRUE(list.Row(0).Checked());
    list.Row(0).SetBold(true);
    list.Select(&list.Row(1));
    list.Clear();
    EXPECT_EQ(view.heard, (std::vector<Aspect>{Aspect::RowState, Aspect::Selection, Aspect::Rows}));
    list.AttachView(nullptr);
}

TEST_F(ListViewTest, DoesNotDoubleClickWhileDisabled) {
    list.SetEnabled(false);
    EXPECT_FALSE(list.Raise("DblClick"));
    EXPECT_TRUE(calls.empty());
}

TEST_F(ListViewTest, BeginsWithDetailsAndTellsItsViewOfAnotherMode) {
    CountingView view;
    list.AttachView(&view);
    EXPECT_EQ(list.Mode(), ListMode::Details);
    list.SetMode(ListMode::Icons);
    EXPECT_EQ(list.Mode(), ListMode::Icons);
    EXPECT_EQ(view.Times(Aspect::Look), 1);
    list.AttachView(nullptr);
}

TEST_F(ListViewTest, KeepsRowsOrderAndSelectionInAnotherMode) {
    AddThree();
    list.Sort(0, SortOrder::Ascending);
    list.Select(&list.Row(1));
    list.SetMode(ListMode::Icons);
    EXPECT_EQ(Order(), "Alpha beta gamma ");
    EXPECT_EQ(list.SelectedRow(), &list.Row(1));
    EXPECT_TRUE(calls.empty());
}

TEST_F(ListViewTest, GivesARowTheFirstLargeImageUnlessItIsToldAnother) {
    EXPECT_EQ(list.Add("A", "a", 3).LargeImage(), 1u);
    EXPECT_EQ(list.Add("B", "b", 3, 2).LargeImage(), 2u);
    EXPECT_EQ(list.Row(1).Image(), 3u);
}

TEST_F(ListViewTest, HoldsLargeImagesBesideTheSmallOnes) {
    const ImageList small;
    const ImageList large;
    CountingView view;
    list.AttachView(&view);
    list.SetImages(&small);
    list.SetLargeImages(&large);
    EXPECT_EQ(list.Images(), &small);
    EXPECT_EQ(list.LargeImages(), &large);
    EXPECT_EQ(view.Times(Aspect::RowState), 2);
    list.AttachView(nullptr);
}

TEST_F(ListViewTest, HoldsFiftyThousandRowsInOrder) {
    for (int i = 0; i < 50000; ++i) list.Add("", std::to_string(i * 7919 % 50000), 1);
    list.Sort(0, SortOrder::Ascending);
    EXPECT_EQ(list.Row(0).Text(0), "0");
    EXPECT_EQ(list.Row(49999).Text(0), "9999");
}

TEST_F(ListViewTest, CountsItsRowsByTheirMarksAndTicks) {
    EXPECT_EQ(list.Counts(), ListCounts{});
    AddThree();
    list.Row(0).SetMark(ItemMark::Suspicious);
    list.Row(1).SetMark(ItemMark::SuspiciousDisabled);
    list.Row(2).SetMark(ItemMark::Disabled);
    list.Row(2).SetChecked(true);
    list.UserCheck(list.Row(1), true);
    EXPECT_EQ(list.Counts(), (ListCounts{3, 2, 2, 2}));
    list.Row(0).SetMark(ItemMark::None);
    list.Row(2).SetChecked(true);
    list.UserCheck(list.Row(1), false);
    EXPECT_EQ(list.Counts(), (ListCounts{3, 1, 2, 1}));
    list.Remove(list.Row(1));
    EXPECT_EQ(list.Counts(), (ListCounts{2, 0, 1, 1}));
    list.Clear();
    EXPECT_EQ(list.Counts(), ListCounts{});
}

TEST_F(ListViewTest, TellsOfEveryChangeOfItsRowsWhoeverMakesIt) {
    int changes = 0;
    list.SetOnChange([&changes] { ++changes; });
    const auto told = [&changes] { return std::exchange(changes, 0) > 0; };
    ListRow& row = list.Add("A", "Alpha", 1);
    EXPECT_TRUE(told());
    row.SetMark(ItemMark::Suspicious);
    EXPECT_TRUE(told());
    row.SetChecked(true);
    EXPECT_TRUE(told());
    list.UserCheck(row, false);
    EXPECT_TRUE(told());
    list.UserSelect(&row);
    list.Select(nullptr);
    list.FitColumns();
    EXPECT_FALSE(told());
    list.Remove(row);
    EXPECT_TRUE(told());
    list.Clear();
    EXPECT_TRUE(told());
    list.SetOnChange({});
    list.Add("B", "beta", 1);
    EXPECT_FALSE(told());
}

TEST_F(ListViewTest, TellsWhenItComesOnViewOrLeavesItWithWhatItStandsIn) {
    Frame frame("fmTest", "Test");
    list.StandIn(&frame);
    int changes = 0;
    list.SetOnChange([&changes] { ++changes; });
    frame.SetVisible(false);
    EXPECT_EQ(changes, 1);
    list.SetOnChange({});
}

}  // namespace
}  // namespace velkarix
