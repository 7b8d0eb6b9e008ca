#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/conformance/RegistryScratch.h"

namespace velkarix {
namespace {

Bytes Text(const std::string& text) {
    Bytes data(text.begin(), text.end());
    data.push_back(0);
    return data;
}

}  // namespace

class NtRegistryConformance : public RegistryConformance {};
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(NtRegistryConformance);
INSTANTIATE_TEST_SUITE_P(Home, NtRegistryConformance, testing::ValuesIn(Only(Family::WindowsNt)),
                         NameOfFamily);

class Windows95RegistryConformance : public RegistryConformance {};
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Windows95RegistryConformance);
INSTANTIATE_TEST_SUITE_P(Home, Windows95RegistryConformance,
                         testing::ValuesIn(Only(Family::Windows95)), NameOfFamily);

TEST_P(RegistryConformance, AValueIsAskedForWithoutCase) {
    registry_.RegSetValueExA(scratch_, "Name", registryType::Sz, Text("a"));
    EXPECT_EQ(ValueOf(scratch_, "NAME"), Text("a"));
}

TEST_P(RegistryConformance, AValuesNameEndsAtItsNul) {
    const std::string name("Name\0x", 6);
    EXPECT_EQ(registry_.RegSetValueExA(scratch_, name, registryType::Sz, Text("a")),
              error::Success);
    EXPECT_EQ(ValueOf(scratch_, "Name"), Text("a"));
    EXPECT_EQ(ValueOf(scratch_, name), Text("a"));
    EXPECT_EQ(registry_.RegDeleteValueA(scratch_, name), error::Success);
    EXPECT_EQ(ValueOf(scratch_, "Name"), Bytes());
}

TEST_P(RegistryConformance, WritingAValueAgainReplacesItAndKeepsItsSpelling) {
    registry_.RegSetValueExA(scratch_, "Name", registryType::Sz, Text("old"));
    registry_.RegSetValueExA(scratch_, "NAME", registryType::Dword, {1, 2, 3, 4});
    std::string name;
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    Bytes data(16);
    ASSERT_EQ(registry_.RegEnumValueA(scratch_, 0, 256, name, type, data, size), error::Success);
    EXPECT_EQ(name, "Name");
    EXPECT_EQ(type, registryType::Dword);
    EXPECT_EQ(size, 4u);
    EXPECT_EQ(registry_.RegEnumValueA(scratch_, 1, 256, name, type, data, size),
              error::NoMoreItems);
}

TEST_P(RegistryConformance, TheSizeOfATextCountsItsNul) {
    registry_.RegSetValueExA(scratch_, "Name", registryType::Sz, Text("four"));
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    EXPECT_EQ(registry_.RegQueryValueExA(scratch_, "Name", type, nullptr, size), error::Success);
    EXPECT_EQ(type, registryType::Sz);
    EXPECT_EQ(size, 5u);
}

TEST_P(RegistryConformance, ABufferTooSmallIsToldTheSize) {
    registry_.RegSetValueExA(scratch_, "Name", registryType::Binary, {1, 2, 3, 4, 5, 6});
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    Bytes buffer(5);
    EXPECT_EQ(registry_.RegQueryValueExA(scratch_, "Name", type, &buffer, size), error::MoreData);
    EXPECT_EQ(size, 6u);
    buffer.resize(6);
    EXPECT_EQ(registry_.RegQueryValueExA(scratch_, "Name", type, &buffer, size), error::Success);
    EXPECT_EQ(buffer, (Bytes{1, 2, 3, 4, 5, 6}));
}

TEST_P(RegistryConformance, AnEmptyBufferIsTooSmallForAnyValueButAnEmptyOne) {
    registry_.RegSetValueExA(scratch_, "Name", registryType::Binary, {1});
    registry_.RegSetValueExA(scratch_, "Empty", registryType::Binary, {});
    std::uint32_t type = 0;
    std::uint32_t size = 77;
    Bytes buffer;
    EXPECT_EQ(registry_.RegQueryValueExA(scratch_, "Name", type, &buffer, size), error::MoreData);
    EXPECT_EQ(size, 1u);
    EXPECT_EQ(registry_.RegQueryValueExA(scratch_, "Empty", type, &buffer, size), error::Success);
    EXPECT_EQ(size, 0u);
}

TEST_P(RegistryConformance, ABiggerBufferKeepsWhatStandsBehindTheValue) {
    registry_.RegSetValueExA(scratch_, "Name", registryType::Binary, {1, 2});
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    Bytes buffer(4, 0xEE);
    EXPECT_EQ(registry_.RegQueryValueExA(scratch_, "Name", type, &buffer, size), error::Success);
    EXPECT_EQ(size, 2u);
    EXPECT_EQ(buffer, (Bytes{1, 2, 0xEE, 0xEE}));
}

TEST_P(RegistryConformance, AMissingValueIsNotFound) {
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    EXPECT_EQ(registry_.RegQueryValueExA(scratch_, "Missing", type, nullptr, size),
              error::FileNotFound);
    EXPECT_EQ(registry_.RegDeleteValueA(scratch_, "Missing"), error::FileNotFound);
}

TEST_P(RegistryConformance, TheDefaultValueHasTheEmptyName) {
    registry_.RegSetValueExA(scratch_, "", registryType::Sz, Text("default"));
    EXPECT_EQ(ValueOf(scratch_, ""), Text("default"));
    std::string name = "before";
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    Bytes data(16);
    ASSERT_EQ(registry_.RegEnumValueA(scratch_, 0, 256, name, type, data, size), error::Success);
    EXPECT_EQ(name, "");
    EXPECT_EQ(registry_.RegDeleteValueA(scratch_, ""), error::Success);
    EXPECT_EQ(ValueOf(scratch_, ""), Bytes());
}

TEST_P(RegistryConformance, AnyTypeWithAnyBytesComesBackAsItWas) {
    const std::uint32_t types[] = {
        registryType::None, registryType::Binary, registryType::Dword, registryType::Qword, 0x4242,
        0xFFFFFFFF};
    for (const std::uint32_t type : types) {
        registry_.RegSetValueExA(scratch_, "Name", type, {0, 0xFF, 7});
        std::uint32_t readType = 0;
        std::uint32_t size = 0;
        Bytes data(3);
        ASSERT_EQ(registry_.RegQueryValueExA(scratch_, "Name", readType, &data, size),
                  error::Success);
        EXPECT_EQ(readType, type);
        EXPECT_EQ(size, 3u);
        EXPECT_EQ(data, (Bytes{0, 0xFF, 7}));
    }
}

TEST_P(RegistryConformance, TextsOfAllKindsKeepTheirBytes) {
    const Bytes list = {'a', 0, 'b', 0, 0};
    registry_.RegSetValueExA(scratch_, "List", registryType::MultiSz, list);
    registry_.RegSetValueExA(scratch_, "Path", registryType::ExpandSz, Text("%windir%\\a.exe"));
    registry_.RegSetValueExA(scratch_, "Accents", registryType::Sz, Text("caf\xE9 \xFC"));
    registry_.RegSetValueExA(scratch_, "Empty", registryType::Sz, Text(""));
    EXPECT_EQ(ValueOf(scratch_, "List"), list);
    EXPECT_EQ(ValueOf(scratch_, "Path"), Text("%windir%\\a.exe"));
    EXPECT_EQ(ValueOf(scratch_, "Accents"), Text("caf\xE9 \xFC"));
    EXPECT_EQ(ValueOf(scratch_, "Empty"), Text(""));
}

TEST_P(NtRegistryConformance, TheNulOfATextIsStoredThoughItWasNotCounted) {
    for (const std::uint32_t type :
         {registryType::Sz, registryType::ExpandSz, registryType::MultiSz}) {
        registry_.RegSetValueExA(scratch_, "Name", type, {'a', 'b'});
        EXPECT_EQ(ValueOf(scratch_, "Name"), Text("ab")) << type;
        registry_.RegSetValueExA(scratch_, "Name", type, {'a', 0, 'b'});
        EXPECT_EQ(ValueOf(scratch_, "Name"), (Bytes{'a', 0, 'b', 0})) << type;
        registry_.RegSetValueExA(scratch_, "Name", type, {});
        EXPECT_EQ(ValueOf(scratch_, "Name"), Bytes()) << type;
    }
}

TEST_P(Windows95RegistryConformance, ASimpleTextIsStoredUpToItsNulWhateverTheSize) {
    for (const Bytes& data : {Bytes{'a', 'b'}, Bytes{'a', 'b', 0}, Bytes{'a', 'b', 0, 'c'}}) {
        registry_.RegSetValueExA(scratch_, "Name", registryType::Sz, data);
        EXPECT_EQ(ValueOf(scratch_, "Name"), Text("ab"));
    }
    registry_.RegSetValueExA(scratch_, "Name", registryType::Sz, {});
    EXPECT_EQ(ValueOf(scratch_, "Name"), Text(""));
    registry_.RegSetValueExA(scratch_, "Name", registryType::ExpandSz, {'a', 'b'});
    EXPECT_EQ(ValueOf(scratch_, "Name"), (Bytes{'a', 'b'}));
}

TEST_P(NtRegistryConformance, ATextStoredWithoutItsNulGetsOneBehindItWhereThereIsRoom) {
    home_->MakeUnendedText("Name", "ab");
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    Bytes buffer(4, 0xEE);
    ASSERT_EQ(registry_.RegQueryValueExA(scratch_, "Name", type, &buffer, size), error::Success);
    EXPECT_EQ(size, 2u);
    EXPECT_EQ(buffer, (Bytes{'a', 'b', 0, 0xEE}));
    buffer.assign(2, 0xEE);
    ASSERT_EQ(registry_.RegQueryValueExA(scratch_, "Name", type, &buffer, size), error::Success);
    EXPECT_EQ(buffer, (Bytes{'a', 'b'}));
}

TEST_P(RegistryConformance, EveryValueIsListedOnce) {
    // In which order, no system promises: NT lists values as they were written, Wine by name.
    const std::vector<std::string> names = {"gamma", "Alpha", "beta"};
    for (const std::string& name : names) {
        registry_.RegSetValueExA(scratch_, name, registryType::Sz, Text(name));
    }
    std::vector<std::string> listed;
    std::string name;
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    Bytes data(64);
    for (std::uint32_t index = 0;
         registry_.RegEnumValueA(scratch_, index, 256, name, type, data, size) == error::Success;
         ++index) {
        EXPECT_EQ(type, registryType::Sz);
        EXPECT_EQ(size, name.size() + 1);
        EXPECT_EQ(std::string(data.begin(), data.begin() + size - 1), name);
        listed.push_back(name);
    }
    std::sort(listed.begin(), listed.end());
    EXPECT_EQ(listed, (std::vector<std::string>{"Alpha", "beta", "gamma"}));
}

TEST_P(RegistryConformance, AListedValueThatDoesNotFitIsToldTheSize) {
    registry_.RegSetValueExA(scratch_, "Name", registryType::Binary, Bytes(5000, 7));
    std::string name;
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    Bytes data(4096);
    ASSERT_EQ(registry_.RegEnumValueA(scratch_, 0, 260, name, type, data, size), error::MoreData);
    EXPECT_EQ(size, 5000u);
    data.resize(size);
    ASSERT_EQ(registry_.RegEnumValueA(scratch_, 0, 260, name, type, data, size), error::Success);
    EXPECT_EQ(name, "Name");
    EXPECT_EQ(size, 5000u);
    EXPECT_EQ(data, Bytes(5000, 7));
}

TEST_P(RegistryConformance, AValueNameNeedsRoomForItsNul) {
    registry_.RegSetValueExA(scratch_, "Four", registryType::Binary, {1});
    std::string name;
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    Bytes data(16);
    EXPECT_EQ(registry_.RegEnumValueA(scratch_, 0, 4, name, type, data, size), error::MoreData);
    EXPECT_EQ(registry_.RegEnumValueA(scratch_, 0, 5, name, type, data, size), error::Success);
    EXPECT_EQ(name, "Four");
}

TEST_P(RegistryConformance, AValueNameMayHave255Bytes) {
    const std::string longest(255, 'v');
    EXPECT_EQ(registry_.RegSetValueExA(scratch_, longest, registryType::Binary, {1}),
              error::Success);
    EXPECT_EQ(ValueOf(scratch_, longest), Bytes{1});
    // The 95 family's limit; Wine keeps NT's under every name.
    if (IsNt()) {
        EXPECT_EQ(registry_.RegSetValueExA(scratch_, longest + "v", registryType::Binary, {1}),
                  error::Success);
    }
}

TEST_P(RegistryConformance, ADeletedValueIsGone) {
    registry_.RegSetValueExA(scratch_, "Name", registryType::Binary, {1});
    registry_.RegSetValueExA(scratch_, "Other", registryType::Binary, {2});
    EXPECT_EQ(registry_.RegDeleteValueA(scratch_, "NAME"), error::Success);
    EXPECT_EQ(ValueOf(scratch_, "Name"), Bytes());
    EXPECT_EQ(ValueOf(scratch_, "Other"), Bytes{2});
}

TEST_P(RegistryConformance, CopyingAKeyCopiesValuesAndSubKeysToAnyDepth) {
    const KeyHandle source = Created("Source");
    registry_.RegSetValueExA(source, "", registryType::Sz, Text("default"));
    registry_.RegSetValueExA(source, "Name", registryType::Dword, {1, 0, 0, 0});
    registry_.RegSetValueExA(Created("Source\\One\\Two"), "Deep", 0x4242, {9});
    const KeyHandle destination = Created("Destination");
    registry_.RegSetValueExA(destination, "Own", registryType::Binary, {5});

    ASSERT_EQ(registry_.SHCopyKeyA(scratch_, "Source", destination), error::Success);

    EXPECT_EQ(ValueOf(destination, ""), Text("default"));
    EXPECT_EQ(ValueOf(destination, "Name"), (Bytes{1, 0, 0, 0}));
    EXPECT_EQ(ValueOf(destination, "Own"), Bytes{5});
    EXPECT_EQ(ValueOf(Opened("Destination\\One\\Two", KeyAccess::Read), "Deep"), Bytes{9});
    EXPECT_EQ(ValueOf(Opened("Source\\One\\Two", KeyAccess::Read), "Deep"), Bytes{9});
}

TEST_P(RegistryConformance, CopyingWithAnEmptyPathCopiesTheKeyItself) {
    const KeyHandle source = Created("Source");
    registry_.RegSetValueExA(source, "Name", registryType::Binary, {1});
    const KeyHandle destination = Created("Destination");
    ASSERT_EQ(registry_.SHCopyKeyA(source, "", destination), error::Success);
    EXPECT_EQ(ValueOf(destination, "Name"), Bytes{1});
}

TEST_P(RegistryConformance, CopyingNeedsOnlyTheRightToWrite) {
    registry_.RegSetValueExA(Created("Source"), "Name", registryType::Binary, {1});
    Create("Destination");
    const KeyHandle destination = Opened("Destination", KeyAccess::Write);
    ASSERT_EQ(registry_.SHCopyKeyA(scratch_, "Source", destination), error::Success);
    EXPECT_EQ(ValueOf(Opened("Destination", KeyAccess::Read), "Name"), Bytes{1});
}

TEST_P(RegistryConformance, CopyingAMissingKeyFindsNothing) {
    EXPECT_EQ(registry_.SHCopyKeyA(scratch_, "Missing", Created("Destination")),
              error::FileNotFound);
}

}  // namespace velkarix
