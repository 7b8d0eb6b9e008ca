#include "utilities/frmUtilities.h"

#include "tests/forms/LayoutLint.h"
#include "tests/utilities/UtilitiesPage.h"

namespace velkarix {
namespace {

using Texts = std::vector<std::string>;

class UtilitiesPageTest : public UtilitiesPage {
  protected:
    UtilitiesPageTest() { program.machine.clock.SetLocalTime(MakeTime(2004, 6, 16, 9)); }

    void Database(const std::string& last) {
        program.AddInstalledFile("database.ini")
            .Content("[Database]\r\nVersion=7.1\r\n[Update]\r\nLast=" + last + "\r\n");
    }
    void SetCheckUpdate(const std::string& value) {
        program.AddInstalledFile("Settings.ini")
            .Content("[Main]\r\nFirstRun=1\r\n[Update]\r\nCheckUpdate=" + value + "\r\n");
    }
    std::string CheckUpdate() {
        return program.application.settings.ReadIni("Update", "CheckUpdate", "(missing)");
    }
    std::string Last() {
        return program.application.settings.ReadIni("Update", "Last", "(missing)",
                                                    "C:\\Velkarix\\database.ini");
    }
    CheckBox& AutoCheck() { return program.Get<CheckBox>("frmUtilities", "chkAutoDBCheck"); }
};

TEST_F(UtilitiesPageTest, NamesItsBoxesAndButtons) {
    Open();
    const std::pair<const char*, const char*> captions[] = {
        {"fmDBUpdate", "Database Update"},
        {"chkAutoDBCheck", "Automatically check for database update"},
        {"cmdUpdateDefinition", "Update"},
        {"fmSoftwareUpdate", "Software Update"},
        {"cmdUpdateSoftware", "Update"},
        {"fmActiveX", "Protect from Malacious Activex Controls"},
        {"lblActiveX",
         "Many of the malacious software are installed on your computer in form of ActiveX "
         "controls through Internet Explorer. You can prevent them from installing on your "
         "computer by clicking Protect Now button."},
        {"cmdActiveXProtect", "Protect Now"},
        {"cmdActiveXRemove", "Remove Protection"}};
    for (const auto& [control, caption] : captions) EXPECT_EQ(TextOf(control), caption);
}

TEST_F(UtilitiesPageTest, SaysWhatItsUpdateButtonsAreForWhereTheMouseRests) {
    Open();
    const Form& page = *program.application.forms.Loaded("frmUtilities");
    EXPECT_EQ(page.Find("cmdUpdateDefinition")->ToolTip(), "Click to update the current database ");
    EXPECT_EQ(page.Find("cmdUpdateSoftware")->ToolTip(), "Click to update the current software ");
    EXPECT_EQ(page.Find("cmdHosts")->ToolTip(), "");
}

TEST_F(UtilitiesPageTest, BreaksItsLongTextsIntoLines) {
    Open();
    for (const char* label : {"lblActiveX", "lblHosts", "lblLSP"}) {
        EXPECT_EQ(program.Get<Label>("frmUtilities", label).LabelLook(), Label::Look::Paragraph);
    }
    PlainMetrics metrics;
    const Form& page = *program.application.forms.Loaded("frmUtilities");
    EXPECT_LE(MinimumSize(page.FormLayout(), metrics).width, 700);
}

// ---- Whether to look for updates

TEST_F(UtilitiesPageTest, ShowsTheSettingByItsNumber) {
    const std::pair<const char*, bool> settings[] = {
        {"1", true},      {"0", false}, {"2", false},          {"-1", false},
        {"1 time", true}, {" 1", true}, {"no", false},         {"0.7", true},
        {"1.5", false},   {"", false},  {"99999999999", false}};
    for (const auto& [value, checked] : settings) {
        SetCheckUpdate(value);
        Open();
        EXPECT_EQ(AutoCheck().Checked(), checked) << value;
        Leave();
    }
}

TEST_F(UtilitiesPageTest, ChecksByDefault) {
    Open();
    EXPECT_TRUE(AutoCheck().Checked());
}

TEST_F(UtilitiesPageTest, KeepsTheSettingWhenItIsLeftAndNotBefore) {
    SetCheckUpdate("1");
    Open();
    Click("chkAutoDBCheck");
    EXPECT_EQ(CheckUpdate(), "1");
    Leave();
    EXPECT_EQ(CheckUpdate(), "0");
    Open();
    EXPECT_FALSE(AutoCheck().Checked());
    Click("chkAutoDBCheck");
    Leave();
    EXPECT_EQ(CheckUpdate(), "1");
}

TEST_F(UtilitiesPageTest, WritesTheSettingAlsoWhenNothingWasChanged) {
    Open();
    EXPECT_EQ(CheckUpdate(), "(missing)");
    Leave();
    EXPECT_EQ(CheckUpdate(), "1");
    SetCheckUpdate("2");
    Open();
    Leave();
    EXPECT_EQ(CheckUpdate(), "0");
}

TEST_F(UtilitiesPageTest, KeepsTheSettingWhenTheProgramIsClosedWhileItIsOpen) {
    SetCheckUpdate("1");
    program.desktop.onEventLoop = [this] {
        Open();
        Click("chkAutoDBCheck");
    };
    Main(program.application);
    EXPECT_EQ(CheckUpdate(), "0");
}

TEST_F(UtilitiesPageTest, TellsNothingWhereTheSettingCanNotBeWritten) {
    SetCheckUpdate("1");
    Open();
    Click("chkAutoDBCheck");
    program.AddInstalledFile("Settings.ini").ReadOnly();
    Leave();
    EXPECT_EQ(CheckUpdate(), "1");
    EXPECT_EQ(Told(), Texts{});
}

// ---- The date of the last update

TEST_F(UtilitiesPageTest, ShowsTheDateAndLeavesTheFileAlone) {
    Database("6/1/2004");
    const std::string before = program.InstalledText("database.ini");
    Open();
    EXPECT_EQ(TextOf("lblLastUpdated"), "Last Updated On: 6/1/2004");
    EXPECT_EQ(program.InstalledText("database.ini"), before);
}

TEST_F(UtilitiesPageTest, ShowsAnyOtherTextAsItStands) {
    for (const char* last : {"soon", "****", "**", "*** 6/1/2004", "1/13/2004 11:59 PM"}) {
        Database(last);
        Open();
        EXPECT_EQ(TextOf("lblLastUpdated"), std::string("Last Updated On: ") + last);
        EXPECT_EQ(Last(), last);
    }
}

TEST_F(UtilitiesPageTest, ShowsABlankWhereThereIsNoDate) {
    Open();
    EXPECT_EQ(TextOf("lblLastUpdated"), "Last Updated On: ");
    EXPECT_FALSE(program.machine.disk.Exists("C:\\Velkarix\\database.ini"));
    Database("");
    Open();
    EXPECT_EQ(TextOf("lblLastUpdated"), "Last Updated On: ");
}

TEST_F(UtilitiesPageTest, BeginsToCountWhenItIsFirstOpened) {
    Database("***");
    Open();
    EXPECT_EQ(TextOf("lblLastUpdated"), "Last Updated On: 6/16/2004");
    EXPECT_EQ(program.InstalledText("database.ini"),
              "[Database]\r\nVersion=7.1\r\n[Update]\r\nLast=6/16/2004\r\n");
    program.machine.clock.SetLocalTime(MakeTime(2004, 6, 20, 9));
    Open();
    EXPECT_EQ(TextOf("lblLastUpdated"), "Last Updated On: 6/16/2004");
    EXPECT_EQ(Last(), "6/16/2004");
}

TEST_F(UtilitiesPageTest, WritesTheDateInTheUsersShortForm) {
    const std::pair<const char*, const char*> forms[] = {{"M/d/yyyy", "6/16/2004"},
                                                         {"dd/MM/yyyy", "16/06/2004"},
                                                         {"dd.MM.yyyy", "16.06.2004"},
                                                         {"yyyy/MM/dd", "2004/06/16"}};
    for (const auto& [form, date] : forms) {
        program.machine.clock.SetShortDate(form);
        Database("***");
        Open();
        EXPECT_EQ(TextOf("lblLastUpdated"), std::string("Last Updated On: ") + date);
        EXPECT_EQ(Last(), date);
    }
}

// What is shown is what the file says from then on.
TEST_F(UtilitiesPageTest, ShowsTheMarkerWhereTheDateCanNotBeWritten) {
    Database("***");
    program.AddInstalledFile("database.ini").ReadOnly();
    Open();
    EXPECT_EQ(TextOf("lblLastUpdated"), "Last Updated On: ***");
    EXPECT_EQ(Told(), Texts{});
}

// ---- The update program

TEST_F(UtilitiesPageTest, StartsTheUpdateProgramForDataAndSoftwareAlike) {
    for (const char* button : {"cmdUpdateDefinition", "cmdUpdateSoftware"}) {
        program.AddInstalledFile("MorVane.exe").Content("MZ");
        program.AddInstalledFile("version.ini").Content("");
        Database("6/1/2004");
        Open();
        const std::size_t before = Launches().size();
        Click(button);
        Click(button);
        ASSERT_EQ(Launches().size(), before + 2) << button;
        EXPECT_EQ(Launches().back(), "\"C:\\Velkarix\\Morvane.exe\"");
        EXPECT_EQ(program.InstalledText("version.ini"),
                  "[Application]\r\nName=Velkarix\r\nVersion=7.1\r\n");
        EXPECT_EQ(TextOf("lblLastUpdated"), "Last Updated On: 6/1/2004");
        EXPECT_EQ(Told(), Texts{});
    }
}

TEST_F(UtilitiesPageTest, SaysThatTheUpdateProgramIsMissingAndWritesNothing) {
    Open();
    for (const char* button : {"cmdUpdateDefinition", "cmdUpdateSoftware"}) {
        program.desktop.messages.clear();
        Click(button);
        EXPECT_EQ(Told(), Texts{"Update utlity not found."});
        EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::Critical);
        EXPECT_EQ(program.desktop.messages[0].title, "Velkarix");
    }
    EXPECT_FALSE(program.machine.disk.Exists("C:\\Velkarix\\version.ini"));
    EXPECT_EQ(Launches(), Texts{});
}

}  // namespace
}  // namespace velkarix
