// A tree as the native one. Which nodes are open is the native tree's own knowledge; which one is
// selected is the model's.
#pragma once

#include <map>
#include <string>

#include "forms/ImageList.h"
#include "forms/TreeView.h"
#include "forms/win32/ControlWindow.h"
#include "forms/win32/ListImages.h"
#include "forms/win32/PendingRefreshes.h"

namespace velkarix {

class TreeViewWindow : public ControlWindow, private Refreshable {
  public:
    TreeViewWindow(DesktopContext& context, TreeView& tree, const ControlPlace& place);
    void Detach() override;
    void Changed(Aspect aspect) override;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    // The window catches up with the model.
    void Refresh() override;
    void AddNewNodes();
    void AddNode(const TreeNode& node);
    int ImageOf(const std::string& picture);  // from 0
    void ShowSelection();

    HTREEITEM ItemOf(const TreeNode* node) const;    // null when the tree has none
    const TreeNode* NodeOf(HTREEITEM handle) const;  // null for null
    const TreeNode* SelectedNode() const;            // in the native tree; null when there is none
    const TreeNode* NodeAt(LPARAM point) const;  // whose icon or text is there; null when none is

    TreeView& tree_;
    ImageList pictures_;
    ListImages images_;
    std::map<std::string, int> imageOf_;
    std::map<const TreeNode*, HTREEITEM> items_;
};

}  // namespace velkarix
