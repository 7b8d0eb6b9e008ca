#include "shell/ListCopy.h"

#include <gtest/gtest.h>

namespace velkarix {
namespace {

using namespace std::string_literals;

class ListCopyTest : public testing::Test {
  protected:
    ListCopyTest() {
        Add("beta", "2", "b");
        Add("alpha", "", "a");
    }
    ListRow& Add(const std::string& name, const std::string& number, const std::string& path) {
        ListRow& row = list.Add(name, name, 1);
        row.SetText(1, number);
        row.SetText(2, path);
        return row;
    }

    ListView list{"lstvTest", "Test", {"Name", "Number [Kb]", "Path"}, {}};
};

TEST_F(ListCopyTest, PartsTheColumnsOfARowByTabs) {
    EXPECT_EQ(RowAsText(list, list.Row(0)), "beta\t2\tb");
    EXPECT_EQ(RowAsText(list, list.Row(1)), "alpha\t\ta");
}

TEST_F(ListCopyTest, PutsTheCaptionsAboveAllRowsInTheShownOrder) {
    list.Sort(0, SortOrder::Ascending);
    EXPECT_EQ(ListAsText(list), "Name\tNumber [Kb]\tPath\r\nalpha\t\ta\r\nbeta\t2\tb\r\n");
}

TEST_F(ListCopyTest, KeepsEachTextInItsColumnAndRow) {
    const ListRow& row = Add("a\tb", "c\r\nd", "e\0f\x01\xE4"s);
    EXPECT_EQ(RowAsText(list, row), "a b\tc  d\te f \xE4");
}

}  // namespace
}  // namespace velkarix
