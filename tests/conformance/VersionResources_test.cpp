#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "tests/conformance/Home.h"
#include "tests/field/VersionCases.h"
#include "tests/machine/VersionResourceBuilder.h"

namespace velkarix {
namespace {

constexpr const char* translation = "\\VarFileInfo\\Translation";

Bytes Text(const std::string& text) {
    Bytes data(text.begin(), text.end());
    data.push_back(0);
    return data;
}

Bytes Example() {
    return VersionResourceBuilder()
        .Translation(0x409, 0x4B0)
        .Translation(0x407, 0x4E4)
        .Strings("040904B0", {{"CompanyName", "Example Ltd"},
                              {"FileVersion", "1, 0, 0, 1"},
                              {"Comments", ""},
                              {"LegalCopyright", "\xA9 Caf\xE9"}})
        .Strings("040704E4", {{"CompanyName", "Beispiel"}})
        .Build();
}

}  // namespace

class VersionConformance : public Conformance {
  protected:
    VersionResources& versions_ = machine_.versionResources;
};

INSTANTIATE_TEST_SUITE_P(Home, VersionConformance, testing::ValuesIn(FamiliesOfHome()),
                         NameOfFamily);

TEST_P(VersionConformance, TheTranslationTableIsLanguagesAndCodePages) {
    EXPECT_EQ(versions_.VerQueryValueA(Example(), translation),
              (Bytes{0x09, 0x04, 0xB0, 0x04, 0x07, 0x04, 0xE4, 0x04}));
}

TEST_P(VersionConformance, TheRootIsTheFixedBlock) {
    const auto fixed = versions_.VerQueryValueA(Example(), "\\");
    ASSERT_TRUE(fixed.has_value());
    ASSERT_EQ(fixed->size(), 52u);
    EXPECT_EQ(Bytes(fixed->begin(), fixed->begin() + 4), (Bytes{0xBD, 0x04, 0xEF, 0xFE}));
}

TEST_P(VersionConformance, AFieldIsATextWithItsNul) {
    const Bytes block = Example();
    EXPECT_EQ(versions_.VerQueryValueA(block, "\\StringFileInfo\\040904B0\\CompanyName"),
              Text("Example Ltd"));
    EXPECT_EQ(versions_.VerQueryValueA(block, "\\StringFileInfo\\040904B0\\FileVersion"),
              Text("1, 0, 0, 1"));
    EXPECT_EQ(versions_.VerQueryValueA(block, "\\StringFileInfo\\040704E4\\CompanyName"),
              Text("Beispiel"));
}

TEST_P(VersionConformance, AccentsComeBackInTheAnsiCodePage) {
    EXPECT_EQ(versions_.VerQueryValueA(Example(), "\\StringFileInfo\\040904B0\\LegalCopyright"),
              Text("\xA9 Caf\xE9"));
}

TEST_P(VersionConformance, NamesAreFoundWithoutCase) {
    EXPECT_EQ(versions_.VerQueryValueA(Example(), "\\STRINGFILEINFO\\040904b0\\companyname"),
              Text("Example Ltd"));
}

TEST_P(VersionConformance, WhatIsNotInTheBlockIsNotFound) {
    const Bytes block = Example();
    EXPECT_EQ(versions_.VerQueryValueA(block, "\\StringFileInfo\\040904B0\\ProductName"),
              std::nullopt);
    EXPECT_EQ(versions_.VerQueryValueA(block, "\\StringFileInfo\\08090000\\CompanyName"),
              std::nullopt);
    EXPECT_EQ(versions_.VerQueryValueA(block, "\\Nothing"), std::nullopt);
}

TEST_P(VersionConformance, AResourceWithoutTranslationsHasNoTable) {
    const Bytes block =
        VersionResourceBuilder().Strings("040904B0", {{"CompanyName", "Example"}}).Build();
    EXPECT_EQ(versions_.VerQueryValueA(block, translation), std::nullopt);
    EXPECT_EQ(versions_.VerQueryValueA(block, "\\StringFileInfo\\040904B0\\CompanyName"),
              Text("Example"));
}

TEST_P(VersionConformance, NoBlockHoldsNothing) {
    EXPECT_EQ(versions_.VerQueryValueA({}, translation), std::nullopt);
    EXPECT_EQ(versions_.VerQueryValueA(Bytes(3, 0xFF), translation), std::nullopt);
    EXPECT_EQ(versions_.VerQueryValueA(Bytes(64, 0), translation), std::nullopt);
}

TEST_P(VersionConformance, ABlockCutAnywhereIsNeverReadBeyondItsEnd) {
    const Bytes whole = Example();
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
        for (const char* part : {"\\", translation, "\\StringFileInfo\\040704E4\\CompanyName"}) {
            const auto found = versions_.VerQueryValueA(cut, part);
            EXPECT_LE(found.value_or(Bytes()).size(), size);
        }
    }
}

// Whatever lengths it tells, the same is read of it everywhere.
TEST_P(VersionConformance, ABrokenBlockTellsWhatCanBeReachedInIt) {
    for (const VersionCase& each : AllVersionCases()) {
        const auto table = versions_.VerQueryValueA(each.block, translation);
        const bool isEnglish = table == Bytes{0x09, 0x04, 0xB0, 0x04};
        const auto read = [&](const char* name) {
            const auto found = versions_.VerQueryValueA(
                each.block, std::string("\\StringFileInfo\\040904B0\\") + name);
            const Bytes bytes = isEnglish ? found.value_or(Bytes()) : Bytes();
            return std::string(bytes.begin(), std::find(bytes.begin(), bytes.end(), 0));
        };
        EXPECT_EQ(read("CompanyName"), each.company) << each.name;
        EXPECT_EQ(read("ProductName"), each.product) << each.name;
        EXPECT_EQ(read("FileDescription"), each.description) << each.name;
    }
}

TEST_P(VersionConformance, AFilesResourceIsReadWhole) {
    const std::string path = home_->VersionedFile();
    const std::uint32_t size = versions_.GetFileVersionInfoSizeA(path);
    ASSERT_GT(size, 0u);
    const auto block = versions_.GetFileVersionInfoA(path, size);
    ASSERT_TRUE(block.has_value());
    EXPECT_EQ(versions_.VerQueryValueA(*block, translation), (Bytes{0x09, 0x04, 0xB0, 0x04}));
    const auto version =
        versions_.VerQueryValueA(*block, "\\StringFileInfo\\040904B0\\FileVersion");
    ASSERT_TRUE(version.has_value());
    EXPECT_GT(version->size(), 1u);
    EXPECT_EQ(version->back(), 0);
}

TEST_P(VersionConformance, AFileWithoutAResourceHasNone) {
    home_->MakeFile(In("file.txt"), "no resource");
    EXPECT_EQ(versions_.GetFileVersionInfoSizeA(In("file.txt")), 0u);
    EXPECT_EQ(versions_.GetFileVersionInfoSizeA(In("missing.exe")), 0u);
    EXPECT_EQ(versions_.GetFileVersionInfoA(In("missing.exe"), 100), std::nullopt);
}

}  // namespace velkarix
