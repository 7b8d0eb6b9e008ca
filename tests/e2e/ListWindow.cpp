#include "ListWindow.h"

#include <windows.h>
#include <commctrl.h>

#include <array>

#include "RemoteMemory.h"

namespace velkarix::e2e {

namespace {

constexpr int TextSize = 1024;

// A structure with a text behind it, in the memory of the list's process.
template <typename Structure>
struct WithText {
    Structure structure{};
    std::array<char, TextSize> text{};
};

// Reads the texts of a list's cells. It is made once for all of them: to get memory in another
// process takes longer than to ask for a text.
class CellReader {
  public:
    explicit CellReader(const ListWindow& list)
        : list_(list), memory_(list.Handle(), sizeof item_) {
        item_.structure.pszText =
            static_cast<char*>(memory_.Address(offsetof(decltype(item_), text)));
        item_.structure.cchTextMax = TextSize;
    }
    std::string Text(int row, int column) {
        item_.structure.iSubItem = column;
        item_.text.fill('\0');
        memory_.Write(0, &item_, sizeof item_);
        list_.Send(LVM_GETITEMTEXTA, static_cast<WPARAM>(row),
                   reinterpret_cast<LPARAM>(memory_.Address()));
        auto answer = item_;
        memory_.Read(0, &answer, sizeof answer);
        return answer.text.data();
    }
    RowTexts Row(int row, int columns) {
        RowTexts texts;
        for (int column = 0; column < columns; ++column) texts.push_back(Text(row, column));
        return texts;
    }

  private:
    const ListWindow& list_;
    WithText<LVITEMA> item_;
    const RemoteMemory memory_;
};

RECT ToScreen(HWND window, RECT area) {
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&area), 2);
    return area;
}

// The first row in that state (LVNI_SELECTED and the like).
std::optional<int> FirstRow(const ListWindow& list, LPARAM state) {
    const LRESULT row = list.Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), state);
    return row < 0 ? std::nullopt : std::optional(static_cast<int>(row));
}

POINT Middle(const RECT& area) {
    return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

}  // namespace

int ListWindow::RowCount() const {
    return static_cast<int>(Send(LVM_GETITEMCOUNT));
}

Window ListWindow::HeaderWindow() const {
    return Window(reinterpret_cast<HWND>(Send(LVM_GETHEADER)));
}

int ListWindow::ColumnCount() const {
    return static_cast<int>(HeaderWindow().Send(HDM_GETITEMCOUNT));
}

std::vector<std::string> ListWindow::ColumnCaptions() const {
    std::vector<std::string> captions;
    const Window header = HeaderWindow();
    for (int i = 0; i < ColumnCount(); ++i) {
        WithText<HDITEMA> item;
        const RemoteMemory memory(Handle(), sizeof item);
        item.structure.mask = HDI_TEXT;
        item.structure.pszText = static_cast<char*>(memory.Address(offsetof(decltype(item), text)));
        item.structure.cchTextMax = TextSize;
        memory.Write(0, &item, sizeof item);
        header.Send(HDM_GETITEMA, static_cast<WPARAM>(i),
                    reinterpret_cast<LPARAM>(memory.Address()));
        memory.Read(0, &item, sizeof item);
        captions.emplace_back(item.text.data());
    }
    return captions;
}

std::vector<int> ListWindow::ColumnWidths() const {
    std::vector<int> widths;
    for (int i = 0; i < ColumnCount(); ++i) {
        widths.push_back(static_cast<int>(Send(LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(i))));
    }
    return widths;
}

std::string ListWindow::Text(int row, int column) const {
    return CellReader(*this).Text(row, column);
}

RowTexts ListWindow::Row(int row) const {
    return CellReader(*this).Row(row, ColumnCount());
}

std::vector<RowTexts> ListWindow::Rows() const {
    std::vector<RowTexts> rows;
    CellReader cells(*this);
    const int columns = ColumnCount();
    const int count = RowCount();
    for (int row = 0; row < count; ++row) rows.push_back(cells.Row(row, columns));
    return rows;
}

std::vector<std::string> ListWindow::Column(int column) const {
    std::vector<std::string> texts;
    CellReader cells(*this);
    const int count = RowCount();
    for (int row = 0; row < count; ++row) texts.push_back(cells.Text(row, column));
    return texts;
}

std::optional<int> ListWindow::Find(const std::string& text) const {
    CellReader cells(*this);
    const int count = RowCount();
    for (int row = 0; row < count; ++row) {
        if (lstrcmpiA(cells.Text(row, 0).c_str(), text.c_str()) == 0) return row;
    }
    return std::nullopt;
}

bool ListWindow::Checked(int row) const {
    // The state image 1 is the empty box, 2 the ticked one.
    const auto image =
        static_cast<UINT>(Send(LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK));
    return image >> 12 == 2;
}

std::optional<int> ListWindow::Selected() const {
    return FirstRow(*this, LVNI_SELECTED);
}

std::optional<int> ListWindow::Focused() const {
    return FirstRow(*this, LVNI_FOCUSED);
}

RECT ListWindow::Area(int row, int part) const {
    RECT area{part, 0, 0, 0};
    const RemoteMemory memory(Handle(), sizeof area);
    memory.Write(0, &area, sizeof area);
    Send(LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(memory.Address()));
    memory.Read(0, &area, sizeof area);
    return ToScreen(Handle(), area);
}

RECT ListWindow::RowArea(int row) const {
    return Area(row, LVIR_BOUNDS);
}

RECT ListWindow::LabelArea(int row) const {
    return Area(row, LVIR_LABEL);
}

RECT ListWindow::IconArea(int row) const {
    return Area(row, LVIR_ICON);
}

POINT ListWindow::CheckBox(int row) const {
    const RECT bounds = Area(row, LVIR_BOUNDS);
    const RECT icon = Area(row, LVIR_ICON);
    return Middle({bounds.left, bounds.top, icon.left, bounds.bottom});
}

POINT ListWindow::Header(int column) const {
    RECT area{};
    const Window header = HeaderWindow();
    const RemoteMemory memory(Handle(), sizeof area);
    header.Send(HDM_GETITEMRECT, static_cast<WPARAM>(column),
                reinterpret_cast<LPARAM>(memory.Address()));
    memory.Read(0, &area, sizeof area);
    return Middle(ToScreen(header.Handle(), area));
}

void ListWindow::Show(int row) const {
    Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

}  // namespace velkarix::e2e
