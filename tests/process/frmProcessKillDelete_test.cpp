// Stopping processes and deleting their files, as a user does it on the page.
#include "tests/process/ProcessPage.h"

namespace velkarix {
namespace {

constexpr const char* Path = "C:\\Tools\\bad.exe";
constexpr const char* Stem = "C:\\Velkarix\\Backup\\6_1_153_12_0_0";

class KillDeleteTest : public ProcessPage {
  protected:
    KillDeleteTest() { Run(7, Path, "the program").InUse(); }

    void Answer(std::initializer_list<MessageAnswer> answers) {
        program.desktop.answers.assign(answers);
    }
    RowTexts Told() {
        RowTexts texts;
        for (const Message& each : program.desktop.messages) texts.push_back(each.text);
        return texts;
    }
    std::string Content(const std::string& path) {
        return program.machine.disk.ContentOf(path).value_or("(no file)");
    }
    std::string Copy() { return Content(std::string(Stem) + ".bup"); }
    std::string Record() { return Content(std::string(Stem) + ".prc"); }
    // The process ends, and its file can be written again.
    void EndProcess() {
        program.machine.processes.End(7);
        program.machine.AddFile(Path).InUse(false);
    }

    const std::string deleteQuestion =
        "Are you sure you want to delete the selected process\r\n\r\nbad.exe";
    const std::string rebootQuestion =
        "Error occurred while deleting the file.\r\nAccess is denied.\r\nWould you like it to be "
        "deleted on next reboot?";
    const std::string record = std::string(Path) + "\x01" + "6/1/2004\r\n";
};

TEST_F(KillDeleteTest, AsksBeforeItStopsAProcess) {
    program.Start();
    Answer({MessageAnswer::No});
    Click("cmdKill");
    EXPECT_EQ(Told(),
              (RowTexts{"Are you sure you want to stop the selected process\r\n\r\nbad.exe"}));
    EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::Question);
    EXPECT_EQ(program.desktop.messages[0].buttons, MessageButtons::YesNo);
    EXPECT_TRUE(program.machine.processes.IsRunning(7));
}

TEST_F(KillDeleteTest, StopsTheProcessAndListsAnew) {
    program.Start();
    Answer({MessageAnswer::Yes});
    Click("cmdKill");
    EXPECT_FALSE(program.machine.processes.IsRunning(7));
    EXPECT_EQ(List().RowCount(), 0u);
}

TEST_F(KillDeleteTest, DoesNotListAnewWhenTheProcessCouldNotBeStopped) {
    program.Start();
    program.machine.processes.End(7);
    Answer({MessageAnswer::Yes});
    Click("cmdKill");
    EXPECT_EQ(Told().back(),
              "Error occurred while opening process: The parameter is incorrect.\r\n");
    EXPECT_EQ(List().RowCount(), 1u);
}

TEST_F(KillDeleteTest, SaysThatARowNamesNoProcess) {
    program.Start();
    List().UserSelect(&List().Add("no number", "odd.exe", 1));
    Answer({MessageAnswer::Yes});
    Click("cmdKill");
    EXPECT_EQ(Told().back(), "Error Occurred killProcess\r\nodd.exe\r\n\r\n13 Type mismatch");
    EXPECT_EQ(program.desktop.messages.back().icon, MessageIcon::Information);
    EXPECT_EQ(program.machine.Journal().CountOf("TerminateProcess"), 0u);
}

TEST_F(KillDeleteTest, DoesNothingWithoutASelectedRow) {
    program.Start();
    List().UserSelect(nullptr);
    Click("cmdKill");
    Click("cmdDelete");
    EXPECT_TRUE(Told().empty());
}

TEST_F(KillDeleteTest, AsksBeforeItDeletes) {
    program.Start();
    Answer({MessageAnswer::No});
    Click("cmdDelete");
    EXPECT_EQ(Told(), (RowTexts{deleteQuestion}));
    EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::Question);
    EXPECT_EQ(Copy(), "(no file)");
    EXPECT_EQ(Content(Path), "the program");
}

TEST_F(KillDeleteTest, BacksUpStopsAndOffersTheNextStartForAFileInUse) {
    program.Start();
    program.machine.system.SetVariable("OS", "Windows_NT");
    Answer({MessageAnswer::Yes, MessageAnswer::Yes});
    Click("cmdDelete");
    EXPECT_EQ(Told(), (RowTexts{deleteQuestion, rebootQuestion}));
    EXPECT_EQ(program.desktop.messages[1].icon, MessageIcon::Critical);
    EXPECT_FALSE(program.machine.processes.IsRunning(7));
    EXPECT_EQ(program.machine.files.DeletedAtNextStart(), (RowTexts{Path}));
    EXPECT_EQ(Copy(), "the program");
    EXPECT_EQ(Record(), record);
}

TEST_F(KillDeleteTest, WithdrawsTheBackupWhenTheFileStays) {
    program.Start();
    Answer({MessageAnswer::Yes, MessageAnswer::No});
    Click("cmdDelete");
    EXPECT_EQ(Content(Path), "the program");
    EXPECT_EQ(Copy(), "(no file)");
    EXPECT_EQ(Record(), "(no file)");
    EXPECT_TRUE(program.machine.files.DeletedAtNextStart().empty());
}

TEST_F(KillDeleteTest, DeletesTheFileOfAProcessThatEnded) {
    program.Start();
    EndProcess();
    Answer({MessageAnswer::Yes});
    Click("cmdDelete");
    EXPECT_EQ(Told(), (RowTexts{deleteQuestion}));
    EXPECT_EQ(Content(Path), "(no file)");
    EXPECT_EQ(Copy(), "the program");
    EXPECT_EQ(Record(), record);
    EXPECT_EQ(program.machine.Journal().CountOf("TerminateProcess"), 0u);
    EXPECT_EQ(List().RowCount(), 0u);
}

TEST_F(KillDeleteTest, TouchesNothingWhenTheBackupCanNotBeMade) {
    program.Start();
    program.machine.FailNext("CopyFileA");
    Answer({MessageAnswer::Yes});
    Click("cmdDelete");
    EXPECT_EQ(Told().back(), "Error Occurred backupProcess: Access is denied.\r\n");
    EXPECT_EQ(program.desktop.messages.back().icon, MessageIcon::Information);
    EXPECT_TRUE(program.machine.processes.IsRunning(7));
    EXPECT_EQ(Content(Path), "the program");
}

TEST_F(KillDeleteTest, TouchesNothingWhenTheBackupFolderIsAFile) {
    program.machine.disk.Remove("C:\\Velkarix\\backup");
    program.AddInstalledFile("Backup").Content("a file");
    program.Start();
    EndProcess();
    Answer({MessageAnswer::Yes});
    Click("cmdDelete");
    EXPECT_EQ(Told().back(),
              "Error Occurred backupProcess: "
              "The system cannot find the path specified.\r\n");
    EXPECT_EQ(Content(Path), "the program");
}

TEST_F(KillDeleteTest, TouchesNothingWhenTheRecordCanNotBeWritten) {
    program.Start();
    EndProcess();
    program.AddInstalledFile("Backup\\6_1_153_12_0_0.prc").Content("old").ReadOnly();
    Answer({MessageAnswer::Yes});
    Click("cmdDelete");
    EXPECT_EQ(Told().back(), "Error Occurred backupProcess: Access is denied.\r\n");
    EXPECT_EQ(Content(Path), "the program");
}

TEST_F(KillDeleteTest, TouchesNothingWhenTheDiskIsFull) {
    program.Start();
    EndProcess();
    program.machine.disk.SetFreeBytes(4);
    Answer({MessageAnswer::Yes});
    Click("cmdDelete");
    EXPECT_EQ(Told().size(), 2u);
    EXPECT_EQ(Content(Path), "the program");
}

class OddBackupTest : public KillDeleteTest {
  protected:
    OddBackupTest() {
        program.AddInstalledFile("Backup6_1_153_12_0_0.bup");
        EndProcess();
        program.machine.processes.Add(7, Path);
        program.Start();
        program.machine.processes.End(7);
    }
    const std::string question =
        "Backup failed for process.\r\n It means that you would not be able to restore the file "
        "in future\r\nContinue?";
};

TEST_F(OddBackupTest, AsksWhetherToGoOnWithoutABackup) {
    Answer({MessageAnswer::Yes, MessageAnswer::No});
    Click("cmdDelete");
    EXPECT_EQ(Told(), (RowTexts{deleteQuestion, question}));
    EXPECT_EQ(program.desktop.messages[1].icon, MessageIcon::Critical);
    EXPECT_EQ(Content(Path), "the program");
    EXPECT_EQ(Record(), "(no file)");
}

TEST_F(OddBackupTest, GoesOnWithoutARecordWhenTheUserSaysSo) {
    Answer({MessageAnswer::Yes, MessageAnswer::Yes});
    Click("cmdDelete");
    EXPECT_EQ(Content(Path), "(no file)");
    EXPECT_EQ(Record(), "(no file)");
    EXPECT_EQ(Copy(), "the program");
}

TEST_F(KillDeleteTest, OverwritesABackupOfTheSameSecond) {
    program.Start();
    EndProcess();
    Answer({MessageAnswer::Yes});
    Click("cmdDelete");
    Run(8, "C:\\Tools\\worse.exe", "another program");
    Click("cmdRefresh");
    List().UserSelect(RowNamed("worse.exe"));
    program.machine.processes.End(8);
    Answer({MessageAnswer::Yes});
    Click("cmdDelete");
    EXPECT_EQ(Copy(), "another program");
    EXPECT_EQ(Record(),
              "C:\\Tools\\worse.exe\x01"
              "6/1/2004\r\n");
}

}  // namespace
}  // namespace velkarix
