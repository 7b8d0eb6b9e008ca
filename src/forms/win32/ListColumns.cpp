#include "forms/win32/ListColumns.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <string>
#include <vector>

namespace velkarix {

namespace {

// Of more rows than this, only so many of the longest texts are measured: a text that is much
// shorter in letters is hardly ever wider.
constexpr std::size_t MeasuredRows = 500;

std::vector<std::size_t> RowsToMeasure(ListView& model, std::size_t column) {
    std::vector<std::size_t> rows(model.RowCount());
    std::iota(rows.begin(), rows.end(), std::size_t{0});
    if (rows.size() <= MeasuredRows) return rows;
    std::nth_element(rows.begin(), rows.begin() + MeasuredRows, rows.end(),
                     [&](std::size_t left, std::size_t right) {
                         return model.Row(left).Text(column).size() >
                                model.Row(right).Text(column).size();
                     });
    rows.resize(MeasuredRows);
    return rows;
}

int TextWidth(HDC screen, const std::string& text) {
    SIZE extent{};
    GetTextExtentPoint32A(screen, text.c_str(), static_cast<int>(text.size()), &extent);
    return static_cast<int>(extent.cx);
}

int WidestText(ListView& model, std::size_t column, const Fonts& fonts) {
    const ScreenContext screen;
    const Selection selection(screen, fonts.Dialog());
    int widest = 0;
    for (const std::size_t position : RowsToMeasure(model, column)) {
        const ListRow& row = model.Row(position);
        SelectObject(screen, column == 0 && row.Bold() ? fonts.Bold() : fonts.Dialog());
        widest = std::max(widest, TextWidth(screen, row.Text(column)));
    }
    return widest;
}

// What stands before the text of the first column: check box and image.
int LabelOffset(HWND list) {
    RECT bounds{LVIR_BOUNDS, 0, 0, 0};
    RECT label{LVIR_LABEL, 0, 0, 0};
    SendMessageA(list, LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&bounds));
    SendMessageA(list, LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&label));
    return static_cast<int>(label.left - bounds.left);
}

// Between the edges, with room for the scroll bar.
int InsideWidth(HWND list) {
    RECT outside{};
    GetWindowRect(list, &outside);
    return static_cast<int>(outside.right - outside.left) - 2 * GetSystemMetrics(SM_CXEDGE) -
           GetSystemMetrics(SM_CXVSCROLL);
}

}  // namespace

void InsertColumns(HWND list, const ListView& model) {
    LVCOLUMNA column{};
    column.mask = LVCF_TEXT | LVCF_SUBITEM | LVCF_WIDTH;
    const std::vector<int>& shares = model.ColumnShares();
    const int whole = std::accumulate(shares.begin(), shares.end(), 0);
    for (std::string caption : model.Columns()) {
        const int share = shares.at(static_cast<std::size_t>(column.iSubItem));
        column.cx = InsideWidth(list) * share / whole;
        column.pszText = caption.data();
        SendMessageA(list, LVM_INSERTCOLUMNA, static_cast<WPARAM>(column.iSubItem),
                     reinterpret_cast<LPARAM>(&column));
        ++column.iSubItem;
    }
}

// Not by the list's own fitting (LVSCW_AUTOSIZE_USEHEADER), which would ask for every row once a
// column or measure only those in sight, depending on the system.
void FitColumns(HWND list, ListView& model, const DesktopContext& context) {
    const int sensible = context.dpi.Pixels(400);
    const std::size_t count = model.Columns().size();
    int left = InsideWidth(list);
    for (std::size_t column = 0; column < count; ++column) {
        const int header = CaptionExtent(context.fonts.Dialog(), model.Columns()[column]).width +
                           context.dpi.Pixels(20);
        int content = WidestText(model, column, context.fonts) + context.dpi.Pixels(14);
        if (column == 0 && model.RowCount() > 0) content += LabelOffset(list);
        const bool last = column + 1 == count;
        // The last column takes what room is left.
        const int width =
            std::max({header, last ? content : std::min(content, sensible), last ? left : 0});
        SendMessageA(list, LVM_SETCOLUMNWIDTH, column, width);
        left -= width;
    }
}

}  // namespace velkarix
