#include "registry/KeyTree.h"

#include <gtest/gtest.h>

#include "tests/registry/RegistryFixture.h"

namespace velkarix {
namespace {

class KeyTreeTest : public RegistryFixture {
  protected:
    // Two equal trees of three levels.
    void AddTrees() {
        for (const std::string root : {"Whole", "Part"}) {
            machine.registry.SetRaw(User, root, "", registryType::Sz, {'a', 0});
            machine.registry.SetRaw(User, root, "Odd", 77, {1, 2, 3});
            machine.registry.SetRaw(User, root + "\\Sub", "Empty", registryType::Binary, {});
            machine.SetDword(User, root + "\\Sub\\Deep", "Number", 5);
            machine.AddKey(User, root + "\\Sub\\Bare");
        }
    }
    ErrorCode Contains() { return ContainsTree(machine.registry, User, "Whole", "Part"); }
    ErrorCode Read(const std::string& name) {
        return ReadRawValue(machine.registry, User, key, name, value);
    }

    RawValue value;
};

TEST_F(KeyTreeTest, AKeyIsMissingOnlyWhereTheSystemSaysSo) {
    EXPECT_FALSE(KeyExists(machine.registry, User, key));
    machine.AddKey(User, key);
    EXPECT_TRUE(KeyExists(machine.registry, User, key));
    machine.registry.Restrict(User, key, std::nullopt);
    EXPECT_TRUE(KeyExists(machine.registry, User, key));
    machine.FailNext("RegOpenKeyExA", error::PathNotFound);
    EXPECT_FALSE(KeyExists(machine.registry, User, key));
}

TEST_F(KeyTreeTest, ReadsAValueOfAnyTypeAndSize) {
    machine.registry.SetRaw(User, key, "Name", 77, Bytes(10'000, 7));
    EXPECT_EQ(Read("Name"), error::Success);
    EXPECT_EQ(value.name, "Name");
    EXPECT_EQ(value.type, 77u);
    EXPECT_EQ(value.data, Bytes(10'000, 7));
    machine.registry.SetRaw(User, key, "", registryType::None, {});
    EXPECT_EQ(Read(""), error::Success);
    EXPECT_EQ(value.type, registryType::None);
    EXPECT_EQ(value.data, Bytes());
}

TEST_F(KeyTreeTest, TellsWhyAValueCantBeRead) {
    EXPECT_EQ(Read("Name"), error::FileNotFound);
    machine.AddKey(User, key);
    EXPECT_EQ(Read("Name"), error::FileNotFound);
    machine.SetValue(User, key, "Name", "text");
    machine.FailNext("RegQueryValueExA", error::BadKey);
    EXPECT_EQ(Read("Name"), error::BadKey);
}

TEST_F(KeyTreeTest, WritesAValueOfAnyTypeIntoAKeyThatIsThere) {
    const RawValue written{"Name", 77, {1, 2}};
    EXPECT_EQ(WriteRawValue(machine.registry, User, key, written), error::FileNotFound);
    EXPECT_FALSE(machine.registry.HasKey(User, key));
    machine.AddKey(User, key);
    EXPECT_EQ(WriteRawValue(machine.registry, User, key, written), error::Success);
    EXPECT_EQ(machine.registry.ValueAt(User, key, "Name"), (MemoryValue{"Name", 77, {1, 2}}));
    machine.FailNext("RegSetValueExA", error::BadKey);
    EXPECT_EQ(WriteRawValue(machine.registry, User, key, written), error::BadKey);
}

TEST_F(KeyTreeTest, ATreeContainsItsLike) {
    AddTrees();
    EXPECT_EQ(Contains(), error::Success);
}

TEST_F(KeyTreeTest, TheWholeMayHoldMoreThanThePart) {
    AddTrees();
    machine.SetValue(User, "Whole", "More", "text");
    machine.AddKey(User, "Whole\\Sub\\More");
    EXPECT_EQ(Contains(), error::Success);
}

TEST_F(KeyTreeTest, NamesCompareWithoutCase) {
    AddTrees();
    machine.SetValue(User, "Whole\\TEXT", "NAME", "text");
    machine.SetValue(User, "Part\\Text", "Name", "text");
    EXPECT_EQ(Contains(), error::Success);
}

TEST_F(KeyTreeTest, FindsWhateverDiffersAtAnyLevel) {
    const std::vector<std::function<void()>> changes = {
        [&] { machine.registry.SetRaw(User, "Part", "More", registryType::Binary, {}); },
        [&] {
            machine.registry.SetRaw(User, "Whole", "Odd", 78, {1, 2, 3});
        },
        [&] {
            machine.registry.SetRaw(User, "Whole", "Odd", 77, {1, 2, 4});
        },
        [&] {
            machine.registry.SetRaw(User, "Whole", "Odd", 77, {1, 2});
        },
        [&] {
            machine.registry.SetRaw(User, "Whole", "Odd", 77, {1, 2, 3, 0});
        },
        [&] { machine.registry.SetRaw(User, "Whole\\Sub", "Empty", registryType::Binary, {0}); },
        [&] {
            machine.registry.SetRaw(User, "Part", "", registryType::Sz, {'b', 0});
        },
        [&] { machine.SetDword(User, "Whole\\Sub\\Deep", "Number", 6); },
        [&] { machine.SetDword(User, "Part\\Sub\\Deep", "Other", 6); },
        [&] { machine.AddKey(User, "Part\\Sub\\More"); },
        [&] { machine.registry.RemoveKey(User, "Whole\\Sub\\Bare"); },
        [&] { machine.registry.RemoveKey(User, "Whole"); },
    };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        machine.registry.RemoveKey(User, "Part");
        machine.registry.RemoveKey(User, "Whole");
        AddTrees();
        changes[i]();
        EXPECT_EQ(Contains(), error::CantWrite) << i;
    }
}

TEST_F(KeyTreeTest, TellsThatThePartIsGone) {
    machine.AddKey(User, "Whole");
    EXPECT_EQ(Contains(), error::FileNotFound);
}

TEST_F(KeyTreeTest, IsNoSuccessWhenAnyOfItsReadingCallsFails) {
    AddTrees();
    EXPECT_EQ(Contains(), error::Success);
    const std::vector<std::string> calls = Calls();
    for (std::size_t i = 0; i < calls.size(); ++i) {
        if (calls[i] == "RegCloseKey") continue;
        machine.Journal().Clear();
        machine.Journal().FailCall(i, error::BadKey);
        EXPECT_EQ(Contains(), error::BadKey) << i << " " << calls[i];
    }
}

TEST_F(KeyTreeTest, EndsInATreeThatNeverDoes) {
    std::string path = "Part";
    for (int level = 0; level < 600; ++level) path += "\\x";
    machine.AddKey(User, path);
    machine.AddKey(User, "Whole" + path.substr(4));
    EXPECT_EQ(Contains(), error::BadKey);
}

}  // namespace
}  // namespace velkarix
