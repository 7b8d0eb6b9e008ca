#include "options/frmOptions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/options/OptionsPage.h"

namespace velkarix {
namespace {

using OptionsPageTest = OptionsPage;

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
