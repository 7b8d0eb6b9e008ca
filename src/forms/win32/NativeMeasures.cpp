#include "forms/win32/NativeMeasures.h"

#include "forms/win32/Screen.h"

namespace velkarix {

namespace {

constexpr int Edge = 200;  // of the controls that are asked: large enough for anything they show

// A hidden control for the length of a scope.
class Sample {
  public:
    Sample(const char* windowClass, DWORD style, HFONT font)
        : handle_(CreateWindowExA(0, windowClass, "", WS_POPUP | style, 0, 0, Edge, Edge, nullptr,
                                  nullptr, nullptr, nullptr)) {
        Send(WM_SETFONT, reinterpret_cast<WPARAM>(font), 0);
    }
    ~Sample() { DestroyWindow(handle_); }
    Sample(const Sample&) = delete;
    Sample& operator=(const Sample&) = delete;

    LRESULT Send(UINT message, WPARAM wParam, LPARAM lParam) const {
        return SendMessageA(handle_, message, wParam, lParam);
    }
    RECT Area() const {
        RECT area{};
        GetWindowRect(handle_, &area);
        return area;
    }

  private:
    HWND handle_;
};

int BoxHeight(HFONT font) {
    const Sample box("COMBOBOX", CBS_DROPDOWNLIST, font);
    return static_cast<int>(Height(box.Area()));
}

Insets AroundTabPage(HFONT font) {
    const Sample tabs(WC_TABCONTROLA, 0, font);
    char caption[] = "Tab";
    TCITEMA item{};
    item.mask = TCIF_TEXT;
    item.pszText = caption;
    tabs.Send(TCM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
    RECT page{0, 0, Edge, Edge};
    tabs.Send(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&page));
    return {static_cast<int>(page.left), static_cast<int>(page.top),
            static_cast<int>(Edge - page.right), static_cast<int>(Edge - page.bottom)};
}

}  // namespace

NativeMeasures MeasureNatives(HFONT font) {
    return {BoxHeight(font), AroundTabPage(font)};
}

}  // namespace velkarix
