#include "Marks.h"

namespace velkarix::e2e {

COLORREF ColorOf(Mark mark) {
    switch (mark) {
        case Mark::Suspicious:
            return RGB(255, 0, 0);
        case Mark::Disabled:
            return RGB(128, 128, 128);
        case Mark::SuspiciousAndDisabled:
            return RGB(64, 0, 0);
        default:
            return GetSysColor(COLOR_WINDOWTEXT);
    }
}

}  // namespace velkarix::e2e
