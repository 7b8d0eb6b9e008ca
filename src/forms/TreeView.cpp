#include "forms/TreeView.h"

#include <algorithm>
#include <utility>

#include "forms/ControlVisitor.h"

namespace velkarix {

TreeView::TreeView(std::string name, std::string text,
                   std::function<void(const TreeNode&)> onNodeClick)
    : Control(std::move(name), std::move(text)), onNodeClick_(std::move(onNodeClick)) {}

TreeNode& TreeView::Add(std::string key, std::string text, std::string picture,
                        std::string_view parent, bool expanded) {
    nodes_.push_back(std::make_unique<TreeNode>(
        TreeNode{std::move(key), std::move(text), std::move(picture), Find(parent), expanded}));
    Notify(Aspect::Rows);
    return *nodes_.back();
}

TreeNode* TreeView::Find(std::string_view key) const {
    const auto found = std::find_if(nodes_.begin(), nodes_.end(),
                                    [key](const auto& node) { return node->key == key; });
    return found == nodes_.end() ? nullptr : found->get();
}

void TreeView::Select(const TreeNode* node) {
    selected_ = node;
    Notify(Aspect::Selection);
}

void TreeView::UserSelect(const TreeNode& node) {
    selected_ = &node;
    if (!onNodeClick_) return;
    // A copy, since the handler may unload the form that the tree stands on.
    const auto running = onNodeClick_;
    running(node);
}

void TreeView::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

}  // namespace velkarix
