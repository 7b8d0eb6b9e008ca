// Stopping and deleting programs, and getting deleted ones back.
#include "Input.h"
#include "Setup.h"
#include "TargetTest.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

constexpr DWORD EndedByTheProgram = 259;  // the code that a running program has

std::string Today() {
    char text[64] = "";
    GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, nullptr, nullptr, text, sizeof text);
    return text;
}

class KillDelete : public TargetTest {
  protected:
    // The page of options with its list of backups; its buttons' names aren't its alone.
    Window OptionsPage() {
        EXPECT_TRUE(Running().Press("cmdOptions"));
        return Running().Control("frmOptions");
    }
    ListWindow Backups() { return ListWindow(OptionsPage().Find("lstvBackup")); }
    // Has the copy deleted, and waits until the list is built anew.
    void DeleteTarget() {
        StartTarget();
        AnswerTo(Ask("cmdDelete"), deleteQuestion_, IDYES);
        ASSERT_TRUE(LeavesTheList());
    }
    bool LeavesTheList() {
        return WaitUntil([this] { return !List().Find(Target); });
    }
    // Selects the only backup and clicks that button. The message box that comes.
    Window AskForBackup(const std::string& button) {
        const ListWindow backups = Backups();
        EXPECT_EQ(backups.RowCount(), 1);
        BringToFront(Running().Main());
        ClickAt(Inside(backups.LabelArea(0)));
        EXPECT_TRUE(WaitUntil([&] { return backups.Selected() == 0; }));
        EXPECT_TRUE(OptionsPage().Find(button).Click());
        return Running().Message();
    }
    const std::string deleteBackupQuestion_ =
        std::string("Are you sure you want to delete backup for: \r\n\r\n") + Target;
};

class EverySystemKillDelete : public KillDelete {};

TEST_F(EverySystemKillDelete, AKilledProgramEndsAndLeavesTheList) {
    StartTarget();
    AnswerTo(Ask("cmdKill"), killQuestion_, IDYES);
    EXPECT_EQ(TargetEnds(), EndedByTheProgram);
    EXPECT_TRUE(LeavesTheList());
    EXPECT_TRUE(install_.Exists(Target));
    EXPECT_TRUE(BackupFiles().empty());
}

TEST_F(EverySystemKillDelete, ADeletedProgramCanBeBroughtBack) {
    const std::string bytes = install_.Read(Target);
    StartTarget();
    const std::string path = ListedPath();
    AnswerTo(Ask("cmdDelete"), deleteQuestion_, IDYES);
    EXPECT_EQ(TargetEnds(), EndedByTheProgram);
    ASSERT_TRUE(LeavesTheList());
    EXPECT_FALSE(install_.Exists(Target));

    const std::vector<std::string> files = BackupFiles();
    ASSERT_EQ(files.size(), 2u);
    const std::string stem = files[0].substr(0, files[0].find('.'));
    EXPECT_EQ(files, (std::vector{stem + ".bup", stem + ".prc"}));
    EXPECT_EQ(install_.Read("Backup\\" + files[0]), bytes);
    EXPECT_EQ(install_.Read("Backup\\" + files[1]), path + '\x01' + Today() + "\r\n");

    ASSERT_EQ(Backups().RowCount(), 1);
    const std::string folder = path.substr(0, path.size() - std::string(Target).size());
    EXPECT_EQ(Backups().Row(0), (RowTexts{Today(), Target, folder}));
    AnswerTo(AskForBackup("cmdrestore"), "File restored successfully", IDOK);
    EXPECT_EQ(install_.Read(Target), bytes);
    EXPECT_EQ(BackupFiles(), files) << "it can be restored again";

    ASSERT_TRUE(Running().Press("cmdProcess"));
    StartTarget();
    EXPECT_TRUE(TargetRuns());
    AnswerTo(AskForBackup("cmdDelete"), deleteBackupQuestion_, IDYES);
    EXPECT_TRUE(WaitUntil([this] { return Backups().RowCount() == 0; }));
    EXPECT_TRUE(BackupFiles().empty());
}

TEST_F(KillDelete, NoKeepsTheProgramRunning) {
    StartTarget();
    const std::vector<RowTexts> rows = List().Rows();
    AnswerTo(Ask("cmdKill"), killQuestion_, IDNO);
    AnswerTo(Ask("cmdDelete"), deleteQuestion_, IDNO);
    EXPECT_TRUE(Running().Press("cmdRefresh"));
    EXPECT_TRUE(TargetRuns());
    EXPECT_TRUE(install_.Exists(Target));
    EXPECT_TRUE(BackupFiles().empty());
    EXPECT_EQ(List().Rows(), rows);
}

TEST_F(KillDelete, KillingAProgramThatHasEndedIsTold) {
    StartTarget();
    SelectRow(Target);
    EndTarget();
    AnswerTo(Ask("cmdKill"), killQuestion_, IDYES);
    AnswerTo(Running().Message(),
             "Error occurred while opening process: " + SystemErrorText(ERROR_INVALID_PARAMETER),
             IDOK);
    EXPECT_TRUE(List().Find(Target)) << "only what was stopped changes the list";
}

TEST_F(KillDelete, AProgramThatHasEndedIsDeletedWithoutStoppingIt) {
    StartTarget();
    SelectRow(Target);
    EndTarget();
    AnswerTo(Ask("cmdDelete"), deleteQuestion_, IDYES);
    EXPECT_TRUE(LeavesTheList());
    EXPECT_FALSE(install_.Exists(Target));
    EXPECT_EQ(BackupFiles().size(), 2u);
}

TEST_F(KillDelete, AProgramThatCannotBeBackedUpIsNeitherStoppedNorDeleted) {
    StartTarget();
    RemoveDirectoryA(install_.Path("Backup").c_str());
    AnswerTo(Ask("cmdDelete"), deleteQuestion_, IDYES);
    AnswerTo(Running().Message(),
             "Error Occurred backupProcess: " + SystemErrorText(ERROR_PATH_NOT_FOUND), IDOK);
    EXPECT_TRUE(Running().Press("cmdRefresh"));
    EXPECT_TRUE(TargetRuns());
    EXPECT_TRUE(install_.Exists(Target));
}

TEST_F(KillDelete, NoKeepsTheBackup) {
    DeleteTarget();
    const std::vector<std::string> files = BackupFiles();
    AnswerTo(AskForBackup("cmdDelete"), deleteBackupQuestion_, IDNO);
    EXPECT_EQ(Backups().RowCount(), 1);
    EXPECT_EQ(BackupFiles(), files);
}

TEST_F(KillDelete, ARestoredProgramsBackupGoesWhereTheUserWishes) {
    DeleteTarget();
    BringToFront(Running().Main());
    ClickAt(Inside(OptionsPage().Find("chkDelete").Area()));
    ASSERT_TRUE(
        WaitUntil([this] { return install_.Ini("Settings.ini", "Main", "Delete") == "1"; }));
    AnswerTo(AskForBackup("cmdrestore"), "File restored successfully", IDOK);
    EXPECT_TRUE(WaitUntil([this] { return Backups().RowCount() == 0; }));
    EXPECT_TRUE(BackupFiles().empty());
    EXPECT_TRUE(install_.Exists(Target));
}

TEST_F(KillDelete, ARunningProgramIsNotReplacedByItsBackup) {
    const std::string bytes = install_.Read(Target);
    DeleteTarget();
    install_.Write(Target, "in use");
    const HANDLE held = CreateFileA(install_.Path(Target).c_str(), GENERIC_READ, FILE_SHARE_READ,
                                    nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    AnswerTo(AskForBackup("cmdrestore"),
             "There is already an application running with same name and path.", IDOK);
    EXPECT_EQ(install_.Read(Target), "in use");
    CloseHandle(held);
    AnswerTo(AskForBackup("cmdrestore"), "File restored successfully", IDOK);
    EXPECT_EQ(install_.Read(Target), bytes);
}

}  // namespace
}  // namespace velkarix::e2e
