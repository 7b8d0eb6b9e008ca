// The hand-over to the update program: at the first run, and when the definitions are old.
#include "LastUpdate.h"
#include "ProgramTest.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

// Long enough for the timer, which fires 200 milliseconds after the start, to have been.
constexpr DWORD AfterTheTimer = 800;

class Updater : public ProgramTest {
  protected:
    // The settings of an installation that has been run before.
    void CheckForUpdates() { install_.Write("Settings.ini", "[Main]\r\nFirstRun=1\r\n"); }
    bool Launched(DWORD patience = Patience) {
        return WaitUntil([this] { return !install_.Read("MorVane.log").empty(); }, patience);
    }
};

TEST_F(Updater, TheFirstRunStartsItAndTellsItWhatToUpdate) {
    install_.Remove("Settings.ini");
    SetLastUpdate(install_, "***");
    Start();
    ASSERT_TRUE(Launched());
    EXPECT_EQ(install_.Read("MorVane.log"),
              "command: \"" + install_.Folder() +
                  "\\Morvane.exe\" -s\r\nfolder: " + install_.Folder() + "\r\n");
    EXPECT_EQ(install_.Ini("version.ini", "Application", "Name"), "Velkarix");
    EXPECT_EQ(install_.Ini("version.ini", "Application", "Version"), "7.5");
    EXPECT_EQ(install_.Ini("Settings.ini", "Main", "FirstRun"), "1");
}

TEST_F(Updater, TheFirstRunWithoutUpdateProgramCountsAllTheSame) {
    install_.Remove("Settings.ini");
    install_.Remove("MorVane.exe");
    Start();
    EXPECT_TRUE(
        WaitUntil([this] { return install_.Ini("Settings.ini", "Main", "FirstRun") == "1"; }));
    EXPECT_FALSE(install_.Exists("version.ini"));
    EXPECT_TRUE(Running().Press("cmdRefresh")) << "something stands in the way";
}

TEST_F(Updater, ALastUpdate16DaysAgoStartsIt) {
    CheckForUpdates();
    SetLastUpdate(install_, DaysAgo(16));
    Start();
    EXPECT_TRUE(Launched());
}

TEST_F(Updater, ALastUpdate15DaysAgoDoesNotStartIt) {
    CheckForUpdates();
    SetLastUpdate(install_, DaysAgo(15));
    Start();
    EXPECT_FALSE(Launched(AfterTheTimer));
}

TEST_F(Updater, TheSettingSwitchesTheCheckOff) {
    CheckForUpdates();
    WritePrivateProfileStringA("Update", "CheckUpdate", "0", install_.Path("Settings.ini").c_str());
    SetLastUpdate(install_, DaysAgo(100));
    Start();
    EXPECT_FALSE(Launched(AfterTheTimer));
}

}  // namespace
}  // namespace velkarix::e2e
