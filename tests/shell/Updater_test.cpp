#include "shell/Updater.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/machine/TestProgram.h"

namespace velkarix {
namespace {

class UpdaterTest : public testing::Test {
  protected:
    UpdaterTest() { program.machine.clock.SetLocalTime(MakeTime(2004, 6, 16, 9)); }

    void InstallUpdater() { program.AddInstalledFile("MorVane.exe").Content("MZ"); }
    void Database(const std::string& last) {
        program.AddInstalledFile("database.ini")
            .Content("[Database]\r\nVersion=7.1\r\n[Update]\r\nLast=" + last + "\r\n");
    }
    void Settings(const std::string& text) {
        program.AddInstalledFile("Settings.ini").Content(text);
    }
    // Starts the program and lets its timer fire.
    void StartAndTick() {
        program.Start();
        program.application.forms.Loaded("frmMain")->Timers()[0]->Tick();
    }
    std::vector<std::string> Launches() {
        std::vector<std::string> commands;
        for (const Launch& each : program.machine.shell.Launched()) {
            commands.push_back(each.commandLine);
        }
        return commands;
    }

    TestProgram program;
    const std::vector<std::string> silently = {"\"C:\\Velkarix\\Morvane.exe\" -s"};
    const std::vector<std::string> none;
    const std::string laterRun = "[Main]\r\nFirstRun=1\r\n";
};

TEST_F(UpdaterTest, StartsTheUpdateProgramInTheFirstRun) {
    InstallUpdater();
    Database("6/16/2004");
    StartAndTick();
    EXPECT_EQ(Launches(), silently);
    EXPECT_EQ(program.machine.shell.Launched()[0].showCommand, 1);
    EXPECT_EQ(program.application.settings.ReadIni("Main", "FirstRun", "0"), "1");
}

TEST_F(UpdaterTest, TellsTheUpdateProgramWhatItUpdates) {
    InstallUpdater();
    Database("");
    program.AddInstalledFile("version.ini").Content("[Application]\r\nName=old\r\nVersion=0\r\n");
    LaunchUpdater(program.application, true);
    EXPECT_EQ(program.InstalledText("version.ini"),
              "[Application]\r\nName=Velkarix\r\nVersion=7.1\r\n");
}

TEST_F(UpdaterTest, CountsTheFirstRunAlsoWithoutAnUpdateProgram) {
    StartAndTick();
    EXPECT_EQ(Launches(), none);
    EXPECT_EQ(program.application.settings.ReadIni("Main", "FirstRun", "0"), "1");
    EXPECT_TRUE(program.desktop.messages.empty());
    EXPECT_FALSE(program.machine.disk.Exists("C:\\Velkarix\\version.ini"));
}

TEST_F(UpdaterTest, TicksOnce) {
    InstallUpdater();
    StartAndTick();
    Timer& timer = *program.application.forms.Loaded("frmMain")->Timers()[0];
    EXPECT_FALSE(timer.Enabled());
    timer.Tick();
    EXPECT_EQ(Launches(), silently);
}

TEST_F(UpdaterTest, TakesTextForAFirstRunButNotAFraction) {
    InstallUpdater();
    Settings("[Main]\r\nFirstRun=yes\r\n");
    StartAndTick();
    EXPECT_EQ(Launches(), silently);
}

TEST_F(UpdaterTest, TakesAHalfForNoFirstRun) {
    InstallUpdater();
    Settings("[Main]\r\nFirstRun=0.5\r\n");
    Database("***");
    StartAndTick();
    EXPECT_EQ(Launches(), none);
}

TEST_F(UpdaterTest, IgnoresTheSwitchedOffCheckInTheFirstRun) {
    InstallUpdater();
    Settings("[Update]\r\nCheckUpdate=0\r\n");
    StartAndTick();
    EXPECT_EQ(Launches(), silently);
}

TEST_F(UpdaterTest, StartsItWhenTheDefinitionsAreSixteenDaysOld) {
    InstallUpdater();
    Settings(laterRun);
    Database("5/31/2004");
    StartAndTick();
    EXPECT_EQ(Launches(), silently);
}

TEST_F(UpdaterTest, LeavesDefinitionsOfFifteenDaysAlone) {
    InstallUpdater();
    Settings(laterRun);
    Database("6/1/2004");
    StartAndTick();
    EXPECT_EQ(Launches(), none);
}

TEST_F(UpdaterTest, LeavesDefinitionsAloneUpToThatAge) {
    InstallUpdater();
    Settings(laterRun);
    for (const char* last : {"6/16/2004", "6/15/2004", "6/2/2004"}) {  // 0, 1 and 14 days
        Database(last);
        CheckForUpdate(program.application);
        EXPECT_EQ(Launches(), none) << last;
    }
}

// Those of the United States, the United Kingdom, Germany and Japan.
TEST_F(UpdaterTest, CountsTheDaysInTheUsersFormOfDates) {
    struct Dates {
        const char* form;
        const char* fifteenDays;
        const char* sixteenDays;
        const char* aheadOfToday;
    };
    const Dates all[] = {{"M/d/yyyy", "6/1/2004", "5/31/2004", "6/17/2004"},
                         {"dd/MM/yyyy", "01/06/2004", "31/05/2004", "17/06/2004"},
                         {"dd.MM.yyyy", "01.06.2004", "31.05.2004", "17.06.2004"},
                         {"yyyy/MM/dd", "2004/06/01", "2004/05/31", "2004/06/17"}};
    InstallUpdater();
    for (const Dates& dates : all) {
        program.machine.clock.SetShortDate(dates.form);
        const std::size_t before = Launches().size();
        for (const char* last : {dates.fifteenDays, dates.aheadOfToday, "***", "soon", ""}) {
            Database(last);
            CheckForUpdate(program.application);
            EXPECT_EQ(Launches().size(), before) << dates.form << " " << last;
        }
        Database(dates.sixteenDays);
        CheckForUpdate(program.application);
        EXPECT_EQ(Launches().size(), before + 1) << dates.form;
    }
}

// The date that the utilities page writes for a new installation is one that is read again.
TEST_F(UpdaterTest, CountsFromTheDayThatTheUtilitiesPageWasFirstOpened) {
    InstallUpdater();
    for (const char* form : {"M/d/yyyy", "dd/MM/yyyy", "dd.MM.yyyy", "yyyy/MM/dd"}) {
        program.machine.clock.SetShortDate(form);
        program.machine.clock.SetLocalTime(MakeTime(2004, 6, 16, 9));
        Database("***");
        program.application.forms.Show("frmUtilities");
        program.application.forms.Unload("frmUtilities");
        const std::size_t before = Launches().size();
        program.machine.clock.SetLocalTime(MakeTime(2004, 7, 1, 9));
        CheckForUpdate(program.application);
        EXPECT_EQ(Launches().size(), before) << form;
        program.machine.clock.SetLocalTime(MakeTime(2004, 7, 2, 0));
        CheckForUpdate(program.application);
        EXPECT_EQ(Launches().size(), before + 1) << form;
    }
}

TEST_F(UpdaterTest, StartsNothingWithoutTheAutomationLibrary) {
    InstallUpdater();
    program.machine.clock.SetHasAutomation(false);
    Database("1/1/2004");
    CheckForUpdate(program.application);
    EXPECT_EQ(Launches(), none);
}

// Calendar days count, not spans of 24 hours.
TEST_F(UpdaterTest, CountsCalendarDays) {
    InstallUpdater();
    Settings(laterRun);
    Database("5/31/2004 11:59 PM");
    program.machine.clock.SetLocalTime(MakeTime(2004, 6, 16, 0, 1));
    StartAndTick();
    EXPECT_EQ(Launches(), silently);
}

TEST_F(UpdaterTest, StartsNothingForADateInTheFuture) {
    InstallUpdater();
    Settings(laterRun);
    Database("6/16/2030");
    StartAndTick();
    EXPECT_EQ(Launches(), none);
}

TEST_F(UpdaterTest, StartsNothingWithoutADate) {
    InstallUpdater();
    Settings(laterRun);
    for (const char* last : {"***", "", "soon"}) {
        Database(last);
        CheckForUpdate(program.application);
        EXPECT_EQ(Launches(), none) << last;
    }
}

TEST_F(UpdaterTest, ChecksOnlyWhenTheSettingIsExactlyOne) {
    InstallUpdater();
    Database("1/1/2004");
    for (const char* check : {"0", "2", "1.5", "no", "-1"}) {
        Settings(laterRun + "[Update]\r\nCheckUpdate=" + check + "\r\n");
        StartAndTick();
        EXPECT_EQ(Launches(), none) << check;
        program.application.forms.UnloadAll("frmMain");
    }
    Settings(laterRun + "[Update]\r\nCheckUpdate=1 time\r\n");
    StartAndTick();
    EXPECT_EQ(Launches(), silently);
}

TEST_F(UpdaterTest, SaysThatTheUpdateProgramIsMissingWhenAsked) {
    LaunchUpdater(program.application, false);
    ASSERT_EQ(program.desktop.messages.size(), 1u);
    EXPECT_EQ(program.desktop.messages[0].text, "Update utlity not found.");
    EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::Critical);
    EXPECT_EQ(program.desktop.messages[0].title, "Velkarix");
}

TEST_F(UpdaterTest, StartsItWithoutTheSwitchWhenAsked) {
    InstallUpdater();
    LaunchUpdater(program.application, false);
    EXPECT_EQ(Launches(), (std::vector<std::string>{"\"C:\\Velkarix\\Morvane.exe\""}));
}

TEST_F(UpdaterTest, EndsTheProgramWhenTheStartFails) {
    InstallUpdater();
    program.machine.FailNext("WinExec", error::FileNotFound);
    LaunchUpdater(program.application, true);
    ASSERT_EQ(program.desktop.messages.size(), 1u);
    EXPECT_EQ(program.desktop.messages[0].text, "Run-time error '53':\r\n\r\nFile not found");
    EXPECT_TRUE(program.desktop.quit);
}

TEST_F(UpdaterTest, TakesEveryRunForTheFirstWhereSettingsCanNotBeWritten) {
    InstallUpdater();
    program.AddInstalledFile("Settings.ini").ReadOnly();
    StartAndTick();
    program.application.forms.UnloadAll("frmMain");
    StartAndTick();
    EXPECT_EQ(Launches().size(), 2u);
    EXPECT_TRUE(program.desktop.messages.empty());
}

}  // namespace
}  // namespace velkarix
