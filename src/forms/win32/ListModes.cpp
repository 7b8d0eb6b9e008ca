#include "forms/win32/ListModes.h"

namespace velkarix {

namespace {

bool LiesTowards(UINT arrowKey, LONG right, LONG down) {
    switch (arrowKey) {
        case VK_LEFT:
            return right < 0;
        case VK_RIGHT:
            return right > 0;
        case VK_UP:
            return down < 0;
        case VK_DOWN:
            return down > 0;
        default:
            return false;
    }
}

}  // namespace

DWORD ListModeStyle(ListMode mode) {
    return mode == ListMode::Icons ? LVS_ICON : LVS_REPORT;
}

void ShowListMode(HWND list, ListMode mode) {
    const auto style = static_cast<DWORD>(GetWindowLongA(list, GWL_STYLE));
    const DWORD wanted = (style & ~static_cast<DWORD>(LVS_TYPEMASK)) | ListModeStyle(mode);
    if (wanted != style) SetWindowLongA(list, GWL_STYLE, static_cast<LONG>(wanted));
}

void ArrangeIcons(HWND list, ListMode mode) {
    if (mode == ListMode::Icons) SendMessageA(list, LVM_ARRANGE, LVA_DEFAULT, 0);
}

int FindNearestIcon(HWND list, const POINT& from, UINT arrowKey) {
    const auto count = static_cast<int>(SendMessageA(list, LVM_GETITEMCOUNT, 0, 0));
    const auto focused = static_cast<int>(
        SendMessageA(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
    int nearest = -1;
    LONG least = 0;
    for (int i = 0; i < count; ++i) {
        POINT place{};
        SendMessageA(list, LVM_GETITEMPOSITION, static_cast<WPARAM>(i),
                     reinterpret_cast<LPARAM>(&place));
        const LONG right = place.x - from.x;
        const LONG down = place.y - from.y;
        if (i == focused || !LiesTowards(arrowKey, right, down)) continue;
        // What lies aside counts more: an icon in line with this one is what the user means.
        const bool inRow = arrowKey == VK_LEFT || arrowKey == VK_RIGHT;
        const LONG along = inRow ? right : down;
        const LONG aside = inRow ? down : right;
        const LONG distance = along * along + 4 * aside * aside;
        if (nearest >= 0 && distance >= least) continue;
        nearest = i;
        least = distance;
    }
    return nearest;
}

}  // namespace velkarix
