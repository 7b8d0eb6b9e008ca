// Names that the calls can list and can't ask for: they hold a NUL, or characters that the code
// page lacks. Only NT keeps such names; Wine does under every name.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "tests/conformance/RegistryScratch.h"

namespace velkarix {
namespace {

using Names = std::vector<std::string>;

const std::u16string WideNul(u"Key\0x", 5);
const std::string WithNul("Key\0x", 5);
const std::u16string Foreign = u"\u0430\u0431";

class RegistryNames : public RegistryConformance {
  protected:
    Names ValueNames(KeyHandle key) {
        Names names;
        std::string name;
        std::uint32_t type = 0;
        std::uint32_t size = 0;
        Bytes data(64);
        for (std::uint32_t index = 0;
             registry_.RegEnumValueA(key, index, 256, name, type, data, size) == error::Success;
             ++index) {
            names.push_back(name);
        }
        return names;
    }
};

INSTANTIATE_TEST_SUITE_P(Home, RegistryNames, testing::ValuesIn(FamiliesOfHome()), NameOfFamily);

TEST_P(RegistryNames, AKeyIsListedWithItsNulAndLeadsToTheOneNamedByThePartBefore) {
    home_->MakeNamedKey(WideNul);
    EXPECT_EQ(SubKeys(scratch_), Names{WithNul});
    EXPECT_EQ(Open(WithNul), error::FileNotFound);
    Create("Key\\Below");
    EXPECT_EQ(SubKeys(scratch_), (Names{"Key", WithNul}));
    EXPECT_EQ(SubKeys(Opened(WithNul, KeyAccess::Read)), Names{"Below"});
}

TEST_P(RegistryNames, AValueIsListedWithItsNulAndLeadsToTheOneNamedByThePartBefore) {
    home_->MakeNamedValue(WideNul, registryType::Binary, {1});
    EXPECT_EQ(ValueNames(scratch_), Names{WithNul});
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    EXPECT_EQ(registry_.RegQueryValueExA(scratch_, WithNul, type, nullptr, size),
              error::FileNotFound);
    registry_.RegSetValueExA(scratch_, "Key", registryType::Binary, {2});
    EXPECT_EQ(ValueOf(scratch_, WithNul), Bytes{2});
    EXPECT_EQ(ValueNames(scratch_).size(), 2u);
}

TEST_P(RegistryNames, AKeyOfOtherCharactersIsListedByQuestionMarksThatLeadNowhere) {
    home_->MakeNamedKey(Foreign);
    EXPECT_EQ(SubKeys(scratch_), Names{"??"});
    EXPECT_EQ(Open("??"), error::FileNotFound);
    EXPECT_EQ(registry_.RegDeleteKeyA(scratch_, "??"), error::FileNotFound);
}

// The one that can be asked for comes first, as its characters do.
TEST_P(RegistryNames, AKeyOfOtherCharactersIsListedBehindTheOneThatItsNameLeadsTo) {
    home_->MakeNamedKey(Foreign);
    Create("??\\Below");
    EXPECT_EQ(SubKeys(scratch_), (Names{"??", "??"}));
    EXPECT_EQ(SubKeys(Opened("??", KeyAccess::Read)), Names{"Below"});
    EXPECT_EQ(registry_.RegDeleteKeyA(scratch_, "??\\Below"), error::Success);
    EXPECT_EQ(registry_.RegDeleteKeyA(scratch_, "??"), error::Success);
    EXPECT_EQ(SubKeys(scratch_), Names{"??"});
}

TEST_P(RegistryNames, AValueOfOtherCharactersIsListedByQuestionMarksThatLeadNowhere) {
    home_->MakeNamedValue(Foreign, registryType::Binary, {1});
    EXPECT_EQ(ValueNames(scratch_), Names{"??"});
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    EXPECT_EQ(registry_.RegQueryValueExA(scratch_, "??", type, nullptr, size), error::FileNotFound);
    registry_.RegSetValueExA(scratch_, "??", registryType::Binary, {2});
    EXPECT_EQ(ValueOf(scratch_, "??"), Bytes{2});
    EXPECT_EQ(ValueNames(scratch_), (Names{"??", "??"}));
}

}  // namespace
}  // namespace velkarix
