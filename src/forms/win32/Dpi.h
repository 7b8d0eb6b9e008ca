// Turns lengths at 96 dots an inch into pixels of this machine.
#pragma once

#include "forms/win32/Handles.h"

namespace velkarix {

class Dpi {
  public:
    Dpi() : dotsPerInch_(GetDeviceCaps(ScreenContext(), LOGPIXELSX)) {}
    int Pixels(int at96) const { return MulDiv(at96, dotsPerInch_, 96); }

  private:
    int dotsPerInch_;
};

}  // namespace velkarix
