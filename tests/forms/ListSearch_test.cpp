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

}  // namespace
}  // namespace velkarix
