#include "registry/RegistryFile.h"

#include <gtest/gtest.h>

#include "tests/machine/RegistryFileMerge.h"
#include "tests/registry/RegistryFixture.h"

namespace velkarix {
namespace {

class RegistryFileTest : public RegistryFixture {
  protected:
    ErrorCode ExportTree() { return ExportKeyTree(machine.registry, User, key, text); }
    ErrorCode ExportOne(const std::string& name) {
        return ExportValue(machine.registry, User, key, name, text);
    }
    void AddTree() {
        machine.SetValue(User, key, "", "default");
        machine.SetDword(User, key, "Number", 10);
        machine.AddKey(User, key + "\\Bare");
        machine.registry.SetRaw(User, key + "\\Sub\\Deep", "Bytes", registryType::Binary, {1});
    }

    std::string text = "before";
};

TEST_F(RegistryFileTest, WritesASectionForEveryKeyOfATree) {
    AddTree();
    EXPECT_EQ(ExportTree(), error::Success);
    EXPECT_EQ(text,
              "before"
              "[HKEY_CURRENT_USER\\Software\\Example]\r\n"
              "@=\"default\"\r\n"
              "\"Number\"=dword:0000000a\r\n"
              "\r\n"
              "[HKEY_CURRENT_USER\\Software\\Example\\Bare]\r\n"
              "\r\n"
              "[HKEY_CURRENT_USER\\Software\\Example\\Sub]\r\n"
              "\r\n"
              "[HKEY_CURRENT_USER\\Software\\Example\\Sub\\Deep]\r\n"
              "\"Bytes\"=hex:01\r\n"
              "\r\n");
}

TEST_F(RegistryFileTest, WritesASectionForOneValue) {
    AddTree();
    EXPECT_EQ(ExportOne("Number"), error::Success);
    EXPECT_EQ(text,
              "before"
              "[HKEY_CURRENT_USER\\Software\\Example]\r\n"
              "\"Number\"=dword:0000000a\r\n"
              "\r\n");
}

TEST_F(RegistryFileTest, NamesTheHive) {
    text.clear();
    for (const Hive hive : {Hive::ClassesRoot, Hive::CurrentUser, Hive::LocalMachine}) {
        EXPECT_EQ(ExportSection(hive, "A", {}, text), error::Success);
    }
    EXPECT_EQ(text,
              "[HKEY_CLASSES_ROOT\\A]\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n\r\n"
              "[HKEY_LOCAL_MACHINE\\A]\r\n\r\n");
}

TEST_F(RegistryFileTest, AMergeBringsTheTreeBackExactly) {
    AddTree();
    for (std::uint32_t type = 0; type < 14; ++type) {
        const std::string name = std::to_string(type);
        machine.registry.SetRaw(User, key + "\\Sub", name, type, {1, 2, 255, 0});
        machine.registry.SetRaw(User, key + "\\Sub", name + " empty", type, {});
        machine.registry.SetRaw(User, key + "\\Sub", name + " long", type, Bytes(1000, 0x5C));
    }
    machine.SetValue(User, key + "\\a]b\\[c", "\"\\", "C:\\a \"b\"\\");
    const std::string before = machine.registry.TreeText(User, key);
    text = RegistryFileHeader;
    EXPECT_EQ(ExportTree(), error::Success);
    machine.registry.RemoveKey(User, key);
    EXPECT_TRUE(MergeRegistryFile(machine.registry, text));
    EXPECT_EQ(machine.registry.TreeText(User, key), before);
}

TEST_F(RegistryFileTest, TellsThatThereIsNothingToWrite) {
    EXPECT_EQ(ExportTree(), error::FileNotFound);
    EXPECT_EQ(ExportOne("Name"), error::FileNotFound);
    machine.AddKey(User, key);
    EXPECT_EQ(ExportOne("Name"), error::FileNotFound);
    EXPECT_EQ(text, "before");
}

TEST_F(RegistryFileTest, RefusesNamesThatAMergeWouldNotBringBack) {
    machine.SetValue(User, key, "a", "text");
    machine.SetValue(User, key, "line\nbreak", "text");
    EXPECT_EQ(ExportTree(), error::InvalidData);
    EXPECT_EQ(ExportOne("line\nbreak"), error::InvalidData);
    EXPECT_EQ(ExportSection(User, "line\rbreak", {}, text), error::InvalidData);
    EXPECT_EQ(text, "before");
    machine.registry.RemoveKey(User, key);
    machine.AddKey(User, key + "\\a\\line\nbreak");
    EXPECT_EQ(ExportTree(), error::InvalidData);
    EXPECT_EQ(text, "before");
}

TEST_F(RegistryFileTest, WritesNothingWhenAnyOfItsReadingCallsFails) {
    AddTree();
    EXPECT_EQ(ExportTree(), error::Success);
    EXPECT_EQ(ExportOne("Number"), error::Success);
    const std::string whole = text;
    const std::vector<std::string> calls = Calls();
    for (std::size_t i = 0; i < calls.size(); ++i) {
        if (calls[i] == "RegCloseKey") continue;
        text.clear();
        machine.Journal().Clear();
        machine.Journal().FailCall(i, error::BadKey);
        const ErrorCode tree = ExportTree();
        const std::string treeText = text;
        const ErrorCode value = ExportOne("Number");
        EXPECT_TRUE(tree == error::BadKey || value == error::BadKey) << i << " " << calls[i];
        EXPECT_EQ(treeText.empty(), tree != error::Success) << i << " " << calls[i];
        EXPECT_EQ(text == treeText, value != error::Success) << i << " " << calls[i];
    }
}

TEST_F(RegistryFileTest, EndsInATreeThatNeverDoes) {
    std::string path = key;
    for (int level = 0; level < 600; ++level) path += "\\x";
    machine.AddKey(User, path);
    EXPECT_EQ(ExportTree(), error::BadKey);
    EXPECT_EQ(text, "before");
}

}  // namespace
}  // namespace velkarix
