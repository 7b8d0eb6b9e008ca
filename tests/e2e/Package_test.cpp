// The installer: what it lays down, what the program then shows of itself, and what an upgrade
// keeps.
#include "Input.h"
#include "PackageTest.h"
#include "Program.h"
#include "Screen.h"
#include "Setup.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class Package : public PackageTest {};
class EverySystemPackage : public Package {};

TEST_F(EverySystemPackage, LaysDownWhatThePortableFormHoldsAndAnUninstaller) {
    InstallHere();
    FolderFiles files = Files();
    EXPECT_EQ(files.erase("Uninstall.exe"), 1u);
    const FolderFiles portable = PortableFiles();
    EXPECT_TRUE(portable.contains("Velkarix.exe"));
    EXPECT_TRUE(portable.contains("Readme.txt"));
    EXPECT_TRUE(portable.contains("Help\\index.html"));
    EXPECT_TRUE(files == portable) << files.size() << " files, not " << portable.size();
    EXPECT_EQ(MenuEntries(), (std::vector<std::string>{"Velkarix Help.lnk", "Velkarix.lnk"}));
}

TEST_F(EverySystemPackage, DeclaresTheProgramAsInstalled) {
    InstallHere();
    EXPECT_EQ(EntryText("DisplayName"), "Velkarix");
    EXPECT_EQ(EntryText("DisplayVersion"), Environment("VELKARIX_VERSION"));
    EXPECT_EQ(EntryText("Publisher"), "Velkarix");
    EXPECT_EQ(EntryText("InstallLocation"), Folder());
    EXPECT_EQ(EntryText("DisplayIcon"), Path("Velkarix.exe") + ",0");
    EXPECT_EQ(EntryText("UninstallString"), "\"" + Path("Uninstall.exe") + "\"");
    EXPECT_EQ(EntryText("QuietUninstallString"), "\"" + Path("Uninstall.exe") + "\" /S");
    std::size_t size = 0;
    for (const auto& [name, bytes] : PortableFiles()) size += bytes.size();
    const RegistryValue kilobytes = Entry()->values["EstimatedSize"];
    ASSERT_EQ(kilobytes.type, static_cast<DWORD>(REG_DWORD));
    EXPECT_EQ(kilobytes.data[0] + 256u * kilobytes.data[1], (size + 1023) / 1024);
}

TEST_F(EverySystemPackage, TheInstalledProgramStartsAndListsItself) {
    InstallHere();
    Write("Settings.ini", "[Main]\r\nFirstRun=1\r\n[Update]\r\nCheckUpdate=0\r\n");
    Program program(Folder());
    ASSERT_TRUE(program.Main());
    ASSERT_TRUE(program.Press("cmdAddremove"));
    const ListWindow applications = program.List("lstvAddRemove");
    const std::optional<int> row = applications.Find("Velkarix");
    ASSERT_TRUE(row);
    EXPECT_EQ(applications.Text(*row, 1), EntryText("UninstallString"));
    // The green of the program's own icon; the picture for all others has none.
    applications.Show(*row);
    EXPECT_TRUE(WaitUntil([&] {
        return CountPixels(applications.IconArea(*row), [](COLORREF each) {
                   return GetGValue(each) > GetRValue(each) + 60 &&
                          GetGValue(each) >= GetBValue(each);
               }) > 100;
    })) << "another picture";
    BringToFront(program.Main());
    DoubleClickAt(Inside(applications.LabelArea(*row)));
    const Window question = Page("Uninstall Velkarix");
    ASSERT_TRUE(question);
    EXPECT_TRUE(Press(question, IDCANCEL));
    ASSERT_EQ(program.Close(), 0u);
}

TEST_F(EverySystemPackage, AnUpgradeKeepsWhatIsTheUsers) {
    InstallHere();
    WriteUsersFiles();
    Write("Velkarix.exe", "an older one");
    Write("Help\\index.html", "an older one");
    // It goes where the older one is.
    const Process setup = StartSetup("/S");
    WaitForSingleObject(setup.Handle(), SetupPatience);
    ASSERT_EQ(setup.WaitForExit(), 0u);
    for (const auto& [name, bytes] : UsersFiles()) EXPECT_EQ(Read(name), bytes) << name;
    const FolderFiles portable = PortableFiles();
    EXPECT_TRUE(Read("Velkarix.exe") == portable.at("Velkarix.exe"));
    EXPECT_TRUE(Read("Help\\index.html") == portable.at("Help\\index.html"));
}

TEST_F(Package, AnUpgradeGivesNoEntriesInTheStartMenuToWhoDidWithoutThem) {
    InstallHere();
    RemoveMenuEntries();
    InstallHere();
    EXPECT_EQ(MenuEntries(), std::vector<std::string>{});
}

TEST_F(Package, IsntInstalledOverAProgramThatRuns) {
    InstallHere();
    Write("Settings.ini", "[Main]\r\nFirstRun=1\r\n[Update]\r\nCheckUpdate=0\r\n");
    Write("Readme.txt", "an older one");
    Program program(Folder());
    ASSERT_TRUE(program.Main());
    EXPECT_EQ(Install(Folder()), 2u);
    EXPECT_EQ(Read("Readme.txt"), "an older one");
    Uninstall(Folder());
    EXPECT_EQ(Read("Readme.txt"), "an older one");
    EXPECT_TRUE(Entry());
    ASSERT_EQ(program.Close(), 0u);
}

TEST_F(Package, IsInstalledStepByStep) {
    const Process setup = StartSetup("");
    const Window components = Page("Choose Components");
    ASSERT_TRUE(components);
    EXPECT_TRUE(SaveScreenshot("setup-1-components", setup.Id()));
    ASSERT_TRUE(Press(components, IDOK));
    const Window place = Page("Choose Install Location");
    ASSERT_TRUE(place);
    const Window edit = ChildOfClass(place, "Edit");
    edit.Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Folder().c_str()));
    EXPECT_TRUE(SaveScreenshot("setup-2-folder", setup.Id()));
    ASSERT_TRUE(Press(place, IDOK));
    const Window done = Page("Installation Complete");
    ASSERT_TRUE(done);
    EXPECT_TRUE(SaveScreenshot("setup-3-files", setup.Id()));
    ASSERT_TRUE(Press(done, IDOK));
    const Window last = Page("Completing Velkarix Setup");
    ASSERT_TRUE(last);
    EXPECT_TRUE(SaveScreenshot("setup-4-end", setup.Id()));
    const Window start = ChildOfText(last, "Start Velkarix");
    EXPECT_TRUE(start.Checked());
    ASSERT_TRUE(start.Click());
    ASSERT_TRUE(Press(last, IDOK));
    EXPECT_EQ(setup.WaitForExit(), 0u);
    EXPECT_TRUE(Exists("Velkarix.exe"));
    EXPECT_EQ(EntryText("InstallLocation"), Folder());
}

}  // namespace
}  // namespace velkarix::e2e
