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

}  // namespace
}  // namespace velkarix
