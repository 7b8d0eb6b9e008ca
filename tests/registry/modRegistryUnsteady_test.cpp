// Reading from a registry that changes meanwhile, or tells what can't be.
#include <gtest/gtest.h>

#include "tests/registry/ReadFixture.h"

namespace velkarix {
namespace {

// A registry whose one value is another each time that it is read.
struct ChangingRegistry : MemoryRegistry {
    using MemoryRegistry::MemoryRegistry;

    ErrorCode RegEnumValueA(KeyHandle key, std::uint32_t index, std::uint32_t capacity,
                            std::string& name, std::uint32_t& type, Bytes& data,
                            std::uint32_t& size) override {
        BeforeRead();
        return MemoryRegistry::RegEnumValueA(key, index, capacity, name, type, data, size);
    }
    ErrorCode RegQueryValueExA(KeyHandle key, const std::string& name, std::uint32_t& type,
                               Bytes* data, std::uint32_t& size) override {
        BeforeRead();
        return MemoryRegistry::RegQueryValueExA(key, name, type, data, size);
    }
    void BeforeRead() {
        if (!sizes.empty()) {
            SetRaw(Hive::CurrentUser, "Key", "Name", registryType::Sz, Bytes(sizes.front(), 'x'));
            if (sizes.size() > 1) sizes.erase(sizes.begin());
        }
    }

    std::vector<std::size_t> sizes;  // the last one stays
};

class ChangingRegistryTest : public ReadFixture {
  protected:
    void SetUp() override { changing.AddKey(User, "Key"); }
    void TearDown() override { EXPECT_EQ(changing.OpenKeyCount(), 0u); }

    ChangingRegistry changing{machine.Journal()};
    Machine real = machine.Parts();
    Machine parts{changing,    real.profileFiles, real.versionResources,
                  real.files,  real.clock,        real.processes,
                  real.token,  real.shell,        real.shortcuts,
                  real.system, real.windows,      real.cryptography};
    modRegistry operations{parts, desktop, "Velkarix"};
};

TEST_F(ChangingRegistryTest, EnumValuesReadsAValueThatGrowsBetweenTheCalls) {
    changing.sizes = {5000, 6000};
    const auto entries = operations.EnumValues(User, "Key");
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(entries[0], Text(std::string(5999, 'x')));
}

TEST_F(ChangingRegistryTest, EnumValuesReadsAValueThatShrinksBetweenTheCalls) {
    changing.sizes = {5000, 3};
    const auto entries = operations.EnumValues(User, "Key");
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(entries[0], Text("xx"));
}

TEST_F(ChangingRegistryTest, EnumValuesGivesUpOnAValueThatNeverStopsGrowing) {
    for (std::size_t size = 5000; size < 50'000; size += 1000) changing.sizes.push_back(size);
    EXPECT_TRUE(operations.EnumValues(User, "Key").empty());
    EXPECT_LE(machine.Journal().CountOf("RegEnumValueA"), 10u);
}

TEST_F(ChangingRegistryTest, GetStringValueOfAValueThatGrowsBetweenTheQueriesIsEmpty) {
    changing.sizes = {3, 4};
    EXPECT_EQ(operations.GetStringValue(User, "Key", "Name"), "");
}

TEST_F(ChangingRegistryTest, GetStringValueTakesWhatIsLeftOfAValueThatShrinks) {
    changing.sizes = {30, 4};
    EXPECT_EQ(operations.GetStringValue(User, "Key", "Name"), "xxxx");
}

TEST_F(ChangingRegistryTest, GetBinaryValueOfAValueThatGrowsBetweenTheQueriesFails) {
    changing.sizes = {3, 4};
    Bytes bytes;
    EXPECT_FALSE(operations.GetBinaryValue(User, "Key", "Name", bytes, false));
}

TEST_F(ChangingRegistryTest, GetBinaryValueTakesWhatIsLeftOfAValueThatShrinks) {
    changing.sizes = {30, 2};
    Bytes bytes;
    EXPECT_TRUE(operations.GetBinaryValue(User, "Key", "Name", bytes, false));
    EXPECT_EQ(bytes, (Bytes{'x', 'x'}));
}

// A registry that lists what the real one can't hold.
struct LyingRegistry : ChangingRegistry {
    using ChangingRegistry::ChangingRegistry;
    ErrorCode RegEnumValueA(KeyHandle, std::uint32_t index, std::uint32_t, std::string& name,
                            std::uint32_t& type, Bytes& data, std::uint32_t& size) override {
        if (index == 3) return error::NoMoreItems;
        name = std::vector<std::string>{"Name", "NAME", "Other"}[index];
        type = registryType::Binary;
        data[0] = static_cast<std::uint8_t>('1' + index);
        size = index == 2 ? 0xFFFFFFFF : 1;
        return error::Success;
    }
    ErrorCode RegQueryValueExA(KeyHandle, const std::string&, std::uint32_t&, Bytes* data,
                               std::uint32_t& size) override {
        if (data != nullptr) return error::FileNotFound;
        size = 0xFFFFFFFF;
        return error::Success;
    }
};

class LyingRegistryTest : public ReadFixture {
  protected:
    void SetUp() override { lying.AddKey(User, "Key"); }

    LyingRegistry lying{machine.Journal()};
    Machine real = machine.Parts();
    Machine parts{lying,       real.profileFiles, real.versionResources,
                  real.files,  real.clock,        real.processes,
                  real.token,  real.shell,        real.shortcuts,
                  real.system, real.windows,      real.cryptography};
    modRegistry operations{parts, desktop, "Velkarix"};
};

TEST_F(LyingRegistryTest, EnumValuesLeavesOutANameThatDiffersInCaseOnly) {
    const auto entries = operations.EnumValues(User, "Key");
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[0], Data({'1'}));
    EXPECT_EQ(entries[1].name, "Other");
}

TEST_F(LyingRegistryTest, NothingIsReadPastTheData) {
    const auto entries = operations.EnumValues(User, "Key");
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(std::get<Bytes>(entries[1].data).size(), 4096u);
}

TEST_F(LyingRegistryTest, ASizeThatNoValueHasIsAFailedRead) {
    Bytes bytes;
    EXPECT_EQ(operations.GetStringValue(User, "Key", "Name"), "");
    EXPECT_FALSE(operations.GetBinaryValue(User, "Key", "Name", bytes, true));
}

}  // namespace
}  // namespace velkarix
