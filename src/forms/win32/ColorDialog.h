// The system's dialog that asks for a colour.
#pragma once

#include <array>
#include <optional>

#include "base/Color.h"
#include "forms/win32/WindowsHeaders.h"

namespace velkarix {

// The colours that the user mixes there are offered again the next time.
class ColorDialog {
  public:
    ColorDialog();
    // `owner` is disabled meanwhile, and `present` is chosen at first. Nothing on cancel.
    std::optional<Color> Ask(HWND owner, Color present);

  private:
    std::array<COLORREF, 16> mixed_;
};

}  // namespace velkarix
