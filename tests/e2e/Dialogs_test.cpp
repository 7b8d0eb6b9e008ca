// The dialogs: View Information, About, and what Help opens.
#include <algorithm>

#include "AskInside.h"
#include "FolderWindow.h"
#include "Input.h"
#include "MenuWindow.h"
#include "ProgramTest.h"
#include "Samples.h"
#include "Setup.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class Dialogs : public ProgramTest {
  protected:
    Window OpenInformation(const std::string& name) {
        SelectRow(name);
        EXPECT_TRUE(Running().Control("cmdViewInformation").Click());
        return Running().Dialog("frmviewInfo");
    }
    Window OpenAbout() {
        EXPECT_TRUE(Running().Control("lblAbout").Click());
        return Running().Dialog("frmAbout");
    }
    bool ClosesBy(const Window& dialog, WORD key) {
        BringToFront(dialog);
        PressKey(key);
        return WaitUntil([&] { return !dialog; });
    }
};

TEST_F(Dialogs, ViewInformationShowsEverythingOfTheFile) {
    Start();
    const Window dialog = OpenInformation("SampleIdle.exe");
    ASSERT_TRUE(dialog);
    const RowTexts row = List().Row(RowOf("SampleIdle.exe"));
    const std::pair<const char*, std::string> fields[] = {
        {"lblName", "SampleIdle.exe"},
        {"txtName", "SampleIdle.exe"},
        {"txtPath", ListedFolder("C:\\Samples\\") + "SampleIdle.exe"},
        {"lblSize(1)", row[1]},
        {"lblCreatedOn(1)", row[2]},
        {"lblVersion(1)", "1.2.3.4"},
        {"txtProductName", "Sample Suite"},
        {"txtDescription", "Harmless idle program"},
        {"txtInternalName", "SampleIdle"},
        {"txtOriginalName", "SampleIdle.exe"},
        {"txtCompanyname", "Sample Works"},
        {"txtComments", "Sleeps until it is ended"},
        {"txtCopyright", "Free to copy"},
        {"txtTrademarks", "None"},
    };
    EXPECT_EQ(dialog.Text(), "View Information");
    for (const auto& [field, text] : fields) EXPECT_EQ(dialog.Find(field).Text(), text) << field;
    for (const Window& child : dialog.Children()) {
        const bool typable = child.Class() == "Edit" && (child.Style() & ES_READONLY) == 0;
        EXPECT_FALSE(typable) << child.Name();
    }
    EXPECT_EQ(AskInside(dialog, CutTextsQuestion), "");
    EXPECT_FALSE(Running().Main().Enabled());
    EXPECT_TRUE(dialog.Find("cmdOk").Click());
    EXPECT_TRUE(WaitUntil([&] { return !dialog; }));
    EXPECT_TRUE(Running().Main().Enabled());
}

TEST_F(Dialogs, EscClosesAndTheListHasTheFocusAgain) {
    Start();
    SelectRow("SampleIdle.exe");
    PressKey(VK_APPS);
    ASSERT_TRUE(WaitForPopup(Running().Id()));
    PressKey('V');
    const Window dialog = Running().Dialog("frmviewInfo");
    ASSERT_TRUE(dialog);
    EXPECT_TRUE(ClosesBy(dialog, VK_ESCAPE));
    EXPECT_TRUE(WaitUntil([this] { return GetForegroundWindow() == Running().Main().Handle(); }));
    EXPECT_TRUE(WaitUntil([this] { return Running().Focus() == "lstvProcess"; }));
    EXPECT_EQ(List().Selected(), RowOf("SampleIdle.exe"));
}

TEST_F(Dialogs, EnterClosesAndTheButtonHasTheFocusAgain) {
    Start();
    const Window dialog = OpenInformation("SampleIdle.exe");
    ASSERT_TRUE(dialog);
    EXPECT_TRUE(ClosesBy(dialog, VK_RETURN));
    EXPECT_TRUE(WaitUntil([this] { return Running().Focus() == "cmdViewInformation"; }));
}

TEST_F(Dialogs, NoValueStaysFromAnEarlierUse) {
    Start();
    const Window first = OpenInformation("SampleIdle.exe");
    ASSERT_TRUE(first.Find("cmdOk").Click());
    ASSERT_TRUE(WaitUntil([&] { return !first; }));
    const Window second = OpenInformation("SampleSuspect.exe");
    EXPECT_EQ(second.Find("txtName").Text(), "SampleSuspect.exe");
    EXPECT_EQ(second.Find("txtComments").Text(), "The definition lists name this file");
    EXPECT_TRUE(second.Find("cmdOk").Click());
}

TEST_F(Dialogs, AboutShowsVersionAndVersionOfTheDatabase) {
    install_.Write("database.ini", "[Database]\r\nVersion=2004.11\r\n");
    Start();
    const Window about = OpenAbout();
    ASSERT_TRUE(about);
    EXPECT_EQ(about.Text(), "About: Velkarix");
    EXPECT_EQ(about.Find("lblTitle").Text(), "Velkarix");
    EXPECT_EQ(about.Find("lblVersion").Text(), "Version: 1.0");
    EXPECT_EQ(about.Find("lblDB").Text(), "2004.11");
    EXPECT_EQ(AskInside(about, CutTextsQuestion), "");
    EXPECT_TRUE(ClosesBy(about, VK_ESCAPE));
}

TEST_F(Dialogs, AboutSaysSoWhenThereIsNoDatabase) {
    install_.Remove("database.ini");
    Start();
    const Window about = OpenAbout();
    ASSERT_TRUE(about);
    EXPECT_EQ(about.Find("lblDB").Text(), "N/A");
    EXPECT_TRUE(about.Find("cmdOk").Click());
}

TEST_F(Dialogs, HelpOpensItsIndex) {
    CreateDirectoryA(install_.Path("Help").c_str(), nullptr);
    install_.Write("Help\\index.html", "<p>Help</p>");
    Start();
    ASSERT_TRUE(Running().Press("lblHelp"));
    EXPECT_NE(Opened().find("\"" + install_.Folder() + "\\Help\\index.html\""), std::string::npos)
        << Opened();
}

TEST_F(Dialogs, WithoutHelpNothingHappens) {
    DeleteFileA(install_.Path("Help\\index.html").c_str());
    Start();
    ASSERT_TRUE(Running().Press("lblHelp"));
    EXPECT_TRUE(Running().Press("cmdIE")) << "the program doesn't answer any more";
    EXPECT_EQ(Running().Close(), 0u);
}

TEST_F(Dialogs, OpenFolderShowsTheFolderInTheExplorer) {
    if (!ListsFolders()) GTEST_SKIP() << NoFolders;
    Start();
    SelectRow("SampleIdle.exe");
    ASSERT_TRUE(Running().Press("cmdOpen"));
    EXPECT_TRUE(FolderIsShown("Samples"));
}

}  // namespace
}  // namespace velkarix::e2e
