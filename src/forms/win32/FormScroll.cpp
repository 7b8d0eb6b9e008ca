#include "forms/win32/FormScroll.h"

#include <algorithm>

namespace velkarix {

namespace {

constexpr int Steps = 12;  // from one end of what is seen to the other
constexpr int WheelClick = 120;

SCROLLINFO StateOf(HWND window, int bar) {
    SCROLLINFO state{};
    state.cbSize = sizeof(state);
    state.fMask = SIF_ALL;
    GetScrollInfo(window, bar, &state);
    return state;
}

// Of a layout that is `length` long where `page` of it is seen.
void ShowBar(HWND window, int bar, int length, int page) {
    SCROLLINFO state = StateOf(window, bar);
    state.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    state.nMin = 0;
    state.nMax = std::max(length, 1) - 1;
    state.nPage = static_cast<UINT>(std::max(page, 0));
    state.nPos = std::clamp(state.nPos, 0, std::max(0, length - page));
    SetScrollInfo(window, bar, &state, TRUE);
}

bool HasBar(HWND window, LONG style) {
    return (GetWindowLongA(window, GWL_STYLE) & style) != 0;
}

// The inside of a window when it has no bars.
Size WholeInside(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    const int upright = HasBar(window, WS_VSCROLL) ? GetSystemMetrics(SM_CXVSCROLL) : 0;
    const int level = HasBar(window, WS_HSCROLL) ? GetSystemMetrics(SM_CYHSCROLL) : 0;
    return {static_cast<int>(client.right) + upright, static_cast<int>(client.bottom) + level};
}

}  // namespace

Rect FormScroll::PlaceFor(HWND window, const Size& least) {
    Size inside = WholeInside(window);
    const int uprightBar = GetSystemMetrics(SM_CXVSCROLL);
    const int levelBar = GetSystemMetrics(SM_CYHSCROLL);
    // Each bar takes room that may make the other one necessary.
    bool upright = least.height > inside.height;
    const bool level = least.width > inside.width - (upright ? uprightBar : 0);
    upright = upright || least.height > inside.height - (level ? levelBar : 0);
    if (upright) inside.width -= uprightBar;
    if (level) inside.height -= levelBar;
    const Size room{std::max(inside.width, least.width), std::max(inside.height, least.height)};
    fitting_ = true;
    ShowBar(window, SB_HORZ, room.width, inside.width);
    ShowBar(window, SB_VERT, room.height, inside.height);
    fitting_ = false;
    return {-StateOf(window, SB_HORZ).nPos, -StateOf(window, SB_VERT).nPos, room.width,
            room.height};
}

bool FormScroll::MoveTo(HWND window, int bar, int position) {
    const SCROLLINFO before = StateOf(window, bar);
    const int last = std::max(0, before.nMax + 1 - static_cast<int>(before.nPage));
    SCROLLINFO state{};
    state.cbSize = sizeof(state);
    state.fMask = SIF_POS;
    state.nPos = std::clamp(position, 0, last);
    if (state.nPos == before.nPos) return false;
    SetScrollInfo(window, bar, &state, TRUE);
    return true;
}

bool FormScroll::OnScroll(HWND window, UINT message, WPARAM wParam) {
    const int bar = message == WM_HSCROLL ? SB_HORZ : SB_VERT;
    const SCROLLINFO state = StateOf(window, bar);
    const int page = static_cast<int>(state.nPage);
    const int step = std::max(1, page / Steps);
    switch (LOWORD(wParam)) {
        case SB_LINEUP:
            return MoveTo(window, bar, state.nPos - step);
        case SB_LINEDOWN:
            return MoveTo(window, bar, state.nPos + step);
        case SB_PAGEUP:
            return MoveTo(window, bar, state.nPos - page);
        case SB_PAGEDOWN:
            return MoveTo(window, bar, state.nPos + page);
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            return MoveTo(window, bar, state.nTrackPos);
        case SB_TOP:
            return MoveTo(window, bar, 0);
        case SB_BOTTOM:
            return MoveTo(window, bar, state.nMax);
        default:
            return false;
    }
}

bool FormScroll::OnWheel(HWND window, WPARAM wParam) {
    if (!HasBar(window, WS_VSCROLL)) return false;
    const SCROLLINFO state = StateOf(window, SB_VERT);
    const int turned = static_cast<short>(HIWORD(wParam));
    const int way = static_cast<int>(state.nPage) / 4 * turned / WheelClick;
    return MoveTo(window, SB_VERT, state.nPos - way);
}

bool FormScroll::Reveal(HWND window, HWND control) {
    RECT area{};
    GetWindowRect(control, &area);
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&area), 2);
    RECT client{};
    GetClientRect(window, &client);
    // Of what is larger than the window the beginning is enough, with what stands before it.
    const auto way = [](LONG from, LONG to, LONG end) {
        if (from >= 0 && from < end / 2 && to - from > end / 2) return 0;
        if (from < 0 || to - from > end) return static_cast<int>(from);
        return static_cast<int>(std::max<LONG>(0, to - end));
    };
    const bool level = MoveTo(
        window, SB_HORZ, StateOf(window, SB_HORZ).nPos + way(area.left, area.right, client.right));
    const bool upright = MoveTo(
        window, SB_VERT, StateOf(window, SB_VERT).nPos + way(area.top, area.bottom, client.bottom));
    return level || upright;
}

}  // namespace velkarix
