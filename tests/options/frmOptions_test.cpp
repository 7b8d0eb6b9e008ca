#include "options/frmOptions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/machine/TestProgram.h"

namespace velkarix {
namespace {

using RowTexts = std::vector<std::string>;
constexpr const char* Path = "C:\\Tools\\bad.exe";

class OptionsPageTest : public testing::Test {
  protected:
    void Open() {
        if (program.application.forms.Loaded("frmMain") == nullptr) program.Start();
        program.Get<Button>("frmMain", "cmdProcess").Raise("Click");
        program.Get<Button>("frmMain", "cmdOptions").Raise("Click");
    }
    ListView& List() { return program.Get<ListView>("frmOptions", "lstvBackup"); }
    bool Click(const char* control) {
        return program.application.forms.Loaded("frmOptions")->Find(control)->Raise("Click");
    }
    void DoubleClick(const char* box) {
        program.Get<ColorBox>("frmOptions", box).Raise("DblClick");
    }
    std::string Setting(const char* key) {
        return program.application.settings.ReadIni("Main", key, "(missing)");
    }
    void AddBackup(const std::string& stem, const std::string& line,
                   const std::string& content = "the program") {
        program.AddInstalledFile("Backup\\" + stem + ".prc").Content(line);
        program.AddInstalledFile("Backup\\" + stem + ".bup").Content(content);
    }
    std::string Content(const std::string& path) {
        return program.machine.disk.ContentOf(path).value_or("(no file)");
    }
    std::string Copy(const std::string& stem) {
        return Content("C:\\Velkarix\\Backup\\" + stem + ".bup");
    }
    RowTexts Told() {
        RowTexts texts;
        for (const Message& each : program.desktop.messages) texts.push_back(each.text);
        return texts;
    }
    void SelectFirst() { List().UserSelect(&List().Row(0)); }

    TestProgram program;
    const std::string record = std::string(Path) + "\x01" + "6/1/2004\r\n";
};

TEST_F(OptionsPageTest, ShowsTheColoursThatAreInForce) {
    program.AddInstalledFile("Settings.ini")
        .Content(
            "[Main]\r\nSusColor=1\r\nDisColor=2\r\nSusDisColor=3\r\nFontBold=0\r\n"
            "Delete=1\r\n");
    Open();
    EXPECT_EQ(program.Get<ColorBox>("frmOptions", "picSuspicious").BoxColor(), 1u);
    EXPECT_EQ(program.Get<ColorBox>("frmOptions", "picDisabled").BoxColor(), 2u);
    EXPECT_EQ(program.Get<ColorBox>("frmOptions", "picSusDis").BoxColor(), 3u);
    EXPECT_FALSE(program.Get<CheckBox>("frmOptions", "chkFontBold").Checked());
    EXPECT_TRUE(program.Get<CheckBox>("frmOptions", "chkDelete").Checked());
}

TEST_F(OptionsPageTest, SetsPaintsAndWritesAChosenColour) {
    Open();
    const std::pair<const char*, const char*> boxes[] = {
        {"picSuspicious", "SusColor"}, {"picDisabled", "DisColor"}, {"picSusDis", "SusDisColor"}};
    Color color = 0x00FF8040;
    for (const auto& [box, key] : boxes) {
        program.desktop.nextColor = ++color;
        DoubleClick(box);
        EXPECT_EQ(program.Get<ColorBox>("frmOptions", box).BoxColor(), color);
        EXPECT_EQ(Setting(key), std::to_string(color));
    }
    EXPECT_EQ(program.application.appearance.SusColor, color - 2);
    EXPECT_EQ(program.application.appearance.DisColor, color - 1);
    EXPECT_EQ(program.application.appearance.SusDisColor, color);
    EXPECT_EQ(program.desktop.colorsShown, (std::vector<Color>{255, 8421504, 64}));
}

TEST_F(OptionsPageTest, ChangesNothingWhenTheUserCancels) {
    Open();
    DoubleClick("picSuspicious");
    EXPECT_EQ(Setting("SusColor"), "(missing)");
    EXPECT_EQ(program.application.appearance.SusColor, 255u);
}

TEST_F(OptionsPageTest, SwitchesBoldAndWritesIt) {
    Open();
    Click("chkFontBold");
    EXPECT_EQ(program.application.appearance.FontBold, 0);
    EXPECT_EQ(Setting("FontBold"), "0");
    Click("chkFontBold");
    EXPECT_EQ(program.application.appearance.FontBold, 1);
    EXPECT_EQ(Setting("FontBold"), "1");
}

TEST_F(OptionsPageTest, WritesWhetherBackupsGoAfterRestoring) {
    Open();
    EXPECT_FALSE(program.Get<CheckBox>("frmOptions", "chkDelete").Checked());
    Click("chkDelete");
    EXPECT_EQ(Setting("Delete"), "1");
    Open();
    EXPECT_TRUE(program.Get<CheckBox>("frmOptions", "chkDelete").Checked());
}

TEST_F(OptionsPageTest, ListsTheBackups) {
    AddBackup("1", record);
    Open();
    ASSERT_EQ(List().RowCount(), 1u);
    const ListRow& row = List().Row(0);
    EXPECT_EQ(row.Key(), "1.prc");
    EXPECT_EQ(row.Text(0), "6/1/2004");
    EXPECT_EQ(row.Text(1), "bad.exe");
    EXPECT_EQ(row.Text(2), "C:\\Tools\\");
}

TEST_F(OptionsPageTest, HasNothingToTickInItsListOfBackups) {
    Open();
    EXPECT_FALSE(List().CheckBoxes());
}

TEST_F(OptionsPageTest, PassesOverRecordsThatAreNone) {
    AddBackup("1", "");
    AddBackup("2", "no field mark\r\n" + record);
    AddBackup("3", std::string(1024 * 1024, 'x'));
    program.AddInstalledFile("Backup\\4.txt").Content(record);
    Open();
    EXPECT_EQ(List().RowCount(), 0u);
    EXPECT_EQ(Copy("1"), "the program");
    EXPECT_TRUE(Told().empty());
}

TEST_F(OptionsPageTest, ShowsARecordOfAMegabyteInItsLine) {
    AddBackup("1", "C:\\" + std::string(1024 * 1024, 'x') + "\\a.exe\x01" + "date\r\n");
    Open();
    ASSERT_EQ(List().RowCount(), 1u);
    EXPECT_EQ(List().Row(0).Text(1), "a.exe");
    SelectFirst();
    Click("cmdrestore");
    EXPECT_EQ(Told().size(), 1u);
    EXPECT_EQ(Copy("1"), "the program");
}

TEST_F(OptionsPageTest, SplitsAPathOnlyBehindItsFirstCharacter) {
    AddBackup("1",
              "\\odd\x01"
              "d\r\n");
    Open();
    EXPECT_EQ(List().Row(0).Text(1), "\\odd");
    EXPECT_EQ(List().Row(0).Text(2), "");
}

TEST_F(OptionsPageTest, RestoresAFileAndKeepsTheSet) {
    program.machine.AddFolder("C:\\Tools");
    AddBackup("1", record);
    Open();
    SelectFirst();
    Click("cmdrestore");
    EXPECT_EQ(Told(), (RowTexts{"File restored successfully"}));
    EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::Information);
    EXPECT_EQ(Content(Path), "the program");
    EXPECT_EQ(Copy("1"), "the program");
    EXPECT_EQ(List().RowCount(), 1u);
}

TEST_F(OptionsPageTest, DeletesTheSetAfterRestoringWhenTheUserWantsThat) {
    program.machine.AddFolder("C:\\Tools");
    AddBackup("1", record);
    Open();
    Click("chkDelete");
    SelectFirst();
    Click("cmdrestore");
    EXPECT_EQ(Content(Path), "the program");
    EXPECT_EQ(Copy("1"), "(no file)");
    EXPECT_EQ(Content("C:\\Velkarix\\Backup\\1.prc"), "(no file)");
    EXPECT_EQ(List().RowCount(), 0u);
}

TEST_F(OptionsPageTest, ReplacesAPresentFileWithoutAQuestion) {
    program.machine.AddFile(Path).Content("another");
    AddBackup("1", record);
    Open();
    SelectFirst();
    Click("cmdrestore");
    EXPECT_EQ(Content(Path), "the program");
}

TEST_F(OptionsPageTest, KeepsThePresentFileThatItReplaces) {
    program.machine.AddFile(Path).Content("another");
    AddBackup("1", record);
    Open();
    SelectFirst();
    Click("cmdrestore");
    EXPECT_EQ(Content("C:\\Velkarix\\Backup\\6_1_153_12_0_0_bad.exe"), "another");
    SelectFirst();
    Click("cmdrestore");  // what stands there now is in the backup
    EXPECT_EQ(program.machine.Journal().CountOf("CopyFileA"), 3u);
}

TEST_F(OptionsPageTest, ReplacesNothingThatItCanNotKeep) {
    program.machine.AddFile(Path).Content("another");
    AddBackup("1", record);
    Open();
    SelectFirst();
    program.machine.FailNext("CopyFileA");
    Click("cmdrestore");
    EXPECT_EQ(Content(Path), "another");
    EXPECT_EQ(Told(), (RowTexts{"Error Occurred cmdRestore: Access is denied.\r\n"}));
    EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::Critical);
}

TEST_F(OptionsPageTest, StopsWhenThePresentFileIsInUse) {
    program.machine.AddFile(Path).Content("another").InUse();
    AddBackup("1", record);
    Open();
    SelectFirst();
    Click("cmdrestore");
    EXPECT_EQ(Told(), (RowTexts{"There is already an application running with same name and "
                                "path."}));
    EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::Critical);
    EXPECT_EQ(Content(Path), "another");
}

TEST_F(OptionsPageTest, SaysThatItCouldNotCopyIntoAFolderThatIsGone) {
    AddBackup("1", record);
    Open();
    SelectFirst();
    Click("cmdrestore");
    EXPECT_EQ(Told(), (RowTexts{"Error Occurred cmdRestore: The system cannot find the path "
                                "specified.\r\n"}));
    EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::Critical);
    EXPECT_EQ(Copy("1"), "the program");
}

TEST_F(OptionsPageTest, SaysThatItCouldNotCopyToAMissingDrive) {
    AddBackup("1",
              "Q:\\Tools\\bad.exe\x01"
              "d\r\n");
    Open();
    SelectFirst();
    Click("cmdrestore");
    EXPECT_EQ(Told().size(), 1u);
    EXPECT_EQ(Copy("1"), "the program");
}

TEST_F(OptionsPageTest, RestoresNothingOverTheBackupsThemselves) {
    const std::vector<std::string> over = {"1.bup", "2.prc", "4.bup", "5.bup"};
    for (std::size_t i = 0; i < over.size(); ++i) {
        AddBackup(std::to_string(i + 1),
                  "c:\\velkarix\\BACKUP\\" + over[i] + "\x01" + "6/1/2004\r\n");
    }
    Open();
    Click("chkDelete");
    for (std::size_t i = 0; i < over.size(); ++i) {
        List().UserSelect(&List().Row(i));
        Click("cmdrestore");
    }
    EXPECT_EQ(Told(), RowTexts(over.size(), "File Could not be restored"));
    EXPECT_EQ(List().RowCount(), over.size());
    for (const char* stem : {"1", "2", "3", "4"}) EXPECT_EQ(Copy(stem), "the program");
    EXPECT_EQ(Copy("5"), "(no file)");
}

TEST_F(OptionsPageTest, RestoresNothingOverBackupsByARoundaboutPath) {
    const std::vector<std::string> over = {"C:\\Velkarix\\.\\Backup\\1.bup",
                                           "C:/Velkarix/Backup/1.bup",
                                           "C:\\VELKAR~1\\Backup\\1.bup",
                                           "C:\\WINDOWS\\..\\Velkarix\\Backup\\1.bup ",
                                           "Backup\\1.bup",
                                           "C:\\Velkarix\\.\\Backup\\BACKUP~1.BUP"};
    program.machine.AddFolder("C:\\Velkarix").ShortName("VELKAR~1");
    for (std::size_t i = 0; i < over.size(); ++i) {
        AddBackup(std::to_string(i + 1), over[i] + "\x01" + "6/1/2004\r\n", std::to_string(i + 1));
    }
    program.AddInstalledFile("Backup\\1.bup").ShortName("BACKUP~1.BUP");
    Open();
    Click("chkDelete");
    for (std::size_t i = 0; i < over.size(); ++i) {
        List().UserSelect(&List().Row(i));
        Click("cmdrestore");
    }
    EXPECT_EQ(Told(), RowTexts(over.size(), "File Could not be restored"));
    for (const char* stem : {"1", "2", "3", "4", "5", "6"}) EXPECT_EQ(Copy(stem), stem);
}

// The one place where a file is given up: the present one went before its copy turned out to be
// missing.
TEST_F(OptionsPageTest, HasDeletedThePresentFileWhenTheCopyIsMissing) {
    program.machine.AddFile(Path).Content("another");
    AddBackup("1", record);
    program.machine.disk.Remove("C:\\Velkarix\\Backup\\1.bup");
    Open();
    SelectFirst();
    Click("cmdrestore");
    EXPECT_EQ(Told().size(), 1u);
    EXPECT_EQ(Content(Path), "(no file)");
}

TEST_F(OptionsPageTest, KeepsTheSetWhenTheRestoredFileIsCutShort) {
    program.machine.AddFolder("C:\\Tools");
    AddBackup("1", record);
    Open();
    Click("chkDelete");
    SelectFirst();
    program.machine.FailNext("ReadFile");
    Click("cmdrestore");
    EXPECT_EQ(Told(), (RowTexts{"File Could not be restored"}));
    EXPECT_EQ(Copy("1"), "the program");
}

TEST_F(OptionsPageTest, DeletesABackupAfterAQuestion) {
    AddBackup("1", record);
    Open();
    SelectFirst();
    Click("cmdDelete");
    EXPECT_EQ(Told(), (RowTexts{"Are you sure you want to delete backup for: \r\n\r\nbad.exe"}));
    EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::Question);
    EXPECT_EQ(List().RowCount(), 1u);
    program.desktop.answers = {MessageAnswer::Yes};
    Click("cmdDelete");
    EXPECT_EQ(List().RowCount(), 0u);
    EXPECT_EQ(Copy("1"), "(no file)");
}

TEST_F(OptionsPageTest, FindsTheCopyWhateverTheCaseOfItsRecordsName) {
    program.machine.AddFolder("C:\\Tools");
    program.AddInstalledFile("Backup\\1.PRC").Content(record);
    program.AddInstalledFile("Backup\\1.bup").Content("the program");
    Open();
    SelectFirst();
    Click("cmdrestore");
    EXPECT_EQ(Content(Path), "the program");
}

TEST_F(OptionsPageTest, DoesNothingWithoutASelectedRow) {
    AddBackup("1", record);
    Open();
    Click("cmdrestore");
    Click("cmdDelete");
    EXPECT_TRUE(Told().empty());
}

TEST_F(OptionsPageTest, ShowsNoBackupsWithoutAFolder) {
    Open();
    program.machine.disk.Remove("C:\\Velkarix\\backup");
    program.Get<Button>("frmMain", "cmdIE").Raise("Click");
    program.Get<Button>("frmMain", "cmdOptions").Raise("Click");
    EXPECT_EQ(List().RowCount(), 0u);
}

// ---- The full report

TEST_F(OptionsPageTest, OffersTheAreasOfTheFullReportAndItsButtonInTabOrder) {
    Open();
    RowTexts controls;
    for (const Control* control : program.application.forms.Loaded("frmOptions")->Controls()) {
        controls.push_back(control->Name() + ": " + control->Text());
    }
    const auto group = std::find(controls.begin(), controls.end(),
                                 "fmReport: Full Report: Please select areas to include in report");
    ASSERT_GE(controls.end() - group, 6);
    EXPECT_EQ(RowTexts(group + 1, group + 6),
              (RowTexts{"chkProcess: Process", "chkIE: Internet Explorer", "chkStartup: Startup",
                        "chkAddremove: Add/Remove", "cmdReport: Generate Report"}));
    EXPECT_TRUE(program.application.forms.Loaded("frmOptions")->Find("cmdReport")->Enabled());
}

TEST_F(OptionsPageTest, GivesItsThreeButtonsTheirLook) {
    Open();
    for (const char* button : {"cmdDelete", "cmdrestore", "cmdReport"}) {
        EXPECT_EQ(program.Get<Button>("frmOptions", button).SkinElement(), "button") << button;
    }
}

TEST_F(OptionsPageTest, MakesTheReportByKeyAndDeletesABackupByKeyInItsList) {
    AddBackup("1", record);
    Open();
    SelectFirst();
    Form& page = *program.application.forms.Loaded("frmOptions");
    EXPECT_TRUE(page.RaiseKey({Key::P, true}));
    EXPECT_EQ(Told(), RowTexts{"Please select atleast one area to print"});
    EXPECT_FALSE(page.RaiseKey({Key::Delete}, page.Find("chkDelete")));
    program.desktop.answers = {MessageAnswer::Yes};
    EXPECT_TRUE(page.RaiseKey({Key::Delete}, &List()));
    EXPECT_EQ(List().RowCount(), 0u);
}

}  // namespace
}  // namespace velkarix
