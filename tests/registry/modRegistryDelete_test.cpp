#include <gtest/gtest.h>

#include "tests/registry/RegistryFixture.h"

namespace velkarix {
namespace {

class modRegistryDeleteTest : public RegistryFixture {};

// ---- Deleting

TEST_F(modRegistryDeleteTest, DeleteKeyIsOneCall) {
    machine.AddKey(User, key);
    EXPECT_TRUE(registry.DeleteKey(User, key, false));
    EXPECT_FALSE(machine.registry.HasKey(User, key));
    EXPECT_EQ(Calls(), (Strings{"RegDeleteKeyA"}));
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(modRegistryDeleteTest, DeleteKeyLeavesItToTheSystemWhatBecomesOfSubkeys) {
    machine.AddKey(User, key + "\\Sub");
    EXPECT_FALSE(registry.DeleteKey(User, key, true));
    EXPECT_TRUE(machine.registry.HasKey(User, key + "\\Sub"));
    machine.SetFamily(Family::Windows95);
    EXPECT_TRUE(registry.DeleteKey(User, key, true));
    EXPECT_FALSE(machine.registry.HasKey(User, key));
}

TEST_F(modRegistryDeleteTest, DeleteKeyTellsWhyItFailed) {
    EXPECT_FALSE(registry.DeleteKey(User, key, false));
    EXPECT_EQ(OnlyMessage(),
              "Following Key Could not be deleted: \r\nSoftware\\Example\r\n\r\n"
              "The system cannot find the file specified.\r\n");
}

TEST_F(modRegistryDeleteTest, DeleteKeyFailsInSilenceWhenQuiet) {
    EXPECT_FALSE(registry.DeleteKey(User, key, true));
    EXPECT_TRUE(desktop.messages.empty());
}

// One call takes 260 bytes.
TEST_F(modRegistryDeleteTest, GoesThroughLongPathsInSeveralCalls) {
    const std::string longKey = "Software\\" + std::string(200, 'a') + "\\" +
                                std::string(200, 'b') + "\\" + std::string(200, 'c');
    const std::string copy = "Software\\" + std::string(250, 'd') + "\\" + std::string(250, 'e');
    EXPECT_TRUE(registry.SetStringValue(User, longKey, "Name", "text"));
    EXPECT_EQ(registry.GetStringValue(User, longKey, "Name"), "text");
    EXPECT_TRUE(registry.CreateKey(User, longKey + "\\Below"));
    EXPECT_TRUE(registry.CopyKey(User, longKey, User, copy));
    EXPECT_EQ(machine.registry.TextAt(User, copy, "Name"), "text");
    EXPECT_TRUE(machine.registry.HasKey(User, copy + "\\Below"));
    EXPECT_TRUE(registry.DeleteSubKeys(User, longKey));
    EXPECT_TRUE(registry.DeleteKey(User, longKey, true));
    EXPECT_FALSE(machine.registry.HasKey(User, longKey));
    EXPECT_FALSE(registry.DeleteKey(User, longKey + "\\x", true));
    EXPECT_EQ(registry.GetStringValue(User, longKey + "\\x", "Name"), "");
    EXPECT_EQ(machine.registry.OpenKeyCount(), 0u);
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(modRegistryDeleteTest, TellsOfANameWithANulToTheEnd) {
    EXPECT_FALSE(registry.DeleteKey(User, std::string("Key\0x", 5), false));
    ASSERT_EQ(desktop.messages.size(), 1u);
    EXPECT_EQ(desktop.messages[0].text, "Following Key Could not be deleted: \r\nKey x\r\n\r\n" +
                                            registry.GetSystemErrorText(error::InvalidData));
}

// The system would end the name at the NUL, and take another.
TEST_F(modRegistryDeleteTest, ChangesNothingByANameWithANul) {
    machine.SetValue(User, "Software\\Other", "Value", "another's");
    const std::string cutKey("Software\\Other\0x", 16);
    const std::string cutValue("Value\0x", 7);
    const std::string before = machine.registry.TreeText(User, "");
    EXPECT_FALSE(registry.DeleteKey(User, cutKey, true));
    EXPECT_FALSE(registry.DeleteValue(User, "Software\\Other", cutValue, true));
    EXPECT_FALSE(registry.DeleteValue(User, cutKey, "Value", true));
    EXPECT_FALSE(registry.DeleteSubKeys(User, cutKey));
    EXPECT_FALSE(registry.SetDwordValue(User, cutKey, "Value", 1));
    registry.SetDwordValue(User, "Software\\Other", cutValue, 1);
    EXPECT_FALSE(registry.CreateKey(User, cutKey));
    EXPECT_EQ(machine.registry.TreeText(User, ""), before);
}

TEST_F(modRegistryDeleteTest, DeleteValueOpensTheKeyAndDeletesTheValue) {
    machine.SetValue(User, key, "Name", "text");
    machine.SetValue(User, key, "Other", "text");
    EXPECT_TRUE(registry.DeleteValue(User, key, "name", false));
    EXPECT_EQ(machine.registry.ValueNamesOf(User, key), (Strings{"Other"}));
    EXPECT_EQ(Calls(), (Strings{"RegOpenKeyExA", "RegDeleteValueA", "RegCloseKey"}));
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(modRegistryDeleteTest, DeleteValueNeedsAllRights) {
    machine.SetValue(User, key, "Name", "text");
    machine.registry.Restrict(User, key, KeyAccess::Write);
    EXPECT_FALSE(registry.DeleteValue(User, key, "Name", true));
}

TEST_F(modRegistryDeleteTest, DeleteValueTellsThatTheKeyCantBeOpened) {
    EXPECT_FALSE(registry.DeleteValue(User, key, "Name", false));
    EXPECT_EQ(OnlyMessage(),
              "Following Key Value Could not be opened: \r\nSoftware\\Example\r\n\r\nName\r\n"
              "The system cannot find the file specified.\r\n");
}

TEST_F(modRegistryDeleteTest, DeleteValueTellsThatTheValueCantBeDeleted) {
    machine.SetValue(User, key, "Name", "text");
    machine.FailNext("RegDeleteValueA");
    EXPECT_FALSE(registry.DeleteValue(User, key, "Name", false));
    EXPECT_EQ(OnlyMessage(),
              "Following Key Value Could not be deleted: \r\nSoftware\\Example\r\n\r\nName\r\n"
              "Access is denied.\r\n");
}

TEST_F(modRegistryDeleteTest, DeleteValueFailsInSilenceWhenQuiet) {
    EXPECT_FALSE(registry.DeleteValue(User, key, "Name", true));
    machine.AddKey(User, key);
    EXPECT_FALSE(registry.DeleteValue(User, key, "Name", true));
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(modRegistryDeleteTest, ACodeThatTheSystemHasNoTextForIsToldWithoutOne) {
    machine.FailNext("RegDeleteKeyA", 54321);
    EXPECT_FALSE(registry.DeleteKey(User, key, false));
    EXPECT_EQ(OnlyMessage(), "Following Key Could not be deleted: \r\nSoftware\\Example\r\n\r\n");
    EXPECT_EQ(registry.GetSystemErrorText(54321), "");
}

TEST_F(modRegistryDeleteTest, GetSystemErrorTextKeepsTheLineBreakAtItsEnd) {
    EXPECT_EQ(registry.GetSystemErrorText(error::AccessDenied), "Access is denied.\r\n");
}

// ---- Deleting what is below a key

TEST_F(modRegistryDeleteTest, DeleteSubKeysRemovesTheTreeBelowAndKeepsTheKey) {
    for (const char* path : {"\\A\\1", "\\A\\2\\x", "\\B", "\\C\\1\\2\\3"}) {
        machine.AddKey(User, key + path);
    }
    machine.SetValue(User, key, "Name", "text");
    machine.SetValue(User, key + "\\A", "Name", "text");
    EXPECT_TRUE(registry.DeleteSubKeys(User, key));
    EXPECT_TRUE(machine.registry.SubKeysOf(User, key).empty());
    EXPECT_EQ(machine.registry.TextAt(User, key, "Name"), "text");
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(modRegistryDeleteTest, DeleteSubKeysOfAKeyWithoutAnyChangesNothing) {
    machine.SetValue(User, key, "Name", "text");
    const std::string before = machine.registry.TreeText(User, "Software");
    EXPECT_TRUE(registry.DeleteSubKeys(User, key));
    EXPECT_EQ(machine.registry.TreeText(User, "Software"), before);
    EXPECT_EQ(Calls(), (Strings{"RegOpenKeyExA", "RegEnumKeyA", "RegCloseKey"}));
}

TEST_F(modRegistryDeleteTest, DeleteSubKeysCollectsTheNamesBeforeItDeletes) {
    machine.AddKey(User, key + "\\A");
    machine.AddKey(User, key + "\\B");
    EXPECT_TRUE(registry.DeleteSubKeys(User, key));
    EXPECT_EQ(Calls(), (Strings{"RegOpenKeyExA", "RegEnumKeyA", "RegEnumKeyA", "RegEnumKeyA",
                                "RegOpenKeyExA", "RegEnumKeyA", "RegCloseKey", "RegDeleteKeyA",
                                "RegOpenKeyExA", "RegEnumKeyA", "RegCloseKey", "RegDeleteKeyA",
                                "RegCloseKey"}));
    EXPECT_EQ(machine.Journal().ArgumentsOf("RegOpenKeyExA"),
              (Strings{"HKCU\\Software\\Example", "HKCU\\Software\\Example\\A",
                       "HKCU\\Software\\Example\\B"}));
    EXPECT_EQ(machine.Journal().ArgumentsOf("RegDeleteKeyA"),
              (Strings{"HKCU\\Software\\Example\\A", "HKCU\\Software\\Example\\B"}));
}

TEST_F(modRegistryDeleteTest, DeleteSubKeysServesEventsInEachRound) {
    machine.AddKey(User, key + "\\A");
    machine.AddKey(User, key + "\\B");
    std::vector<std::size_t> namesReadBefore;
    desktop.onYield = [&] { namesReadBefore.push_back(machine.Journal().CountOf("RegEnumKeyA")); };
    EXPECT_TRUE(registry.DeleteSubKeys(User, key));
    EXPECT_EQ(namesReadBefore, (std::vector<std::size_t>{0, 1, 2, 3, 4}));
}

TEST_F(modRegistryDeleteTest, DeleteSubKeysBearsThatAnEventTakesTheKeysAway) {
    machine.AddKey(User, key + "\\A");
    machine.AddKey(User, key + "\\B");
    desktop.onYield = [&] {
        if (desktop.yields == 3) machine.registry.RemoveKey(User, key);
    };
    EXPECT_TRUE(registry.DeleteSubKeys(User, key));
    EXPECT_FALSE(machine.registry.HasKey(User, key));
}

TEST_F(modRegistryDeleteTest, DeleteSubKeysOfAKeyThatCantBeOpenedGivesFalse) {
    EXPECT_FALSE(registry.DeleteSubKeys(User, key));
    machine.AddKey(User, key + "\\A");
    machine.registry.Restrict(User, key, KeyAccess::Read);
    EXPECT_FALSE(registry.DeleteSubKeys(User, key));
    EXPECT_TRUE(machine.registry.HasKey(User, key + "\\A"));
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(modRegistryDeleteTest, DeleteSubKeysGoesOnPastWhatItCantDelete) {
    machine.AddKey(User, key + "\\A");
    machine.AddKey(User, key + "\\B");
    machine.AddKey(User, key + "\\C");
    machine.registry.Restrict(User, key + "\\B", KeyAccess::Read);
    EXPECT_TRUE(registry.DeleteSubKeys(User, key));
    EXPECT_EQ(machine.registry.SubKeysOf(User, key), (Strings{"B"}));
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(modRegistryDeleteTest, DeleteSubKeysTakesNamesOf255Bytes) {
    machine.AddKey(User, key + "\\" + std::string(255, 'x'));
    EXPECT_TRUE(registry.DeleteSubKeys(User, key));
    EXPECT_TRUE(machine.registry.SubKeysOf(User, key).empty());
}

TEST_F(modRegistryDeleteTest, DeleteSubKeysEndsWhenLinksLeadRoundInACircle) {
    // Each key seems to hold two more, as with two links back to itself.
    struct CircularRegistry : MemoryRegistry {
        using MemoryRegistry::MemoryRegistry;
        ErrorCode RegOpenKeyExA(KeyHandle, const std::string&, KeyAccess access,
                                KeyHandle& opened) override {
            return MemoryRegistry::RegOpenKeyExA(HandleOf(User), "Software", access, opened);
        }
        ErrorCode RegOpenKeyA(KeyHandle, const std::string&, KeyHandle& opened) override {
            return MemoryRegistry::RegOpenKeyA(HandleOf(User), "Software", opened);
        }
        ErrorCode RegEnumKeyA(KeyHandle, std::uint32_t index, std::uint32_t,
                              std::string& name) override {
            name = "Again";
            return index < 2 ? error::Success : error::NoMoreItems;
        }
    };
    machine.AddKey(User, "Software");
    CircularRegistry circular(machine.Journal());
    circular.AddKey(User, "Software");
    const Machine real = machine.Parts();
    const Machine parts{circular,    real.profileFiles, real.versionResources,
                        real.files,  real.clock,        real.processes,
                        real.token,  real.shell,        real.shortcuts,
                        real.system, real.windows,      real.cryptography};
    EXPECT_FALSE(modRegistry(parts, desktop, "Velkarix").DeleteSubKeys(User, "Software"));
    EXPECT_EQ(circular.OpenKeyCount(), 0u);
    EXPECT_LT(machine.Journal().CountOf("RegOpenKeyExA"), 1000u);
}

// ---- Deletions that mustn't be

TEST_F(modRegistryDeleteTest, ToldFailuresOfDeletionsReadLikeRealOnes) {
    machine.AddKey(User, key);
    machine.FailNext("RegDeleteKeyA", error::CantWrite);
    registry.DeleteKey(User, key, false);
    registry.ShowKeyNotDeleted(key, error::CantWrite);
    machine.SetValue(User, key, "Name", "text");
    machine.FailNext("RegDeleteValueA", error::CantWrite);
    registry.DeleteValue(User, key, "Name", false);
    registry.ShowValueNotDeleted(key, "Name", error::CantWrite);
    ASSERT_EQ(desktop.messages.size(), 4u);
    EXPECT_EQ(desktop.messages[0].text,
              "Following Key Could not be deleted: \r\nSoftware\\Example\r\n\r\n"
              "The configuration registry key could not be written.\r\n");
    EXPECT_EQ(desktop.messages[1].text, desktop.messages[0].text);
    EXPECT_EQ(desktop.messages[2].text,
              "Following Key Value Could not be deleted: \r\nSoftware\\Example\r\n\r\nName\r\n"
              "The configuration registry key could not be written.\r\n");
    EXPECT_EQ(desktop.messages[3].text, desktop.messages[2].text);
}

}  // namespace
}  // namespace velkarix
