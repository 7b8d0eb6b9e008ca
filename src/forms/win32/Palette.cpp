#include "forms/win32/Palette.h"

#include "base/Contrast.h"

namespace velkarix {

namespace {

struct ShadeColours {
    Ink own;
    int systemText;
    int systemGround;
};

constexpr std::array<ShadeColours, ShadeCount> Shades{{
    {{RGB(0, 0, 0), RGB(0, 0, 0)}, COLOR_BTNTEXT, COLOR_3DFACE},  // Face is always the system's
    {{RGB(255, 255, 255), RGB(20, 72, 92)}, COLOR_BTNTEXT, COLOR_3DFACE},
    {{RGB(16, 52, 66), RGB(222, 234, 239)}, COLOR_BTNTEXT, COLOR_3DFACE},
    {{RGB(16, 52, 66), RGB(202, 223, 232)}, COLOR_BTNTEXT, COLOR_3DFACE},
    {{RGB(16, 52, 66), RGB(178, 207, 220)}, COLOR_HIGHLIGHTTEXT, COLOR_HIGHLIGHT},
    {{RGB(16, 52, 66), RGB(255, 255, 255)}, COLOR_HIGHLIGHTTEXT, COLOR_HIGHLIGHT},
    {{RGB(255, 255, 255), RGB(42, 143, 170)}, COLOR_BTNTEXT, COLOR_BTNTEXT},
}};

// A scheme that was chosen among the others, and not in the system's settings for users who need
// it, doesn't set the flag.
bool SystemColoursOnly() {
    HIGHCONTRASTA contrast{};
    contrast.cbSize = sizeof(contrast);
    const bool highContrast =
        SystemParametersInfoA(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0) != FALSE &&
        (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
    const TextColors dialog{GetSysColor(COLOR_BTNTEXT), GetSysColor(COLOR_3DFACE)};
    const ScreenContext screen;
    const int bitsPerPixel = GetDeviceCaps(screen, BITSPIXEL) * GetDeviceCaps(screen, PLANES);
    // Fewer colours would be dithered, and text on a dithered ground is hard to read.
    return highContrast || IsHighContrast(dialog) || bitsPerPixel <= 8;
}

}  // namespace

void Palette::Reload() {
    systemOnly_ = SystemColoursOnly();
    for (std::size_t i = 0; i < ShadeCount; ++i) {
        const ShadeColours& colours = Shades[i];
        const bool system = systemOnly_ || i == static_cast<std::size_t>(Shade::Face);
        inks_[i] = system ? Ink{GetSysColor(colours.systemText), GetSysColor(colours.systemGround)}
                          : colours.own;
        brushes_[i].reset(CreateSolidBrush(inks_[i].ground));
    }
}

COLORREF Palette::Link(Shade ground) const {
    constexpr COLORREF blue = RGB(0, 0, 192);
    return ground == Shade::Face && !systemOnly_ ? blue : Of(ground).text;
}

}  // namespace velkarix
