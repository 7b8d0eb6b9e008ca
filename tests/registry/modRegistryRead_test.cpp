#include <gtest/gtest.h>

#include <algorithm>

#include "tests/registry/ReadFixture.h"

namespace velkarix {
namespace {

using modRegistryReadTest = ReadFixture;

// ---- EnumSubKeys

TEST_F(modRegistryReadTest, EnumSubKeysAddsTheNamesToTheList) {
    machine.AddKey(User, key + "\\A\\Below");
    machine.AddKey(User, key + "\\B");
    Strings names = {"there before"};
    registry.EnumSubKeys(User, key, names);
    EXPECT_EQ(names, (Strings{"there before", "A", "B"}));
    EXPECT_EQ(Calls(), (Strings{"RegOpenKeyA", "RegEnumKeyExA", "RegEnumKeyExA", "RegEnumKeyExA",
                                "RegCloseKey"}));
}

TEST_F(modRegistryReadTest, EnumSubKeysOfAMissingKeyLeavesTheListAsItWas) {
    Strings names = {"there before"};
    registry.EnumSubKeys(User, key, names);
    EXPECT_EQ(names, (Strings{"there before"}));
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(modRegistryReadTest, EnumSubKeysTakesNamesOf254BytesAndEndsAtALongerOne) {
    machine.AddKey(User, key + "\\" + std::string(254, 'a'));
    machine.AddKey(User, key + "\\" + std::string(255, 'b'));
    machine.AddKey(User, key + "\\c");
    Strings names;
    registry.EnumSubKeys(User, key, names);
    EXPECT_EQ(names, (Strings{std::string(254, 'a')}));
}

TEST_F(modRegistryReadTest, EnumSubKeysGivesANameWithANulThatLeadsToNoKey) {
    const std::string hidden("A\0x", 3);
    machine.SetValue(User, key + "\\A", "Name", "another's");
    machine.SetValue(User, key + "\\" + hidden, "Name", "hidden");
    Strings names;
    registry.EnumSubKeys(User, key, names);
    EXPECT_EQ(names, (Strings{"A", hidden}));
    bool missing = false;
    Bytes bytes;
    EXPECT_EQ(registry.GetStringValue(User, key + "\\" + hidden, "Name"), "");
    EXPECT_EQ(registry.GetDwordValue(User, key + "\\" + hidden, "Name", missing), 0);
    EXPECT_FALSE(registry.GetBinaryValue(User, key + "\\" + hidden, "Name", bytes, false));
    EXPECT_TRUE(registry.EnumValues(User, key + "\\" + hidden).empty());
}

// The second is of characters that the code page lacks, and its name leads to the first.
TEST_F(modRegistryReadTest, EnumSubKeysGivesANameOnce) {
    machine.AddKey(User, key + "\\??");
    machine.registry.AddNamedKey(User, key, u"\u0430\u0431");
    Strings names;
    registry.EnumSubKeys(User, key, names);
    EXPECT_EQ(names, Strings{"??"});
}

// The first is of such characters.
TEST_F(modRegistryReadTest, EnumValuesGivesOfOneNameTheValueThatItReaches) {
    machine.registry.SetNamedValue(User, key, u"\u0430\u0431", registryType::Binary, {1});
    machine.registry.SetRaw(User, key, "??", registryType::Binary, {2});
    EXPECT_EQ(registry.EnumValues(User, key),
              (std::vector<RegValueEntry>{{"??", Bytes{2}, RegValueTag::ByteArray}}));
}

TEST_F(modRegistryReadTest, TellsNamesOfDoubleByteCharactersApart) {
    const auto listing = [&](const Strings& listed) {
        ListedNames listedNames(machine.Journal(), listed);
        const Machine parts = machine.Parts();
        modRegistry reading({listedNames, parts.profileFiles, parts.versionResources, parts.files,
                             parts.clock, parts.processes, parts.token, parts.shell,
                             parts.shortcuts, parts.system, parts.windows, parts.cryptography},
                            desktop, "Velkarix");
        Strings names;
        reading.EnumSubKeys(User, "", names);
        Strings values;
        for (const RegValueEntry& each : reading.EnumValues(User, "")) values.push_back(each.name);
        EXPECT_EQ(values, names);
        return names;
    };
    EXPECT_EQ(listing(DoubleByteNames), DoubleByteNames);
    EXPECT_EQ(listing({"Name", "name", "Other"}), (Strings{"Name", "Other"}));
}

TEST_F(modRegistryReadTest, EnumSubKeysEndsAtTheFirstFailure) {
    machine.AddKey(User, key + "\\A");
    machine.FailNext("RegEnumKeyExA");
    Strings names;
    registry.EnumSubKeys(User, key, names);
    EXPECT_TRUE(names.empty());
}

// ---- EnumValues

TEST_F(modRegistryReadTest, EnumValuesKeepsTheOrderOfTheSystem) {
    machine.SetValue(User, key, "b", "2");
    machine.SetValue(User, key, "", "default");
    machine.SetDword(User, key, "A", 3);
    EXPECT_EQ(registry.EnumValues(User, key),
              (std::vector<RegValueEntry>{{"b", "2", RegValueTag::Text},
                                          {"", "default", RegValueTag::Text},
                                          {"A", 3, RegValueTag::Integer}}));
    EXPECT_EQ(Calls(), (Strings{"RegOpenKeyExA", "RegEnumValueA", "RegEnumValueA", "RegEnumValueA",
                                "RegEnumValueA", "RegCloseKey"}));
}

TEST_F(modRegistryReadTest, EnumValuesOfAMissingOrForbiddenKeyIsEmpty) {
    EXPECT_TRUE(registry.EnumValues(User, key).empty());
    machine.SetValue(User, key, "Name", "text");
    machine.registry.Restrict(User, key, KeyAccess::Write);
    EXPECT_TRUE(registry.EnumValues(User, key).empty());
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(modRegistryReadTest, EnumValuesOfAnEmptyKeyEnumeratesTheHiveItself) {
    machine.SetValue(User, "", "Name", "text");
    EXPECT_EQ(registry.EnumValues(User, ""), (std::vector<RegValueEntry>{Text("text")}));
    EXPECT_EQ(Calls(), (Strings{"RegEnumValueA", "RegEnumValueA"}));
}

TEST_F(modRegistryReadTest, EnumValuesTakesTheNulOffATextWhateverItIs) {
    for (const std::uint32_t type : {registryType::Sz, registryType::ExpandSz}) {
        EXPECT_EQ(Entry(type, {'a', 'b', 0}), Text("ab"));
        EXPECT_EQ(Entry(type, {'a', 'b'}), Text("a"));
        EXPECT_EQ(Entry(type, {'a', 0, 'b', 0}), Text(std::string("a\0b", 3)));
    }
}

TEST_F(modRegistryReadTest, EnumValuesGivesAnEmptyTextNoData) {
    for (const std::uint32_t type : {registryType::Sz, registryType::ExpandSz}) {
        EXPECT_EQ(Entry(type, {}), NoData);
        EXPECT_EQ(Entry(type, {0}), NoData);
        EXPECT_EQ(Entry(type, {'a'}), NoData);
    }
}

TEST_F(modRegistryReadTest, EnumValuesGivesSeveralTextsAsOneWithTheirNuls) {
    EXPECT_EQ(Entry(registryType::MultiSz, {'a', 0, 'b', 0, 0}), Text(std::string("a\0b", 3)));
    EXPECT_EQ(Entry(registryType::MultiSz, {'a', 0, 0}), Text("a"));
    EXPECT_EQ(Entry(registryType::MultiSz, {'a', 0}), NoData);
    EXPECT_EQ(Entry(registryType::MultiSz, {0, 0}), NoData);
    EXPECT_EQ(Entry(registryType::MultiSz, {}), NoData);
}

TEST_F(modRegistryReadTest, EnumValuesGivesBytesAsTheyAre) {
    EXPECT_EQ(Entry(registryType::Binary, {0}), Data({0}));
    EXPECT_EQ(Entry(registryType::Binary, {1, 2, 3}), Data({1, 2, 3}));
    EXPECT_EQ(Entry(registryType::Binary, {}), NoData);
}

TEST_F(modRegistryReadTest, EnumValuesReadsTheFirstFourBytesOfANumberWhateverItsSize) {
    EXPECT_EQ(Entry(registryType::Dword, {4, 3, 2, 1}), Number(0x01020304));
    EXPECT_EQ(Entry(registryType::Dword, {0xFE, 0xFF, 0xFF, 0xFF}), Number(-2));
    EXPECT_EQ(Entry(registryType::Dword, {4, 3, 2, 1, 9, 9, 9, 9}), Number(0x01020304));
    EXPECT_EQ(Entry(registryType::Dword, {4, 3}), Number(0x0304));
    EXPECT_EQ(Entry(registryType::Dword, {}), Number(0));
}

TEST_F(modRegistryReadTest, EnumValuesGivesOtherTypesNoData) {
    for (const std::uint32_t type :
         {registryType::None, registryType::Qword, std::uint32_t{5}, std::uint32_t{0xFFFFFFFF}}) {
        EXPECT_EQ(Entry(type, {1, 2, 3, 4, 5, 6, 7, 8}), NoData) << type;
    }
}

TEST_F(modRegistryReadTest, EnumValuesReadsAValueOfMoreThan4096BytesWhole) {
    for (const std::size_t size : {4096u, 4097u, 100'000u}) {
        machine.Journal().Clear();
        Bytes bytes(size);
        for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<std::uint8_t>(i % 251);
        EXPECT_EQ(Entry(registryType::Binary, bytes), Data(bytes));
        EXPECT_EQ(machine.Journal().CountOf("RegEnumValueA"), size > 4096 ? 3u : 2u) << size;
    }
}

TEST_F(modRegistryReadTest, EnumValuesReadsSmallValuesBehindALargeOne) {
    machine.registry.SetRaw(User, key, "Large", registryType::Binary, Bytes(5000, 1));
    machine.registry.SetRaw(User, key, "Small", registryType::Dword, {5});
    const auto entries = registry.EnumValues(User, key);
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[1], (RegValueEntry{"Small", 5, RegValueTag::Integer}));
}

TEST_F(modRegistryReadTest, EnumValuesEndsAtANameOfMoreThan259Bytes) {
    machine.SetValue(User, key, std::string(259, 'a'), "1");
    machine.SetValue(User, key, std::string(260, 'b'), "2");
    machine.SetValue(User, key, "c", "3");
    const auto entries = registry.EnumValues(User, key);
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(entries[0].name, std::string(259, 'a'));
    // The long name is asked for once more, as a large value would be.
    EXPECT_EQ(machine.Journal().CountOf("RegEnumValueA"), 3u);
}

TEST_F(modRegistryReadTest, EnumValuesEndsAtTheFirstFailure) {
    machine.SetValue(User, key, "Name", "text");
    machine.FailNext("RegEnumValueA", error::KeyDeleted);
    EXPECT_TRUE(registry.EnumValues(User, key).empty());
}

// ---- GetStringValue

TEST_F(modRegistryReadTest, GetStringValueAsksForTheSizeAndThenForTheText) {
    machine.SetValue(User, key, "Name", "text");
    EXPECT_EQ(registry.GetStringValue(User, key, "Name"), "text");
    EXPECT_EQ(Calls(),
              (Strings{"RegOpenKeyA", "RegQueryValueExA", "RegQueryValueExA", "RegCloseKey"}));
}

TEST_F(modRegistryReadTest, GetStringValueOfAMissingKeyOrValueIsEmptyWithoutAMessage) {
    EXPECT_EQ(registry.GetStringValue(User, key, "Name"), "");
    machine.AddKey(User, key);
    EXPECT_EQ(registry.GetStringValue(User, key, "Name"), "");
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(modRegistryReadTest, GetStringValueWithoutANameReadsTheDefaultValue) {
    machine.SetValue(User, key, "", "default");
    EXPECT_EQ(registry.GetStringValue(User, key, ""), "default");
}

TEST_F(modRegistryReadTest, GetStringValueTakesAnyTypeAndEndsAtTheFirstNul) {
    machine.SetDword(User, key, "Number", 0x00434241);
    EXPECT_EQ(registry.GetStringValue(User, key, "Number"), "ABC");
    machine.registry.SetRaw(User, key, "Bytes", registryType::Binary, {'a', 0xFF, 0, 'b'});
    EXPECT_EQ(registry.GetStringValue(User, key, "Bytes"), "a\xFF");
    machine.registry.SetRaw(User, key, "NoNul", registryType::Sz, {'a', 'b'});
    EXPECT_EQ(registry.GetStringValue(User, key, "NoNul"), "ab");
    machine.registry.SetRaw(User, key, "Empty", registryType::Sz, {});
    EXPECT_EQ(registry.GetStringValue(User, key, "Empty"), "");
}

TEST_F(modRegistryReadTest, GetStringValueReadsLongTextsWhole) {
    const std::string text(1'000'000, 'x');
    machine.SetValue(User, key, "Name", text);
    EXPECT_EQ(registry.GetStringValue(User, key, "Name"), text);
}

TEST_F(modRegistryReadTest, GetStringValueIsEmptyWhenTheReadFails) {
    machine.SetValue(User, key, "Name", "text");
    machine.FailNext("RegOpenKeyA");
    EXPECT_EQ(registry.GetStringValue(User, key, "Name"), "");
    machine.FailNext("RegQueryValueExA");
    EXPECT_EQ(registry.GetStringValue(User, key, "Name"), "");
    machine.FailNext("RegQueryValueExA", error::Success);
    machine.FailNext("RegQueryValueExA");
    EXPECT_EQ(registry.GetStringValue(User, key, "Name"), "");
    EXPECT_TRUE(desktop.messages.empty());
}

// ---- GetDwordValue

TEST_F(modRegistryReadTest, GetDwordValueReadsANumber) {
    machine.SetDword(User, key, "Name", 0xFFFFFFFE);
    bool missing = false;
    EXPECT_EQ(registry.GetDwordValue(User, key, "Name", missing), -2);
    EXPECT_FALSE(missing);
    EXPECT_EQ(Calls(), (Strings{"RegOpenKeyExA", "RegQueryValueExA", "RegCloseKey"}));
}

TEST_F(modRegistryReadTest, GetDwordValueOfAMissingValueIsMissing) {
    machine.AddKey(User, key);
    bool missing = false;
    EXPECT_EQ(registry.GetDwordValue(User, key, "Name", missing), 0);
    EXPECT_TRUE(missing);
}

TEST_F(modRegistryReadTest, GetDwordValueOfAMissingKeyDoesntTouchMissing) {
    for (const bool before : {false, true}) {
        bool missing = before;
        EXPECT_EQ(registry.GetDwordValue(User, key, "Name", missing), 0);
        EXPECT_EQ(missing, before);
    }
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(modRegistryReadTest, GetDwordValueReadsFourBytesOfAnyType) {
    bool missing = false;
    machine.registry.SetRaw(User, key, "Short", registryType::Binary, {1, 2});
    EXPECT_EQ(registry.GetDwordValue(User, key, "Short", missing), 0x0201);
    machine.registry.SetRaw(User, key, "Empty", registryType::Dword, {});
    EXPECT_EQ(registry.GetDwordValue(User, key, "Empty", missing), 0);
    EXPECT_FALSE(missing);
    machine.registry.SetRaw(User, key, "Long", registryType::Dword, {1, 2, 3, 4, 5});
    EXPECT_EQ(registry.GetDwordValue(User, key, "Long", missing), 0);
    EXPECT_TRUE(missing);
}

// ---- GetBinaryValue

TEST_F(modRegistryReadTest, GetBinaryValueReadsTheBytesByTwoQueries) {
    machine.registry.SetRaw(User, key, "Name", registryType::Binary, {1, 2, 3});
    Bytes bytes;
    EXPECT_TRUE(registry.GetBinaryValue(User, key, "Name", bytes, false));
    EXPECT_EQ(bytes, (Bytes{1, 2, 3}));
    EXPECT_EQ(Calls(),
              (Strings{"RegOpenKeyExA", "RegQueryValueExA", "RegQueryValueExA", "RegCloseKey"}));
}

TEST_F(modRegistryReadTest, GetBinaryValueOfOneByteOrNoneGivesFalse) {
    for (const Bytes& data : {Bytes{0}, Bytes{7}, Bytes{}}) {
        for (const bool expect552 : {false, true}) {
            machine.registry.SetRaw(User, key, "Name", registryType::Binary, data);
            Bytes bytes;
            EXPECT_FALSE(registry.GetBinaryValue(User, key, "Name", bytes, expect552));
        }
    }
}

TEST_F(modRegistryReadTest, GetBinaryValueOfTwoBytesGivesTrueAlsoWhere552AreExpected) {
    machine.registry.SetRaw(User, key, "Name", registryType::Binary, {0, 0});
    Bytes bytes;
    EXPECT_TRUE(registry.GetBinaryValue(User, key, "Name", bytes, true));
    EXPECT_EQ(bytes, (Bytes{0, 0}));
}

TEST_F(modRegistryReadTest, GetBinaryValueGivesTrueFor552BytesThoughTheKeyDoesntClose) {
    class RefusingRegistry : public MemoryRegistry {
      public:
        using MemoryRegistry::MemoryRegistry;
        ErrorCode RegCloseKey(KeyHandle opened) override {
            MemoryRegistry::RegCloseKey(opened);
            return error::InvalidHandle;
        }
    } refusing(machine.Journal());
    const Machine real = machine.Parts();
    const Machine parts{refusing,    real.profileFiles, real.versionResources,
                        real.files,  real.clock,        real.processes,
                        real.token,  real.shell,        real.shortcuts,
                        real.system, real.windows,      real.cryptography};
    modRegistry operations(parts, desktop, "Velkarix");
    Bytes bytes;
    refusing.SetRaw(User, key, "Name", registryType::Binary, Bytes(552, 1));
    EXPECT_TRUE(operations.GetBinaryValue(User, key, "Name", bytes, true));
    EXPECT_FALSE(operations.GetBinaryValue(User, key, "Name", bytes, false));
    refusing.SetRaw(User, key, "Name", registryType::Binary, Bytes(551, 1));
    EXPECT_FALSE(operations.GetBinaryValue(User, key, "Name", bytes, true));
}

TEST_F(modRegistryReadTest, GetBinaryValueOfAMissingKeyOrValueGivesFalse) {
    Bytes bytes = {1, 2};
    EXPECT_FALSE(registry.GetBinaryValue(User, key, "Name", bytes, false));
    machine.AddKey(User, key);
    EXPECT_FALSE(registry.GetBinaryValue(User, key, "Name", bytes, false));
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(modRegistryReadTest, ReadingNeedsNoMoreThanTheRightToRead) {
    machine.SetValue(User, key, "Name", "text");
    machine.AddKey(User, key + "\\Sub");
    machine.registry.Restrict(User, key, KeyAccess::Read);
    Strings names;
    Bytes bytes;
    bool missing = false;
    registry.EnumSubKeys(User, key, names);
    EXPECT_EQ(names, (Strings{"Sub"}));
    EXPECT_EQ(registry.EnumValues(User, key).size(), 1u);
    EXPECT_EQ(registry.GetStringValue(User, key, "Name"), "text");
    EXPECT_TRUE(registry.GetBinaryValue(User, key, "Name", bytes, false));
    registry.GetDwordValue(User, key, "Other", missing);
    EXPECT_TRUE(missing);
}

}  // namespace
}  // namespace velkarix
