#include "forms/win32/ListAnswers.h"

#include <cstddef>
#include <optional>

#include "base/Contrast.h"
#include "forms/ListSearch.h"
#include "forms/win32/ListModes.h"

namespace velkarix {

namespace {

LRESULT Find(ListView& list, int start, UINT flags, const char* typed) {
    if ((flags & (LVFI_STRING | LVFI_PARTIAL)) == 0 || typed == nullptr) return -1;
    const auto from = static_cast<std::size_t>(start < 0 ? 0 : start);
    const std::optional<std::size_t> found = FindRowByPrefix(list, from, typed);
    return found ? static_cast<LRESULT>(*found) : -1;
}

template <typename FindItem>
LRESULT FindNearest(const FindItem& wanted) {
    return FindNearestIcon(wanted.hdr.hwndFrom, wanted.lvfi.pt, wanted.lvfi.vkDirection);
}

}  // namespace

ListRow* RowAt(ListView& list, int position) {
    const auto index = static_cast<std::size_t>(position);
    return position >= 0 && index < list.RowCount() ? &list.Row(index) : nullptr;
}

void DescribeRow(ListView& list, LVITEMA& item) {
    const ListRow* row = RowAt(list, item.iItem);
    if (row == nullptr) return;
    if ((item.mask & LVIF_TEXT) != 0 && item.cchTextMax > 0) {
        const std::string& text = row->Text(static_cast<std::size_t>(item.iSubItem));
        lstrcpynA(item.pszText, text.c_str(), item.cchTextMax);
    }
    if ((item.mask & LVIF_IMAGE) != 0) {
        const bool large = list.Mode() == ListMode::Icons;
        item.iImage = static_cast<int>(large ? row->LargeImage() : row->Image()) - 1;
    }
    if ((item.mask & LVIF_STATE) != 0 && (item.stateMask & LVIS_STATEIMAGEMASK) != 0) {
        const UINT box = INDEXTOSTATEIMAGEMASK(row->Checked() ? 2U : 1U);
        item.state = (item.state & ~static_cast<UINT>(LVIS_STATEIMAGEMASK)) | box;
    }
}

LRESULT MarkDrawnRow(ListView& list, const Fonts& fonts, NMLVCUSTOMDRAW& draw) {
    const DWORD stage = draw.nmcd.dwDrawStage;
    const bool columns = list.Mode() == ListMode::Details;
    if (stage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
    if (stage == CDDS_ITEMPREPAINT && columns) return CDRF_NOTIFYSUBITEMDRAW;
    const DWORD wanted = columns ? CDDS_ITEMPREPAINT | CDDS_SUBITEM : CDDS_ITEMPREPAINT;
    if (stage != wanted) return CDRF_DODEFAULT;
    const ListRow* row = RowAt(list, static_cast<int>(draw.nmcd.dwItemSpec));
    const bool marked = row != nullptr && (!columns || draw.iSubItem == 0);
    const std::optional<Color> colour = marked ? row->TextColor() : std::nullopt;
    const TextColors plain{GetSysColor(COLOR_WINDOWTEXT), GetSysColor(COLOR_WINDOW)};
    const TextColors shown = colour ? MarkColors(*colour, plain.ground) : plain;
    draw.clrText = shown.text;
    draw.clrTextBk = shown.ground;
    SelectObject(draw.nmcd.hdc, marked && row->Bold() ? fonts.Bold() : fonts.Dialog());
    return CDRF_NEWFONT;
}

LRESULT FindRow(ListView& list, const NMLVFINDITEMA& wanted) {
    if ((wanted.lvfi.flags & LVFI_NEARESTXY) != 0) return FindNearest(wanted);
    return Find(list, wanted.iStart, wanted.lvfi.flags, wanted.lvfi.psz);
}

LRESULT FindRow(ListView& list, const NMLVFINDITEMW& wanted) {
    if ((wanted.lvfi.flags & LVFI_NEARESTXY) != 0) return FindNearest(wanted);
    char typed[256] = "";
    constexpr int size = static_cast<int>(sizeof(typed));
    WideCharToMultiByte(CP_ACP, 0, wanted.lvfi.psz, -1, typed, size, nullptr, nullptr);
    return Find(list, wanted.iStart, wanted.lvfi.flags, typed);
}

}  // namespace velkarix
