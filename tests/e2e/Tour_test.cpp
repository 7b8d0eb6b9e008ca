// Goes round the program and has a picture taken of everything it shows.
#include "Input.h"
#include "MenuWindow.h"
#include "ProgramTest.h"
#include "Screen.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

struct Stop {
    const char* button;
    const char* page;
    const char* picture;
};

const Stop OtherPages[] = {
    {"cmdIE", "frmIE", "2-internet-explorer"},        {"cmdStartup", "frmStartup", "3-startup"},
    {"cmdAddremove", "frmAddRemove", "4-add-remove"}, {"cmdOptions", "frmOptions", "5-options"},
    {"cmdUtilities", "frmUtilities", "6-utilities"},
};

class Tour : public ProgramTest {
  protected:
    Tour() {
        Start();
        BringToFront(Running().Main());
    }
    // What was asked for may still be drawing when the window is there.
    static bool Picture(const std::string& name) {
        constexpr DWORD ForDrawing = 200;
        Sleep(ForDrawing);
        return SaveScreenshot(name);
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

TEST_F(Tour, TheOtherPages) {
    for (const Stop& stop : OtherPages) {
        ASSERT_TRUE(Running().Press(stop.button));
        ASSERT_TRUE(Running().Control(stop.page).Visible());
        EXPECT_TRUE(Picture(stop.picture));
    }
}

}  // namespace
}  // namespace velkarix::e2e
