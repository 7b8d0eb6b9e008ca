#include "NativeViews.h"

#include <map>

namespace velkarix {
namespace {

class NativeViewTest : public NativeViewsTest {
  protected:
    bool IsOnView(const std::string& control) const {
        return IsWindowVisible(Window(control)) != FALSE;
    }
    // The controls of the page that Tab leads to, one after the other.
    std::vector<std::string> TabOrder() const {
        std::map<HWND, std::string> names;
        for (const Control* control : views->Controls()) {
            names[Window(control->Name())] = control->Name();
        }
        std::vector<std::string> order;
        const auto form = reinterpret_cast<HWND>(desktop.HandleOf(*views));
        const HWND first = GetNextDlgTabItem(form, nullptr, FALSE);
        HWND each = first;
        do {
            order.push_back(names[each]);
            each = GetNextDlgTabItem(form, each, FALSE);
        } while (each != first && order.size() < names.size());
        return order;
    }
};

using Names = std::vector<std::string>;

TEST_F(NativeViewTest, OnlyTheViewOnShowIsSeen) {
    EXPECT_TRUE(IsOnView("lstvFirst"));
    for (const char* hidden : {"fmViews(1)", "tbOuter", "picTabs(0)", "txtTest", "lstvZone"}) {
        EXPECT_FALSE(IsOnView(hidden)) << hidden;
    }
    Post(Window("cmdSecond"), BM_CLICK, 0);
    for (const char* shown : {"fmViews(1)", "tbOuter", "picTabs(0)", "txtTest"}) {
        EXPECT_TRUE(IsOnView(shown)) << shown;
    }
    for (const char* hidden : {"fmViews(0)", "lstvFirst", "cmdRefresh", "tbInner", "cmbRights"}) {
        EXPECT_FALSE(IsOnView(hidden)) << hidden;
    }
}

TEST_F(NativeViewTest, TabLeadsThroughTheViewOnShowInTheOrderOfTheForm) {
    EXPECT_EQ(TabOrder(), (Names{"cmdFirst", "cmdSecond", "lstvFirst", "cmdRefresh"}));
    ShowTabs(1);
    EXPECT_EQ(TabOrder(), (Names{"cmdFirst", "cmdSecond", "tbOuter", "chkTest", "txtTest"}));
    ShowTabs(2);
    EXPECT_EQ(TabOrder(), (Names{"cmdFirst", "cmdSecond", "tbOuter", "tbInner", "lstvZone",
                                 "cmbRights", "cmdApply"}));
}

TEST_F(NativeViewTest, ViewsChangeInOneActWhenTheHandlerIsThrough) {
    bool formerStood = false;
    bool nextCame = true;
    views->whileSwitching = [&] {
        formerStood = IsOnView("lstvFirst");
        nextCame = IsOnView("tbOuter");
    };
    Post(Window("cmdSecond"), BM_CLICK, 0);
    EXPECT_TRUE(formerStood);
    EXPECT_FALSE(nextCame);
    EXPECT_TRUE(IsOnView("tbOuter"));
}

TEST_F(NativeViewTest, HandlerMayGiveTheFocusToAViewThatItHasJustShown) {
    bool shown = false;
    views->whileSwitching = [&] {
        desktop.Focus(views->text);
        shown = IsOnView("txtTest");
    };
    Post(Window("cmdSecond"), BM_CLICK, 0);
    EXPECT_TRUE(shown);
    EXPECT_EQ(GetFocus(), Window("txtTest"));
}

TEST_F(NativeViewTest, FocusLeavesAViewThatIsHidden) {
    SetFocus(Window("cmdRefresh"));
    views->View(false);
    desktop.YieldEvents();
    EXPECT_EQ(GetFocus(), Window("tbOuter"));
}

TEST_F(NativeViewTest, ControlThatIsHiddenInAVisibleViewStaysSo) {
    views->check.SetVisible(false);
    ShowTabs(1);
    EXPECT_FALSE(IsOnView("chkTest"));
    EXPECT_TRUE(IsOnView("txtTest"));
}

TEST_F(NativeViewTest, PageMayGoWhileAViewWaitsToBeShown) {
    views->whileSwitching = [&] { forms.Unload("pagViews"); };
    Post(Window("cmdSecond"), BM_CLICK, 0);
    EXPECT_EQ(forms.Loaded("pagViews"), nullptr);
    EXPECT_EQ(Window("pagViews"), nullptr);
}

TEST_F(NativeViewTest, KeyBelongsToTheViewOnShow) {
    Post(Window("cmdFirst"), WM_KEYDOWN, VK_F5);
    ShowTabs(2);
    Post(Window("cmdFirst"), WM_KEYDOWN, VK_F5);
    EXPECT_EQ(calls, Calls{"apply"});
}

TEST_F(NativeViewTest, EnterPressesNoDefaultButtonThatIsHidden) {
    Post(Window("lstvFirst"), WM_KEYDOWN, VK_RETURN);
    EXPECT_EQ(calls, Calls{});
    ShowTabs(2);
    Post(Window("lstvZone"), WM_KEYDOWN, VK_RETURN);
    EXPECT_EQ(calls, Calls{"apply"});
}

TEST_F(NativeViewTest, GroundsUnderTabsAreOfTheFormsColour) {
    ShowTabs(1);
    const COLORREF face = GetSysColor(COLOR_3DFACE);
    for (const char* control : {"picTabs(0)", "lblTest", "fmViews(1)", "chkTest"}) {
        const HWND window = Window(control);
        RECT area{};
        GetClientRect(window, &area);
        UpdateWindow(window);
        const HDC context = GetDC(window);
        EXPECT_EQ(GetPixel(context, area.right - 4, area.bottom - 4), face) << control;
        ReleaseDC(window, context);
    }
}

}  // namespace
}  // namespace velkarix
