// The colours of the program's own drawing, and the system's in their place where the user asked
// for high contrast or the display has few colours.
#pragma once

#include <array>
#include <cstddef>

#include "forms/win32/Handles.h"

namespace velkarix {

enum class Shade {
    Face,     // the plain ground of a form
    Banner,   // the ground of the banner
    Strip,    // the ground of a strip of picture buttons
    Hot,      // a picture button under the mouse
    Pushed,   // a picture button that is pushed
    Current,  // the picture button of the page on view
    Accent,   // the mark at the edge of the current button, the line under the banner
};
inline constexpr std::size_t ShadeCount = 7;

struct Ink {
    COLORREF text = 0;
    COLORREF ground = 0;
};

class Palette {
  public:
    Palette() { Reload(); }
    // Reads the system's colours anew.
    void Reload();
    const Ink& Of(Shade shade) const { return inks_[static_cast<std::size_t>(shade)]; }
    // A brush of the shade's ground; the palette owns it.
    HBRUSH Brush(Shade shade) const { return brushes_[static_cast<std::size_t>(shade)].get(); }
    // The text colour of a link on that ground.
    COLORREF Link(Shade ground) const;

  private:
    bool systemOnly_ = false;
    std::array<Ink, ShadeCount> inks_{};
    std::array<OwnedBrush, ShadeCount> brushes_{};
};

}  // namespace velkarix
