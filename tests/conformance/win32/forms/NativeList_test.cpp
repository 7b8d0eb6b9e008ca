#include <map>

#include "NativeForms.h"

namespace velkarix {
namespace {

class NativeListTest : public NativeFormsTest {
  protected:
    HWND List() const { return Window("lstvAll"); }
    int Count() const { return static_cast<int>(SendMessageA(List(), LVM_GETITEMCOUNT, 0, 0)); }
    int Selected() const {
        return static_cast<int>(
            SendMessageA(List(), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
    }
    void SelectAsUser(int position) {
        LVITEMA item{};
        item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
        SendMessageA(List(), LVM_SETITEMSTATE, static_cast<WPARAM>(position),
                     reinterpret_cast<LPARAM>(&item));
    }
    std::string Cell(int position, int column) const {
        char text[256] = "";
        LVITEMA item{};
        item.iSubItem = column;
        item.pszText = text;
        item.cchTextMax = 256;
        SendMessageA(List(), LVM_GETITEMTEXTA, static_cast<WPARAM>(position),
                     reinterpret_cast<LPARAM>(&item));
        return text;
    }
    UINT BoxState(int position) const {
        return static_cast<UINT>(SendMessageA(List(), LVM_GETITEMSTATE,
                                              static_cast<WPARAM>(position), LVIS_STATEIMAGEMASK));
    }
    HIMAGELIST NativeImages() {
        desktop.YieldEvents();
        return reinterpret_cast<HIMAGELIST>(SendMessageA(List(), LVM_GETIMAGELIST, LVSIL_SMALL, 0));
    }
    COLORREF MiddleOfImage(int position) {
        const HDC context = GetDC(List());
        ImageList_Draw(NativeImages(), position, context, 0, 0, ILD_NORMAL);
        const COLORREF colour = GetPixel(context, 8, 8);
        ReleaseDC(List(), context);
        return colour;
    }
    RECT Label(int position) const {
        RECT area{LVIR_LABEL, 0, 0, 0};
        SendMessageA(List(), LVM_GETITEMRECT, static_cast<WPARAM>(position),
                     reinterpret_cast<LPARAM>(&area));
        return area;
    }
};

TEST_F(NativeListTest, ShowsEveryCellInTheOrderOfTheModel) {
    AddThreeRows();
    page->list.Sort(0, SortOrder::Ascending);
    desktop.YieldEvents();
    ASSERT_EQ(Count(), 3);
    for (int i = 0; i < 3; ++i) {
        for (int column = 0; column < 2; ++column) {
            EXPECT_EQ(
                Cell(i, column),
                page->list.Row(static_cast<std::size_t>(i)).Text(static_cast<std::size_t>(column)));
        }
    }
    EXPECT_EQ(Cell(0, 0), "Alpha");
}

TEST_F(NativeListTest, FollowsRowsThatComeAndGo) {
    AddThreeRows();
    page->list.Remove(page->list.Row(0));
    desktop.YieldEvents();
    EXPECT_EQ(Count(), 2);
    page->list.Clear();
    desktop.YieldEvents();
    EXPECT_EQ(Count(), 0);
}

TEST_F(NativeListTest, RowTheModelNoLongerHasIsEmpty) {
    AddThreeRows();
    page->list.Clear();
    EXPECT_EQ(Cell(0, 0), "");
}

TEST_F(NativeListTest, SelectionByTheProgramRunsNoHandler) {
    AddThreeRows();
    page->list.Select(&page->list.Row(2));
    desktop.YieldEvents();
    EXPECT_EQ(Selected(), 2);
    EXPECT_EQ(calls, Calls{});
}

TEST_F(NativeListTest, SelectionByTheUserIsTheModelsAndRunsTheHandlerOnce) {
    AddThreeRows();
    SelectAsUser(1);
    EXPECT_EQ(page->list.SelectedRow(), &page->list.Row(1));
    EXPECT_EQ(calls, Calls{"item Alpha"});
}

TEST_F(NativeListTest, SelectionStaysWithItsRowWhenTheOrderChanges) {
    AddThreeRows();
    SelectAsUser(0);
    page->list.Sort(0, SortOrder::Ascending);
    desktop.YieldEvents();
    EXPECT_EQ(Selected(), 1);
    EXPECT_EQ(calls, Calls{"item beta"});
}

TEST_F(NativeListTest, ClickOnTheBoxTicksTheRowAndSelectsNothing) {
    AddThreeRows();
    const RECT label = Label(1);
    ClickAt(List(), 8, static_cast<int>(label.top + label.bottom) / 2);
    EXPECT_TRUE(page->list.Row(1).Checked());
    EXPECT_EQ(BoxState(1), UINT{INDEXTOSTATEIMAGEMASK(2)});
    EXPECT_EQ(BoxState(0), UINT{INDEXTOSTATEIMAGEMASK(1)});
    EXPECT_EQ(calls, Calls{});
}

TEST_F(NativeListTest, SpaceTicksTheFocusedRow) {
    AddThreeRows();
    SelectAsUser(2);
    Post(List(), WM_KEYDOWN, VK_SPACE);
    EXPECT_TRUE(page->list.Row(2).Checked());
    Post(List(), WM_KEYDOWN, VK_SPACE);
    EXPECT_FALSE(page->list.Row(2).Checked());
}

TEST_F(NativeListTest, ClickOnARowSelectsItAndReleasesTheButton) {
    AddThreeRows();
    const RECT label = Label(2);
    ClickAt(List(), label.left + 5, static_cast<int>(label.top + label.bottom) / 2);
    EXPECT_EQ(calls, (Calls{"item gamma", "left"}));
}

TEST_F(NativeListTest, ClickBesideAllRowsSelectsNothing) {
    AddThreeRows();
    SelectAsUser(1);
    const RECT last = Label(2);
    ClickAt(List(), last.left + 5, last.bottom + 20);
    EXPECT_EQ(page->list.SelectedRow(), nullptr);
    EXPECT_EQ(Selected(), -1);
}

TEST_F(NativeListTest, MenuKeyIsTheRightButton) {
    AddThreeRows();
    SelectAsUser(0);
    Post(List(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(List()), -1);
    EXPECT_EQ(calls, (Calls{"item beta", "right"}));
}

TEST_F(NativeListTest, RightClickSelectsTheRowAndAsksForOneMenu) {
    AddThreeRows();
    const RECT label = Label(1);
    const LPARAM point = MAKELPARAM(label.left + 5, (label.top + label.bottom) / 2);
    PostMessageA(List(), WM_RBUTTONDOWN, MK_RBUTTON, point);
    Post(List(), WM_RBUTTONUP, 0, point);
    EXPECT_EQ(calls, (Calls{"item Alpha", "right"}));
}

TEST_F(NativeListTest, TypingLeadsToTheRow) {
    AddThreeRows();
    Post(List(), WM_CHAR, 'g', 1);
    EXPECT_EQ(calls, Calls{"item gamma"});
}

TEST_F(NativeListTest, ImagesFollowTheModelsWhenItBeginsAnew) {
    ImageList images;
    images.Add(StockPicture{"Software"});
    page->list.SetImages(&images);
    EXPECT_EQ(ImageList_GetImageCount(NativeImages()), 1);
    images.Add(Picture{1, 1, {0xFF00FF00}});
    page->list.Add("K", "row", 2);
    EXPECT_EQ(ImageList_GetImageCount(NativeImages()), 2);
    EXPECT_EQ(MiddleOfImage(1), RGB(0, 255, 0));
    page->list.Clear();
    images.Clear();
    images.Add(StockPicture{"Software"});
    images.Add(Picture{1, 1, {0xFF0000FF}});
    EXPECT_EQ(ImageList_GetImageCount(NativeImages()), 2);
    EXPECT_EQ(MiddleOfImage(1), RGB(0, 0, 255));
    page->list.SetImages(nullptr);
    desktop.YieldEvents();
}

TEST_F(NativeListTest, ManyImagesMadeAnewLeaveNoObjectsBehind) {
    ImageList images;
    page->list.SetImages(&images);
    const auto fill = [&] {
        page->list.Clear();
        images.Clear();
        for (std::uint32_t i = 0; i < 60; ++i) {
            const std::size_t image = images.Add(Picture{1, 1, {0xFF000000 | i}});
            page->list.Add(std::to_string(i), "row", image);
        }
        desktop.YieldEvents();
    };
    for (int i = 0; i < 2; ++i) fill();
    const int before = HighestGdiSlot();
    for (int i = 0; i < 3; ++i) fill();
    EXPECT_LT(HighestGdiSlot(), before + 25);
    page->list.SetImages(nullptr);
    desktop.YieldEvents();
}

// How often the native list hears of something while `act` runs and its consequences are served.
class HeardByList {
  public:
    template <typename Act>
    HeardByList(HWND list, Desktop& desktop, Act act) {
        list_ = list;
        counts_ = {};
        const DWORD thread = GetCurrentThreadId();
        const HHOOK sent = SetWindowsHookExA(WH_CALLWNDPROC, OnSent, nullptr, thread);
        const HHOOK posted = SetWindowsHookExA(WH_GETMESSAGE, OnPosted, nullptr, thread);
        act();
        desktop.YieldEvents();
        UnhookWindowsHookEx(posted);
        UnhookWindowsHookEx(sent);
    }
    static int Times(UINT message) { return counts_[message]; }

  private:
    static void Count(HWND window, UINT message) {
        if (window == list_) ++counts_[message];
    }
    static LRESULT CALLBACK OnSent(int code, WPARAM wParam, LPARAM lParam) {
        const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        Count(message.hwnd, message.message);
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }
    static LRESULT CALLBACK OnPosted(int code, WPARAM wParam, LPARAM lParam) {
        const auto& message = *reinterpret_cast<const MSG*>(lParam);
        if (wParam == PM_REMOVE) Count(message.hwnd, message.message);
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }
    static inline HWND list_ = nullptr;
    static inline std::map<UINT, int> counts_;
};

TEST_F(NativeListTest, ThousandsOfChangesAreOneRepaint) {
    constexpr int count = 30000;
    const HeardByList filling(List(), desktop, [this] {
        for (int i = 0; i < count; ++i) page->list.Add(std::to_string(i), std::to_string(i), 1);
    });
    EXPECT_EQ(filling.Times(LVM_SETITEMCOUNT), 1);
    EXPECT_LE(filling.Times(WM_PAINT), 2);
    const HeardByList changing(List(), desktop, [this] {
        for (std::size_t i = 0; i < count; ++i) page->list.Row(i).SetChecked(true);
        page->list.Sort(0, SortOrder::Descending);
    });
    EXPECT_EQ(changing.Times(LVM_SETITEMCOUNT), 1);
    EXPECT_LE(changing.Times(WM_PAINT), 2);
    EXPECT_EQ(BoxState(count - 1), UINT{INDEXTOSTATEIMAGEMASK(2)});
    const HeardByList clearing(List(), desktop, [this] { page->list.Clear(); });
    EXPECT_EQ(clearing.Times(LVM_SETITEMCOUNT), 1);
    EXPECT_LE(clearing.Times(WM_PAINT), 2);
}

TEST_F(NativeListTest, ColumnsHaveTheirSharesUntilTheyAreFitted) {
    const LRESULT name = SendMessageA(List(), LVM_GETCOLUMNWIDTH, 0, 0);
    const LRESULT number = SendMessageA(List(), LVM_GETCOLUMNWIDTH, 1, 0);
    EXPECT_GT(number, 10);
    EXPECT_NEAR(static_cast<double>(name), 3.0 * static_cast<double>(number), 3.0);
}

TEST_F(NativeListTest, ColumnsFitTheWidestRowAlsoOutOfSight) {
    for (int i = 0; i < 500; ++i) page->list.Add("K" + std::to_string(i), "short", 1);
    page->list.FitColumns();
    desktop.YieldEvents();
    const LRESULT narrow = SendMessageA(List(), LVM_GETCOLUMNWIDTH, 0, 0);
    page->list.Row(499).SetText(0, "a text that is a good deal longer");
    page->list.FitColumns();
    desktop.YieldEvents();
    EXPECT_GT(SendMessageA(List(), LVM_GETCOLUMNWIDTH, 0, 0), narrow + 50);
}

}  // namespace
}  // namespace velkarix
