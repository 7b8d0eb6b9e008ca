#include <algorithm>

#include "NativeViews.h"

namespace velkarix {
namespace {

class NativeTabStripTest : public NativeViewsTest {
  protected:
    NativeTabStripTest() { ShowTabs(2); }

    HWND Inner() const { return Window("tbInner"); }
    int NativeTab() const {
        return static_cast<int>(SendMessageA(Inner(), TCM_GETCURSEL, 0, 0)) + 1;
    }
    void ClickTab(int tab) {
        RECT area{};
        SendMessageA(Inner(), TCM_GETITEMRECT, static_cast<WPARAM>(tab - 1),
                     reinterpret_cast<LPARAM>(&area));
        ClickAt(Inner(), static_cast<int>(area.left + area.right) / 2,
                static_cast<int>(area.top + area.bottom) / 2);
    }
    // What the native control calls the area that belongs to its tabs, on the screen.
    static RECT InsideOf(HWND strip) {
        RECT inside = AreaOf(strip);
        SendMessageA(strip, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&inside));
        return inside;
    }
    // From the edges of the inside of a strip to what stands there, at all four sides alike.
    static void ExpectMargin(HWND strip, const RECT& area) {
        const RECT inside = InsideOf(strip);
        const LONG margin = area.left - inside.left;
        EXPECT_GE(margin, 2);
        EXPECT_LE(margin, 12);
        EXPECT_EQ(area.top - inside.top, margin);
        EXPECT_EQ(inside.right - area.right, margin);
        EXPECT_EQ(inside.bottom - area.bottom, margin);
    }
    // What the strip isn't, it can neither paint over nor flicker in.
    static void ExpectHollow(HWND window) {
        const RECT strip = AreaOf(window);
        const RECT inside = InsideOf(window);
        const HRGN shape = CreateRectRgn(0, 0, 0, 0);
        EXPECT_EQ(GetWindowRgn(window, shape), COMPLEXREGION);
        const auto contains = [&](LONG x, LONG y) {
            return PtInRegion(shape, static_cast<int>(x - strip.left),
                              static_cast<int>(y - strip.top)) != FALSE;
        };
        EXPECT_TRUE(contains(strip.left + 10, strip.top + 10));
        EXPECT_TRUE(contains(strip.left, strip.bottom - 10));
        EXPECT_TRUE(contains(strip.right - 1, strip.bottom - 1));
        EXPECT_FALSE(contains(inside.left, inside.top));
        EXPECT_FALSE(contains(inside.right - 1, inside.bottom - 1));
        DeleteObject(shape);
    }
};

TEST_F(NativeTabStripTest, ShowsItsTabsInOrder) {
    ASSERT_EQ(SendMessageA(Inner(), TCM_GETITEMCOUNT, 0, 0), 3);
    char text[20] = "";
    TCITEMA item{};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = 20;
    SendMessageA(Inner(), TCM_GETITEMA, 2, reinterpret_cast<LPARAM>(&item));
    EXPECT_STREQ(item.pszText, "C");
    EXPECT_EQ(NativeTab(), 1);
    EXPECT_EQ(TextOf(Inner()), "Zones");
}

TEST_F(NativeTabStripTest, ClickOnATabSelectsItAndRunsTheHandlerOnce) {
    ClickTab(3);
    EXPECT_EQ(views->inner.Selected(), 3);
    EXPECT_EQ(NativeTab(), 3);
    EXPECT_EQ(calls, Calls{"inner 3"});
}

TEST_F(NativeTabStripTest, ClickOnTheSelectedTabRunsTheHandlerOnceToo) {
    ClickTab(1);
    EXPECT_EQ(calls, Calls{"inner 1"});
}

TEST_F(NativeTabStripTest, TabSelectedByTheProgramRunsNoHandler) {
    views->inner.Select(2);
    EXPECT_EQ(NativeTab(), 2);
    EXPECT_EQ(calls, Calls{});
}

TEST_F(NativeTabStripTest, ArrowKeysChangeTheTabAndRunTheHandler) {
    SetFocus(Inner());
    PressAndServe("tbInner", VK_RIGHT);
    PressAndServe("tbInner", VK_RIGHT);
    PressAndServe("tbInner", VK_LEFT);
    EXPECT_EQ(calls, (Calls{"inner 2", "inner 3", "inner 2"}));
    EXPECT_EQ(GetFocus(), Inner());
}

TEST_F(NativeTabStripTest, WhatStandsInAStripKeepsTheSameMarginAtAllSides) {
    ExpectMargin(Window("tbOuter"), AreaOf(Window("picTabs(1)")));
    const RECT list = AreaOf(Window("lstvZone"));
    const RECT button = AreaOf(Window("cmdApply"));
    const RECT box = AreaOf(Window("cmbRights"));
    ExpectMargin(Inner(), {list.left, list.top, list.right, std::max(button.bottom, box.bottom)});
}

TEST_F(NativeTabStripTest, GrowsWithTheForm) {
    const HWND form = reinterpret_cast<HWND>(desktop.HandleOf(*main));
    const RECT area = AreaOf(form);
    SetWindowPos(form, nullptr, 0, 0, area.right - area.left + 40, area.bottom - area.top + 30,
                 SWP_NOZORDER);
    desktop.YieldEvents();
    ExpectMargin(Window("tbOuter"), AreaOf(Window("picTabs(1)")));
    ExpectHollow(Window("tbOuter"));
}

TEST_F(NativeTabStripTest, StripIsItsTabsAndItsEdgeAndNotItsInside) {
    ExpectHollow(Inner());
}

TEST_F(NativeTabStripTest, CtrlTabTurnsTheTabsOfTheStripAroundTheFocus) {
    BYTE keys[256] = {};
    GetKeyboardState(keys);
    BYTE withControl[256] = {};
    std::copy(std::begin(keys), std::end(keys), std::begin(withControl));
    withControl[VK_CONTROL] = 0x80;
    SetKeyboardState(withControl);
    SetFocus(Window("lstvZone"));
    PressAndServe("lstvZone", VK_TAB);
    PressAndServe("lstvZone", VK_TAB);
    PressAndServe("lstvZone", VK_TAB);
    EXPECT_EQ(NativeTab(), 1);
    SetFocus(Window("cmdFirst"));
    PressAndServe("cmdFirst", VK_TAB);
    withControl[VK_SHIFT] = 0x80;
    SetKeyboardState(withControl);
    PressAndServe("tbInner", VK_TAB);
    EXPECT_EQ(NativeTab(), 3);
    SetKeyboardState(keys);
    EXPECT_EQ(calls, (Calls{"inner 2", "inner 3", "inner 1", "outer 1", "inner 3"}));
}

}  // namespace
}  // namespace velkarix
