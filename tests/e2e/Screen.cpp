#include "Screen.h"

#include <algorithm>

#include "Setup.h"
#include "Wait.h"

namespace velkarix::e2e {

bool SaveScreenshot(const std::string& name) {
    const std::string folder = Environment("VELKARIX_OUT");
    if (folder.empty()) return false;
    // Who takes pictures does so when it finds this file, and removes it then.
    const std::string request = folder + "\\shot-" + name + ".request";
    const HANDLE file = CreateFileA(request.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    CloseHandle(file);
    return WaitUntil(
        [&] { return GetFileAttributesA(request.c_str()) == INVALID_FILE_ATTRIBUTES; });
}

int CountPixels(const RECT& area, const std::function<bool(COLORREF)>& counts) {
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen, area.left, area.top, SRCCOPY);
    int count = 0;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            if (counts(GetPixel(memory, x, y))) ++count;
        }
    }
    SelectObject(memory, before);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return count;
}

COLORREF TextColor(const RECT& area) {
    COLORREF darkest = RGB(255, 255, 255);
    const auto lightness = [](COLORREF color) {
        return GetRValue(color) + GetGValue(color) + GetBValue(color);
    };
    CountPixels(area, [&](COLORREF color) {
        if (lightness(color) < lightness(darkest)) darkest = color;
        return false;
    });
    return darkest;
}

bool IsReddish(COLORREF color) {
    return GetRValue(color) - std::max(GetGValue(color), GetBValue(color)) > 80;
}

}  // namespace velkarix::e2e
