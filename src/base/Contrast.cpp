#include "base/Contrast.h"

#include <algorithm>
#include <cmath>

namespace velkarix {

namespace {

// The least contrast that ISO 9241-3 and ANSI/HFES 100-1988 ask for text, and the guidelines for
// large text and the parts of a user interface. The red that marks rows on white at first has 4.
constexpr double LeastContrast = 3.0;
// Black on the lightest dialogs of an ordinary scheme has 19.3, on pure white 21.
constexpr double HighContrast = 20.0;

constexpr Color Black = 0x000000;
constexpr Color White = 0xFFFFFF;

// The share of light in one of the three parts of a colour.
double Light(Color color, int shift) {
    const double part = static_cast<double>(color >> shift & 0xFF) / 255.0;
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(Color color) {
    return 0.2126 * Light(color, 0) + 0.7152 * Light(color, 8) + 0.0722 * Light(color, 16);
}

}  // namespace

double ContrastRatio(Color one, Color other) {
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

TextColors MarkColors(Color mark, Color ground) {
    if (ContrastRatio(mark, ground) >= LeastContrast) return {mark, ground};
    return {ContrastRatio(mark, White) > ContrastRatio(mark, Black) ? White : Black, mark};
}

bool IsHighContrast(const TextColors& dialog) {
    return Luminance(dialog.text) > Luminance(dialog.ground) ||
           ContrastRatio(dialog.text, dialog.ground) >= HighContrast;
}

}  // namespace velkarix
