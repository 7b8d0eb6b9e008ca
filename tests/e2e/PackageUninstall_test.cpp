// The uninstaller: it takes away what the installer laid down, and nothing that is the user's
// without being told to.
#include "Input.h"
#include "PackageTest.h"
#include "Program.h"
#include "Screen.h"
#include "TreeWindow.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

constexpr int BoxBeforeLabel = 10;  // the middle of the box that is ticked, in pixels

// What the program keeps in the folder of backups begins with six numbers of the date and the time.
const std::string Kept = "backup\\6_1_153_12_0_0";

class PackageUninstall : public PackageTest {
  protected:
    // Ticks these of what can be removed, and goes on.
    static void UninstallStepByStep(const std::vector<std::string>& parts) {
        const Window confirm = Page("Uninstall Velkarix");
        ASSERT_TRUE(confirm);
        SaveScreenshot("uninstall-1-confirm", ProcessOf(confirm));
        ASSERT_TRUE(Press(confirm, IDOK));
        const Window components = Page("Choose Components");
        ASSERT_TRUE(components);
        SaveScreenshot("uninstall-2-components", ProcessOf(components));
        const TreeWindow tree(ChildOfClass(components, "SysTreeView32"));
        BringToFront(components);
        for (const std::string& part : parts) {
            const RECT label = tree.LabelArea(part);
            const int unticked = tree.StatePicture(part);
            ClickAt({label.left - BoxBeforeLabel, (label.top + label.bottom) / 2});
            ASSERT_TRUE(WaitUntil([&] { return tree.StatePicture(part) != unticked; })) << part;
        }
        ASSERT_TRUE(Press(components, IDOK));
    }
    static DWORD ProcessOf(const Window& window) {
        DWORD id = 0;
        GetWindowThreadProcessId(window.Handle(), &id);
        return id;
    }
    static void Close() {
        const Window done = Page("Uninstallation Complete");
        ASSERT_TRUE(done);
        SaveScreenshot("uninstall-3-end", ProcessOf(done));
        ASSERT_TRUE(Press(done, IDOK));
        ASSERT_TRUE(WaitUntil(UninstallerHasEnded));
    }
};
class EverySystemPackageUninstall : public PackageUninstall {};

TEST_F(EverySystemPackageUninstall, LeavesNothingOfWhatNobodyUsed) {
    InstallHere();
    Uninstall(Folder());
    EXPECT_EQ(GetFileAttributesA(Folder().c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_FALSE(Entry());
    EXPECT_EQ(MenuEntries(), std::vector<std::string>{});
}

TEST_F(EverySystemPackageUninstall, LeavesWhatIsTheUsersAndNothingElse) {
    InstallHere();
    WriteUsersFiles();
    Uninstall(Folder());
    EXPECT_EQ(Files(), UsersFiles());
    EXPECT_FALSE(Entry());
}

TEST_F(PackageUninstall, AsksBeforeItRemovesBackups) {
    InstallHere();
    Write(Kept + ".bup", "copy");
    Write(Kept + ".prc", "record");
    StartUninstaller(Folder());
    UninstallStepByStep({"Backups"});
    const Window question = Question();
    ASSERT_TRUE(question);
    EXPECT_NE(MessageText(question).find("only copies"), std::string::npos);
    ASSERT_TRUE(Answer(question, IDNO));
    Close();
    EXPECT_EQ(Files(), (FolderFiles{{Kept + ".bup", "copy"}, {Kept + ".prc", "record"}}));
}

TEST_F(PackageUninstall, RemovesBackupsAndSettingsWhenItIsToldTo) {
    InstallHere();
    // A copy, its record, a registry file, a shortcut, and files that a restored one replaced.
    for (const char* rest :
         {".bup", ".prc", "_Run.reg", "_Mine.lnk", "_bad.exe", "_no extension"}) {
        Write(Kept + rest, "copy");
    }
    Write("backup\\12_31_366_23_59_59_bad.exe", "copy");
    for (const char* name : {"Settings.ini", "SafeProcess.vkl", "SafeProcess.vkl.new",
                             "SystemProcess.vkl", "SusProcess.vkl", "SusCLSID.vkl",
                             "SusInstall.vkl", "MalActivex.scl", "database.ini", "version.ini"}) {
        Write(name, "text");
    }
    StartUninstaller(Folder());
    UninstallStepByStep({"Settings and lists", "Backups"});
    const Window question = Question();
    ASSERT_TRUE(question);
    ASSERT_TRUE(Answer(question, IDYES));
    Close();
    EXPECT_EQ(Files(), FolderFiles{});
    EXPECT_EQ(GetFileAttributesA(Folder().c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(PackageUninstall, RemovesNoFileInTheBackupFolderThatIsNoBackup) {
    InstallHere();
    FolderFiles mine;
    for (const char* name :
         {"Notes of mine.txt", "Mine.reg", "Mine.bup", "6_1_153_12_0_bad.exe",
          "6_1_153_12_0_0bad.exe", "6_1_153_12_0_0", "6_1_153_12_0_.bup", "6_1_153_12_0_x_bad.exe",
          "_6_1_153_12_0_0_bad.exe", "6_1_153_12_0_0.txt", "2004-06-01_bad.exe"}) {
        mine[std::string("backup\\") + name] = "mine";
    }
    for (const auto& [name, bytes] : mine) Write(name, bytes);
    Write(Kept + ".bup", "copy");
    StartUninstaller(Folder());
    UninstallStepByStep({"Backups"});
    const Window question = Question();
    ASSERT_TRUE(question);
    ASSERT_TRUE(Answer(question, IDYES));
    Close();
    EXPECT_EQ(Files(), mine);
}

TEST_F(PackageUninstall, LeavesTheEntryOfACopyInAnotherFolder) {
    InstallHere();
    const std::string other = Folder() + " other";
    ASSERT_EQ(Install(other), 0u);
    Uninstall(Folder());
    EXPECT_FALSE(Exists("Velkarix.exe"));
    EXPECT_EQ(EntryText("InstallLocation"), other);
    EXPECT_EQ(MenuEntries().size(), 2u);
    Uninstall(other);
    EXPECT_FALSE(Entry());
}

}  // namespace
}  // namespace velkarix::e2e
