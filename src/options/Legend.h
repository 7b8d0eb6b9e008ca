// The colours of marked rows, as the options page shows and changes them.
#pragma once

#include "shell/Appearance.h"

namespace velkarix {

struct LegendEntry {
    const char* box;    // the name of the coloured box
    const char* label;  // what the colour is for
    const char* key;    // of Settings.ini, section "Main"
    Color Appearance::*color;
};

inline constexpr LegendEntry Legend[] = {
    {"picSuspicious", "Suspicious Item", "SusColor", &Appearance::SusColor},
    {"picDisabled", "Disabled Item", "DisColor", &Appearance::DisColor},
    {"picSusDis", "Suspicious and Disabled Item", "SusDisColor", &Appearance::SusDisColor},
};

}  // namespace velkarix
