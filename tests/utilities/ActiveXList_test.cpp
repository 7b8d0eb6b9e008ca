#include "utilities/ActiveXList.h"

#include <gtest/gtest.h>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {
namespace {

using Names = std::vector<std::string>;
using namespace std::string_literals;

class ActiveXListTest : public testing::Test {
  protected:
    void List(const std::string& text) { machine.AddFile(path).Content(text); }
    // The keys that are worked on, without what they have in common.
    Names Read() {
        Names names;
        result = ForEachListedKey(machine.files, path, [&names](const std::string& key) {
            ASSERT_TRUE(key.starts_with(CompatibilityKeys)) << key;
            names.push_back(key.substr(std::string(CompatibilityKeys).size()));
        });
        EXPECT_EQ(machine.files.OpenFileCount(), 0u);
        return names;
    }
    Names NamesIn(const std::string& text) {
        List(text);
        Names names = Read();
        EXPECT_EQ(result, error::Success);
        return names;
    }

    MemoryMachine machine;
    const std::string path = "C:\\Velkarix\\MalActivex.scl";
    ErrorCode result = error::BadKey;
};

TEST_F(ActiveXListTest, KeysStandWhereTheBrowserLooks) {
    EXPECT_STREQ(CompatibilityKeys,
                 "SOFTWARE\\Microsoft\\Internet Explorer\\ActiveX Compatibility\\");
}

TEST_F(ActiveXListTest, NamesTheKeysInTheOrderOfTheLines) {
    EXPECT_EQ(NamesIn("{B}\r\n{A}\r\n{B}\r\n"), (Names{"{B}", "{A}", "{B}"}));
}

TEST_F(ActiveXListTest, TakesAnyLineEndAndNeedsNoneAtTheEnd) {
    EXPECT_EQ(NamesIn("{A}\r{B}\n{C}\r\n{D}"), (Names{"{A}", "{B}", "{C}", "{D}"}));
}

TEST_F(ActiveXListTest, SkipsEmptyLines) {
    EXPECT_EQ(NamesIn("\r\n{A}\r\n\r\n\n\r{B}\r\n\r\n"), (Names{"{A}", "{B}"}));
    EXPECT_EQ(NamesIn("\r\n"), Names{});
    EXPECT_EQ(NamesIn(""), Names{});
}

TEST_F(ActiveXListTest, ListsNothingWhereThereIsNoFile) {
    EXPECT_EQ(Read(), Names{});
    EXPECT_EQ(result, error::Success);
}

TEST_F(ActiveXListTest, TakesLinesAsTheyStand) {
    const Names lines = {
        " {A}", "{A} ",    "{A B}", "   ", "\t",  "..",           ".",
        "x\\y", "{A}\\",   "a/b",   "*?",  "%A%", "\x81\xFF\xE9", "\xEF\xBB\xBF{A}",
        "\x1A", "{A}\x1A", ";{A}",  "{a}"};
    for (const std::string& line : lines) EXPECT_EQ(NamesIn(line + "\r\n"), Names{line}) << line;
}

// The system skips such backslashes, or ends the path there: at the key that holds all others.
TEST_F(ActiveXListTest, PassesOverABackslashInFront) {
    EXPECT_EQ(NamesIn("\\\r\n\\\\\r\n\\{A}\r\n\\\\{A}\r\n\\..\r\n{B}\r\n"), Names{"{B}"});
}

// The system takes it for the end of the path.
TEST_F(ActiveXListTest, PassesOverLinesWithANul) {
    EXPECT_EQ(NamesIn("\0\r\n\0{A}\r\n{A}\0\r\n{A}\0{B}\r\n{C}\r\n"s), Names{"{C}"});
    EXPECT_EQ(NamesIn("\xFF\xFE{\0A\0}\0\r\0\n\0"s), Names{});
}

TEST_F(ActiveXListTest, PassesOverWhatIsLongerThanAnyPath) {
    const std::size_t longest = 32767 - std::string(CompatibilityKeys).size();
    std::string name(longest, 'x');
    EXPECT_EQ(NamesIn(name + "\r\n{A}\r\n"), (Names{name, "{A}"}));
    for (const std::size_t length : {longest + 1, std::size_t{65536}, std::size_t{3000000}}) {
        name.resize(length, 'x');
        EXPECT_EQ(NamesIn(name + "\r\n{A}\r\n"), Names{"{A}"}) << length;
    }
}

TEST_F(ActiveXListTest, ReadsTheFileAnewEachTime) {
    EXPECT_EQ(NamesIn("{A}\r\n"), Names{"{A}"});
    EXPECT_EQ(NamesIn("{B}\r\n"), Names{"{B}"});
}

TEST_F(ActiveXListTest, TellsWhyAFileCanNotBeOpened) {
    machine.AddFile(path).Content("{A}\r\n").Unreadable();
    EXPECT_EQ(Read(), Names{});
    EXPECT_EQ(result, error::SharingViolation);
}

TEST_F(ActiveXListTest, TakesAFolderForAListThatCanNotBeOpened) {
    machine.AddFolder(path);
    EXPECT_EQ(Read(), Names{});
    EXPECT_EQ(result, error::AccessDenied);
}

TEST_F(ActiveXListTest, GivesTheWholeLinesBeforeTheBreak) {
    std::string text = "{A}\r\n{B}\r\n";
    text.append(64 * 1024, 'x').append("\r\n{C}\r\n");  // more than is read at once
    List(text);
    machine.Journal().Clear();
    machine.Journal().FailCall(3, error::InvalidData);  // the second read
    EXPECT_EQ(Read(), (Names{"{A}", "{B}"}));
    EXPECT_EQ(result, error::InvalidData);
    EXPECT_EQ(machine.Journal().CountOf("ReadFile"), 2u);
}

TEST_F(ActiveXListTest, GivesNothingOfALineThatBrokeOff) {
    List("{A");
    machine.Journal().Clear();
    machine.Journal().FailCall(3, error::InvalidData);
    EXPECT_EQ(Read(), Names{});
    EXPECT_EQ(result, error::InvalidData);
    machine.Journal().Clear();
    machine.Journal().FailCall(2, error::InvalidData);  // the first read
    EXPECT_EQ(Read(), Names{});
    EXPECT_EQ(result, error::InvalidData);
}

}  // namespace
}  // namespace velkarix
