#include "forms/win32/Fonts.h"

#include <cstddef>
#include <cstring>

namespace velkarix {

namespace {

// The font of message boxes; where the system doesn't tell it, the one that old dialogs ask for.
LOGFONTA DialogFont(const Dpi& dpi) {
    NONCLIENTMETRICSA metrics{};
    metrics.cbSize = sizeof(metrics);
    if (SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0) != FALSE) {
        return metrics.lfMessageFont;
    }
    LOGFONTA font{};
    font.lfHeight = -dpi.Pixels(11);  // 8 points
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    std::strcpy(font.lfFaceName, "MS Shell Dlg");
    return font;
}

// Behind the end of a name there may be anything.
bool SameFont(const LOGFONTA& one, const LOGFONTA& other) {
    return std::memcmp(&one, &other, offsetof(LOGFONTA, lfFaceName)) == 0 &&
           std::strcmp(one.lfFaceName, other.lfFaceName) == 0;
}

Size Measured(HFONT font, const std::string& text, UINT format, int width = 0) {
    const ScreenContext screen;
    const Selection selection(screen, font);
    RECT area{0, 0, width, 0};
    // An empty text is as high as one line.
    DrawTextA(screen, text.empty() ? " " : text.c_str(), -1, &area, DT_CALCRECT | format);
    return {text.empty() ? 0 : static_cast<int>(area.right), static_cast<int>(area.bottom)};
}

}  // namespace

bool Fonts::Reload() {
    const LOGFONTA dialog = DialogFont(dpi_);
    if (dialog_ != nullptr && SameFont(dialog, system_)) return false;
    system_ = dialog;
    dialog_.reset(CreateFontIndirectA(&dialog));

    LOGFONTA bold = dialog;
    bold.lfWeight = FW_BOLD;
    bold_.reset(CreateFontIndirectA(&bold));

    LOGFONTA title = bold;
    title.lfHeight = MulDiv(dialog.lfHeight, 17, 10);
    title_.reset(CreateFontIndirectA(&title));

    LOGFONTA link = dialog;
    link.lfUnderline = TRUE;
    link_.reset(CreateFontIndirectA(&link));
    return true;
}

Size CaptionExtent(HFONT font, const std::string& caption) {
    return Measured(font, caption, 0);
}

Size TextExtent(HFONT font, const std::string& text) {
    return Measured(font, text, DT_NOPREFIX);
}

Size ParagraphExtent(HFONT font, const std::string& text, int width) {
    return Measured(font, text, DT_NOPREFIX | DT_WORDBREAK, width);
}

int AverageCharacterWidth(HFONT font) {
    static constexpr char letters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr int count = static_cast<int>(sizeof(letters)) - 1;
    const ScreenContext screen;
    const Selection selection(screen, font);
    SIZE extent{};
    GetTextExtentPoint32A(screen, letters, count, &extent);
    return (static_cast<int>(extent.cx) + count / 2) / count;
}

}  // namespace velkarix
