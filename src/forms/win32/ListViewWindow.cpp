#include "forms/win32/ListViewWindow.h"

#include <cstddef>

#include "forms/win32/ListAnswers.h"
#include "forms/win32/ListColumns.h"
#include "forms/win32/ListModes.h"

namespace velkarix {

namespace {

// A list that composes off screen, where the common controls can (version 6).
constexpr DWORD DoubleBuffered = 0x00010000;
constexpr DWORD ExtendedStyle = LVS_EX_FULLROWSELECT | DoubleBuffered;
constexpr DWORD Style =
    WS_TABSTOP | LVS_OWNERDATA | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_AUTOARRANGE;

}  // namespace

ListViewWindow::ListViewWindow(DesktopContext& context, ListView& list, const ControlPlace& place)
    : ControlWindow(context, list, place,
                    {WC_LISTVIEWA, Style | ListModeStyle(list.Mode()), WS_EX_CLIENTEDGE, true}),
      list_(list),
      images_(context.instance, context.metrics.SmallImage()),
      largeImages_(context.instance, GetSystemMetrics(SM_CXICON)) {
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, ExtendedStyle, ExtendedStyle);
    if (list.CheckBoxes()) {
        Send(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
        Send(LVM_SETCALLBACKMASK, LVIS_STATEIMAGEMASK);
    }
    InsertColumns(Handle(), list);
    SpaceIcons();
    context.pending.Add(*this);
}

void ListViewWindow::SpaceIcons() const {
    const Size spacing = Context().metrics.IconSpacing();
    Send(LVM_SETICONSPACING, 0, MAKELPARAM(spacing.width, spacing.height));
}

void ListViewWindow::Detach() {
    Context().pending.Remove(*this);
    // The native list destroys what image lists it has at its end: its check boxes, not ours.
    Send(LVM_SETIMAGELIST, LVSIL_SMALL, 0);
    Send(LVM_SETIMAGELIST, LVSIL_NORMAL, 0);
    ControlWindow::Detach();
}

void ListViewWindow::Changed(Aspect aspect) {
    switch (aspect) {
        case Aspect::Rows:
            rowsChanged_ = true;
            break;
        case Aspect::RowState:
            break;
        case Aspect::Selection:
            selectionChanged_ = true;
            break;
        case Aspect::ColumnWidths:
            fitWanted_ = true;
            break;
        case Aspect::Look:
            modeChanged_ = true;
            break;
        default:
            ControlWindow::Changed(aspect);
            return;
    }
    Context().pending.Add(*this);
}

void ListViewWindow::Refresh() {
    ShowImages(LVSIL_SMALL, list_.Images(), images_);
    ShowImages(LVSIL_NORMAL, list_.LargeImages(), largeImages_);
    if (modeChanged_) ShowListMode(Handle(), list_.Mode());
    if (rowsChanged_) Send(LVM_SETITEMCOUNT, list_.RowCount(), LVSICF_NOSCROLL);
    if (rowsChanged_ || modeChanged_) ArrangeIcons(Handle(), list_.Mode());
    // Icons have no columns; they are fitted when they are on view again.
    if (fitWanted_ && list_.Mode() == ListMode::Details) {
        FitColumns(Handle(), list_, Context());
        fitWanted_ = false;
    }
    if (rowsChanged_ || selectionChanged_ || modeChanged_) ShowSelection();
    // A line covers its whole ground, a text below an icon may be narrower than the one before.
    InvalidateRect(Handle(), nullptr, list_.Mode() == ListMode::Icons ? TRUE : FALSE);
    rowsChanged_ = selectionChanged_ = modeChanged_ = false;
}

void ListViewWindow::ShowImages(int kind, const ImageList* images, ListImages& shown) const {
    if (images != nullptr) shown.Follow(*images);
    Send(LVM_SETIMAGELIST, static_cast<WPARAM>(kind),
         reinterpret_cast<LPARAM>(images != nullptr ? shown.Handle() : nullptr));
}

void ListViewWindow::ShowSelection() {
    LVITEMA item{};
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    // One row at most has either. To take them from all rows at once costs some systems a second.
    for (const LPARAM state : {LVNI_SELECTED, LVNI_FOCUSED}) {
        const LRESULT former = Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), state);
        if (former < 0) continue;
        Send(LVM_SETITEMSTATE, static_cast<WPARAM>(former), reinterpret_cast<LPARAM>(&item));
    }
    const ListRow* selected = list_.SelectedRow();
    if (selected == nullptr) return;
    const std::size_t position = list_.PositionOf(*selected);
    item.state = item.stateMask;
    Send(LVM_SETITEMSTATE, position, reinterpret_cast<LPARAM>(&item));
    if (selectionChanged_ || modeChanged_) Send(LVM_ENSUREVISIBLE, position, FALSE);
}

// Not every native list follows the system by itself.
void ListViewWindow::ColoursChanged() {
    const COLORREF ground = GetSysColor(COLOR_WINDOW);
    Send(LVM_SETBKCOLOR, 0, static_cast<LPARAM>(ground));
    Send(LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(ground));
    Send(LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(GetSysColor(COLOR_WINDOWTEXT)));
    ControlWindow::ColoursChanged();
}

void ListViewWindow::FontsChanged() {
    ControlWindow::FontsChanged();
    SpaceIcons();
    fitWanted_ = true;
    Context().pending.Add(*this);
}

LRESULT ListViewWindow::OnNotify(NMHDR& header) {
    switch (header.code) {
        case LVN_GETDISPINFOA:
            DescribeRow(list_, reinterpret_cast<NMLVDISPINFOA&>(header).item);
            return 0;
        case NM_CUSTOMDRAW:
            return OnDraw(reinterpret_cast<NMLVCUSTOMDRAW&>(header));
        case LVN_ODFINDITEMA:
            return FindRow(list_, reinterpret_cast<NMLVFINDITEMA&>(header));
        case LVN_ODFINDITEMW:
            return FindRow(list_, reinterpret_cast<NMLVFINDITEMW&>(header));
        case LVN_ITEMCHANGED:
            OnItemChanged(reinterpret_cast<NMLISTVIEW&>(header));
            return 0;
        case LVN_COLUMNCLICK:
            list_.UserColumnClick(reinterpret_cast<NMLISTVIEW&>(header).iSubItem + 1);
            return 0;
        case NM_CLICK:
            OnClick(reinterpret_cast<NMITEMACTIVATE&>(header));
            return 0;
        case NM_DBLCLK:
            OnDoubleClick(reinterpret_cast<NMITEMACTIVATE&>(header));
            return 0;
        case NM_RCLICK:
            // The release of the button itself comes as WM_CONTEXTMENU.
            TellIfNothingIsSelected();
            return 0;
        default:
            return 0;
    }
}

LRESULT ListViewWindow::OnDraw(NMLVCUSTOMDRAW& draw) const {
    if (draw.nmcd.dwDrawStage == CDDS_POSTPAINT) {
        RECT area = ClientArea();
        if (list_.Mode() == ListMode::Details) {
            RECT header{};
            GetClientRect(reinterpret_cast<HWND>(Send(LVM_GETHEADER)), &header);
            area.top += header.bottom;
        }
        SetTextColor(draw.nmcd.hdc, RGB(0, 0, 0));
        SetBkColor(draw.nmcd.hdc, RGB(255, 255, 255));
        DrawFocusRect(draw.nmcd.hdc, &area);
        return CDRF_DODEFAULT;
    }
    const LRESULT answer = MarkDrawnRow(list_, Context().fonts, draw);
    const bool first = draw.nmcd.dwDrawStage == CDDS_PREPAINT;
    return first && ShowsFocusItself() ? answer | CDRF_NOTIFYPOSTPAINT : answer;
}

// Where no row has the mark of the focus, the list itself shows it.
bool ListViewWindow::ShowsFocusItself() const {
    return GetFocus() == Handle() && FocusedPosition() < 0;
}

LRESULT ListViewWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    // The header's own context menu would come by here as well.
    if (message == WM_CONTEXTMENU && reinterpret_cast<HWND>(wParam) == Handle()) {
        OnContextMenu(lParam);
        return 0;
    }
    // Space ticks the focused row. The native list would select it and search for a blank.
    if (message == WM_KEYDOWN && wParam == VK_SPACE) {
        Toggle(FocusedPosition());
        return 0;
    }
    if (message == WM_CHAR && wParam == ' ') return 0;
    const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
    const bool focusMoved = message == WM_SETFOCUS || message == WM_KILLFOCUS;
    if (focusMoved && FocusedPosition() < 0) InvalidateRect(Handle(), nullptr, TRUE);
    return result;
}

// What the program selected is the model's already, as is a row that the native list selects anew.
void ListViewWindow::OnItemChanged(const NMLISTVIEW& change) {
    if ((change.uNewState & ~change.uOldState & LVIS_SELECTED) == 0) return;
    ListRow* row = RowAt(list_, change.iItem);
    if (row != nullptr && row != list_.SelectedRow()) list_.UserSelect(row);
}

// A click beside all rows, or one with Ctrl on the selected row.
void ListViewWindow::TellIfNothingIsSelected() {
    const LRESULT selected = Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
    if (selected < 0) list_.UserSelect(nullptr);
}

void ListViewWindow::OnClick(const NMITEMACTIVATE& click) {
    if (ToggleIfOnCheckBox(click.ptAction)) return;
    TellIfNothingIsSelected();
    list_.UserMouseUp(MouseButton::Left);
}

void ListViewWindow::OnDoubleClick(const NMITEMACTIVATE& click) {
    if (!ToggleIfOnCheckBox(click.ptAction)) list_.Raise("DblClick");
}

int ListViewWindow::FocusedPosition() const {
    return static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
}

bool ListViewWindow::ToggleIfOnCheckBox(const POINT& point) {
    LVHITTESTINFO hit{};
    hit.pt = point;
    Send(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    if (hit.iItem < 0 || (hit.flags & LVHT_ONITEMSTATEICON) == 0) return false;
    // A whole row that answers to the mouse sets other bits as well.
    if ((hit.flags & (LVHT_ONITEMICON | LVHT_ONITEMLABEL)) != 0) return false;
    Toggle(hit.iItem);
    return true;
}

void ListViewWindow::Toggle(int position) {
    ListRow* row = RowAt(list_, position);
    if (row == nullptr || !list_.CheckBoxes()) return;
    list_.UserCheck(*row, !row->Checked());
    Send(LVM_REDRAWITEMS, static_cast<WPARAM>(position), position);
}

void ListViewWindow::OnContextMenu(LPARAM where) {
    const bool byKey = where == -1;
    const POINT atMouse{static_cast<short>(LOWORD(where)), static_cast<short>(HIWORD(where))};
    // Beyond the life of this list, which the popup's command may end.
    DesktopContext& context = Context();
    context.popupPoint = byKey ? BesideFocusedRow() : atMouse;
    list_.UserMouseUp(MouseButton::Right);
    context.popupPoint.reset();
}

POINT ListViewWindow::BesideFocusedRow() const {
    POINT point{0, 0};
    if (const int focused = FocusedPosition(); focused >= 0) {
        const auto position = static_cast<WPARAM>(focused);
        Send(LVM_ENSUREVISIBLE, position, FALSE);
        RECT label{LVIR_LABEL, 0, 0, 0};
        Send(LVM_GETITEMRECT, position, reinterpret_cast<LPARAM>(&label));
        point = {label.left, label.bottom};
    }
    ClientToScreen(Handle(), &point);
    return point;
}

}  // namespace velkarix
