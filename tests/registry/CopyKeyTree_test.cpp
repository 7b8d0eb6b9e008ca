#include "registry/CopyKeyTree.h"

#include <gtest/gtest.h>

#include "tests/registry/RegistryFixture.h"

namespace velkarix {
namespace {

class CopyKeyTreeTest : public RegistryFixture {
  protected:
    // With a call named, its first use in the copy fails.
    ErrorCode Copy(const std::string& source, const std::string& destination,
                   const std::string& failingCall = {}) {
        KeyHandle opened = 0;
        const KeyHandle hive = Registry::HandleOf(User);
        EXPECT_EQ(machine.registry.RegCreateKeyA(hive, destination, opened), error::Success);
        if (!failingCall.empty()) machine.FailNext(failingCall, error::KeyDeleted);
        machine.Journal().Clear();
        const ErrorCode result = CopyKeyTree(machine.registry, hive, source, opened);
        machine.registry.RegCloseKey(opened);
        return result;
    }
};

TEST_F(CopyKeyTreeTest, CopiesValuesOfAllTypesAndAllSubkeys) {
    for (std::uint32_t type = 0; type < 14; ++type) {
        machine.registry.SetRaw(User, "A\\Source", std::to_string(type), type, {1, 2, 255, 0});
    }
    machine.registry.SetRaw(User, "A\\Source", "", registryType::Sz, {});
    machine.registry.SetRaw(User, "A\\Source", "odd", 0xFFFFFFFF, {9});
    machine.registry.SetRaw(User, "A\\Source\\Sub\\Deep", "large", registryType::Binary,
                            Bytes(10'000, 7));
    machine.AddKey(User, "A\\Source\\Empty");
    machine.AddKey(User, "A\\Source\\Sub\\" + std::string(255, 'x'));
    machine.SetValue(User, "A\\Source", std::string(255, 'n'), "long name");

    EXPECT_EQ(Copy("A\\Source", "B\\Source"), error::Success);
    EXPECT_EQ(machine.registry.TreeText(User, "B\\Source"),
              machine.registry.TreeText(User, "A\\Source"));
    EXPECT_EQ(machine.registry.ValueNamesOf(User, "B\\Source").size(), 17u);
    EXPECT_TRUE(machine.registry.HasKey(User, "B\\Source\\Sub\\Deep"));
}

TEST_F(CopyKeyTreeTest, AddsToWhatTheDestinationHolds) {
    machine.SetValue(User, "Source", "Name", "new");
    machine.SetValue(User, "Target", "Name", "old");
    machine.SetValue(User, "Target", "Other", "kept");
    EXPECT_EQ(Copy("Source", "Target"), error::Success);
    EXPECT_EQ(machine.registry.TextAt(User, "Target", "Name"), "new");
    EXPECT_EQ(machine.registry.TextAt(User, "Target", "Other"), "kept");
}

TEST_F(CopyKeyTreeTest, TellsWhenTheSourceIsMissing) {
    EXPECT_EQ(Copy("Source", "Target"), error::FileNotFound);
}

TEST_F(CopyKeyTreeTest, IsNoSuccessWhenAnyOfItsCallsFails) {
    machine.SetValue(User, "Source", "Name", "text");
    machine.SetValue(User, "Source\\Sub", "Name", "text");
    for (const std::string call :
         {"RegOpenKeyExA", "RegEnumValueA", "RegSetValueExA", "RegEnumKeyExA", "RegCreateKeyA"}) {
        EXPECT_EQ(Copy("Source", "Target", call), error::KeyDeleted) << call;
    }
    EXPECT_EQ(Copy("Source", "Target"), error::Success);
}

TEST_F(CopyKeyTreeTest, IsNoSuccessWhenSomethingBelowMayNotBeRead) {
    for (const std::string sub : {"A", "B", "C"}) machine.AddKey(User, "Source\\" + sub);
    machine.registry.Restrict(User, "Source\\B", KeyAccess::Write);
    EXPECT_EQ(Copy("Source", "Target"), error::AccessDenied);
}

TEST_F(CopyKeyTreeTest, EndsWhenAKeyIsCopiedIntoItself) {
    machine.SetValue(User, "Source", "Name", "text");
    EXPECT_NE(Copy("Source", "Source\\Below"), error::Success);
    EXPECT_LT(machine.Journal().CountOf("RegCreateKeyA"), 1000u);
}

}  // namespace
}  // namespace velkarix
