#include "shell/clsDeleteonReboot.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "tests/machine/TestProgram.h"

namespace velkarix {
namespace {

constexpr const char* Path = "C:\\Program Files\\bad program.exe";
constexpr const char* WinInit = "C:\\WINDOWS\\WinInit.ini";

class DeleteOnRebootTest : public testing::Test {
  protected:
    DeleteOnRebootTest() {
        program.machine.AddFolder("C:\\Program Files").ShortName("PROGRA~1");
        program.machine.AddFile(Path).ShortName("BADPRO~1.EXE");
        program.machine.system.SetVariable("WinDir", "C:\\WINDOWS");
    }
    void SetOs(const char* os) { program.machine.system.SetVariable("OS", os); }
    void Delete() { DeleteOnReboot(program.application, Path); }
    std::string Text() { return program.machine.disk.ContentOf(WinInit).value_or("(no file)"); }

    TestProgram program;
    const std::string line = "NUL=C:\\PROGRA~1\\BADPRO~1.EXE\r\n";
};

TEST_F(DeleteOnRebootTest, AsksTheNtFamilyByTheShortPath) {
    SetOs("Windows_NT");
    Delete();
    EXPECT_EQ(program.machine.files.DeletedAtNextStart(),
              (std::vector<std::string>{"C:\\PROGRA~1\\BADPRO~1.EXE"}));
    EXPECT_EQ(Text(), "(no file)");
    EXPECT_TRUE(program.desktop.messages.empty());
}

TEST_F(DeleteOnRebootTest, TellsARefusalWithTheTextOfCodeZero) {
    SetOs("Windows_NT");
    program.machine.FailNext("MoveFileExA");
    Delete();
    ASSERT_EQ(program.desktop.messages.size(), 1u);
    EXPECT_EQ(program.desktop.messages[0].text,
              "Error occurred while adding to delete on reboot: \r\n" + std::string(Path) +
                  program.application.registry.GetSystemErrorText(0));
    EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::None);
}

TEST_F(DeleteOnRebootTest, GoesByTheTextOfTheVariableExactly) {
    for (const char* os : {"", "windows_nt", "Windows_NT "}) {
        SetOs(os);
        program.machine.disk.Remove(WinInit);
        Delete();
        EXPECT_EQ(Text(), "[Rename]\r\n" + line) << os;
    }
    EXPECT_TRUE(program.machine.files.DeletedAtNextStart().empty());
}

TEST_F(DeleteOnRebootTest, AddsToAFileThatEndsWithoutALineEnd) {
    program.machine.AddFile(WinInit).Content("[Rename]\r\nNUL=C:\\OLD.EXE");
    Delete();
    EXPECT_EQ(Text(), "[Rename]\r\nNUL=C:\\OLD.EXE\r\n" + line);
}

TEST_F(DeleteOnRebootTest, PutsASecondFileBehindTheFirst) {
    Delete();
    Delete();
    EXPECT_EQ(Text(), "[Rename]\r\n" + line + line);
}

TEST_F(DeleteOnRebootTest, AddsAtTheEndWhateverSectionStandsLast) {
    program.machine.AddFile(WinInit).Content("[Rename]\r\n[SetupOptions]\r\na=b\r\n");
    Delete();
    EXPECT_EQ(Text(), "[Rename]\r\n[SetupOptions]\r\na=b\r\n" + line);
}

TEST_F(DeleteOnRebootTest, KeepsTheFileUpToANulAndItsFirst32768Bytes) {
    program.machine.AddFile(WinInit).Content(std::string("a=b\r\n\0junk", 10));
    Delete();
    EXPECT_EQ(Text(), "a=b\r\n" + line);
    program.machine.AddFile(WinInit).Content(std::string(40000, 'x'));
    Delete();
    EXPECT_EQ(Text(), std::string(32768, 'x').append("\r\n").append(line));
}

TEST_F(DeleteOnRebootTest, LeavesTheLinesOfOthersWhereTheDiskIsFull) {
    const std::string others = "[Rename]\r\nNUL=C:\\OLD.EXE\r\n";
    program.machine.AddFile(WinInit).Content(others);
    program.machine.disk.SetFreeBytes(0);
    Delete();
    EXPECT_EQ(Text(), others);
    for (const Call& call : program.machine.Journal().Calls()) EXPECT_NE(call.name, "DeleteFileA");
}

// A path that is cut may be another file's.
TEST_F(DeleteOnRebootTest, LeavesNoPartOfALine) {
    for (const std::uint64_t room : {1, 14, 25}) {
        program.machine.disk.SetFreeBytes(room);
        Delete();
        EXPECT_EQ(Text(), "") << room;
        const std::string others = "[Rename]\r\nNUL=C:\\OLD.EXE\r\n";
        program.machine.AddFile(WinInit).Content(others);
        program.machine.disk.SetFreeBytes(room);
        Delete();
        EXPECT_EQ(Text(), others) << room;
        program.machine.disk.Remove(WinInit);
    }
    const std::string large(40000, 'x');
    program.machine.AddFile(WinInit).Content(large);
    program.machine.FailNext("WriteFile", error::DiskFull);
    Delete();
    EXPECT_EQ(Text(), large);
}

TEST_F(DeleteOnRebootTest, WritesNothingOverAFileThatSeemsToBeMissing) {
    const std::string others = "[Rename]\r\nNUL=C:\\OLD.EXE\r\n";
    program.machine.AddFile(WinInit).Content(others);
    program.machine.FailNext("PathFileExistsA");
    Delete();
    EXPECT_EQ(Text(), others + line);
}

TEST_F(DeleteOnRebootTest, WritesNothingWhereTheWindowsFolderIsNotKnown) {
    program.machine.FailNext("GetEnvironmentVariableA");
    program.machine.system.SetVariable("WinDir", "");
    Delete();
    EXPECT_FALSE(program.machine.disk.Exists("C:\\WinInit.ini"));
}

TEST_F(DeleteOnRebootTest, LeavesAFileAloneThatItCanNotRead) {
    program.machine.AddFile(WinInit).Content("a=b\r\n");
    program.machine.FailNext("ReadFile");
    Delete();
    EXPECT_EQ(Text(), "a=b\r\n");
    EXPECT_TRUE(program.desktop.messages.empty());
}

}  // namespace
}  // namespace velkarix
