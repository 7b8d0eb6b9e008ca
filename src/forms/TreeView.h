// A tree of named nodes, one of which may be selected.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Control.h"

namespace velkarix {

struct TreeNode {
    std::string key;
    std::string text;
    std::string picture;         // a stock picture, told by its name
    TreeNode* parent = nullptr;  // null: a root
    bool expanded = false;       // at first; what the user opens and closes is the view's own
};

class TreeView : public Control {
  public:
    // `text` is the tree's spoken name. `onNodeClick` hears of each node that the user clicks or
    // reaches by a key, also of the one that is selected already.
    TreeView(std::string name, std::string text, std::function<void(const TreeNode&)> onNodeClick);

    // Adds a node as the last child of the node `parent`, or as a root when that is empty. Nodes
    // live as long as the tree.
    TreeNode& Add(std::string key, std::string text, std::string picture,
                  std::string_view parent = {}, bool expanded = false);
    // In the order of their adding: a parent comes before its children.
    const std::vector<std::unique_ptr<TreeNode>>& Nodes() const { return nodes_; }
    TreeNode* Find(std::string_view key) const;  // null when there is none

    const TreeNode* SelectedNode() const { return selected_; }
    void Select(const TreeNode* node);  // by the program: no handler runs
    void UserSelect(const TreeNode& node);
    void Accept(ControlVisitor& visitor) override;

  private:
    std::function<void(const TreeNode&)> onNodeClick_;
    std::vector<std::unique_ptr<TreeNode>> nodes_;
    const TreeNode* selected_ = nullptr;
};

}  // namespace velkarix
