#include "forms/win32/TabStripWindow.h"

#include <string>

namespace velkarix {

TabStripWindow::TabStripWindow(DesktopContext& context, TabStrip& strip, const ControlPlace& place)
    : ControlWindow(context, strip, place, {WC_TABCONTROLA, WS_TABSTOP, 0, true}), strip_(strip) {
    int position = 0;
    for (std::string caption : strip.Captions()) {
        TCITEMA item{};
        item.mask = TCIF_TEXT;
        item.pszText = caption.data();
        Send(TCM_INSERTITEMA, static_cast<WPARAM>(position++), reinterpret_cast<LPARAM>(&item));
    }
    ShowSelection();
    CutOutInside();
}

void TabStripWindow::Changed(Aspect aspect) {
    if (aspect == Aspect::Value) ShowSelection();
    ControlWindow::Changed(aspect);
}

void TabStripWindow::ShowSelection() const {
    Send(TCM_SETCURSEL, static_cast<WPARAM>(strip_.Selected() - 1));
}

void TabStripWindow::CutOutInside() const {
    const RECT whole = ClientArea();
    RECT inside = whole;
    Send(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&inside));
    // Between the edge and the inside the native control keeps as much room as the edge is wide.
    InflateRect(&inside, GetSystemMetrics(SM_CXEDGE), GetSystemMetrics(SM_CYEDGE));
    const HRGN shape = CreateRectRgnIndirect(&whole);
    if (inside.left < inside.right && inside.top < inside.bottom) {
        const HRGN hole = CreateRectRgnIndirect(&inside);
        CombineRgn(shape, shape, hole, RGN_DIFF);
        DeleteObject(hole);
    }
    SetWindowRgn(Handle(), shape, TRUE);  // the system's from now on
}

int TabStripWindow::TabAt(LPARAM point) const {
    TCHITTESTINFO hit{};
    hit.pt = {static_cast<short>(LOWORD(point)), static_cast<short>(HIWORD(point))};
    return static_cast<int>(Send(TCM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit))) + 1;
}

LRESULT TabStripWindow::OnNotify(NMHDR& header) {
    if (header.code == TCN_SELCHANGE) strip_.UserSelect(static_cast<int>(Send(TCM_GETCURSEL)) + 1);
    return 0;
}

LRESULT TabStripWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    // The native control says nothing of a selection that stays.
    const bool again = message == WM_LBUTTONDOWN && TabAt(lParam) == strip_.Selected();
    const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
    if (message == WM_SIZE) CutOutInside();
    if (again) strip_.UserSelect(strip_.Selected());
    return result;
}

}  // namespace velkarix
