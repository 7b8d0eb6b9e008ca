// A screen of another size, as far as windows ask for the part that they may cover.
#pragma once

#include <windows.h>

namespace velkarix {

// Pixels of this machine.
inline int Pixels(int at96) {
    const HDC screen = GetDC(nullptr);
    const int pixels = MulDiv(at96, GetDeviceCaps(screen, LOGPIXELSX), 96);
    ReleaseDC(nullptr, screen);
    return pixels;
}

// The part of the screen that windows may cover, for the length of a scope.
class WorkAreaOf {
  public:
    WorkAreaOf(LONG width, LONG height) {
        SystemParametersInfoA(SPI_GETWORKAREA, 0, &former_, 0);
        RECT wanted{0, 0, width, height};
        SystemParametersInfoA(SPI_SETWORKAREA, 0, &wanted, 0);
    }
    ~WorkAreaOf() { SystemParametersInfoA(SPI_SETWORKAREA, 0, &former_, 0); }
    WorkAreaOf(const WorkAreaOf&) = delete;
    WorkAreaOf& operator=(const WorkAreaOf&) = delete;

  private:
    RECT former_{};
};

}  // namespace velkarix
