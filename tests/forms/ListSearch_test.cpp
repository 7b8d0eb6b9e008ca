#include "forms/ListSearch.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace velkarix {
namespace {

class ListSearchTest : public testing::Test {
  protected:
    ListSearchTest() {
        for (const char* name : {"explorer.exe", "Lathe.exe", "lsass.exe", "svchost.exe"}) {
            list.Add(name, name, 1);
        }
    }

    ListView list{"lstvTest", "Test", {"Name"}, {}};
    const std::optional<std::size_t> nothing;
};

TEST_F(ListSearchTest, FindsTheFirstRowThatBeginsSo) {
    EXPECT_EQ(FindRowByPrefix(list, 0, "l"), 1u);
    EXPECT_EQ(FindRowByPrefix(list, 0, "ls"), 2u);
}

TEST_F(ListSearchTest, CaseDoesNotMatter) {
    EXPECT_EQ(FindRowByPrefix(list, 0, "LATHE"), 1u);
    EXPECT_EQ(FindRowByPrefix(list, 0, "EXPLORER.EXE"), 0u);
}

TEST_F(ListSearchTest, BeginsWhereItIsTold) {
    EXPECT_EQ(FindRowByPrefix(list, 2, "l"), 2u);
}

TEST_F(ListSearchTest, GoesRoundTheEnd) {
    EXPECT_EQ(FindRowByPrefix(list, 3, "l"), 1u);
    EXPECT_EQ(FindRowByPrefix(list, 4, "e"), 0u);
}

TEST_F(ListSearchTest, TextInsideARowIsNoBeginning) {
    EXPECT_EQ(FindRowByPrefix(list, 0, "host"), nothing);
}

TEST_F(ListSearchTest, PrefixLongerThanTheTextIsNotFound) {
    EXPECT_EQ(FindRowByPrefix(list, 0, "Lathe.exe.old"), nothing);
}

TEST_F(ListSearchTest, EmptyPrefixFindsNothing) {
    EXPECT_EQ(FindRowByPrefix(list, 0, ""), nothing);
}

TEST_F(ListSearchTest, EmptyListHasNothingToFind) {
    list.Clear();
    EXPECT_EQ(FindRowByPrefix(list, 0, "l"), nothing);
}

TEST_F(ListSearchTest, FollowsTheShownOrder) {
    list.Sort(0, SortOrder::Descending);
    EXPECT_EQ(FindRowByPrefix(list, 0, "l"), 1u);
    EXPECT_EQ(list.Row(1).Text(0), "lsass.exe");
}

class FindRowHoldingTest : public testing::Test {
  protected:
    FindRowHoldingTest() {
        Add("one", "Sample Works");
        Add("two", "Other");
        Add("sampler", "Other");
        Add("four", "SAMPLE");
    }
    void Add(const std::string& name, const std::string& company) {
        list.Add(name, name, 1).SetText(1, company);
    }
    // The rows that are found one after the other, each selected; a * where the end was passed.
    std::string Walk(SearchWay way, int times, const char* text = "sample") {
        std::string names;
        for (int i = 0; i < times; ++i) {
            const std::optional<FoundRow> found = FindRowHolding(list, text, way);
            if (!found) return names + "nothing";
            list.Select(&list.Row(found->position));
            names += list.Row(found->position).Text(0) + (found->aroundTheEnd ? "* " : " ");
        }
        return names;
    }

    ListView list{"lstvTest", "Test", {"Name", "Company"}, {}};
};

TEST_F(FindRowHoldingTest, GoesDownFromTheSelectedRowAndRoundTheEnd) {
    EXPECT_EQ(Walk(SearchWay::Down, 4), "one sampler four one* ");
}

TEST_F(FindRowHoldingTest, GoesUpFromTheSelectedRowAndRoundTheEnd) {
    EXPECT_EQ(Walk(SearchWay::Up, 4), "four sampler one four* ");
}

TEST_F(FindRowHoldingTest, ComesBackToTheOnlyRowThatHoldsTheText) {
    EXPECT_EQ(Walk(SearchWay::Down, 3, "TWO"), "two two* two* ");
    EXPECT_EQ(Walk(SearchWay::Up, 2, "two"), "two* two* ");
}

TEST_F(FindRowHoldingTest, FollowsTheShownOrder) {
    list.Sort(0, SortOrder::Descending);
    EXPECT_EQ(Walk(SearchWay::Down, 3), "sampler one four ");
}

TEST_F(FindRowHoldingTest, FindsNothingWhereThereIsNothing) {
    EXPECT_EQ(Walk(SearchWay::Down, 1, "absent"), "nothing");
    EXPECT_EQ(Walk(SearchWay::Down, 1, ""), "nothing");
    EXPECT_EQ(Walk(SearchWay::Down, 1, "onesample"), "nothing");
    list.Clear();
    EXPECT_EQ(Walk(SearchWay::Up, 1), "nothing");
}

}  // namespace
}  // namespace velkarix
