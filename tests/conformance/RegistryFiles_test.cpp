#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "registry/CopyKeyTree.h"
#include "registry/KeyTree.h"
#include "registry/RegistryFile.h"
#include "tests/conformance/RegistryScratch.h"

namespace velkarix {
namespace {

Bytes Text(const std::string& text) {
    Bytes data(text.begin(), text.end());
    data.push_back(0);
    return data;
}

}  // namespace

// That the system's own editor brings back what was written into a registry file.
class RegistryFileConformance : public RegistryConformance {
  protected:
    void Set(const std::string& key, const std::string& name, std::uint32_t type,
             const Bytes& data) {
        KeyHandle opened = 0;
        ASSERT_EQ(registry_.RegCreateKeyA(scratch_, key, opened), error::Success) << key;
        EXPECT_EQ(registry_.RegSetValueExA(opened, name, type, data), error::Success) << name;
        registry_.RegCloseKey(opened);
    }
    std::string Path(const std::string& key) { return home_->ScratchKey() + "\\" + key; }

    void DeleteTree(KeyHandle parent, const std::string& name) {
        KeyHandle key = 0;
        ASSERT_EQ(registry_.RegOpenKeyExA(parent, name, KeyAccess::All, key), error::Success);
        for (const std::string& below : SubKeys(key)) DeleteTree(key, below);
        registry_.RegCloseKey(key);
        ASSERT_EQ(registry_.RegDeleteKeyA(parent, name), error::Success);
    }

    void Merge(const std::string& sections) {
        home_->MakeFile(In("item.reg"), std::string(RegistryFileHeader) + sections);
        ASSERT_TRUE(home_->MergeRegistryFile(In("item.reg")));
    }

    // Takes the key Item away and merges its file; it must be again what its copy is.
    void ExpectItemComesBack() {
        ASSERT_EQ(CopyKeyTree(registry_, scratch_, "Item", Created("Copy")), error::Success);
        ASSERT_EQ(Contains("Copy", "Item"), error::Success);
        std::string sections;
        ASSERT_EQ(ExportKeyTree(registry_, Hive::CurrentUser, Path("Item"), sections),
                  error::Success);
        DeleteTree(scratch_, "Item");
        Merge(sections);
        EXPECT_EQ(Contains("Item", "Copy"), error::Success) << sections;
        EXPECT_EQ(Contains("Copy", "Item"), error::Success) << sections;
    }
    ErrorCode Contains(const std::string& whole, const std::string& part) {
        return ContainsTree(registry_, Hive::CurrentUser, Path(whole), Path(part));
    }
};

INSTANTIATE_TEST_SUITE_P(Home, RegistryFileConformance, testing::ValuesIn(FamiliesOfHome()),
                         NameOfFamily);

TEST_P(RegistryFileConformance, BringsBackBytesOfEveryTypeAndSize) {
    const std::vector<Bytes> contents = {{},
                                         {0},
                                         {1},
                                         {'a', 'b', 0},
                                         {'a', 'b'},
                                         {1, 2, 3, 4},
                                         {0, 0, 0, 0},
                                         {0xE4, 0xF6, 0, 0},
                                         {0, 0x80},
                                         {'a', 0, 'b', 0, 0},
                                         Bytes(5, 0),
                                         {'a', '\r', '\n', 'b', 0},
                                         Bytes(300, 0x81)};
    for (const std::uint32_t type :
         {0u, 1u, 2u, 3u, 4u, 5u, 6u, 7u, 8u, 9u, 10u, 11u, 12u, 0x4242u, 0xFFFFFFFFu}) {
        const bool isText = type == registryType::Sz || type == registryType::ExpandSz ||
                            type == registryType::MultiSz;
        for (std::size_t i = 0; i < contents.size(); ++i) {
            const Bytes& data = contents[i];
            // Merging ends a text with a NUL where it has none.
            if (isText && !data.empty() && data.back() != 0) continue;
            Set("Item", std::to_string(type) + " " + std::to_string(i), type, data);
        }
    }
    ExpectItemComesBack();
}

TEST_P(RegistryFileConformance, BringsBackTextsWithSignsOfItsOwn) {
    const std::vector<std::string> texts = {"",
                                            "a\"b",
                                            "\"",
                                            "\\",
                                            "a\\",
                                            "\\\\",
                                            "\\n",
                                            "C:\\a b\\c.exe \"%1\" /x;y",
                                            "\xE4\\\xF6",
                                            "caf\xE9",
                                            "\x80\x9F\xFF",
                                            " lead",
                                            "trail ",
                                            ";",
                                            "hex:00",
                                            "=",
                                            "[x]",
                                            "a\nb",
                                            "a\rb",
                                            "tab\there",
                                            "\x01\x1A\x1F\x7F",
                                            std::string(3000, 'x')};
    for (std::size_t i = 0; i < texts.size(); ++i) {
        Set("Item", std::to_string(i), registryType::Sz, Text(texts[i]));
        Set("Item", "path " + std::to_string(i), registryType::ExpandSz, Text(texts[i]));
    }
    ExpectItemComesBack();
}

TEST_P(RegistryFileConformance, BringsBackValuesByAnyName) {
    for (const std::string& name : std::vector<std::string>{
             "", "@", "\"", "\\", "a\"b\\c", "\\n", "=", "a=b", "\"=\"", ";x", " lead", "trail ",
             "\xE4\xF6\xFC", "\x80\xFF", "[x]", "-", "{0-0}", std::string(255, 'n')}) {
        Set("Item", name, registryType::Sz, Text("text of " + name));
        Set("Item\\Below", name, registryType::Binary, Bytes(name.begin(), name.end()));
    }
    ExpectItemComesBack();
}

TEST_P(RegistryFileConformance, BringsBackKeysByAnyNameWithAndWithoutValues) {
    for (const std::string name : {"{0-0}", "a]b", "]", "[", "[a]", "a] ;b", "-x", "\"q\"", " lead",
                                   "trail ", "\xE4\xF6", "\x80\xFF", ";", "@", "=", "REGEDIT4"}) {
        Create("Item\\" + name + "\\Empty");
        Set("Item\\" + name + "\\Full", name, registryType::Dword, {1, 0, 0, 0});
    }
    ExpectItemComesBack();
}

TEST_P(RegistryFileConformance, BringsBackATextThatHadNoNul) {
    home_->MakeUnendedText("Name", "ab");
    std::string section;
    ASSERT_EQ(ExportValue(registry_, Hive::CurrentUser, home_->ScratchKey(), "Name", section),
              error::Success);
    ASSERT_EQ(registry_.RegDeleteValueA(scratch_, "Name"), error::Success);
    Merge(section);
    const Bytes text = ValueOf(scratch_, "Name");
    EXPECT_EQ(std::string(text.begin(), text.end()).substr(0, 2), "ab");
}

TEST_P(RegistryFileConformance, BringsBackOneValueAmongOthers) {
    Set("Item", "Name", registryType::Binary, {1});
    Set("Item", "Other", registryType::Binary, {2});
    std::string section;
    ASSERT_EQ(ExportValue(registry_, Hive::CurrentUser, Path("Item"), "Name", section),
              error::Success);
    Set("Item", "Name", registryType::Sz, Text("changed"));
    Set("Item", "Other", registryType::Binary, {3});
    Merge(section);
    const KeyHandle item = Opened("Item", KeyAccess::Read);
    EXPECT_EQ(ValueOf(item, "Name"), Bytes{1});
    EXPECT_EQ(ValueOf(item, "Other"), Bytes{3});
}

}  // namespace velkarix
