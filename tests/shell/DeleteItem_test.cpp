#include "shell/DeleteItem.h"

#include <gtest/gtest.h>

#include "tests/shell/ItemFixture.h"

namespace velkarix {
namespace {

class DeleteItemTest : public ItemFixture {
  protected:
    void DeleteKey() { DeleteItemKey(application, "List", User, item); }
    void DeleteValue() { DeleteItemValue(application, "List", User, Live, "Name"); }

    const std::string item = Live + std::string("\\Item");
};

TEST_F(DeleteItemTest, KeepsAKeyInAFileThatBringsItBackAndDeletesIt) {
    machine.SetValue(User, item, "", "default");
    machine.registry.SetRaw(User, item + "\\Sub\\Deep", "Odd", 77, {1, 2, 3});
    machine.AddKey(User, item + "\\Bare");
    const std::string before = machine.registry.TreeText(User, Live);
    DeleteKey();
    EXPECT_FALSE(machine.registry.HasKey(User, item));
    EXPECT_TRUE(machine.registry.HasKey(User, Live));
    EXPECT_TRUE(desktop.messages.empty());
    EXPECT_TRUE(MergeRegistryFile(machine.registry, Kept("List")));
    EXPECT_EQ(machine.registry.TreeText(User, Live), before);
}

TEST_F(DeleteItemTest, KeepsAValueInAFileThatBringsItBackAndDeletesIt) {
    machine.registry.SetRaw(User, Live, "Name", 77, {1, 2, 3});
    machine.SetValue(User, Live, "Other", "stays");
    DeleteValue();
    EXPECT_EQ(machine.registry.ValueNamesOf(User, Live), (std::vector<std::string>{"Other"}));
    EXPECT_TRUE(desktop.messages.empty());
    EXPECT_TRUE(MergeRegistryFile(machine.registry, Kept("List")));
    EXPECT_EQ(machine.registry.ValueAt(User, Live, "Name"), (MemoryValue{"Name", 77, {1, 2, 3}}));
}

TEST_F(DeleteItemTest, DoesNothingWhenTheItemIsGone) {
    DeleteKey();
    DeleteValue();
    machine.AddKey(User, Live);
    DeleteValue();
    EXPECT_TRUE(desktop.messages.empty());
    EXPECT_FALSE(machine.disk.Exists(KeptFile("List")));
}

TEST_F(DeleteItemTest, DeletesNothingThatCantBeRead) {
    machine.SetValue(User, item, "Name", "text");
    machine.FailNext("RegEnumValueA");
    DeleteKey();
    EXPECT_EQ(OnlyMessage(MessageIcon::Information),
              "Error Occurred backupItem: \r\nAccess is denied.\r\n");
    EXPECT_TRUE(machine.registry.HasKey(User, item));
    EXPECT_FALSE(machine.disk.Exists(KeptFile("List")));
}

TEST_F(DeleteItemTest, DeletesNothingElseForAValueThatCantBeReachedByItsName) {
    const std::string name("Name\0x", 6);
    machine.registry.SetRaw(User, Live, name, 77, {1});
    machine.SetValue(User, Live, "Name", "text");
    DeleteItemValue(application, "List", User, Live, name);
    EXPECT_EQ(OnlyMessage(MessageIcon::Information),
              "Error Occurred backupItem: \r\nThe data is invalid.\r\n");
    EXPECT_EQ(machine.registry.ValueNamesOf(User, Live), (std::vector<std::string>{name, "Name"}));
}

TEST_F(DeleteItemTest, DeletesNothingThatNoFileCanHold) {
    machine.SetValue(User, item, "line\nbreak", "text");
    DeleteKey();
    EXPECT_EQ(OnlyMessage(MessageIcon::Information),
              "Error Occurred backupItem: \r\nThe data is invalid.\r\n");
    EXPECT_TRUE(machine.registry.ValueAt(User, item, "line\nbreak").has_value());
}

TEST_F(DeleteItemTest, DeletesNothingThatCantBeKept) {
    machine.SetValue(User, item, "Name", "text");
    machine.SetValue(User, Live, "Name", "text");
    machine.disk.SetFreeBytes(30);
    DeleteKey();
    EXPECT_EQ(OnlyMessage(MessageIcon::Information),
              "Error Occurred backupItem: \r\nThe disk is full.\r\n");
    desktop.messages.clear();
    machine.clock.SetLocalTime(MakeTime(2004, 6, 1, 13));
    DeleteValue();
    EXPECT_EQ(OnlyMessage(MessageIcon::Information),
              "Error Occurred backupItem: \r\nThe disk is full.\r\n");
    EXPECT_TRUE(machine.registry.ValueAt(User, item, "Name").has_value());
    EXPECT_TRUE(machine.registry.ValueAt(User, Live, "Name").has_value());
}

// The item isn't gone here: something else is missing.
TEST_F(DeleteItemTest, TellsThatTheFileHasNoPlace) {
    machine.SetValue(User, Live, "Name", "text");
    machine.FailNext("CreateDirectoryA", error::FileNotFound);
    DeleteValue();
    EXPECT_EQ(OnlyMessage(MessageIcon::Information),
              "Error Occurred backupItem: \r\nThe system cannot find the file specified.\r\n");
    EXPECT_TRUE(machine.registry.ValueAt(User, Live, "Name").has_value());
}

TEST_F(DeleteItemTest, TellsThatAnItemWhichIsKeptCantBeDeleted) {
    machine.SetValue(User, item, "Name", "text");
    machine.SetValue(User, Live, "Name", "text");
    machine.FailNext("RegDeleteKeyA");
    DeleteKey();
    EXPECT_EQ(OnlyMessage(MessageIcon::Critical),
              "Following Key Could not be deleted: \r\n" + item + "\r\n\r\nAccess is denied.\r\n");
    desktop.messages.clear();
    machine.FailNext("RegDeleteValueA");
    DeleteValue();
    EXPECT_EQ(OnlyMessage(MessageIcon::Critical),
              "Following Key Value Could not be deleted: \r\nSoftware\\Live\r\n\r\nName\r\n"
              "Access is denied.\r\n");
}

}  // namespace
}  // namespace velkarix
