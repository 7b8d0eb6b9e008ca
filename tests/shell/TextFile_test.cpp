#include "shell/TextFile.h"

#include <gtest/gtest.h>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {
namespace {

using Lines = std::vector<std::string>;

TEST(SplitLines, TakesAnyLineEnd) {
    EXPECT_EQ(SplitLines("a\r\nb\rc\nd"), (Lines{"a", "b", "c", "d"}));
}

TEST(SplitLines, GivesEmptyLinesTheirPlace) {
    EXPECT_EQ(SplitLines("a\r\n\r\nb\n\n"), (Lines{"a", "", "b", ""}));
    EXPECT_EQ(SplitLines("\r\n"), (Lines{""}));
}

TEST(SplitLines, FindsNoLineInAnEmptyText) {
    EXPECT_TRUE(SplitLines("").empty());
}

class TextFileTest : public testing::Test {
  protected:
    MemoryMachine machine;
    const std::string path = "C:\\Velkarix\\text.txt";
};

TEST_F(TextFileTest, ReadsAFileOfManyBlocksWhole) {
    const std::string text(200000, 'x');
    machine.AddFile(path).Content(text);
    EXPECT_EQ(ReadTextFile(machine.files, path), text);
    EXPECT_EQ(machine.files.OpenFileCount(), 0u);
}

TEST_F(TextFileTest, GivesNothingForAFileThatIsMissingOrBreaksOff) {
    EXPECT_FALSE(ReadTextFile(machine.files, path).has_value());
    machine.AddFile(path).Content("text");
    machine.FailNext("ReadFile");
    EXPECT_FALSE(ReadTextFile(machine.files, path).has_value());
    EXPECT_EQ(machine.files.OpenFileCount(), 0u);
}

TEST_F(TextFileTest, TellsAFileThatIsMissingFromOneThatCantBeRead) {
    std::string text = "before";
    EXPECT_EQ(ReadTextFile(machine.files, path, text), error::FileNotFound);
    EXPECT_EQ(text, "");
    machine.AddFile(path).Content("text");
    machine.FailNext("CreateFileA");
    EXPECT_EQ(ReadTextFile(machine.files, path, text), error::AccessDenied);
    EXPECT_EQ(ReadTextFile(machine.files, path, text), error::Success);
    EXPECT_EQ(text, "text");
}

TEST_F(TextFileTest, ReplacesAFile) {
    machine.AddFile(path).Content("a longer text than the new one");
    EXPECT_EQ(WriteTextFile(machine.files, path, "new"), error::Success);
    EXPECT_EQ(machine.disk.ContentOf(path), "new");
    EXPECT_EQ(machine.files.OpenFileCount(), 0u);
}

TEST_F(TextFileTest, SaysWhatKeptItFromWriting) {
    machine.AddFile(path).ReadOnly();
    EXPECT_EQ(WriteTextFile(machine.files, path, "new"), error::AccessDenied);
    EXPECT_EQ(WriteTextFile(machine.files, "X:\\text.txt", "new"), error::PathNotFound);
}

TEST_F(TextFileTest, SaysThatTheDiskIsFull) {
    machine.disk.SetFreeBytes(2);
    EXPECT_NE(WriteTextFile(machine.files, path, "four"), error::Success);
    EXPECT_EQ(machine.files.OpenFileCount(), 0u);
}

TEST_F(TextFileTest, AppendsToAFileAndMakesAMissingOne) {
    EXPECT_EQ(AppendTextFile(machine.files, path, "one"), error::Success);
    EXPECT_EQ(AppendTextFile(machine.files, path, " two"), error::Success);
    EXPECT_EQ(machine.disk.ContentOf(path), "one two");
    EXPECT_EQ(AppendTextFile(machine.files, "X:\\text.txt", "x"), error::PathNotFound);
    EXPECT_EQ(machine.files.OpenFileCount(), 0u);
}

TEST_F(TextFileTest, ReadsTheFirstLineWithoutItsEnd) {
    EXPECT_FALSE(ReadFirstLine(machine.files, path).has_value());
    machine.AddFile(path);
    EXPECT_FALSE(ReadFirstLine(machine.files, path).has_value());
    machine.AddFile(path).Content("first\r\nsecond");
    EXPECT_EQ(ReadFirstLine(machine.files, path), "first");
    machine.AddFile(path).Content("only");
    EXPECT_EQ(ReadFirstLine(machine.files, path), "only");
    machine.AddFile(path).Content("\r\nsecond");
    EXPECT_EQ(ReadFirstLine(machine.files, path), "");
}

}  // namespace
}  // namespace velkarix
