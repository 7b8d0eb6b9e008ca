// The utilities page has more words than any other: all of them are to be seen on every screen.
#include <gtest/gtest.h>

#include "WorkAreaOf.h"
#include "forms/win32/Win32Desktop.h"
#include "platform/win32/Win32Machine.h"
#include "shell/Application.h"
#include "shell/frmMain.h"
#include "utilities/frmUtilities.h"

namespace velkarix {
namespace {

// The page in its place in the main window, both as they are before they are loaded.
class PageOnScreen : private WorkAreaOf {
  public:
    PageOnScreen(int width, int height) : WorkAreaOf(Pixels(width), Pixels(height)) {
        desktop_.Create(main_, nullptr);
        desktop_.Create(page, dynamic_cast<PageHost*>(main_.Find("picPage")));
        desktop_.Show(page);
    }
    ~PageOnScreen() {
        desktop_.Destroy(page);
        desktop_.Destroy(main_);
    }
    PageOnScreen(const PageOnScreen&) = delete;
    PageOnScreen& operator=(const PageOnScreen&) = delete;

    HWND Window() { return reinterpret_cast<HWND>(desktop_.HandleOf(page)); }

  private:
    Win32Machine win32_;
    Win32Desktop desktop_;
    Application application_{win32_.Parts(), desktop_};
    frmMain main_{application_};

  public:
    frmUtilities page{application_};
};

struct Texts {
    HWND page;
    std::string cut;  // a line for each that can't be read whole
};

// The area that a text takes in a window of this kind, in lines as wide as the window is.
RECT AreaOfText(HWND window, const std::string& text, const char* kind) {
    const HDC context = GetDC(window);
    const HGDIOBJ before =
        SelectObject(context, reinterpret_cast<HFONT>(SendMessageA(window, WM_GETFONT, 0, 0)));
    RECT area{};
    GetClientRect(window, &area);
    area.bottom = 0;
    const bool isLabel = lstrcmpiA(kind, "Static") == 0;
    DrawTextA(context, text.c_str(), -1, &area,
              DT_CALCRECT | (isLabel ? DT_WORDBREAK | DT_NOPREFIX : DT_SINGLELINE));
    SelectObject(context, before);
    ReleaseDC(window, context);
    return area;
}

BOOL CALLBACK AddCutText(HWND window, LPARAM parameter) {
    auto& texts = *reinterpret_cast<Texts*>(parameter);
    char text[512] = "";
    char kind[32] = "";
    GetWindowTextA(window, text, sizeof(text));
    GetClassNameA(window, kind, sizeof(kind));
    const RECT needed = AreaOfText(window, text, kind);
    RECT inside{};
    RECT area{};
    RECT page{};
    GetClientRect(window, &inside);
    GetWindowRect(window, &area);
    GetWindowRect(texts.page, &page);
    if (needed.right > inside.right || needed.bottom > inside.bottom || area.left < page.left ||
        area.top < page.top || area.right > page.right || area.bottom > page.bottom) {
        texts.cut += std::string(text) + "\n";
    }
    return TRUE;
}

std::string CutTexts(PageOnScreen& screen) {
    Texts texts{screen.Window(), {}};
    EnumChildWindows(texts.page, AddCutText, reinterpret_cast<LPARAM>(&texts));
    return texts.cut;
}

// What is left of each screen beside its task bar.
TEST(UtilitiesPageOnScreens, ShowsAllOfItsWordsOnScreensOfEverySize) {
    for (const auto& [width, height] : {std::pair{640, 452}, {800, 572}, {1024, 740}}) {
        PageOnScreen screen(width, height);
        EXPECT_EQ(CutTexts(screen), "") << width;
    }
}

TEST(UtilitiesPageOnScreens, HasRoomForADateBehindItsWords) {
    PageOnScreen screen(640, 452);
    Control* label = screen.page.Find("lblLastUpdated");
    label->SetText(label->Text() + " 2004-12-31 12:59:59");
    EXPECT_EQ(CutTexts(screen), "");
}

}  // namespace
}  // namespace velkarix
