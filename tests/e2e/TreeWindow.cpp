#include "TreeWindow.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "RemoteMemory.h"

namespace velkarix::e2e {

namespace {

// An item with its text behind it, in the memory of the tree's process.
struct ItemWithText {
    TVITEMA item{};
    char text[256] = "";
};

}  // namespace

HTREEITEM TreeWindow::Next(HTREEITEM item, UINT relation) const {
    return reinterpret_cast<HTREEITEM>(
        Send(TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

TreeWindow::Entry TreeWindow::Read(HTREEITEM item, const std::string& above) const {
    ItemWithText read;
    const RemoteMemory memory(Handle(), sizeof read);
    read.item.mask = TVIF_TEXT | TVIF_STATE;
    read.item.stateMask = TVIS_EXPANDED;
    read.item.hItem = item;
    read.item.pszText = static_cast<char*>(memory.Address(offsetof(ItemWithText, text)));
    read.item.cchTextMax = sizeof read.text;
    memory.Write(0, &read, sizeof read);
    Send(TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(memory.Address()));
    memory.Read(0, &read, sizeof read);
    return {item, above + read.text, (read.item.state & TVIS_EXPANDED) != 0};
}

void TreeWindow::AddBranch(HTREEITEM first, const std::string& above,
                           std::vector<Entry>& entries) const {
    for (HTREEITEM each = first; each != nullptr; each = Next(each, TVGN_NEXT)) {
        entries.push_back(Read(each, above));
        const std::string path = entries.back().path + "/";
        AddBranch(Next(each, TVGN_CHILD), path, entries);
    }
}

std::vector<TreeWindow::Entry> TreeWindow::Entries() const {
    std::vector<Entry> entries;
    AddBranch(Next(nullptr, TVGN_ROOT), "", entries);
    return entries;
}

std::vector<std::string> TreeWindow::Nodes() const {
    std::vector<std::string> paths;
    for (const Entry& entry : Entries()) paths.push_back(entry.path);
    return paths;
}

std::string TreeWindow::Selected() const {
    const HTREEITEM selected = Next(nullptr, TVGN_CARET);
    for (const Entry& entry : Entries()) {
        if (entry.handle == selected) return entry.path;
    }
    return {};
}

bool TreeWindow::Expanded(const std::string& node) const {
    return std::ranges::any_of(
        Entries(), [&](const Entry& entry) { return entry.path == node && entry.expanded; });
}

HTREEITEM TreeWindow::Find(const std::string& node) const {
    for (const Entry& entry : Entries()) {
        if (entry.path == node) return entry.handle;
    }
    return nullptr;
}

int TreeWindow::StatePicture(const std::string& node) const {
    const auto item = reinterpret_cast<WPARAM>(Find(node));
    const LRESULT state = Send(TVM_GETITEMSTATE, item, TVIS_STATEIMAGEMASK);
    return static_cast<int>((state & TVIS_STATEIMAGEMASK) >> 12);
}

RECT TreeWindow::LabelArea(const std::string& node) const {
    // The area's place names the item when it is asked for.
    const HTREEITEM item = Find(node);
    RECT area{};
    std::memcpy(&area, &item, sizeof item);
    const RemoteMemory memory(Handle(), sizeof area);
    memory.Write(0, &area, sizeof area);
    Send(TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(memory.Address()));
    memory.Read(0, &area, sizeof area);
    MapWindowPoints(Handle(), nullptr, reinterpret_cast<POINT*>(&area), 2);
    return area;
}

}  // namespace velkarix::e2e
