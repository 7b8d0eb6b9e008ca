// Goes round the program and has a picture taken of everything it shows.
#include "FullReportTest.h"
#include "Input.h"
#include "MenuWindow.h"
#include "Places.h"
#include "ProgramTest.h"
#include "Reports.h"
#include "Screen.h"
#include "Setup.h"
#include "TabWindow.h"
#include "TreeWindow.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

struct Stop {
    const char* button;
    const char* page;
    const char* picture;
};

const Stop OtherPages[] = {
    {"cmdOptions", "frmOptions", "5-options"},
    {"cmdUtilities", "frmUtilities", "6-utilities"},
};

struct View {
    const char* button;
    const char* picture;
};
const View BrowserViews[] = {
    {"cmdBHO", "2-internet-explorer-1-bhos"},
    {"cmdToolbar", "2-internet-explorer-2-toolbars"},
    {"cmdButton", "2-internet-explorer-3-buttons"},
    {"cmdMenu", "2-internet-explorer-4-context-menu"},
    {"cmdProtocol", "2-internet-explorer-5-protocols"},
    {"cmdDomain", "2-internet-explorer-6-domains"},
    {"cmdURLs", "2-internet-explorer-7-urls"},
    {"cmdAdvance", "2-internet-explorer-8-advanced-1-hooks"},
};
const char* const AdvancedPictures[] = {
    "2-internet-explorer-8-advanced-2-proxy",
    "2-internet-explorer-8-advanced-3-protocol-defaults",
    "2-internet-explorer-8-advanced-4-security-zones",
};

const char* const SuspiciousHelper = "{0B100002-52C4-4D18-9F3A-6E1C2A7750B0}";

class Tour : public ProgramTest {
  protected:
    void SetUp() override {
        Start();
        BringToFront(Running().Main());
        // The pictures of the help are cut out of these, and aren't to show the driver.
        Tick(List(), RowOf("velkarix_e2e.exe"));
        ASSERT_TRUE(Running().Press("cmdAdd"));
    }
    // What was asked for may still be drawing when the window is there, and what is drawn may still
    // be on its way to the screen.
    bool Picture(const std::string& name) {
        constexpr DWORD ForDrawing = 200;
        for (const Window& each : TopWindows(Running().Id())) {
            RedrawWindow(each.Handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        }
        Sleep(ForDrawing);
        return SaveScreenshot(name, Running().Id());
    }
};

TEST_F(Tour, TheProcessPage) {
    SelectRow("SampleIdle.exe");
    EXPECT_TRUE(Picture("1-processes"));
    ASSERT_TRUE(Running().Press("optFilter(0)"));
    EXPECT_TRUE(Picture("1-processes-all"));
}

TEST_F(Tour, ThePopupOfTheProcesses) {
    SelectRow("SampleIdle.exe");
    ClickAt(Inside(List().LabelArea(RowOf("SampleIdle.exe"))), Mouse::Right);
    const Window popup = WaitForPopup(Running().Id());
    ASSERT_TRUE(popup);
    EXPECT_TRUE(Picture("popup"));
    EXPECT_TRUE(ClosePopup(popup));
}

TEST_F(Tour, ViewInformation) {
    SelectRow("SampleIdle.exe");
    ASSERT_TRUE(Running().Control("cmdViewInformation").Click());
    const Window dialog = Running().Dialog("frmviewInfo");
    ASSERT_TRUE(dialog);
    EXPECT_TRUE(Picture("view-information"));
    EXPECT_TRUE(dialog.Find("cmdOk").Click());
}

TEST_F(Tour, About) {
    ASSERT_TRUE(Running().Control("lblAbout").Click());
    const Window about = Running().Dialog("frmAbout");
    ASSERT_TRUE(about);
    EXPECT_TRUE(Picture("about"));
    EXPECT_TRUE(about.Find("cmdOk").Click());
}

TEST_F(Tour, TheViewsOfTheBrowserPage) {
    ASSERT_TRUE(Running().Press("cmdIE"));
    const ListWindow helpers = Running().List("lstvBHO");
    Tick(helpers, helpers.Find(SuspiciousHelper).value_or(0));
    for (const View& view : BrowserViews) {
        ASSERT_TRUE(Running().Press(view.button));
        EXPECT_TRUE(Picture(view.picture));
    }
    const TabWindow tabs(Running().Control("tbMain"));
    int tab = 1;
    for (const char* picture : AdvancedPictures) {
        ASSERT_TRUE(TurnToTab(Running(), tabs, ++tab));
        EXPECT_TRUE(Picture(picture));
    }
}

TEST_F(Tour, TheStartupItems) {
    ASSERT_TRUE(Running().Press("cmdStartup"));
    EXPECT_TRUE(Picture("3-startup-1-all"));
    const TreeWindow places(Running().Control("tvwStartup"));
    const Window frame = Running().Control("fmStartup");
    const std::string before = frame.Text();
    ClickAt(Inside(places.LabelArea("All Items/Local Machine/Startup Folder")));
    ASSERT_TRUE(WaitUntil([&] { return frame.Text() != before; }));
    EXPECT_TRUE(Picture("3-startup-2-folder"));
}

TEST_F(Tour, TheInstalledApplications) {
    ASSERT_TRUE(Running().Press("cmdAddremove"));
    EXPECT_TRUE(Picture("4-add-remove-1-icons"));
    ASSERT_TRUE(Running().Press("optReport"));
    EXPECT_TRUE(Picture("4-add-remove-2-details"));
}

TEST_F(Tour, TheFullReport) {
    const std::string path = Environment("VELKARIX_OUT") + "\\FullReport.txt";
    DeleteFileA(path.c_str());
    ASSERT_TRUE(Running().Press("cmdOptions"));
    for (const char* box : FullReportBoxes) ASSERT_TRUE(Running().Press(box));
    ASSERT_TRUE(SaveReport(Running(), "cmdReport", path));
    EXPECT_NE(Opened().find("\"" + path + "\""), std::string::npos);
    EXPECT_NE(ReadWholeFile(path).find("****** Add/Remove Report ******"), std::string::npos);
    EXPECT_TRUE(Picture("5-options-full-report"));
}

TEST_F(Tour, TheOtherPages) {
    // The record of a backup that was made on another day.
    install_.Write("backup\\10_5_279_9_30_12.prc",
                   "C:\\Samples\\SampleToolbox.exe\00110/5/2004\r\n");
    for (const Stop& stop : OtherPages) {
        ASSERT_TRUE(Running().Press(stop.button));
        ASSERT_TRUE(Running().Control(stop.page).Visible());
        EXPECT_TRUE(Picture(stop.picture));
    }
}

}  // namespace
}  // namespace velkarix::e2e
