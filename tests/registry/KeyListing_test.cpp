#include "registry/KeyListing.h"

#include <gtest/gtest.h>

#include "registry/OpenKey.h"
#include "tests/registry/RegistryFixture.h"

namespace velkarix {
namespace {

class KeyListingTest : public RegistryFixture {
  protected:
    // Opens the example key and lists it with one of the functions.
    template <typename List>
    ErrorCode In(List list) {
        OpenKey open(machine.registry);
        EXPECT_EQ(open.Open(Registry::HandleOf(User), key, KeyAccess::Read), error::Success);
        return list(open.Handle());
    }
    ErrorCode Values() {
        return In([&](KeyHandle open) { return ListValues(machine.registry, open, values); });
    }
    ErrorCode SubKeys() {
        return In([&](KeyHandle open) { return ListSubKeys(machine.registry, open, names); });
    }

    std::vector<RawValue> values;
    std::vector<std::string> names;
};

TEST_F(KeyListingTest, GivesAllValuesAsTheyLieThere) {
    machine.registry.SetRaw(User, key, "", registryType::Sz, {'a', 0});
    machine.registry.SetRaw(User, key, std::string(16383, 'n'), 77, Bytes(10'000, 7));
    values.push_back({"from before", 0, {}});
    EXPECT_EQ(Values(), error::Success);
    ASSERT_EQ(values.size(), 2u);
    EXPECT_EQ(values[0].name, "");
    EXPECT_EQ(values[0].data, (Bytes{'a', 0}));
    EXPECT_EQ(values[1].name, std::string(16383, 'n'));
    EXPECT_EQ(values[1].type, 77u);
    EXPECT_EQ(values[1].data, Bytes(10'000, 7));
}

TEST_F(KeyListingTest, GivesAllNamesOfSubkeys) {
    machine.AddKey(User, key + "\\B\\Below");
    machine.AddKey(User, key + "\\" + std::string(255, 'a'));
    names = {"from before"};
    EXPECT_EQ(SubKeys(), error::Success);
    EXPECT_EQ(names, (Strings{std::string(255, 'a'), "B"}));
}

TEST_F(KeyListingTest, IsNoSuccessWhereANameCanNotBeReached) {
    machine.SetValue(User, key, "Name", "text");
    machine.registry.SetRaw(User, key, std::string("Name\0x", 6), registryType::Sz, {});
    machine.AddKey(User, key + std::string("\\\0Below", 7));
    EXPECT_EQ(Values(), error::InvalidData);
    EXPECT_EQ(SubKeys(), error::InvalidData);
}

// Characters that the code page lacks are listed as question marks, by which another is asked for.
TEST_F(KeyListingTest, IsNoSuccessWhereANameLeadsToAnother) {
    const std::u16string foreign = u"\u0430\u0431";
    machine.registry.SetNamedValue(User, key, foreign, registryType::Binary, {1});
    EXPECT_EQ(Values(), error::InvalidData);
    for (const Bytes& data : {Bytes{1}, Bytes{2}}) {
        machine.registry.SetRaw(User, key, "??", registryType::Binary, data);
        EXPECT_EQ(Values(), error::InvalidData);
    }
    machine.AddKey(User, key + "\\??");
    machine.registry.AddNamedKey(User, key, foreign);
    EXPECT_EQ(SubKeys(), error::InvalidData);
}

TEST_F(KeyListingTest, IsNoSuccessWhereAValueIsAskedForInVain) {
    machine.registry.SetNamedValue(User, key, u"?", registryType::Binary, {1});
    EXPECT_EQ(Values(), error::Success);
    machine.FailNext("RegQueryValueExA", error::FileNotFound);
    EXPECT_EQ(Values(), error::InvalidData);
    machine.FailNext("RegQueryValueExA", error::AccessDenied);
    EXPECT_EQ(Values(), error::AccessDenied);
}

TEST_F(KeyListingTest, IsNoSuccessWhenAListingBreaksOff) {
    machine.SetValue(User, key, "Name", "text");
    machine.AddKey(User, key + "\\Below");
    machine.FailNext("RegEnumValueA", error::BadKey);
    EXPECT_EQ(Values(), error::BadKey);
    machine.FailNext("RegEnumKeyExA", error::MoreData);
    EXPECT_EQ(SubKeys(), error::MoreData);
}

TEST_F(KeyListingTest, TellsNamesOfDoubleByteCharactersApart) {
    ListedNames listed(machine.Journal(), DoubleByteNames);
    EXPECT_EQ(ListSubKeys(listed, Registry::HandleOf(User), names), error::Success);
    EXPECT_EQ(names, DoubleByteNames);
    ListedNames alike(machine.Journal(), {"Name", "name"});
    EXPECT_EQ(ListSubKeys(alike, Registry::HandleOf(User), names), error::InvalidData);
}

}  // namespace
}  // namespace velkarix
