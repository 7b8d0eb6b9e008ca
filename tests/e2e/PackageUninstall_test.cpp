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

class PackageUninstall : public PackageTest {
  protected:
    static void Hold(HKEY hive, const std::string& list, const std::string& name) {
        WriteValue(hive, HoldingKey + "\\Disabled\\" + list, name, {REG_SZ, {'a', 0}});
    }
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

TEST_F(EverySystemPackageUninstall, LeavesWhatIsSwitchedOffWhereItIs) {
    InstallHere();
    Hold(HKEY_LOCAL_MACHINE, "Run", "Mine");
    Hold(HKEY_CURRENT_USER, "Menu", "");  // the value without a name
    Hold(HKEY_CURRENT_USER, "BHO\\{0B100002-52C4-4D18-9F3A-6E1C2A7750B0}", "");
    const auto machine = ReadTree(HKEY_LOCAL_MACHINE, HoldingKey);
    const auto user = ReadTree(HKEY_CURRENT_USER, HoldingKey);
    Uninstall(Folder());
    EXPECT_EQ(ReadTree(HKEY_LOCAL_MACHINE, HoldingKey), machine);
    EXPECT_EQ(ReadTree(HKEY_CURRENT_USER, HoldingKey), user);
}

TEST_F(PackageUninstall, LeavesNoEmptyPlacesForWhatIsSwitchedOff) {
    InstallHere();
    for (const char* list : {"Run", "RunOnce", "Toolbar"}) {
        Hold(HKEY_LOCAL_MACHINE, list, "Mine");
        DeleteValue(HKEY_LOCAL_MACHINE, HoldingKey + "\\Disabled\\" + list, "Mine");
    }
    ASSERT_TRUE(ReadTree(HKEY_LOCAL_MACHINE, HoldingKey));
    Uninstall(Folder());
    EXPECT_FALSE(ReadTree(HKEY_LOCAL_MACHINE, HoldingKey));
}

TEST_F(PackageUninstall, WarnsOfWhatIsStillSwitchedOff) {
    InstallHere();
    Hold(HKEY_LOCAL_MACHINE, "Run", "Mine");
    StartUninstaller(Folder());
    const Window question = Question();
    ASSERT_TRUE(question);
    EXPECT_NE(MessageText(question).find("still switched off"), std::string::npos);
    ASSERT_TRUE(Answer(question, IDCANCEL));
    ASSERT_TRUE(WaitUntil(UninstallerHasEnded));
    EXPECT_TRUE(Exists("Velkarix.exe"));
    EXPECT_TRUE(Entry());
}

TEST_F(PackageUninstall, WarnsOfShortcutsThatAreStillSwitchedOff) {
    InstallHere();
    Write("DCUStartup\\Mine.lnk", "link");
    StartUninstaller(Folder());
    const Window question = Question();
    ASSERT_TRUE(question);
    ASSERT_TRUE(Answer(question, IDCANCEL));
    ASSERT_TRUE(WaitUntil(UninstallerHasEnded));
    EXPECT_TRUE(Exists("Velkarix.exe"));
}

TEST_F(PackageUninstall, AsksBeforeItRemovesBackups) {
    InstallHere();
    Write("backup\\a.bup", "copy");
    Write("backup\\a.prc", "record");
    StartUninstaller(Folder());
    UninstallStepByStep({"Backups"});
    const Window question = Question();
    ASSERT_TRUE(question);
    EXPECT_NE(MessageText(question).find("only copies"), std::string::npos);
    ASSERT_TRUE(Answer(question, IDNO));
    Close();
    EXPECT_EQ(Files(), (FolderFiles{{"backup\\a.bup", "copy"}, {"backup\\a.prc", "record"}}));
}

TEST_F(PackageUninstall, RemovesBackupsAndSettingsWhenItIsToldTo) {
    InstallHere();
    for (const char* name : {"a.bup", "a.prc", "b.reg", "c.lnk"}) {
        Write(std::string("backup\\") + name, "copy");
    }
    for (const char* name :
         {"Settings.ini", "SafeProcess.vkl", "SystemProcess.vkl", "SusProcess.vkl", "SusCLSID.vkl",
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
    Write("backup\\a.bup", "copy");
    Write("backup\\Notes of mine.txt", "mine");
    StartUninstaller(Folder());
    UninstallStepByStep({"Backups"});
    const Window question = Question();
    ASSERT_TRUE(question);
    ASSERT_TRUE(Answer(question, IDYES));
    Close();
    EXPECT_EQ(Files(), (FolderFiles{{"backup\\Notes of mine.txt", "mine"}}));
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
