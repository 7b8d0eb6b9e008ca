#include "shell/TextReplacement.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {
namespace {

constexpr const char* Path = "C:\\List.vkl";
constexpr const char* Beside = "C:\\List.vkl.new";

class TextReplacement : public testing::Test {
  protected:
    void TearDown() override { EXPECT_EQ(machine.files.OpenFileCount(), 0u); }

    ErrorCode Replace(const std::string& text) {
        return ReplaceTextFile(machine.files, Path, text);
    }
    std::string Read() {
        std::string text;
        const ErrorCode result = ReadReplacedTextFile(machine.files, Path, text);
        return result == error::Success ? text : "error " + std::to_string(result);
    }
    bool HasBeside() { return machine.disk.Exists(Beside); }

    MemoryMachine machine;
};

TEST_F(TextReplacement, WritesTheFileAndLeavesNothingBeside) {
    EXPECT_EQ(Read(), "error 2");
    EXPECT_EQ(Replace("one\r\n"), error::Success);
    EXPECT_EQ(Replace("two\r\n"), error::Success);
    EXPECT_EQ(machine.disk.ContentOf(Path), "two\r\n");
    EXPECT_FALSE(HasBeside());
    EXPECT_EQ(Replace(""), error::Success);
    EXPECT_EQ(Read(), "");
}

TEST_F(TextReplacement, TouchesNothingWhereTheNewTextHasNoRoom) {
    Replace("the old text\r\n");
    for (const std::size_t room : {0, 3, 10}) {
        machine.disk.SetFreeBytes(room);
        EXPECT_NE(Replace("the new text\r\n"), error::Success);
        EXPECT_EQ(Read(), "the old text\r\n");
        EXPECT_FALSE(HasBeside());
    }
}

TEST_F(TextReplacement, KeepsAFileThatMayNotBeWritten) {
    machine.AddFile(Path).Content("old").ReadOnly();
    EXPECT_EQ(Replace("new"), error::AccessDenied);
    EXPECT_EQ(Read(), "old");
    EXPECT_FALSE(HasBeside());
}

TEST_F(TextReplacement, LeavesNothingBesideAFileThatAnotherHolds) {
    machine.AddFile(Path).Content("old").Unreadable();
    EXPECT_EQ(Replace("new"), error::SharingViolation);
    EXPECT_FALSE(HasBeside());
}

TEST_F(TextReplacement, GivesTheNewTextWhereTheFileWasCut) {
    Replace("the old text\r\n");
    machine.FailNext("WriteFile", error::Success);
    machine.FailNext("WriteFile", error::DiskFull);
    EXPECT_EQ(Replace("the new text\r\n"), error::DiskFull);
    EXPECT_EQ(machine.disk.ContentOf(Path), "");
    EXPECT_EQ(Read(), "the new text\r\n");
    EXPECT_EQ(machine.disk.ContentOf(Path), "the new text\r\n");
    EXPECT_FALSE(HasBeside());
}

TEST_F(TextReplacement, PutsEachTextOnTheDiskBeforeItGoesOn) {
    Replace("text\r\n");
    std::vector<std::string> steps;
    for (const Call& call : machine.Journal().Calls()) {
        if (call.forWriting || call.name == "DeleteFileA") steps.push_back(call.arguments);
        if (call.name == "WriteFile" || call.name == "FlushFileBuffers") steps.push_back(call.name);
    }
    EXPECT_EQ(steps, (std::vector<std::string>{Beside, "WriteFile", "FlushFileBuffers", Path,
                                               "WriteFile", "FlushFileBuffers", Beside}));
}

TEST_F(TextReplacement, TakesNothingForWrittenThatIsNotOnTheDisk) {
    Replace("the old text\r\n");
    machine.FailNext("FlushFileBuffers", error::DiskFull);
    EXPECT_EQ(Replace("the new text\r\n"), error::DiskFull);
    EXPECT_FALSE(HasBeside());
    EXPECT_EQ(Read(), "the old text\r\n");
    machine.FailNext("FlushFileBuffers", error::Success);
    machine.FailNext("FlushFileBuffers", error::DiskFull);
    EXPECT_EQ(Replace("the new text\r\n"), error::DiskFull);
    EXPECT_TRUE(HasBeside());
}

// Wherever the process ends, the next one reads the old text or the new one, and no part.
TEST_F(TextReplacement, IsFinishedByTheNextReader) {
    for (std::size_t call = 0;; ++call) {
        for (const bool within : {false, true}) {
            MemoryMachine cut;
            cut.AddFile(Path).Content("the old text\r\n");
            if (within) cut.Journal().OnCall(call, [&] { cut.disk.SetFreeBytes(5); });
            cut.Journal().EndAtCall(call + (within ? 1 : 0));
            bool ended = false;
            try {
                ReplaceTextFile(cut.files, Path, "the new text\r\n");
            } catch (const ProcessEnded&) {
                ended = true;
            }
            cut.Journal().EndAtCall(SIZE_MAX);
            cut.Journal().OnCall(SIZE_MAX, nullptr);
            cut.disk.SetFreeBytes(std::nullopt);
            cut.files.CloseAllFiles();
            std::string text;
            EXPECT_EQ(ReadReplacedTextFile(cut.files, Path, text), error::Success);
            EXPECT_TRUE(text == "the old text\r\n" || text == "the new text\r\n") << call << text;
            EXPECT_EQ(cut.disk.ContentOf(Path), text);
            EXPECT_FALSE(cut.disk.Exists(Beside));
            if (!ended && !within) {
                EXPECT_GT(call, 8u);
                return;
            }
        }
    }
}

// Nobody may take the file for the whole then.
TEST_F(TextReplacement, IsNotReadWhereWhatStandsBesideCanNotBeRead) {
    machine.AddFile(Path).Content("half");
    machine.AddFile(Beside).Content("whole\r\n\x1A\r\n").Unreadable();
    EXPECT_EQ(Read(), "error 32");
}

TEST_F(TextReplacement, GivesTheNewTextThoughItCanNotBeFinished) {
    machine.AddFile(Path).Content("half").ReadOnly();
    machine.AddFile(Beside).Content("whole\r\n\x1A\r\n");
    EXPECT_EQ(Read(), "whole\r\n");
    EXPECT_EQ(Replace("newer\r\n"), error::AccessDenied);
    EXPECT_EQ(Read(), "whole\r\n");
}

}  // namespace
}  // namespace velkarix
