#include "process/SafeList.h"

#include <gtest/gtest.h>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {
namespace {

class SafeListTest : public testing::Test {
  protected:
    MemoryMachine machine;
    SafeProcesses list = {"left from before"};
    const std::string file = "C:\\Velkarix\\SafeProcess.vkl";
};

TEST_F(SafeListTest, IsEmptyWithoutAFile) {
    LoadSafeList(machine.files, list, file);
    EXPECT_TRUE(list.empty());
}

TEST_F(SafeListTest, IsEmptyForAnEmptyFileAndForOneThatCanNotBeRead) {
    EXPECT_EQ(LoadSafeList(machine.files, list, file), error::Success);
    machine.AddFile(file);
    EXPECT_EQ(LoadSafeList(machine.files, list, file), error::Success);
    EXPECT_TRUE(list.empty());
    machine.AddFile(file).Content("key\r\n").Unreadable();
    list = {"left"};
    EXPECT_EQ(LoadSafeList(machine.files, list, file), error::SharingViolation);
    EXPECT_TRUE(list.empty());
}

TEST_F(SafeListTest, HoldsEachLineInTheOrderOfTheFile) {
    machine.AddFile(file).Content("b\r\n\r\na");
    LoadSafeList(machine.files, list, file);
    EXPECT_EQ(list, (SafeProcesses{"b", "", "a"}));
}

TEST_F(SafeListTest, ComparesWholeItems) {
    const SafeProcesses items = {"abc", ""};
    EXPECT_TRUE(IsInSafeList(items, "abc"));
    EXPECT_FALSE(IsInSafeList(items, "ab"));
    EXPECT_FALSE(IsInSafeList(items, "ABC"));
    EXPECT_FALSE(IsInSafeList(items, ""));
}

TEST_F(SafeListTest, RemovesTheFirstEqualItemAlone) {
    list = {"a", "b", "a"};
    EXPECT_TRUE(RemoveFromSafeList(list, "a"));
    EXPECT_EQ(list, (SafeProcesses{"b", "a"}));
    EXPECT_FALSE(RemoveFromSafeList(list, "c"));
}

TEST_F(SafeListTest, IsWrittenALineAnItem) {
    EXPECT_EQ(SaveSafeList(machine.files, {"a", "", "b"}, file, EmptyItems::Write), error::Success);
    EXPECT_EQ(machine.disk.ContentOf(file), "a\r\n\r\nb\r\n");
    EXPECT_EQ(SaveSafeList(machine.files, {"a", "", "b"}, file, EmptyItems::Skip), error::Success);
    EXPECT_EQ(machine.disk.ContentOf(file), "a\r\nb\r\n");
}

}  // namespace
}  // namespace velkarix
