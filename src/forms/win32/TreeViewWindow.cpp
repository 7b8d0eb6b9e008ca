#include "forms/win32/TreeViewWindow.h"

#include <cstddef>

namespace velkarix {

namespace {

constexpr DWORD Style = WS_TABSTOP | TVS_HASLINES | TVS_LINESATROOT | TVS_HASBUTTONS |
                        TVS_SHOWSELALWAYS | TVS_DISABLEDRAGDROP;

// What may move the selection: the user's gestures, and what helpers for users send in their place.
// To fold up the branch that the selection is in moves it as well, and not all systems tell that.
bool MaySelect(UINT message) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case WM_KEYDOWN:
        case WM_CHAR:
        case TVM_SELECTITEM:
        case TVM_EXPAND:
            return true;
        default:
            return false;
    }
}

}  // namespace

TreeViewWindow::TreeViewWindow(DesktopContext& context, TreeView& tree, const ControlPlace& place)
    : ControlWindow(context, tree, place, {WC_TREEVIEWA, Style, WS_EX_CLIENTEDGE, true}),
      tree_(tree),
      images_(context.instance, context.metrics.SmallImage()) {
    context.pending.Add(*this);
}

void TreeViewWindow::Detach() {
    Context().pending.Remove(*this);
    // The images go before the native tree does.
    Send(TVM_SETIMAGELIST, TVSIL_NORMAL, 0);
    ControlWindow::Detach();
}

void TreeViewWindow::Changed(Aspect aspect) {
    if (aspect == Aspect::Rows || aspect == Aspect::Selection) {
        Context().pending.Add(*this);
    } else {
        ControlWindow::Changed(aspect);
    }
}

void TreeViewWindow::Refresh() {
    if (items_.size() < tree_.Nodes().size()) AddNewNodes();
    ShowSelection();
}

void TreeViewWindow::AddNewNodes() {
    const auto& nodes = tree_.Nodes();
    for (std::size_t i = items_.size(); i < nodes.size(); ++i) AddNode(*nodes[i]);
    images_.Follow(pictures_);
    Send(TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(images_.Handle()));
    Send(TVM_SETINDENT, static_cast<WPARAM>(Context().metrics.TreeIndent()));
}

void TreeViewWindow::AddNode(const TreeNode& node) {
    TVINSERTSTRUCTA inserted{};
    inserted.hParent = node.parent != nullptr ? ItemOf(node.parent) : TVI_ROOT;
    inserted.hInsertAfter = TVI_LAST;
    std::string text = node.text;
    inserted.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_PARAM | TVIF_STATE;
    inserted.item.pszText = text.data();
    inserted.item.iImage = inserted.item.iSelectedImage = ImageOf(node.picture);
    inserted.item.lParam = reinterpret_cast<LPARAM>(&node);
    // Before there are children to show; the native tree remembers it for them.
    inserted.item.state = inserted.item.stateMask = node.expanded ? TVIS_EXPANDED : 0U;
    items_[&node] =
        reinterpret_cast<HTREEITEM>(Send(TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&inserted)));
}

int TreeViewWindow::ImageOf(const std::string& picture) {
    const auto [place, isNew] = imageOf_.try_emplace(picture, static_cast<int>(pictures_.Count()));
    if (isNew) pictures_.Add(StockPicture{picture});
    return place->second;
}

void TreeViewWindow::ShowSelection() {
    if (SelectedNode() == tree_.SelectedNode()) return;
    Send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(ItemOf(tree_.SelectedNode())));
}

LRESULT TreeViewWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const TreeNode* clicked = message == WM_LBUTTONDOWN ? NodeAt(lParam) : nullptr;
    const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
    if (!MaySelect(message)) return result;
    // What the program selects is the model's already. A click on the selected node is one too.
    const TreeNode* selected = SelectedNode();
    const bool byUser = selected != tree_.SelectedNode() || selected == clicked;
    if (selected != nullptr && byUser) tree_.UserSelect(*selected);
    return result;
}

HTREEITEM TreeViewWindow::ItemOf(const TreeNode* node) const {
    const auto found = items_.find(node);
    return found == items_.end() ? nullptr : found->second;
}

const TreeNode* TreeViewWindow::NodeOf(HTREEITEM handle) const {
    TVITEMA item{};
    item.mask = TVIF_PARAM;
    item.hItem = handle;
    if (handle != nullptr) Send(TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item));
    return reinterpret_cast<const TreeNode*>(item.lParam);
}

const TreeNode* TreeViewWindow::SelectedNode() const {
    return NodeOf(reinterpret_cast<HTREEITEM>(Send(TVM_GETNEXTITEM, TVGN_CARET)));
}

const TreeNode* TreeViewWindow::NodeAt(LPARAM point) const {
    TVHITTESTINFO hit{};
    hit.pt = {static_cast<short>(LOWORD(point)), static_cast<short>(HIWORD(point))};
    Send(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    return (hit.flags & TVHT_ONITEM) != 0 ? NodeOf(hit.hItem) : nullptr;
}

}  // namespace velkarix
