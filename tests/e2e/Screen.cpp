#include "Screen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "Setup.h"
#include "Wait.h"
#include "Window.h"

namespace velkarix::e2e {

namespace {

std::string AreaLine(const std::string& name, const RECT& area) {
    return name + " " + std::to_string(area.right - area.left) + "x" +
           std::to_string(area.bottom - area.top) + "+" + std::to_string(area.left) + "+" +
           std::to_string(area.top) + "\n";
}

std::string AreasOf(DWORD processId) {
    std::string lines;
    for (const Window& top : TopWindows(processId)) {
        lines += AreaLine(top.Name().empty() ? top.Class() : top.Name(), top.Area());
        for (const Window& child : top.Children()) {
            if (!child.Name().empty() && child.Visible()) {
                lines += AreaLine(child.Name(), child.Area());
            }
        }
    }
    return lines;
}

// The pixels of an area of the screen, as RGBQUADs, row by row from the top.
std::vector<DWORD> Grab(const RECT& area) {
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    std::vector<DWORD> pixels(static_cast<std::size_t>(width * height));
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    const BOOL copied = BitBlt(memory, 0, 0, width, height, screen, area.left, area.top, SRCCOPY);
    SelectObject(memory, before);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    const int lines = GetDIBits(memory, bitmap, 0, static_cast<UINT>(height), pixels.data(), &info,
                                DIB_RGB_COLORS);
    EXPECT_TRUE(width > 0 && height > 0 && bitmap != nullptr && copied && lines == height)
        << "no picture of " << width << " x " << height << " pixels";
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return pixels;
}

}  // namespace

bool SaveScreenshot(const std::string& name, DWORD processId) {
    const std::string folder = Environment("VELKARIX_OUT");
    if (folder.empty()) return false;
    // Who takes pictures does so when it finds this file under its last name, and renames it then.
    const std::string written = folder + "\\" + name + ".written";
    const std::string request = folder + "\\shot-" + name + ".request";
    std::ofstream(written, std::ios::binary) << AreasOf(processId);
    if (MoveFileExA(written.c_str(), request.c_str(), MOVEFILE_REPLACE_EXISTING) == FALSE) {
        return false;
    }
    return WaitUntil(
        [&] { return GetFileAttributesA(request.c_str()) == INVALID_FILE_ATTRIBUTES; });
}

Capture::Capture(const RECT& area) : area_(area), pixels_(Grab(area)) {}

DWORD Capture::At(LONG x, LONG y) const {
    const LONG width = area_.right - area_.left;
    return pixels_.at(static_cast<std::size_t>((y - area_.top) * width + x - area_.left)) &
           0xFFFFFF;
}

int Capture::Differing(const Capture& other, const RECT& area) const {
    RECT common{};
    IntersectRect(&common, &area, &area_);
    IntersectRect(&common, &common, &other.area_);
    int count = 0;
    for (LONG y = common.top; y < common.bottom; ++y) {
        for (LONG x = common.left; x < common.right; ++x) {
            if (At(x, y) != other.At(x, y)) ++count;
        }
    }
    return count;
}

int CountPixels(const RECT& area, const std::function<bool(COLORREF)>& counts) {
    return static_cast<int>(std::ranges::count_if(Grab(area), [&](DWORD pixel) {
        // The colours of a pixel stand the other way round.
        return counts(RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF));
    }));
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
