// A page in its place in the main window, on screens of any size, and what of its words can't be
// read there.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "WorkAreaOf.h"
#include "forms/win32/Win32Desktop.h"
#include "platform/win32/Win32Machine.h"
#include "shell/Application.h"
#include "shell/frmMain.h"

namespace velkarix {

// Both forms are as they are before they are loaded.
template <typename Page>
class PageOnScreen : private WorkAreaOf {
  public:
    PageOnScreen(int width, int height) : WorkAreaOf(Pixels(width), Pixels(height)) {
        desktop_.Create(main, nullptr);
        desktop_.Create(page, dynamic_cast<PageHost*>(main.Find("picPage")));
        desktop_.Show(page);
    }
    ~PageOnScreen() {
        desktop_.Destroy(page);
        desktop_.Destroy(main);
    }
    PageOnScreen(const PageOnScreen&) = delete;
    PageOnScreen& operator=(const PageOnScreen&) = delete;

    HWND Window() { return reinterpret_cast<HWND>(desktop_.HandleOf(page)); }
    HWND MainWindow() { return reinterpret_cast<HWND>(desktop_.HandleOf(main)); }
    void Settle() { desktop_.YieldEvents(); }

  private:
    Win32Machine win32_;
    Win32Desktop desktop_;
    Application application_{win32_.Parts(), desktop_};

  public:
    frmMain main{application_};
    Page page{application_};
};

struct Texts {
    HWND page;
    std::string cut;  // a line for each that can't be read whole
};

// The area that a text takes in a window of this kind, in lines as wide as the window is.
inline RECT AreaOfText(HWND window, const std::string& text, const char* kind) {
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

inline BOOL CALLBACK AddCutText(HWND window, LPARAM parameter) {
    auto& texts = *reinterpret_cast<Texts*>(parameter);
    char text[512] = "";
    char kind[32] = "";
    if ((GetWindowLongA(window, GWL_STYLE) & WS_VISIBLE) == 0) return TRUE;
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

// What can't be read, or stands beyond the edges, in a form's window.
inline std::string CutTexts(HWND form) {
    Texts texts{form, {}};
    EnumChildWindows(form, AddCutText, reinterpret_cast<LPARAM>(&texts));
    return texts.cut;
}

}  // namespace velkarix
