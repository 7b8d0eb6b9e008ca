#include "shell/BackupSet.h"

#include <gtest/gtest.h>

#include "tests/machine/MemoryClock.h"

namespace velkarix {
namespace {

TEST(BackupStem, JoinsMonthDayDayOfYearAndTimeWithoutLeadingZeros) {
    EXPECT_EQ(BackupStem(MakeTime(2005, 11, 15, 6, 20, 7)), "11_15_319_6_20_7");
    EXPECT_EQ(BackupStem(MakeTime(2005, 1, 1, 0, 0, 0)), "1_1_1_0_0_0");
}

TEST(BackupStem, CountsTheDaysOfALeapYear) {
    EXPECT_EQ(BackupStem(MakeTime(2004, 12, 31, 23, 59, 58)), "12_31_366_23_59_58");
}

TEST(BackupLine, HoldsPathAndDateBetweenAFieldMark) {
    EXPECT_EQ(BackupLine({"C:\\a.exe", "6/1/2004"}),
              "C:\\a.exe\x01"
              "6/1/2004\r\n");
}

TEST(ParseBackupLine, GivesTheFieldsBack) {
    const auto record = ParseBackupLine(
        "C:\\a b.exe\x01"
        "6/1/2004");
    ASSERT_TRUE(record.has_value());
    EXPECT_EQ(record->path, "C:\\a b.exe");
    EXPECT_EQ(record->date, "6/1/2004");
}

TEST(ParseBackupLine, TakesTheSecondOfMoreFieldsForTheDate) {
    const auto record = ParseBackupLine(
        "p\x01"
        "d\x01"
        "more");
    ASSERT_TRUE(record.has_value());
    EXPECT_EQ(record->date, "d");
}

TEST(ParseBackupLine, KnowsNoRecordWithoutAFieldMark) {
    EXPECT_FALSE(ParseBackupLine("").has_value());
    EXPECT_FALSE(ParseBackupLine("C:\\a.exe 6/1/2004").has_value());
}

}  // namespace
}  // namespace velkarix
