// What is to be seen at once is drawn at once, although no events are served.
#include "NativeForms.h"
#include "forms/ProgressBar.h"

namespace velkarix {
namespace {

class PageOfStatus : public Form {
  public:
    explicit PageOfStatus(const Handler& work)
        : Form("pagStatus", "Status", FormKind::Page), run("cmdRun", "Run", work) {
        bar.SetVisible(false);
        SetControls({&run, &status, &bar});
        SetAccelerators({{{Key::F5}, "cmdRun_Click"}});
        SetLayout(Column({Item(run), Row({Item(status, 1), Item(bar)}), Space()}));
    }
    Button run;
    Label status{"lblStatus", "", Label::Look::Status};
    ProgressBar bar{"barTest", "Progress"};
};

// Counts how often a window is given its text.
class TextCount {
  public:
    explicit TextCount(HWND window) : window_(window) {
        SetWindowSubclass(window_, Note, 0, reinterpret_cast<DWORD_PTR>(&count_));
    }
    ~TextCount() { RemoveWindowSubclass(window_, Note, 0); }
    int Count() const { return count_; }

  private:
    static LRESULT CALLBACK Note(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                 DWORD_PTR count) {
        if (message == WM_SETTEXT) ++*reinterpret_cast<int*>(count);
        return DefSubclassProc(window, message, wParam, lParam);
    }

    HWND window_;
    int count_ = 0;
};

class NativeStatusTest : public NativeFormsTest {
  protected:
    NativeStatusTest() {
        forms.Define("pagStatus", [this] {
            return std::make_unique<PageOfStatus>([this] {
                if (work) work();
            });
        });
        forms.Unload("pagAll");
        page_ = static_cast<PageOfStatus*>(forms.Show("pagStatus", &main->host));
        ShowWindow(reinterpret_cast<HWND>(desktop.HandleOf(*main)), SW_SHOW);
        desktop.YieldEvents();
        Settle();
    }
    // Has everything drawn that waits.
    void Settle() {
        RedrawWindow(reinterpret_cast<HWND>(desktop.HandleOf(*main)), nullptr, nullptr,
                     RDW_UPDATENOW | RDW_ALLCHILDREN);
        desktop.YieldEvents();
    }
    bool WaitsForDrawing(const std::string& name) {
        return GetUpdateRect(Window(name), nullptr, FALSE) != FALSE;
    }

    Handler work;
    PageOfStatus* page_ = nullptr;
};

TEST_F(NativeStatusTest, TextThatChangesOftenReachesTheWindowOnce) {
    const TextCount texts(Window("lblStatus"));
    int within = -1;
    work = [&] {
        for (int i = 0; i < 3; ++i) page_->status.SetText(std::to_string(i));
        within = texts.Count();
    };
    SendMessageA(Window("cmdRun"), BM_CLICK, 0, 0);
    EXPECT_EQ(within, 0);
    EXPECT_EQ(texts.Count(), 1);
    EXPECT_EQ(TextOf(Window("lblStatus")), "2");
}

TEST_F(NativeStatusTest, TextThatIsToBeSeenAtOnceIsDrawnWithinTheHandler) {
    bool waited = true;
    std::string text;
    work = [&] {
        page_->status.SetText("busy & busier");
        page_->status.ShowNow();
        waited = WaitsForDrawing("lblStatus");
        text = TextOf(Window("lblStatus"));
    };
    SendMessageA(Window("cmdRun"), BM_CLICK, 0, 0);
    EXPECT_FALSE(waited);
    EXPECT_EQ(text, "busy & busier");
}

TEST_F(NativeStatusTest, BarComesMovesAndGoesWithinTheHandler) {
    LRESULT position = 0;
    bool came = false;
    bool waited = true;
    bool gone = false;
    work = [&] {
        page_->bar.SetPercent(40);
        page_->bar.SetVisible(true);
        page_->bar.ShowNow();
        came = IsWindowVisible(Window("barTest")) != FALSE;
        waited = WaitsForDrawing("barTest");
        position = SendMessageA(Window("barTest"), PBM_GETPOS, 0, 0);
        page_->bar.SetVisible(false);
        gone = IsWindowVisible(Window("barTest")) == FALSE;
    };
    EXPECT_FALSE(IsWindowVisible(Window("barTest")));
    SendMessageA(Window("cmdRun"), BM_CLICK, 0, 0);
    EXPECT_TRUE(came);
    EXPECT_FALSE(waited);
    EXPECT_EQ(position, 40);
    EXPECT_TRUE(gone);
}

std::vector<WPARAM> positions;
WNDPROC nativeBar = nullptr;

LRESULT CALLBACK KeepPositions(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == PBM_SETPOS) positions.push_back(wParam);
    return CallWindowProcA(nativeBar, window, message, wParam, lParam);
}

// Only what shrinks is drawn while no events are served, on systems where the bar grows by itself.
TEST_F(NativeStatusTest, BarGoesOneTooFarAndBack) {
    const HWND bar = Window("barTest");
    positions.clear();
    nativeBar = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(bar, GWLP_WNDPROC));
    SetWindowLongPtrA(bar, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(KeepPositions));
    page_->bar.SetPercent(40);
    page_->bar.SetPercent(100);
    SetWindowLongPtrA(bar, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(nativeBar));
    EXPECT_EQ(positions, (std::vector<WPARAM>{41, 40, 101, 100}));
    EXPECT_EQ(SendMessageA(bar, PBM_GETPOS, 0, 0), 100);
    EXPECT_EQ(SendMessageA(bar, PBM_GETRANGE, FALSE, 0), 100);
}

// What waits for the handler's end waits, whether a key or a click has begun it.
TEST_F(NativeStatusTest, DrawingAtOnceEndsNoHandlerThatAKeyHasBegun) {
    std::string text = "none";
    work = [&] {
        page_->status.SetText("waits");
        page_->bar.SetVisible(true);
        page_->bar.ShowNow();
        SendMessageA(Window("cmdRun"), WM_NULL, 0, 0);
        text = TextOf(Window("lblStatus"));
    };
    Post(Window("cmdRun"), WM_KEYDOWN, VK_F5);
    EXPECT_EQ(text, "");
    EXPECT_EQ(TextOf(Window("lblStatus")), "waits");
}

TEST_F(NativeStatusTest, PageThatGoesLeavesNoTextWaiting) {
    page_->status.SetText("late");
    forms.Unload("pagStatus");
    desktop.YieldEvents();
    EXPECT_EQ(Window("lblStatus"), nullptr);
}

}  // namespace
}  // namespace velkarix
