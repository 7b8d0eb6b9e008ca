#include <array>

#include "NativeForms.h"

namespace velkarix {
namespace {

class PageOfIcons : public Form {
  public:
    explicit PageOfIcons(Calls& calls)
        : Form("pagIcons", "Icons", FormKind::Page),
          list("lstvIcons", "Icons", {"Name", "Command"},
               {[&calls](ListRow& row) { calls.push_back("item " + row.Key()); },
                [&calls](int column) { calls.push_back("column " + std::to_string(column)); },
                [&calls] { calls.push_back("double"); },
                [&calls](MouseButton button) {
                    calls.push_back(button == MouseButton::Right ? "right" : "left");
                }}) {
        const ImageList::Image software = StockPicture{"Software"};
        const ImageList::Image green = Picture{1, 1, {0xFF00FF00}};
        small.Add(software);
        large.Add(software);
        large.Add(green);
        list.SetCheckBoxes(false);
        list.SetImages(&small);
        list.SetLargeImages(&large);
        SetControls({&list});
        SetLayout(Column({Item(list, 1)}));
    }

    ImageList small;
    ImageList large;
    ListView list;
};

class NativeListModesTest : public NativeFormsTest {
  protected:
    NativeListModesTest() {
        forms.Define("pagIcons", [this] { return std::make_unique<PageOfIcons>(calls); });
        forms.Unload("pagAll");
        icons = static_cast<PageOfIcons*>(forms.Show("pagIcons", &main->host));
        desktop.YieldEvents();
    }

    HWND List() const { return Window("lstvIcons"); }
    void Show(ListMode mode) {
        icons->list.SetMode(mode);
        desktop.YieldEvents();
    }
    void AddRows(int count) {
        for (int i = 0; i < count; ++i) {
            const std::string name =
                std::string(1, static_cast<char>('a' + i % 26)) + std::to_string(i);
            icons->list.Add(name, name, 1).SetText(1, "command");
        }
        desktop.YieldEvents();
    }
    DWORD NativeMode() const {
        return static_cast<DWORD>(GetWindowLongA(List(), GWL_STYLE)) & LVS_TYPEMASK;
    }
    int Selected() const {
        return static_cast<int>(
            SendMessageA(List(), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
    }
    POINT Place(int position) const {
        POINT place{};
        SendMessageA(List(), LVM_GETITEMPOSITION, static_cast<WPARAM>(position),
                     reinterpret_cast<LPARAM>(&place));
        return place;
    }
    RECT AreaOf(int position, LONG part) const {
        RECT area{part, 0, 0, 0};
        SendMessageA(List(), LVM_GETITEMRECT, static_cast<WPARAM>(position),
                     reinterpret_cast<LPARAM>(&area));
        return area;
    }
    POINT MiddleOf(int position) const {
        const RECT icon = AreaOf(position, LVIR_ICON);
        return {(icon.left + icon.right) / 2, (icon.top + icon.bottom) / 2};
    }
    LPARAM PointOf(int position) const {
        const POINT point = MiddleOf(position);
        return MAKELPARAM(point.x, point.y);
    }
    int ImageOf(int position) const {
        LVITEMA item{};
        item.mask = LVIF_IMAGE;
        item.iItem = position;
        SendMessageA(List(), LVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item));
        return item.iImage;
    }
    // Where an arrow key leads from an icon, as a native list asks its owner.
    LRESULT NearestTo(int position, UINT arrowKey, LONG besideIt = 0) const {
        NMLVFINDITEMA wanted{};
        wanted.hdr.hwndFrom = List();
        wanted.hdr.code = static_cast<UINT>(LVN_ODFINDITEMA);
        wanted.iStart = position;
        wanted.lvfi.flags = LVFI_NEARESTXY;
        wanted.lvfi.pt = Place(position);
        wanted.lvfi.pt.x -= besideIt;
        wanted.lvfi.vkDirection = arrowKey;
        return SendMessageA(GetParent(List()), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&wanted));
    }
    int PixelsOf(int position, LONG part, COLORREF colour) const {
        return PixelsIn(AreaOf(position, part), colour);
    }
    int PixelsIn(const RECT& area, COLORREF colour) const {
        const HDC context = GetDC(List());
        int count = 0;
        for (LONG y = area.top; y < area.bottom; ++y) {
            for (LONG x = area.left; x < area.right; ++x) {
                if (GetPixel(context, static_cast<int>(x), static_cast<int>(y)) == colour) ++count;
            }
        }
        ReleaseDC(List(), context);
        return count;
    }

    PageOfIcons* icons = nullptr;
};

TEST_F(NativeListModesTest, FollowsTheModeOfTheModel) {
    AddRows(3);
    EXPECT_EQ(NativeMode(), DWORD{LVS_REPORT});
    Show(ListMode::Icons);
    EXPECT_EQ(NativeMode(), DWORD{LVS_ICON});
    Show(ListMode::Details);
    EXPECT_EQ(NativeMode(), DWORD{LVS_REPORT});
    EXPECT_EQ(calls, Calls{});
}

TEST_F(NativeListModesTest, ListThatBeginsWithIconsShowsThem) {
    forms.Unload("pagIcons");
    forms.Define("pagAtOnce", [this] {
        auto made = std::make_unique<PageOfIcons>(calls);
        made->list.SetMode(ListMode::Icons);
        made->list.Add("A", "a", 1);
        made->list.Add("B", "b", 1);
        return made;
    });
    icons = static_cast<PageOfIcons*>(forms.Show("pagAtOnce", &main->host));
    desktop.YieldEvents();
    EXPECT_EQ(NativeMode(), DWORD{LVS_ICON});
    EXPECT_GT(Place(1).x, Place(0).x);
}

TEST_F(NativeListModesTest, IconsStandRowAfterRowInTheOrderOfTheModel) {
    Show(ListMode::Icons);
    AddRows(30);
    RECT inside{};
    GetClientRect(List(), &inside);
    for (int i = 1; i < 30; ++i) {
        const POINT before = Place(i - 1);
        const POINT place = Place(i);
        EXPECT_TRUE(place.y > before.y || (place.y == before.y && place.x > before.x)) << i;
        EXPECT_LE(AreaOf(i, LVIR_BOUNDS).right, inside.right) << i;
    }
    EXPECT_GT(Place(29).y, Place(0).y);
}

TEST_F(NativeListModesTest, IconsThatWereFilledAsDetailsHaveTheirPlacesToo) {
    AddRows(30);
    Show(ListMode::Icons);
    EXPECT_GT(Place(1).x, Place(0).x);
    EXPECT_GT(Place(29).y, Place(0).y);
}

TEST_F(NativeListModesTest, IconsFindNewPlacesWhenTheListGrowsWider) {
    AddRows(30);
    Show(ListMode::Icons);
    const LONG before = Place(29).y;
    const auto form = reinterpret_cast<HWND>(desktop.HandleOf(*main));
    RECT area{};
    GetWindowRect(form, &area);
    SetWindowPos(form, nullptr, 0, 0, static_cast<int>(area.right - area.left) + 320,
                 static_cast<int>(area.bottom - area.top), SWP_NOZORDER | SWP_NOMOVE);
    desktop.YieldEvents();
    EXPECT_LT(Place(29).y, before);
}

TEST_F(NativeListModesTest, LargeImagesAreThoseOfTheModelInTheSystemsSize) {
    icons->list.Add("A", "a", 1, 2);
    Show(ListMode::Icons);
    EXPECT_EQ(ImageOf(0), 1);
    const auto images =
        reinterpret_cast<HIMAGELIST>(SendMessageA(List(), LVM_GETIMAGELIST, LVSIL_NORMAL, 0));
    EXPECT_EQ(ImageList_GetImageCount(images), 2);
    int width = 0;
    int height = 0;
    ImageList_GetIconSize(images, &width, &height);
    EXPECT_EQ(width, GetSystemMetrics(SM_CXICON));
    EXPECT_EQ(height, GetSystemMetrics(SM_CXICON));
    EXPECT_GE(PixelsOf(0, LVIR_ICON, RGB(0, 255, 0)), width * height / 2);
    Show(ListMode::Details);
    EXPECT_EQ(ImageOf(0), 0);
}

TEST_F(NativeListModesTest, ListWithoutLargeImagesHasNone) {
    icons->list.SetLargeImages(nullptr);
    Show(ListMode::Icons);
    EXPECT_EQ(SendMessageA(List(), LVM_GETIMAGELIST, LVSIL_NORMAL, 0), 0);
}

TEST_F(NativeListModesTest, SelectionStaysWhenTheModeChanges) {
    AddRows(200);
    icons->list.Select(&icons->list.Row(150));
    desktop.YieldEvents();
    Show(ListMode::Icons);
    EXPECT_EQ(Selected(), 150);
    RECT inside{};
    GetClientRect(List(), &inside);
    EXPECT_LE(AreaOf(150, LVIR_ICON).bottom, inside.bottom);
    EXPECT_GE(AreaOf(150, LVIR_ICON).top, 0);
    Show(ListMode::Details);
    EXPECT_EQ(Selected(), 150);
    EXPECT_LE(AreaOf(150, LVIR_LABEL).bottom, inside.bottom);
    EXPECT_EQ(icons->list.SelectedRow(), &icons->list.Row(150));
    EXPECT_EQ(calls, Calls{});
}

TEST_F(NativeListModesTest, ClicksOnAnIconSelectAndOpenIt) {
    AddRows(5);
    Show(ListMode::Icons);
    const POINT second = MiddleOf(1);
    ClickAt(List(), static_cast<int>(second.x), static_cast<int>(second.y));
    EXPECT_EQ(calls, (Calls{"item b1", "left"}));
    EXPECT_EQ(icons->list.SelectedRow(), &icons->list.Row(1));
    calls.clear();
    Post(List(), WM_LBUTTONDBLCLK, MK_LBUTTON, PointOf(1));
    Post(List(), WM_LBUTTONUP, 0, PointOf(1));
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "double"), 1);
}

TEST_F(NativeListModesTest, RightClickOnAnIconSelectsItAndAsksForOneMenu) {
    AddRows(5);
    Show(ListMode::Icons);
    PostMessageA(List(), WM_RBUTTONDOWN, MK_RBUTTON, PointOf(2));
    Post(List(), WM_RBUTTONUP, 0, PointOf(2));
    EXPECT_EQ(calls, (Calls{"item c2", "right"}));
}

TEST_F(NativeListModesTest, ClickBesideAllIconsSelectsNothing) {
    AddRows(2);
    Show(ListMode::Icons);
    icons->list.Select(&icons->list.Row(1));
    desktop.YieldEvents();
    const RECT last = AreaOf(1, LVIR_BOUNDS);
    ClickAt(List(), static_cast<int>(last.right) + 60, static_cast<int>(last.bottom) + 60);
    EXPECT_EQ(icons->list.SelectedRow(), nullptr);
    EXPECT_EQ(Selected(), -1);
}

TEST_F(NativeListModesTest, ArrowKeysMoveAmongIcons) {
    AddRows(30);
    Show(ListMode::Icons);
    icons->list.Select(&icons->list.Row(0));
    desktop.YieldEvents();
    SetFocus(List());
    Post(List(), WM_KEYDOWN, VK_RIGHT, 1);
    EXPECT_EQ(calls, Calls{"item b1"});
    Post(List(), WM_KEYDOWN, VK_DOWN, 1);
    ASSERT_NE(icons->list.SelectedRow(), nullptr);
    EXPECT_EQ(Place(Selected()).x, Place(1).x);
    EXPECT_GT(Place(Selected()).y, Place(1).y);
}

TEST_F(NativeListModesTest, AnswersWhichIconLiesNextInADirection) {
    AddRows(30);
    Show(ListMode::Icons);
    int columns = 1;
    while (Place(columns).y == Place(0).y) ++columns;
    EXPECT_EQ(NearestTo(1, VK_RIGHT), 2);
    EXPECT_EQ(NearestTo(1, VK_LEFT), 0);
    EXPECT_EQ(NearestTo(1, VK_DOWN), 1 + columns);
    EXPECT_EQ(NearestTo(1 + columns, VK_UP), 1);
    EXPECT_EQ(NearestTo(0, VK_LEFT), -1);
    EXPECT_EQ(NearestTo(0, VK_UP), -1);
    EXPECT_EQ(NearestTo(1, VK_F1), -1);
    // The point may be another one of the icon than its place.
    icons->list.Select(&icons->list.Row(1));
    desktop.YieldEvents();
    EXPECT_EQ(NearestTo(1, VK_RIGHT, 3), 2);
}

TEST_F(NativeListModesTest, TypingLeadsToTheIcon) {
    AddRows(5);
    Show(ListMode::Icons);
    SetFocus(List());
    Post(List(), WM_CHAR, 'd', 1);
    EXPECT_EQ(calls, Calls{"item d3"});
}

TEST_F(NativeListModesTest, MarkOfARowIsThatOfItsIconToo) {
    AddRows(2);
    icons->list.Row(0).SetText(0, "WWWWW");
    icons->list.Row(0).SetTextColor(RGB(255, 0, 0));
    icons->list.Row(0).SetBold(true);
    for (const ListMode mode : {ListMode::Icons, ListMode::Details}) {
        Show(mode);
        UpdateWindow(List());
        EXPECT_GT(PixelsOf(0, LVIR_LABEL, RGB(255, 0, 0)), 20);
        EXPECT_EQ(PixelsOf(1, LVIR_LABEL, RGB(255, 0, 0)), 0);
    }
}

TEST_F(NativeListModesTest, TextThatGrowsShorterUnderAnIconLeavesNothingBehind) {
    AddRows(1);
    Show(ListMode::Icons);
    icons->list.Row(0).SetTextColor(RGB(255, 0, 0));
    icons->list.Row(0).SetText(0, "WWWWWWW");
    desktop.YieldEvents();
    UpdateWindow(List());
    const int before = PixelsOf(0, LVIR_BOUNDS, RGB(255, 0, 0));
    icons->list.Row(0).SetText(0, "i");
    desktop.YieldEvents();
    UpdateWindow(List());
    RECT inside{};
    GetClientRect(List(), &inside);
    EXPECT_LT(PixelsIn(inside, RGB(255, 0, 0)), before / 2);
}

TEST_F(NativeListModesTest, SortedIconsStandInTheNewOrder) {
    AddRows(3);
    Show(ListMode::Icons);
    icons->list.Select(&icons->list.Row(0));
    icons->list.Sort(0, SortOrder::Descending);
    desktop.YieldEvents();
    EXPECT_EQ(Selected(), 2);
    EXPECT_EQ(icons->list.SelectedRow()->Key(), "a0");
    EXPECT_GT(Place(2).x, Place(0).x);
}

TEST_F(NativeListModesTest, ColumnsThatWereToFitUnderIconsFitOnceTheyAreOnView) {
    icons->list.Add("A", "a text that is a good deal longer than its column was", 1);
    icons->list.FitColumns();
    Show(ListMode::Icons);
    Show(ListMode::Details);
    const LRESULT fitted = SendMessageA(List(), LVM_GETCOLUMNWIDTH, 0, 0);
    icons->list.FitColumns();
    desktop.YieldEvents();
    EXPECT_EQ(SendMessageA(List(), LVM_GETCOLUMNWIDTH, 0, 0), fitted);
    icons->list.Row(0).SetText(0, "a");
    icons->list.FitColumns();
    desktop.YieldEvents();
    EXPECT_LT(SendMessageA(List(), LVM_GETCOLUMNWIDTH, 0, 0), fitted);
}

// Counts the paints and the hidings of a window while it lives.
class Watch {
  public:
    explicit Watch(HWND window) {
        window_ = window;
        counts_ = {};
        hook_ = SetWindowsHookExA(WH_CALLWNDPROC, OnSent, nullptr, GetCurrentThreadId());
    }
    ~Watch() { UnhookWindowsHookEx(hook_); }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
    static int Erased() { return counts_[0]; }
    static int Hidden() { return counts_[1]; }

  private:
    static LRESULT CALLBACK OnSent(int code, WPARAM wParam, LPARAM lParam) {
        const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (message.hwnd == window_) {
            if (message.message == WM_ERASEBKGND) ++counts_[0];
            if (message.message == WM_WINDOWPOSCHANGED) {
                const auto& change = *reinterpret_cast<const WINDOWPOS*>(message.lParam);
                if ((change.flags & SWP_HIDEWINDOW) != 0) ++counts_[1];
            }
        }
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }
    static inline HWND window_ = nullptr;
    static inline std::array<int, 2> counts_{};
    HHOOK hook_;
};

TEST_F(NativeListModesTest, ListMadeAnewOutOfSightIsNeverGone) {
    AddRows(40);
    Show(ListMode::Icons);
    SetFocus(List());
    const Watch watch(List());
    icons->list.SetVisible(false);
    icons->list.SetMode(ListMode::Details);
    icons->list.Clear();
    icons->list.SetLargeImages(nullptr);
    icons->list.SetLargeImages(&icons->large);
    for (int i = 0; i < 50; ++i) icons->list.Add(std::to_string(i), std::to_string(i), 1);
    icons->list.SetVisible(true);
    icons->list.FitColumns();
    icons->list.SetMode(ListMode::Icons);
    desktop.YieldEvents();
    EXPECT_EQ(Watch::Hidden(), 0);
    EXPECT_LE(Watch::Erased(), 2);
    EXPECT_EQ(GetFocus(), List());
    EXPECT_EQ(NativeMode(), DWORD{LVS_ICON});
    EXPECT_EQ(SendMessageA(List(), LVM_GETITEMCOUNT, 0, 0), 50);
    EXPECT_GT(Place(49).y, Place(0).y);
}

}  // namespace
}  // namespace velkarix
