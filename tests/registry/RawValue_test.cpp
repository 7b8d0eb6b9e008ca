#include "registry/RawValue.h"

#include <gtest/gtest.h>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {
namespace {

class RawValueTest : public testing::Test {
  protected:
    ErrorCode Read(std::uint32_t index, std::uint32_t nameCapacity = 260) {
        KeyHandle key = 0;
        machine.AddKey(Hive::CurrentUser, "Key");
        EXPECT_EQ(machine.registry.RegOpenKeyA(Registry::HandleOf(Hive::CurrentUser), "Key", key),
                  error::Success);
        const ErrorCode result = EnumRawValue(machine.registry, key, index, nameCapacity, value);
        machine.registry.RegCloseKey(key);
        return result;
    }

    MemoryMachine machine;
    RawValue value;
};

TEST_F(RawValueTest, GivesTheDataCutToItsSize) {
    machine.registry.SetRaw(Hive::CurrentUser, "Key", "Name", 77, {1, 2, 3});
    EXPECT_EQ(Read(0), error::Success);
    EXPECT_EQ(value.name, "Name");
    EXPECT_EQ(value.type, 77u);
    EXPECT_EQ(value.data, (Bytes{1, 2, 3}));
}

TEST_F(RawValueTest, TellsThatThereAreNoMore) {
    EXPECT_EQ(Read(0), error::NoMoreItems);
}

TEST_F(RawValueTest, TellsThatANameIsTooLongAfterOneMoreCall) {
    machine.registry.SetRaw(Hive::CurrentUser, "Key", "Name", 3, {1});
    EXPECT_EQ(Read(0, 4), error::MoreData);
    EXPECT_EQ(machine.Journal().CountOf("RegEnumValueA"), 2u);
    EXPECT_EQ(Read(0, 5), error::Success);
}

TEST_F(RawValueTest, QueriesAValueByItsNameInOneCallOrTwo) {
    machine.registry.SetRaw(Hive::CurrentUser, "Key", "Small", 77, {1, 2, 3});
    machine.registry.SetRaw(Hive::CurrentUser, "Key", "Large", 78, Bytes(5000, 7));
    KeyHandle key = 0;
    ASSERT_EQ(machine.registry.RegOpenKeyA(Registry::HandleOf(Hive::CurrentUser), "Key", key),
              error::Success);
    EXPECT_EQ(QueryRawValue(machine.registry, key, "Small", value), error::Success);
    EXPECT_EQ(value.name, "Small");
    EXPECT_EQ(value.type, 77u);
    EXPECT_EQ(value.data, (Bytes{1, 2, 3}));
    EXPECT_EQ(machine.Journal().CountOf("RegQueryValueExA"), 1u);
    EXPECT_EQ(QueryRawValue(machine.registry, key, "Large", value), error::Success);
    EXPECT_EQ(value.data, Bytes(5000, 7));
    EXPECT_EQ(machine.Journal().CountOf("RegQueryValueExA"), 3u);
    EXPECT_EQ(QueryRawValue(machine.registry, key, "Missing", value), error::FileNotFound);
}

TEST_F(RawValueTest, QueriesNothingByANameWithANul) {
    const std::string name("Name\0x", 6);
    machine.registry.SetRaw(Hive::CurrentUser, "Key", name, 77, {1});
    machine.registry.SetRaw(Hive::CurrentUser, "Key", "Name", 78, {2});
    EXPECT_EQ(Read(0), error::Success);
    EXPECT_EQ(value.name, name);
    KeyHandle key = 0;
    ASSERT_EQ(machine.registry.RegOpenKeyA(Registry::HandleOf(Hive::CurrentUser), "Key", key),
              error::Success);
    EXPECT_EQ(QueryRawValue(machine.registry, key, name, value), error::InvalidData);
    EXPECT_EQ(QueryRawValue(machine.registry, key, "Name", value), error::Success);
    EXPECT_EQ(value.data, (Bytes{2}));
}

TEST(StandsAs, ComparesTypeAndBytesWithoutTheName) {
    EXPECT_TRUE(StandsAs({"a", 3, {1, 2}}, {"A", 3, {1, 2}}));
    EXPECT_FALSE(StandsAs({"a", 3, {1, 2}}, {"a", 4, {1, 2}}));
    EXPECT_FALSE(StandsAs({"a", 3, {1, 2}}, {"a", 3, {1, 3}}));
    EXPECT_FALSE(StandsAs({"a", 3, {1}}, {"a", 3, {1, 0}}));
    EXPECT_FALSE(StandsAs({"a", 3, {1, 0}}, {"a", 3, {1}}));
}

TEST(StandsAs, OverlooksTheNulThatTheSystemPutsBehindAText) {
    for (const std::uint32_t type : {1u, 2u, 7u}) {
        EXPECT_TRUE(StandsAs({"", type, {'a', 0}}, {"", type, {'a'}})) << type;
        EXPECT_FALSE(StandsAs({"", type, {'a'}}, {"", type, {'a', 0}})) << type;
        EXPECT_FALSE(StandsAs({"", type, {'a', 0, 0}}, {"", type, {'a', 0}})) << type;
        EXPECT_EQ(StandsAs({"", type, {0}}, {"", type, {}}), type == 1) << type;
        EXPECT_FALSE(StandsAs({"", type, {}}, {"", type, {0}})) << type;
        EXPECT_FALSE(StandsAs({"", type, {'b', 0}}, {"", type, {'a'}})) << type;
    }
}

TEST_F(RawValueTest, TakesMemoryForSizesThatValuesCanHaveAlone) {
    Bytes buffer;
    EXPECT_TRUE(MakeRoom(buffer, 1'000'000));
    EXPECT_EQ(buffer.size(), 1'000'000u);
    EXPECT_FALSE(MakeRoom(buffer, 0xFFFFFFFF));
    EXPECT_EQ(buffer.size(), 1'000'000u);
}

TEST(FoldedName, FoldsLettersThatAreNoSecondBytes) {
    EXPECT_EQ(FoldedName("AbC 1"), "abc 1");
    EXPECT_EQ(FoldedName("\x83"
                         "A"),
              "\x83"
              "A");
    EXPECT_NE(FoldedName("\x83"
                         "A"),
              FoldedName("\x83"
                         "a"));
    EXPECT_EQ(FoldedName("\x83"
                         "AB"),
              "\x83"
              "Ab");
}

TEST(DwordBytes, BeginWithTheLowest) {
    EXPECT_EQ(DwordBytes(0x01020304), (Bytes{4, 3, 2, 1}));
    EXPECT_EQ(DwordBytes(-2), (Bytes{0xFE, 0xFF, 0xFF, 0xFF}));
}

}  // namespace
}  // namespace velkarix
