// The main window on the smallest screen, with its strips of finding and of status.
#include "NamedWindow.h"
#include "PageOnScreen.h"
#include "browser/frmIE.h"

namespace velkarix {
namespace {

class MainWindowOnTheSmallestScreen : public testing::Test {
  protected:
    RECT AreaOf(const char* control) {
        RECT area{};
        GetWindowRect(NamedWindow(screen.MainWindow(), control), &area);
        return area;
    }
    // What stands one above the other, in this order, inside the window.
    void ExpectStacked(std::initializer_list<const char*> controls) {
        RECT client{};
        GetClientRect(screen.MainWindow(), &client);
        MapWindowPoints(screen.MainWindow(), nullptr, reinterpret_cast<POINT*>(&client), 2);
        LONG top = client.top;
        for (const char* control : controls) {
            const RECT area = AreaOf(control);
            EXPECT_GE(area.top, top) << control;
            EXPECT_LT(area.top, area.bottom) << control;
            EXPECT_GE(area.left, client.left) << control;
            EXPECT_LE(area.right, client.right) << control;
            top = area.bottom;
        }
        EXPECT_LE(top, client.bottom);
    }

    PageOnScreen<frmIE> screen{640, 452};
};

TEST_F(MainWindowOnTheSmallestScreen, HoldsThePageAndTheStatusBelowIt) {
    ExpectStacked({"picTop", "picPage", "lblStatus"});
    ExpectStacked({"picTop", "picPage", "lblUnread"});
    EXPECT_EQ(CutTexts(screen.Window()), "");
}

TEST_F(MainWindowOnTheSmallestScreen, HoldsTheStripOfFindingTooAndAllThatStandsBelow) {
    screen.main.Find("picFind")->SetVisible(true);
    screen.Settle();
    for (const char* control :
         {"lblFind", "txtFind", "cmdFindNext", "cmdFindPrevious", "cmdFindClose"}) {
        ExpectStacked({"picTop", control, "picPage", "lblStatus"});
    }
    // What the page then has no room for, it scrolls to.
    const bool scrolls = (GetWindowLongA(screen.Window(), GWL_STYLE) & WS_VSCROLL) != 0;
    EXPECT_TRUE(scrolls || CutTexts(screen.Window()).empty()) << CutTexts(screen.Window());
    EXPECT_LT(AreaOf("txtFind").right, AreaOf("cmdFindNext").left);
    EXPECT_LT(AreaOf("cmdFindNext").right, AreaOf("cmdFindPrevious").left);
    EXPECT_LT(AreaOf("cmdFindPrevious").right, AreaOf("cmdFindClose").left);
}

// So small a screen that the main window scrolls.
TEST(MainWindowWithBars, ShowsTheControlOfItsPageThatGetsTheFocus) {
    PageOnScreen<frmIE> screen(640, 300);
    const HWND window = screen.MainWindow();
    ShowWindow(window, SW_SHOW);
    screen.Settle();
    ASSERT_NE(GetWindowLongA(window, GWL_STYLE) & WS_VSCROLL, 0);
    const auto shown = [window](HWND control) {
        RECT area{};
        RECT client{};
        GetWindowRect(control, &area);
        MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&area), 2);
        GetClientRect(window, &client);
        return area.left >= 0 && area.top >= 0 && area.right <= client.right &&
               area.bottom <= client.bottom;
    };
    int hidden = 0;
    for (const Control* control : screen.page.Controls()) {
        const HWND button = NamedWindow(window, control->Name());
        constexpr LONG Reachable = WS_VISIBLE | WS_TABSTOP;
        const LONG style = GetWindowLongA(button, GWL_STYLE);
        const bool isButton = dynamic_cast<const Button*>(control) != nullptr;
        if (!isButton || (style & (Reachable | WS_DISABLED)) != Reachable) continue;
        if (!shown(button)) ++hidden;
        SetFocus(button);
        EXPECT_TRUE(shown(button)) << control->Name();
    }
    EXPECT_GT(hidden, 0);
}

}  // namespace
}  // namespace velkarix
