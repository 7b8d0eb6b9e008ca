// Which looks at the registry count as having read a place.
#include <gtest/gtest.h>

#include "registry/modRegistry.h"
#include "tests/machine/MemoryMachine.h"
#include "tests/machine/RecordingDesktop.h"

namespace velkarix {
namespace {

using Places = std::vector<std::string>;

constexpr const char* Key = "Software\\Key";
const Places ThePlace = {"HKEY_CURRENT_USER\\Software\\Key"};

class UnreadRegistryTest : public testing::Test {
  protected:
    UnreadRegistryTest() {
        machine.SetValue(Hive::CurrentUser, Key, "Text", "abc");
        machine.SetValue(Hive::CurrentUser, "Software\\Key\\Sub", "Text", "abc");
    }
    // Each way of reading the key, by its own name.
    void Read(const std::string& way) {
        std::vector<std::string> names;
        bool missing = false;
        Bytes bytes;
        if (way == "EnumSubKeys") registry.EnumSubKeys(Hive::CurrentUser, Key, names);
        if (way == "EnumValues") registry.EnumValues(Hive::CurrentUser, Key);
        if (way == "GetStringValue") registry.GetStringValue(Hive::CurrentUser, Key, "Text");
        if (way == "GetDwordValue") {
            registry.GetDwordValue(Hive::CurrentUser, Key, "Text", missing);
        }
        if (way == "GetBinaryValue") {
            registry.GetBinaryValue(Hive::CurrentUser, Key, "Text", bytes, false);
        }
    }

    MemoryMachine machine;
    RecordingDesktop desktop;
    UnreadPlaces unread;
    modRegistry registry{machine.Parts(), desktop, "Velkarix", &unread};
};

struct Way {
    const char* name;
    const char* opens;  // the key, by this call
};
constexpr Way Ways[] = {{"EnumSubKeys", "RegOpenKeyA"},
                        {"EnumValues", "RegOpenKeyExA"},
                        {"GetStringValue", "RegOpenKeyA"},
                        {"GetDwordValue", "RegOpenKeyExA"},
                        {"GetBinaryValue", "RegOpenKeyExA"}};

TEST_F(UnreadRegistryTest, AKeyThatCanNotBeOpenedIsUnreadUntilItCan) {
    for (const Way& way : Ways) {
        machine.FailNext(way.opens);
        Read(way.name);
        EXPECT_EQ(unread.Names(), ThePlace) << way.name;
        Read(way.name);
        EXPECT_TRUE(unread.Empty()) << way.name;
    }
}

TEST_F(UnreadRegistryTest, WhatIsNotThereHidesNothing) {
    machine.registry.RemoveKey(Hive::CurrentUser, Key);
    for (const Way& way : Ways) Read(way.name);
    machine.SetValue(Hive::CurrentUser, Key, "Other", "abc");
    for (const Way& way : Ways) Read(way.name);
    EXPECT_TRUE(unread.Empty());
}

TEST_F(UnreadRegistryTest, AListingThatBreaksOffHidesWhatIsBehind) {
    machine.FailNext("RegEnumKeyExA");
    Read("EnumSubKeys");
    EXPECT_EQ(unread.Names(), ThePlace);
    Read("EnumValues");
    EXPECT_EQ(unread.Names(), ThePlace) << "another look at the key";
    Read("EnumSubKeys");
    EXPECT_TRUE(unread.Empty());
    machine.FailNext("RegEnumValueA");
    Read("EnumValues");
    EXPECT_EQ(unread.Names(), ThePlace);
}

TEST_F(UnreadRegistryTest, ANameTooLongToListHidesItselfAndWhatIsBehind) {
    std::string key = std::string(Key) + "\\";
    machine.SetValue(Hive::CurrentUser, key.append(255, 'n'), "Text", "abc");
    Read("EnumSubKeys");
    EXPECT_EQ(unread.Names(), ThePlace);
}

TEST_F(UnreadRegistryTest, ATextThatCanNotBeReadIsUnread) {
    machine.FailNext("RegQueryValueExA");
    Read("GetStringValue");
    EXPECT_EQ(unread.Names(), ThePlace);
}

TEST_F(UnreadRegistryTest, AKeyIsOnePlaceWithABackslashAtItsEndAndWithout) {
    std::vector<std::string> names;
    machine.FailNext("RegOpenKeyA");
    registry.EnumSubKeys(Hive::CurrentUser, std::string(Key) + "\\", names);
    EXPECT_EQ(unread.Names(), ThePlace);
    Read("EnumSubKeys");
    EXPECT_TRUE(unread.Empty());
}

// A value of another type or size is there, and no number.
TEST_F(UnreadRegistryTest, AValueThatIsNoNumberHidesNothing) {
    machine.SetValue(Hive::CurrentUser, Key, "Text", "more than four bytes");
    Read("GetDwordValue");
    Read("GetBinaryValue");
    EXPECT_TRUE(unread.Empty());
}

}  // namespace
}  // namespace velkarix
