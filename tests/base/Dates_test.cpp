#include "base/Dates.h"

#include <gtest/gtest.h>

namespace velkarix {
namespace {

TEST(DayNumber, CountsFromTheAutomationLibrarysDayZero) {
    EXPECT_EQ(DayNumber(1899, 12, 30), 0);
    EXPECT_EQ(DayNumber(1900, 1, 1), 2);
    EXPECT_EQ(DayNumber(2000, 1, 1), 36526);
}

TEST(DayNumber, KnowsLeapYears) {
    EXPECT_EQ(DayNumber(2004, 3, 1) - DayNumber(2004, 2, 28), 2);
    EXPECT_EQ(DayNumber(1900, 3, 1) - DayNumber(1900, 2, 28), 1);
}

}  // namespace
}  // namespace velkarix
