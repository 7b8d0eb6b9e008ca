// No road leads to another size of the main window.
#include <algorithm>

#include "AskInside.h"
#include "Input.h"
#include "MenuWindow.h"
#include "ProgramTest.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class Frame : public ProgramTest {
  protected:
    // Whether the window has the size that it had at first, once it has answered what was posted.
    bool SizeStays() {
        const SIZE now = SizeOf(main_);
        return now.cx == size_.cx && now.cy == size_.cy && IsZoomed(main_.Handle()) == FALSE;
    }
    static SIZE SizeOf(const Window& window) {
        const RECT area = window.Area();
        return {area.right - area.left, area.bottom - area.top};
    }

    Window main_ = Start().Main();
    SIZE size_ = SizeOf(main_);
};

TEST_F(Frame, ThereIsNoMaximiseBoxAndNoSizingBorder) {
    EXPECT_EQ(main_.Style() & WS_MAXIMIZEBOX, 0);
    EXPECT_EQ(main_.Style() & WS_THICKFRAME, 0);
    EXPECT_NE(main_.Style() & WS_MINIMIZEBOX, 0);
    EXPECT_NE(main_.Style() & WS_SYSMENU, 0);
}

TEST_F(Frame, TheSystemMenuOffersNoMaximising) {
    const std::vector<MenuItem> items = ReadMenu(main_);
    ASSERT_FALSE(items.empty());
    EXPECT_TRUE(std::ranges::none_of(
        items, [](const MenuItem& item) { return item.number == SC_MAXIMIZE && item.enabled; }));
    const auto disarmed = std::ranges::find(items, static_cast<UINT>(-11), &MenuItem::number);
    ASSERT_NE(disarmed, items.end());
    EXPECT_FALSE(disarmed->enabled);
}

TEST_F(Frame, TheKeysOfTheSystemMenuChangeNothing) {
    ASSERT_TRUE(BringToFront(main_));
    PressKey(VK_SPACE, {VK_MENU});
    const Window popup = WaitForPopup(Running().Id());
    ASSERT_TRUE(popup);
    PressKey('X');
    EXPECT_TRUE(ClosePopup(popup));
    EXPECT_TRUE(SizeStays());
}

TEST_F(Frame, ADoubleClickOnTheTitleChangesNothing) {
    const RECT area = main_.Area();
    const LPARAM title = MAKELPARAM(area.left + 150, area.top + 10);
    ASSERT_EQ(main_.Send(WM_NCHITTEST, 0, title), HTCAPTION);
    main_.Send(WM_NCLBUTTONDBLCLK, HTCAPTION, title);
    EXPECT_TRUE(SizeStays());
}

TEST_F(Frame, NoEdgeOfTheWindowIsASizingBorder) {
    const RECT area = main_.Area();
    for (const POINT edge :
         {POINT{area.left, area.bottom - 50}, POINT{area.right - 1, area.bottom - 50},
          POINT{area.left + 50, area.bottom - 1}, POINT{area.right - 1, area.bottom - 1}}) {
        const LRESULT hit = main_.Send(WM_NCHITTEST, 0, MAKELPARAM(edge.x, edge.y));
        EXPECT_TRUE(hit == HTBORDER || hit == HTCLIENT)
            << "hit " << hit << " at " << edge.x << ", " << edge.y;
    }
}

TEST_F(Frame, EveryTextFitsItsPlace) {
    for (const char* page :
         {"cmdIE", "cmdStartup", "cmdAddremove", "cmdOptions", "cmdUtilities", "cmdProcess"}) {
        ASSERT_TRUE(Running().Press(page));
        EXPECT_EQ(AskInside(main_, CutTextsQuestion), "") << page;
    }
}

}  // namespace
}  // namespace velkarix::e2e
