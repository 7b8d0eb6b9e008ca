#include "shell/FileMove.h"

#include <string>
#include <utility>

#include "tests/shell/ItemFixture.h"

namespace velkarix {
namespace {

constexpr const char* From = "C:\\From";
constexpr const char* To = "C:\\To";
constexpr const char* Source = "C:\\From\\a.lnk";
constexpr const char* Target = "C:\\To\\a.lnk";
constexpr const char* Copy = "C:\\Velkarix\\Backup\\6_1_153_12_0_0_a.lnk";

class FileMoveTest : public ItemFixture {
  protected:
    FileMoveTest() {
        machine.AddFolder(To);
        machine.AddFile(Source).Content("new");
    }
    ErrorCode Move() { return MoveFileBetween(application, From, To, "a.lnk"); }
    ErrorCode Keep() { return KeepFile(application, Source); }
    std::string TextOf(const char* path) {
        return machine.disk.ContentOf(path).value_or("(no file)");
    }
};

// ---- Keeping

TEST_F(FileMoveTest, KeepsACopyUnderTheMomentAndTheFilesName) {
    EXPECT_EQ(Keep(), error::Success);
    EXPECT_EQ(TextOf(Copy), "new");
    EXPECT_EQ(TextOf(Source), "new");
}

TEST_F(FileMoveTest, KeepsTheSameFileTwiceInOneSecond) {
    EXPECT_EQ(Keep(), error::Success);
    EXPECT_EQ(Keep(), error::Success);
    EXPECT_EQ(machine.Journal().CountOf("CopyFileA"), 1u);
}

TEST_F(FileMoveTest, OverwritesNoOtherFileThatIsKept) {
    machine.AddFile(Copy).Content("other");
    EXPECT_EQ(Keep(), error::AlreadyExists);
    EXPECT_EQ(TextOf(Copy), "other");
    machine.FailNext("PathFileExistsA");  // and so says that there is none
    EXPECT_EQ(Keep(), error::AlreadyExists);
    EXPECT_EQ(TextOf(Copy), "other");
}

TEST_F(FileMoveTest, TakesAShortCopyAwayAgain) {
    machine.disk.SetFreeBytes(2);
    EXPECT_EQ(Keep(), error::DiskFull);
    EXPECT_EQ(TextOf(Copy), "(no file)");
    EXPECT_EQ(TextOf(Source), "new");
}

TEST_F(FileMoveTest, TrustsNoCopyThatCanNotBeCompared) {
    machine.FailAlways("ReadFile");
    EXPECT_EQ(Keep(), error::WriteFault);
    EXPECT_EQ(TextOf(Copy), "(no file)");
}

TEST_F(FileMoveTest, KeepsNothingWhereThereIsNoFolderForIt) {
    machine.FailNext("CreateDirectoryA");
    EXPECT_EQ(Keep(), error::AccessDenied);
    EXPECT_EQ(machine.Journal().CountOf("CopyFileA"), 0u);
    machine.AddFile("C:\\Velkarix\\Backup");
    EXPECT_NE(Keep(), error::Success);
    EXPECT_EQ(TextOf(Source), "new");
}

TEST_F(FileMoveTest, KeepsNothingOfAFileThatIsGone) {
    machine.disk.Remove(Source);
    EXPECT_EQ(Keep(), error::FileNotFound);
    EXPECT_EQ(TextOf(Copy), "(no file)");
}

// ---- Moving

TEST_F(FileMoveTest, CopiesThenComparesThenDeletes) {
    EXPECT_EQ(Move(), error::Success);
    EXPECT_EQ(TextOf(Source), "(no file)");
    EXPECT_EQ(TextOf(Target), "new");
    std::string order;
    for (const Call& call : machine.Journal().Calls()) {
        for (const char* name : {"CopyFileA", "CreateFileA", "DeleteFileA"}) {
            if (call.name == name) order += call.name + " " + call.arguments + "\n";
        }
    }
    EXPECT_EQ(order, std::string("CopyFileA ") + Source + ", " + Target + "\nCreateFileA " +
                         Source + "\nCreateFileA " + Target + "\nDeleteFileA " + Source + "\n");
    EXPECT_FALSE(machine.disk.Exists("C:\\Velkarix\\Backup"));
}

TEST_F(FileMoveTest, KeepsTheFileThatItReplaces) {
    machine.AddFile(Target).Content("old");
    EXPECT_EQ(Move(), error::Success);
    EXPECT_EQ(TextOf(Source), "(no file)");
    EXPECT_EQ(TextOf(Target), "new");
    EXPECT_EQ(TextOf(Copy), "old");
}

TEST_F(FileMoveTest, ReplacesNoFileThatCanNotBeKept) {
    machine.AddFile(Target).Content("old");
    machine.AddFile(Copy).Content("other");
    EXPECT_EQ(Move(), error::AlreadyExists);
    EXPECT_EQ(TextOf(Source), "new");
    EXPECT_EQ(TextOf(Target), "old");
}

TEST_F(FileMoveTest, KeepsAFileThatSeemedNotToBeThere) {
    machine.AddFile(Target).Content("old");
    // The second question of this kind: the first is for the source.
    machine.Journal().FailCall(1, error::AccessDenied);
    EXPECT_EQ(Move(), error::Success);
    EXPECT_EQ(TextOf(Copy), "old");
}

TEST_F(FileMoveTest, DeletesNothingThatDidNotArriveWhole) {
    machine.disk.SetFreeBytes(1);
    EXPECT_EQ(Move(), error::DiskFull);
    EXPECT_EQ(TextOf(Source), "new");
    EXPECT_EQ(TextOf(Target), "(no file)");
    machine.disk.SetFreeBytes(std::nullopt);
    machine.FailNext("ReadFile");
    EXPECT_EQ(Move(), error::WriteFault);
    EXPECT_EQ(TextOf(Source), "new");
    EXPECT_EQ(TextOf(Target), "(no file)");
}

// The copy is all that is left of it.
TEST_F(FileMoveTest, LeavesTheCopyOfAFileThatSomebodyTakesAwayMeanwhile) {
    Move();  // to count the calls
    machine.AddFile(Source).Content("new");
    machine.disk.Remove(Target);
    machine.Journal().Clear();
    machine.Journal().OnCall(4, [&] { machine.disk.Remove(Source); });
    EXPECT_EQ(Move(), error::FileNotFound);
    EXPECT_EQ(machine.Journal().Calls()[4], (Call{"CreateFileA", Source}));
    EXPECT_EQ(TextOf(Target), "new");
}

TEST_F(FileMoveTest, StandsInBothFoldersWhereTheSourceCanNotBeDeleted) {
    machine.disk.Find(Source)->ReadOnly();
    EXPECT_EQ(Move(), error::Success);
    EXPECT_EQ(TextOf(Source), "new");
    EXPECT_EQ(TextOf(Target), "new");
}

TEST_F(FileMoveTest, MovesNoFileToWhereItIs) {
    EXPECT_EQ(MoveFileBetween(application, From, "c:\\FROM", "a.lnk"), error::AlreadyExists);
    EXPECT_EQ(TextOf(Source), "new");
    EXPECT_EQ(TextOf(Copy), "(no file)");
}

TEST_F(FileMoveTest, TellsWhatFailed) {
    using Names = std::pair<const char*, const char*>;
    for (const auto& [from, to] : {Names{"", To}, Names{From, ""}, Names{From, "C:\\Gone"}}) {
        EXPECT_EQ(MoveFileBetween(application, from, to, "a.lnk"), error::PathNotFound);
    }
    EXPECT_EQ(MoveFileBetween(application, From, To, "b.lnk"), error::FileNotFound);
    machine.FailNext("CopyFileA", error::SharingViolation);
    EXPECT_EQ(Move(), error::SharingViolation);
    EXPECT_EQ(TextOf(Source), "new");
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(FileMoveTest, MovesAFileOfNoBytesAndALargeOne) {
    for (const std::size_t size : {std::size_t{0}, std::size_t{300000}}) {
        machine.AddFile(Source).Content(Bytes(size, 7));
        machine.disk.Remove(Target);
        EXPECT_EQ(Move(), error::Success) << size;
        EXPECT_EQ(TextOf(Target).size(), size);
        EXPECT_FALSE(machine.disk.Exists(Source));
    }
}

}  // namespace
}  // namespace velkarix
