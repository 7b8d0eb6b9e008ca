#include "shell/frmMain.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/machine/TestProgram.h"

namespace velkarix {
namespace {

using Events = std::vector<std::string>;

class MainFormTest : public testing::Test {
  protected:
    frmMain& Main() { return static_cast<frmMain&>(*program.application.forms.Loaded("frmMain")); }
    void Click(const char* button) { program.Get<Button>("frmMain", button).Raise("Click"); }
    void Settings(const std::string& text) {
        program.AddInstalledFile("Settings.ini").Content(text);
    }

    TestProgram program;
};

TEST_F(MainFormTest, ShowsTitleAndVersionInItsCaption) {
    program.Start();
    EXPECT_EQ(Main().Caption(), "Velkarix Version: 1.0");
    EXPECT_EQ(program.application.DisabledRoot, "Software\\Velkarix\\Disabled\\");
}

TEST_F(MainFormTest, BeginsWithTheDefaultsWhenThereIsNoFileAtAll) {
    program.Start();
    const Appearance& appearance = program.application.appearance;
    EXPECT_EQ(appearance.SusColor, 255u);
    EXPECT_EQ(appearance.DisColor, 8421504u);
    EXPECT_EQ(appearance.SusDisColor, 64u);
    EXPECT_EQ(appearance.FontBold, 1);
    EXPECT_TRUE(program.desktop.messages.empty());
}

TEST_F(MainFormTest, ReadsTheAppearanceOfTheUser) {
    Settings("[Main]\r\nFontBold=0\r\nSusColor=1\r\nDisColor=2x\r\nSusDisColor= 3.6\r\n");
    program.Start();
    const Appearance& appearance = program.application.appearance;
    EXPECT_EQ(appearance.FontBold, 0);
    EXPECT_EQ(appearance.SusColor, 1u);
    EXPECT_EQ(appearance.DisColor, 2u);
    EXPECT_EQ(appearance.SusDisColor, 4u);
}

TEST_F(MainFormTest, KnowsItsFolderThoughOnceTheSystemDoesNotTellIt) {
    for (int told = 0; told < 3; ++told) {
        TestProgram started;
        started.AddInstalledFile("Settings.ini").Content("[Main]\r\nFontBold=0\r\n");
        for (int i = 0; i < told; ++i) started.machine.FailNext("GetModuleFileNameA", 0);
        started.machine.FailNext("GetModuleFileNameA");
        started.Start();
        EXPECT_EQ(started.application.appearance.FontBold, 0) << told;
    }
}

TEST_F(MainFormTest, EndsTheProgramWhenFontBoldIsNoNumber) {
    Settings("[Main]\r\nFontBold=bold\r\n");
    program.Start();
    ASSERT_EQ(program.desktop.messages.size(), 1u);
    EXPECT_EQ(program.desktop.messages[0].text, "Run-time error '13':\r\n\r\nType mismatch");
    EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::Critical);
    EXPECT_TRUE(program.desktop.quit);
    EXPECT_EQ(program.application.forms.Loaded("frmProcess"), nullptr);
}

TEST_F(MainFormTest, EndsTheProgramWhenFontBoldIsTooLarge) {
    Settings("[Main]\r\nFontBold=40000\r\n");
    program.Start();
    ASSERT_EQ(program.desktop.messages.size(), 1u);
    EXPECT_EQ(program.desktop.messages[0].text, "Run-time error '6':\r\n\r\nOverflow");
}

TEST_F(MainFormTest, LoadsTheSystemsNameAndTheFourLists) {
    program.AddInstalledFile("SusCLSID.vkl").Content("{1}\r\n");
    program.AddInstalledFile("SystemProcess.vkl").Content("sys");
    program.AddInstalledFile("SusProcess.vkl").Content("bad");
    program.AddInstalledFile("SusInstall.vkl").Content("inst");
    program.Start();
    const Application& application = program.application;
    EXPECT_EQ(application.WindowsName, "Microsoft Windows XP");
    EXPECT_TRUE(ListContains(application.SusCLSIDList, " {1}"));
    EXPECT_TRUE(ListContains(application.SystemProcessList, "sys"));
    EXPECT_TRUE(ListContains(application.SusProcessList, "bad"));
    EXPECT_TRUE(ListContains(application.SusInstallList, "inst"));
    EXPECT_FALSE(ListContains(application.SusInstallList, "bad"));
}

TEST_F(MainFormTest, FreezesItsFrame) {
    program.Start();
    EXPECT_EQ(program.machine.Journal().CountOf("SetWindowPos"), 1u);
    EXPECT_EQ(program.machine.Journal().ArgumentsOf("SetWindowPos").size(), 1u);
}

TEST_F(MainFormTest, MakesReadyInOneOrder) {
    program.Start();
    const Events names = program.machine.Journal().Names();
    const auto at = [&names](const char* name) {
        return std::find(names.begin(), names.end(), name) - names.begin();
    };
    EXPECT_LT(at("SetWindowPos"), at("GetPrivateProfileStringA"));
    EXPECT_LT(at("GetPrivateProfileStringA"), at("GetVersionExA"));
    EXPECT_LT(at("GetVersionExA"), at("EnumProcesses"));
}

TEST_F(MainFormTest, ShowsTheProcessPageBeforeItIsShownItself) {
    program.Start();
    EXPECT_EQ(program.desktop.events, (Events{"create frmMain", "create frmProcess in picPage",
                                              "show frmProcess", "show frmMain"}));
    EXPECT_TRUE(program.Get<Button>("frmMain", "cmdProcess").Pressed());
}

TEST_F(MainFormTest, EnablesItsTimerAtTheEndOfItsLoad) {
    program.Start();
    ASSERT_EQ(Main().Timers().size(), 1u);
    EXPECT_TRUE(Main().Timers()[0]->Enabled());
    EXPECT_EQ(Main().Timers()[0]->Interval(), 200);
}

TEST_F(MainFormTest, DoesNothingOnAClickOnTheActivePagesButton) {
    program.Start();
    program.desktop.events.clear();
    program.machine.Journal().Clear();
    Click("cmdProcess");
    EXPECT_TRUE(program.desktop.events.empty());
    EXPECT_TRUE(program.machine.Journal().Calls().empty());
}

TEST_F(MainFormTest, LeadsToEachOfSixPages) {
    program.Start();
    const std::pair<const char*, const char*> pages[] = {{"cmdIE", "frmIE"},
                                                         {"cmdStartup", "frmStartup"},
                                                         {"cmdAddremove", "frmAddRemove"},
                                                         {"cmdOptions", "frmOptions"},
                                                         {"cmdUtilities", "frmUtilities"},
                                                         {"cmdProcess", "frmProcess"}};
    for (const auto& [button, page] : pages) {
        Click(button);
        EXPECT_NE(program.application.forms.Loaded(page), nullptr) << page;
        EXPECT_TRUE(program.Get<Button>("frmMain", button).Pressed()) << button;
    }
    EXPECT_FALSE(program.Get<Button>("frmMain", "cmdUtilities").Pressed());
}

TEST_F(MainFormTest, UnloadsThePageOnViewBeforeItShowsTheNext) {
    program.Start();
    program.desktop.events.clear();
    Click("cmdOptions");
    EXPECT_EQ(program.desktop.events,
              (Events{"destroy frmProcess", "create frmOptions in picPage", "show frmOptions"}));
}

TEST_F(MainFormTest, ScansAgainWhenAPageIsEnteredAndFocusesItsList) {
    program.Start();
    Click("cmdOptions");
    program.machine.AddProcess(77, "C:\\WINDOWS\\new.exe");
    program.desktop.events.clear();
    Click("cmdProcess");
    EXPECT_EQ(program.Get<ListView>("frmProcess", "lstvProcess").RowCount(), 1u);
    EXPECT_EQ(program.desktop.events.back(), "focus lstvProcess");
}

TEST_F(MainFormTest, SwitchesPagesByKeys) {
    program.Start();
    EXPECT_TRUE(Main().RaiseKey({Key::Digit6, true}));
    EXPECT_NE(program.application.forms.Loaded("frmUtilities"), nullptr);
    EXPECT_TRUE(Main().RaiseKey({Key::Digit1, true}));
    EXPECT_NE(program.application.forms.Loaded("frmProcess"), nullptr);
    EXPECT_FALSE(Main().RaiseKey({Key::Digit2}));
}

TEST_F(MainFormTest, OpensTheHelpIndex) {
    program.AddInstalledFile("Help\\index.html").Content("<html>");
    program.Start();
    program.Get<LinkLabel>("frmMain", "lblHelp").Raise("Click");
    ASSERT_EQ(program.machine.shell.Opened().size(), 1u);
    EXPECT_EQ(program.machine.shell.Opened()[0],
              (ShellOpening{0, "Open", "C:\\Velkarix\\Help\\index.html", "", "", 1}));
}

TEST_F(MainFormTest, ShowsTheAboutBoxAboveItself) {
    program.AddInstalledFile("database.ini").Content("[Database]\r\nVersion=2004.05\r\n");
    program.Start();
    program.desktop.onModal = [](Form& form) {
        EXPECT_EQ(form.Caption(), "About: Velkarix");
        EXPECT_EQ(form.Find("lblTitle")->Text(), "Velkarix");
        EXPECT_EQ(form.Find("lblVersion")->Text(), "Version: 1.0");
        EXPECT_EQ(form.Find("lblDB")->Text(), "2004.05");
        form.Run("cmdOk_Click");
        EXPECT_TRUE(form.Closing());
    };
    program.desktop.events.clear();
    program.Get<LinkLabel>("frmMain", "lblAbout").Raise("Click");
    EXPECT_EQ(program.desktop.events,
              (Events{"create frmAbout", "modal frmAbout above frmMain", "destroy frmAbout"}));
}

TEST_F(MainFormTest, ShowsNoDatabaseVersionWhereThereIsNone) {
    program.Start();
    std::string shown;
    program.desktop.onModal = [&shown](Form& form) { shown = form.Find("lblDB")->Text(); };
    program.Get<LinkLabel>("frmMain", "lblAbout").Raise("Click");
    EXPECT_EQ(shown, "N/A");
}

TEST_F(MainFormTest, StartsWithGarbageInItsSettings) {
    std::string garbage = "[Main\r\n=\r\n]][[\r\nSusColor\r\n\x01\x02\xFF\r\n[Main]\r\n";
    garbage.append(1000000, 'x');
    garbage += "\r\nSusColor=99999999999999999999\r\nDisColor=-1\r\n";
    Settings(garbage);
    program.Start();
    EXPECT_TRUE(program.desktop.messages.empty());
    EXPECT_NE(program.application.forms.Loaded("frmProcess"), nullptr);
}

TEST_F(MainFormTest, LeavesNoHandleOpenAfterManySwitches) {
    program.machine.AddFile("C:\\WINDOWS\\a.exe").Content("MZ");
    program.machine.AddProcess(4, "C:\\WINDOWS\\a.exe");
    program.Start();
    for (int i = 0; i < 50; ++i) {
        Click("cmdIE");
        Click("cmdProcess");
    }
    EXPECT_EQ(program.machine.registry.OpenKeyCount(), 0u);
    EXPECT_EQ(program.machine.files.OpenFileCount(), 0u);
    EXPECT_EQ(program.machine.processes.OpenHandleCount(), 0u);
    EXPECT_EQ(program.machine.token.OpenTokenCount(), 0u);
    EXPECT_EQ(program.machine.shell.OpenIconCount(), 0u);
}

}  // namespace
}  // namespace velkarix
