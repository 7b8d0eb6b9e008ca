#include "InstalledTest.h"

#include <windows.h>
#include <commctrl.h>

#include "Input.h"
#include "Setup.h"
#include "Wait.h"

namespace velkarix::e2e {

namespace {

const std::string EntriesKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall";

// What the system keeps of an application isn't read on the oldest systems.
std::string CachedIcon() {
    const std::string system = SystemUnderTest();
    return system == "win95" || system == "win98" ? "" : "SampleSafe";
}

std::string UninstallerLog() {
    return SamplePath("SampleUninstaller.log");
}

}  // namespace

const std::vector<InstalledApplication>& InstalledApplications() {
    static const std::string uninstaller = SamplePath("SampleUninstaller.exe");
    static const std::string database = "{5A3B17C2-52C4-4D18-9F3A-6E1C2A7750B0}";
    static const std::vector<InstalledApplication> applications = {
        {"Lucky Games", uninstaller + " /casino", "SampleCasino", "SampleSuspect", true},
        {"Sample Chat", "\"" + uninstaller + "\" /uninstall \"Sample Chat\" -x", "SampleChat",
         "SampleTray"},
        {"Sample Database Tools", "MsiExec.exe /X" + database, database},
        {"Sample Gone", "C:\\Program Files\\Sample Gone\\uninstall.exe", "SampleGone"},
        {"Sample Lottery", uninstaller + " /lottery", "4711"},
        {"Sample Many Icons", uninstaller + " /many", "SampleMany"},
        {"Sample Maths", uninstaller + " /maths", "SampleMaths"},
        {"Sample Player", uninstaller + " /player", "SamplePlayer", CachedIcon()},
        {"Sample Recorder 2.1", uninstaller + " /log=C:\\Samples\\setup.log", "SampleRecorder",
         "SampleRecorder"},
        {"Sample Suite", uninstaller, "SampleSuite", "SampleIdle"},
        {"Sample Viewer", uninstaller + " /viewer", "SampleViewer"},
        {"Sample Writer", uninstaller + " /writer", "SampleWriter"},
    };
    return applications;
}

InstalledTest::InstalledTest() {
    DeleteFileA(UninstallerLog().c_str());
}

InstalledTest::~InstalledTest() {
    RestoreTree(HKEY_LOCAL_MACHINE, EntriesKey, before_);
}

void InstalledTest::OpenInstalled() {
    Start();
    ASSERT_TRUE(Running().Press("cmdAddremove"));
    ASSERT_TRUE(Applications().Visible());
}

bool InstalledTest::InDetails() {
    return (Applications().Style() & LVS_TYPEMASK) == LVS_REPORT;
}

void InstalledTest::ChooseView(bool details) {
    BringToFront(Running().Main());
    ClickAt(Inside(Running().Control(details ? "optReport" : "optIcon").Area()));
    EXPECT_TRUE(WaitUntil([&] { return InDetails() == details; }));
}

void InstalledTest::SelectApplication(const std::string& name) {
    const std::optional<int> row = Applications().Find(name);
    ASSERT_TRUE(row) << name << " isn't listed";
    SelectRow(Applications(), *row);
}

std::optional<RegistryTree> InstalledTest::ReadEntry(const std::string& key) {
    return ReadTree(HKEY_LOCAL_MACHINE, EntriesKey + "\\" + key);
}

std::optional<RegistryTree> InstalledTest::ReadEntries() {
    return ReadTree(HKEY_LOCAL_MACHINE, EntriesKey);
}

void InstalledTest::DeleteEntries() {
    DeleteTree(HKEY_LOCAL_MACHINE, EntriesKey);
}

std::string InstalledTest::Uninstalled() {
    std::string text;
    WaitUntil([&text] { return !(text = ReadWholeFile(UninstallerLog())).empty(); });
    return text;
}

}  // namespace velkarix::e2e
