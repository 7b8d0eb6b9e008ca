#include "registry/modRegistry.h"

#include <gtest/gtest.h>

#include "tests/registry/RegistryFixture.h"

namespace velkarix {
namespace {

class modRegistryTest : public RegistryFixture {};

const Strings WriteCalls = {"RegCreateKeyA", "RegSetValueExA", "RegCloseKey"};

// ---- Writing

TEST_F(modRegistryTest, SetStringValueWritesTheTextWithItsNul) {
    EXPECT_TRUE(registry.SetStringValue(User, key, "Name", "text"));
    EXPECT_EQ(machine.registry.ValueAt(User, key, "Name"),
              (MemoryValue{"Name", registryType::Sz, {'t', 'e', 'x', 't', 0}}));
    EXPECT_EQ(Calls(), WriteCalls);
}

TEST_F(modRegistryTest, SetStringValueWritesAnEmptyTextAsOneNul) {
    EXPECT_TRUE(registry.SetStringValue(User, key, "", ""));
    EXPECT_EQ(machine.registry.ValueAt(User, key, "")->data, Bytes{0});
}

TEST_F(modRegistryTest, SetStringValueKeepsBytesOfTheCodePagesUpperHalf) {
    EXPECT_TRUE(registry.SetStringValue(User, key,
                                        "\xDC"
                                        "ber",
                                        "\xE4\xF6\xFC"));
    EXPECT_EQ(machine.registry
                  .ValueAt(User, key,
                           "\xDC"
                           "ber")
                  ->data,
              (Bytes{0xE4, 0xF6, 0xFC, 0}));
}

TEST_F(modRegistryTest, SetBinaryValueWritesTheBytes) {
    EXPECT_TRUE(registry.SetBinaryValue(User, key, "Name", {1, 0, 255}, false));
    EXPECT_EQ(machine.registry.ValueAt(User, key, "Name"),
              (MemoryValue{"Name", registryType::Binary, {1, 0, 255}}));
    EXPECT_EQ(Calls(), WriteCalls);
}

TEST_F(modRegistryTest, SetBinaryValueWritesAsManyZerosWhenAsked) {
    EXPECT_TRUE(registry.SetBinaryValue(User, key, "Name", {7, 8}, true));
    EXPECT_EQ(machine.registry.ValueAt(User, key, "Name")->data, (Bytes{0, 0}));
}

TEST_F(modRegistryTest, SetDwordValueWritesFourBytesTheLowestFirst) {
    EXPECT_TRUE(registry.SetDwordValue(User, key, "Name", 0x01020304));
    EXPECT_EQ(machine.registry.ValueAt(User, key, "Name"),
              (MemoryValue{"Name", registryType::Dword, {4, 3, 2, 1}}));
    EXPECT_TRUE(registry.SetDwordValue(User, key, "Name", -2));
    EXPECT_EQ(machine.registry.ValueAt(User, key, "Name")->data, (Bytes{0xFE, 0xFF, 0xFF, 0xFF}));
    EXPECT_EQ(machine.Journal().CountOf("RegSetValueExA"), 2u);
}

TEST_F(modRegistryTest, CreateKeyMakesAllLevelsAndClosesTheKey) {
    EXPECT_TRUE(registry.CreateKey(User, "Software\\A\\B\\C"));
    EXPECT_TRUE(machine.registry.HasKey(User, "Software\\A\\B\\C"));
    EXPECT_EQ(Calls(), (Strings{"RegCreateKeyA", "RegCloseKey"}));
}

TEST_F(modRegistryTest, ARefusedWriteStillGivesTrueWithoutAMessage) {
    for (int i = 0; i < 3; ++i) machine.FailNext("RegSetValueExA");
    EXPECT_TRUE(registry.SetStringValue(User, key, "Name", "text"));
    EXPECT_TRUE(registry.SetBinaryValue(User, key, "Name", {1}, false));
    EXPECT_TRUE(registry.SetDwordValue(User, key, "Name", 1));
    EXPECT_FALSE(machine.registry.ValueAt(User, key, "Name"));
    EXPECT_TRUE(desktop.messages.empty());
}

const std::string NotCreated =
    "Following Key Could not be created: \r\nSoftware\\Example\r\nAccess is denied.\r\n";

TEST_F(modRegistryTest, SetStringValueTellsThatTheKeyCantBeCreated) {
    machine.FailNext("RegCreateKeyA");
    EXPECT_FALSE(registry.SetStringValue(User, key, "Name", "text"));
    EXPECT_EQ(OnlyMessage(), NotCreated);
    EXPECT_EQ(Calls(), (Strings{"RegCreateKeyA", "FormatMessageA"}));
}

TEST_F(modRegistryTest, SetBinaryValueTellsThatTheKeyCantBeCreated) {
    machine.FailNext("RegCreateKeyA");
    EXPECT_FALSE(registry.SetBinaryValue(User, key, "Name", {1}, false));
    EXPECT_EQ(OnlyMessage(), NotCreated);
}

TEST_F(modRegistryTest, CreateKeyTellsThatTheKeyCantBeCreated) {
    machine.FailNext("RegCreateKeyA");
    EXPECT_FALSE(registry.CreateKey(User, key));
    EXPECT_EQ(OnlyMessage(), NotCreated);
}

TEST_F(modRegistryTest, SetDwordValueFailsWithoutAMessage) {
    machine.FailNext("RegCreateKeyA");
    EXPECT_FALSE(registry.SetDwordValue(User, key, "Name", 1));
    EXPECT_TRUE(desktop.messages.empty());
    EXPECT_EQ(Calls(), (Strings{"RegCreateKeyA"}));
}

TEST_F(modRegistryTest, StoreDwordValueLooksWhetherTheNumberStandsThere) {
    EXPECT_TRUE(registry.StoreDwordValue(User, key, "Name", -2));
    EXPECT_EQ(machine.registry.ValueAt(User, key, "Name")->data, (Bytes{0xFE, 0xFF, 0xFF, 0xFF}));
    machine.FailNext("RegSetValueExA");
    EXPECT_FALSE(registry.StoreDwordValue(User, key, "Name", 3));
    machine.FailNext("RegQueryValueExA");
    EXPECT_FALSE(registry.StoreDwordValue(User, key, "Name", 3));
    machine.FailNext("RegCreateKeyA");
    EXPECT_FALSE(registry.StoreDwordValue(User, key, "Name", 3));
    EXPECT_TRUE(desktop.messages.empty());
}

// ---- Deleting

TEST_F(modRegistryTest, DeleteKeyIsOneCall) {
    machine.AddKey(User, key);
    EXPECT_TRUE(registry.DeleteKey(User, key, false));
    EXPECT_FALSE(machine.registry.HasKey(User, key));
    EXPECT_EQ(Calls(), (Strings{"RegDeleteKeyA"}));
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(modRegistryTest, DeleteKeyLeavesItToTheSystemWhatBecomesOfSubkeys) {
    machine.AddKey(User, key + "\\Sub");
    EXPECT_FALSE(registry.DeleteKey(User, key, true));
    EXPECT_TRUE(machine.registry.HasKey(User, key + "\\Sub"));
    machine.SetFamily(Family::Windows95);
    EXPECT_TRUE(registry.DeleteKey(User, key, true));
    EXPECT_FALSE(machine.registry.HasKey(User, key));
}

TEST_F(modRegistryTest, DeleteKeyTellsWhyItFailed) {
    EXPECT_FALSE(registry.DeleteKey(User, key, false));
    EXPECT_EQ(OnlyMessage(),
              "Following Key Could not be deleted: \r\nSoftware\\Example\r\n\r\n"
              "The system cannot find the file specified.\r\n");
}

TEST_F(modRegistryTest, DeleteKeyFailsInSilenceWhenQuiet) {
    EXPECT_FALSE(registry.DeleteKey(User, key, true));
    EXPECT_TRUE(desktop.messages.empty());
}

// One call takes 260 bytes.
TEST_F(modRegistryTest, GoesThroughLongPathsInSeveralCalls) {
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

TEST_F(modRegistryTest, TellsOfANameWithANulToTheEnd) {
    EXPECT_FALSE(registry.DeleteKey(User, std::string("Key\0x", 5), false));
    ASSERT_EQ(desktop.messages.size(), 1u);
    EXPECT_EQ(desktop.messages[0].text, "Following Key Could not be deleted: \r\nKey x\r\n\r\n" +
                                            registry.GetSystemErrorText(error::InvalidData));
}

// The system would end the name at the NUL, and take another.
TEST_F(modRegistryTest, ChangesNothingByANameWithANul) {
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

TEST_F(modRegistryTest, DeleteValueOpensTheKeyAndDeletesTheValue) {
    machine.SetValue(User, key, "Name", "text");
    machine.SetValue(User, key, "Other", "text");
    EXPECT_TRUE(registry.DeleteValue(User, key, "name", false));
    EXPECT_EQ(machine.registry.ValueNamesOf(User, key), (Strings{"Other"}));
    EXPECT_EQ(Calls(), (Strings{"RegOpenKeyExA", "RegDeleteValueA", "RegCloseKey"}));
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(modRegistryTest, DeleteValueNeedsAllRights) {
    machine.SetValue(User, key, "Name", "text");
    machine.registry.Restrict(User, key, KeyAccess::Write);
    EXPECT_FALSE(registry.DeleteValue(User, key, "Name", true));
}

TEST_F(modRegistryTest, DeleteValueTellsThatTheKeyCantBeOpened) {
    EXPECT_FALSE(registry.DeleteValue(User, key, "Name", false));
    EXPECT_EQ(OnlyMessage(),
              "Following Key Value Could not be opened: \r\nSoftware\\Example\r\n\r\nName\r\n"
              "The system cannot find the file specified.\r\n");
}

TEST_F(modRegistryTest, DeleteValueTellsThatTheValueCantBeDeleted) {
    machine.SetValue(User, key, "Name", "text");
    machine.FailNext("RegDeleteValueA");
    EXPECT_FALSE(registry.DeleteValue(User, key, "Name", false));
    EXPECT_EQ(OnlyMessage(),
              "Following Key Value Could not be deleted: \r\nSoftware\\Example\r\n\r\nName\r\n"
              "Access is denied.\r\n");
}

TEST_F(modRegistryTest, DeleteValueFailsInSilenceWhenQuiet) {
    EXPECT_FALSE(registry.DeleteValue(User, key, "Name", true));
    machine.AddKey(User, key);
    EXPECT_FALSE(registry.DeleteValue(User, key, "Name", true));
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(modRegistryTest, ACodeThatTheSystemHasNoTextForIsToldWithoutOne) {
    machine.FailNext("RegDeleteKeyA", 54321);
    EXPECT_FALSE(registry.DeleteKey(User, key, false));
    EXPECT_EQ(OnlyMessage(), "Following Key Could not be deleted: \r\nSoftware\\Example\r\n\r\n");
    EXPECT_EQ(registry.GetSystemErrorText(54321), "");
}

TEST_F(modRegistryTest, GetSystemErrorTextKeepsTheLineBreakAtItsEnd) {
    EXPECT_EQ(registry.GetSystemErrorText(error::AccessDenied), "Access is denied.\r\n");
}

// ---- Deleting what is below a key

TEST_F(modRegistryTest, DeleteSubKeysRemovesTheTreeBelowAndKeepsTheKey) {
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

TEST_F(modRegistryTest, DeleteSubKeysOfAKeyWithoutAnyChangesNothing) {
    machine.SetValue(User, key, "Name", "text");
    const std::string before = machine.registry.TreeText(User, "Software");
    EXPECT_TRUE(registry.DeleteSubKeys(User, key));
    EXPECT_EQ(machine.registry.TreeText(User, "Software"), before);
    EXPECT_EQ(Calls(), (Strings{"RegOpenKeyExA", "RegEnumKeyA", "RegCloseKey"}));
}

TEST_F(modRegistryTest, DeleteSubKeysCollectsTheNamesBeforeItDeletes) {
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

TEST_F(modRegistryTest, DeleteSubKeysServesEventsInEachRound) {
    machine.AddKey(User, key + "\\A");
    machine.AddKey(User, key + "\\B");
    std::vector<std::size_t> namesReadBefore;
    desktop.onYield = [&] { namesReadBefore.push_back(machine.Journal().CountOf("RegEnumKeyA")); };
    EXPECT_TRUE(registry.DeleteSubKeys(User, key));
    EXPECT_EQ(namesReadBefore, (std::vector<std::size_t>{0, 1, 2, 3, 4}));
}

TEST_F(modRegistryTest, DeleteSubKeysBearsThatAnEventTakesTheKeysAway) {
    machine.AddKey(User, key + "\\A");
    machine.AddKey(User, key + "\\B");
    desktop.onYield = [&] {
        if (desktop.yields == 3) machine.registry.RemoveKey(User, key);
    };
    EXPECT_TRUE(registry.DeleteSubKeys(User, key));
    EXPECT_FALSE(machine.registry.HasKey(User, key));
}

TEST_F(modRegistryTest, DeleteSubKeysOfAKeyThatCantBeOpenedGivesFalse) {
    EXPECT_FALSE(registry.DeleteSubKeys(User, key));
    machine.AddKey(User, key + "\\A");
    machine.registry.Restrict(User, key, KeyAccess::Read);
    EXPECT_FALSE(registry.DeleteSubKeys(User, key));
    EXPECT_TRUE(machine.registry.HasKey(User, key + "\\A"));
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(modRegistryTest, DeleteSubKeysGoesOnPastWhatItCantDelete) {
    machine.AddKey(User, key + "\\A");
    machine.AddKey(User, key + "\\B");
    machine.AddKey(User, key + "\\C");
    machine.registry.Restrict(User, key + "\\B", KeyAccess::Read);
    EXPECT_TRUE(registry.DeleteSubKeys(User, key));
    EXPECT_EQ(machine.registry.SubKeysOf(User, key), (Strings{"B"}));
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(modRegistryTest, DeleteSubKeysTakesNamesOf255Bytes) {
    machine.AddKey(User, key + "\\" + std::string(255, 'x'));
    EXPECT_TRUE(registry.DeleteSubKeys(User, key));
    EXPECT_TRUE(machine.registry.SubKeysOf(User, key).empty());
}

TEST_F(modRegistryTest, DeleteSubKeysEndsWhenLinksLeadRoundInACircle) {
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

// ---- Copying

TEST_F(modRegistryTest, CopyKeyMakesTheDestinationAndCopiesTheTree) {
    machine.SetValue(User, "Source", "Name", "text");
    machine.SetDword(User, "Source\\Sub", "Number", 7);
    EXPECT_TRUE(registry.CopyKey(User, "Source", User, "Target"));
    EXPECT_EQ(machine.registry.TextAt(User, "Target", "Name"), "text");
    EXPECT_EQ(machine.registry.ValueAt(User, "Target\\Sub", "Number")->data, (Bytes{7, 0, 0, 0}));
    EXPECT_EQ(Calls(), (Strings{"RegCreateKeyA", "RegCloseKey", "RegOpenKeyExA", "SHCopyKeyA",
                                "RegCloseKey"}));
}

TEST_F(modRegistryTest, CopyKeyOpensTheDestinationInTheHiveOfTheSource) {
    machine.SetValue(User, "Source", "Name", "text");
    EXPECT_FALSE(registry.CopyKey(User, "Source", MachineHive, "Target"));
    EXPECT_TRUE(machine.registry.HasKey(MachineHive, "Target"));
    EXPECT_FALSE(machine.registry.HasKey(User, "Target"));

    machine.AddKey(User, "Target");
    EXPECT_TRUE(registry.CopyKey(User, "Source", MachineHive, "Target"));
    EXPECT_EQ(machine.registry.TextAt(User, "Target", "Name"), "text");
    EXPECT_FALSE(machine.registry.ValueAt(MachineHive, "Target", "Name"));
}

TEST_F(modRegistryTest, CopyKeyOfAMissingSourceGivesFalse) {
    EXPECT_FALSE(registry.CopyKey(User, "Source", User, "Target"));
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(modRegistryTest, CopyKeyTellsThatTheDestinationCantBeCreated) {
    machine.AddKey(User, "Source");
    machine.FailNext("RegCreateKeyA");
    EXPECT_FALSE(registry.CopyKey(User, "Source", User, key));
    EXPECT_EQ(OnlyMessage(), NotCreated);
}

TEST_F(modRegistryTest, CopyKeyFailsInSilenceWhenTheCopyFails) {
    machine.AddKey(User, "Source");
    machine.FailNext("SHCopyKeyA");
    EXPECT_FALSE(registry.CopyKey(User, "Source", User, "Target"));
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(modRegistryTest, CopyKeyNeedsToWriteInTheDestination) {
    machine.AddKey(User, "Source");
    machine.registry.Restrict(User, "Target", KeyAccess::Read);
    EXPECT_FALSE(registry.CopyKey(User, "Source", User, "Target"));
}

TEST_F(modRegistryTest, CopyKeyCopiesByItselfWhereTheShellLibraryHasNoCallForIt) {
    machine.registry.SetHasCopyKey(false);
    machine.SetValue(User, "Source", "Name", "text");
    machine.SetDword(User, "Source\\Sub", "Number", 7);
    EXPECT_TRUE(registry.CopyKey(User, "Source", User, "Target"));
    EXPECT_EQ(machine.registry.TextAt(User, "Target", "Name"), "text");
    EXPECT_EQ(machine.registry.ValueAt(User, "Target\\Sub", "Number")->data, (Bytes{7, 0, 0, 0}));
}

// ---- Deletions that mustn't be

TEST_F(modRegistryTest, ToldFailuresOfDeletionsReadLikeRealOnes) {
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
