// A drawer, whose neighbours make room for it, and the keys that open and close it.
#include "NativeForms.h"

namespace velkarix {
namespace {

class PageOfDrawer : public Form {
  public:
    explicit PageOfDrawer(Desktop& desktop) : Form("pagDrawer", "Drawer", FormKind::Page) {
        drawer.SetVisible(false);
        SetControls({&drawer, &box, &list, &act});
        SetAccelerators({{{Key::F, true},
                          "",
                          nullptr,
                          [this, &desktop] {
                              drawer.SetVisible(true);
                              desktop.Focus(box);
                          }},
                         {{Key::Escape}, "", &drawer, [this] { drawer.SetVisible(false); }},
                         {{Key::C, true}, "", nullptr, [this] { calls.push_back("copy"); }},
                         {{Key::Delete}, "cmdAct_Click", &list}});
        SetLayout(Column({Group(drawer, Row({Item(box, 1)})), Item(list, 1), Item(act)}));
    }
    Calls calls;
    Panel drawer{"picDrawer", "", Panel::Look::Drawer};
    TextBox box{"txtDrawer", "Text", {}};
    ListView list{"lstvDrawer", "List", {"Name"}, {}};
    Button act{"cmdAct", "Act", [this] { calls.push_back("act"); }};
};

class NativeDrawerTest : public NativeFormsTest {
  protected:
    NativeDrawerTest() {
        forms.Define("pagDrawer", [this] { return std::make_unique<PageOfDrawer>(desktop); });
        forms.Unload("pagAll");
        page_ = static_cast<PageOfDrawer*>(forms.Show("pagDrawer", &main->host));
        ShowWindow(reinterpret_cast<HWND>(desktop.HandleOf(*main)), SW_SHOW);
        SetActiveWindow(reinterpret_cast<HWND>(desktop.HandleOf(*main)));
        desktop.YieldEvents();
    }
    static RECT AreaOf(HWND window) {
        RECT area{};
        GetWindowRect(window, &area);
        return area;
    }
    // As if Ctrl were held, or not.
    static void HoldCtrl(bool held) {
        BYTE keys[256] = {};
        GetKeyboardState(keys);
        keys[VK_CONTROL] = held ? 0x80 : 0;
        SetKeyboardState(keys);
    }
    void PressWithCtrl(const char* control, WPARAM key) {
        HoldCtrl(true);
        Post(Window(control), WM_KEYDOWN, key, 1);
        HoldCtrl(false);
    }

    PageOfDrawer* page_ = nullptr;
};

TEST_F(NativeDrawerTest, ItsNeighboursMakeRoomForItAndTakeItBack) {
    const RECT before = AreaOf(Window("lstvDrawer"));
    page_->drawer.SetVisible(true);
    desktop.YieldEvents();
    const RECT box = AreaOf(Window("txtDrawer"));
    const RECT opened = AreaOf(Window("lstvDrawer"));
    EXPECT_TRUE(IsWindowVisible(Window("txtDrawer")));
    EXPECT_GT(box.bottom, box.top);
    EXPECT_GE(opened.top, box.bottom);
    EXPECT_EQ(opened.bottom, before.bottom);
    page_->drawer.SetVisible(false);
    desktop.YieldEvents();
    EXPECT_EQ(AreaOf(Window("lstvDrawer")).top, before.top);
    EXPECT_FALSE(IsWindowVisible(Window("txtDrawer")));
}

TEST_F(NativeDrawerTest, ItsBoxGetsTheFocusWithAllOfItsTextSelected) {
    page_->box.SetValue("former");
    PressWithCtrl("lstvDrawer", 'F');
    EXPECT_EQ(GetFocus(), Window("txtDrawer"));
    DWORD begin = 1;
    DWORD end = 0;
    SendMessageA(Window("txtDrawer"), EM_GETSEL, reinterpret_cast<WPARAM>(&begin),
                 reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(begin, 0u);
    EXPECT_EQ(end, 6u);
    Post(Window("lstvDrawer"), WM_KEYDOWN, VK_ESCAPE, 1);
    EXPECT_TRUE(page_->drawer.Visible());
    Post(Window("txtDrawer"), WM_KEYDOWN, VK_ESCAPE, 1);
    EXPECT_FALSE(page_->drawer.Visible());
}

TEST_F(NativeDrawerTest, KeysOfTheListLeaveABoxItsOwn) {
    PressWithCtrl("lstvDrawer", 'F');
    PressWithCtrl("txtDrawer", 'C');
    Post(Window("txtDrawer"), WM_KEYDOWN, VK_DELETE, 1);
    EXPECT_EQ(page_->calls, Calls{});
    PressWithCtrl("lstvDrawer", 'C');
    Post(Window("lstvDrawer"), WM_KEYDOWN, VK_DELETE, 1);
    EXPECT_EQ(page_->calls, (Calls{"copy", "act"}));
}

}  // namespace
}  // namespace velkarix
