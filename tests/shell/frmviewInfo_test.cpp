#include "shell/frmviewInfo.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "tests/machine/TestProgram.h"

namespace velkarix {
namespace {

using Texts = std::map<std::string, std::string>;

class ViewInfoTest : public testing::Test {
  protected:
    ViewInfoTest() { program.Start(); }

    // Shows the dialog and gives the texts of its fields that aren't empty.
    Texts Show(const std::string& path) {
        Texts texts;
        program.desktop.onModal = [&](Form& form) {
            caption = form.Caption();
            for (Control* control : form.Controls()) {
                std::string text;
                if (auto* box = dynamic_cast<TextBox*>(control)) text = box->Value();
                const bool value = control->Name().ends_with("(1)") || control->Name() == "lblName";
                if (value) text = control->Text();
                if (!text.empty()) texts[control->Name()] = text;
            }
            icon = dynamic_cast<PictureBox&>(*form.Find("picIcon")).OwnPicture();
        };
        ShowFileInformation(program.application, "The item", path, "12.5");
        return texts;
    }

    TestProgram program;
    std::string caption;
    std::optional<Picture> icon;
};

TEST_F(ViewInfoTest, ShowsEverythingKnownOfAFile) {
    const Picture large{32, 32, std::vector<std::uint32_t>(1024, 0xFF00FF00)};
    program.machine.AddFile("C:\\a.exe")
        .Content("MZ")
        .Created(2003, 5, 7)
        .Icon(0, large, {1, 1, {0}})
        .Version({{"ProductName", "Suite"},
                  {"ProductVersion", "9"},
                  {"FileDescription", "Does"},
                  {"FileVersion", "1.2.3"},
                  {"InternalName", "inner"},
                  {"OriginalFilename", "orig.exe"},
                  {"Comments", "none"},
                  {"CompanyName", "Works"},
                  {"LegalCopyright", "(c)"},
                  {"LegalTrademarks", "tm"},
                  {"PrivateBuild", "p"},
                  {"SpecialBuild", "s"}});
    EXPECT_EQ(Show("C:\\a.exe"), (Texts{{"lblName", "The item"},
                                        {"txtName", "The item"},
                                        {"txtPath", "C:\\a.exe"},
                                        {"lblSize(1)", "12.5"},
                                        {"lblCreatedOn(1)", "05/07/2003"},
                                        {"lblVersion(1)", "1.2.3"},
                                        {"txtProductName", "Suite"},
                                        {"txtDescription", "Does"},
                                        {"txtInternalName", "inner"},
                                        {"txtOriginalName", "orig.exe"},
                                        {"txtCompanyname", "Works"},
                                        {"txtComments", "none"},
                                        {"txtCopyright", "(c)"},
                                        {"txtTrademarks", "tm"}}));
    EXPECT_EQ(icon, large);
    EXPECT_EQ(caption, "View Information");
    EXPECT_EQ(program.machine.shell.OpenIconCount(), 0u);
}

TEST_F(ViewInfoTest, ShowsOnlyWhatWasPassedForAFileThatIsGone) {
    EXPECT_EQ(Show("C:\\gone.exe"), (Texts{{"lblName", "The item"},
                                           {"txtName", "The item"},
                                           {"txtPath", "C:\\gone.exe"},
                                           {"lblSize(1)", "12.5"}}));
    EXPECT_FALSE(icon.has_value());
    EXPECT_TRUE(program.desktop.messages.empty());
}

TEST_F(ViewInfoTest, AddsOnlyTheCreationDateForAFileWithoutAVersion) {
    program.machine.AddFile("C:\\a.txt").Created(2001, 12, 31);
    EXPECT_EQ(Show("C:\\a.txt"), (Texts{{"lblName", "The item"},
                                        {"txtName", "The item"},
                                        {"txtPath", "C:\\a.txt"},
                                        {"lblSize(1)", "12.5"},
                                        {"lblCreatedOn(1)", "12/31/2001"}}));
    EXPECT_FALSE(icon.has_value());
}

TEST_F(ViewInfoTest, KeepsNoValueFromAnEarlierUse) {
    program.machine.AddFile("C:\\a.exe").Content("MZ").Version({{"CompanyName", "Works"}});
    Show("C:\\a.exe");
    EXPECT_EQ(Show("C:\\gone.exe").count("txtCompanyname"), 0u);
}

TEST_F(ViewInfoTest, ClosesByItsButton) {
    bool closing = false;
    program.desktop.onModal = [&closing](Form& form) {
        form.Run("cmdOk_Click");
        closing = form.Closing();
    };
    ShowFileInformation(program.application, "a", "b", "c");
    EXPECT_TRUE(closing);
    EXPECT_EQ(program.desktop.events.back(), "destroy frmviewInfo");
}

}  // namespace
}  // namespace velkarix
