#include "forms/TreeView.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "CountingView.h"

namespace velkarix {
namespace {

class TreeViewTest : public testing::Test {
  protected:
    TreeViewTest() { tree.AttachView(&view); }
    ~TreeViewTest() override { tree.AttachView(nullptr); }

    void AddThree() {
        tree.Add("R", "Root", "Folder", {}, true);
        tree.Add("A", "Branch", "Folder", "R");
        tree.Add("B", "Leaf", "Unknown", "A");
    }

    std::vector<std::string> clicks;
    CountingView view;
    TreeView tree{"tvwTest", "Test", [this](const TreeNode& node) { clicks.push_back(node.key); }};
};

TEST_F(TreeViewTest, KeepsItsNodesInTheOrderOfTheirAdding) {
    AddThree();
    std::string keys;
    for (const auto& node : tree.Nodes()) keys += node->key;
    EXPECT_EQ(keys, "RAB");
    EXPECT_EQ(view.Times(Aspect::Rows), 3);
}

TEST_F(TreeViewTest, PutsANodeUnderTheParentThatItIsAddedTo) {
    AddThree();
    EXPECT_EQ(tree.Find("R")->parent, nullptr);
    EXPECT_EQ(tree.Find("A")->parent, tree.Find("R"));
    EXPECT_EQ(tree.Find("B")->parent, tree.Find("A"));
}

TEST_F(TreeViewTest, GivesANodeItsTextPictureAndState) {
    AddThree();
    const TreeNode* root = tree.Find("R");
    EXPECT_EQ(root->text, "Root");
    EXPECT_EQ(root->picture, "Folder");
    EXPECT_TRUE(root->expanded);
    EXPECT_FALSE(tree.Find("A")->expanded);
}

TEST_F(TreeViewTest, FindsNoNodeOfAnUnknownKey) {
    AddThree();
    EXPECT_EQ(tree.Find("C"), nullptr);
    EXPECT_EQ(tree.Find(""), nullptr);
}

TEST_F(TreeViewTest, BeginsWithoutASelection) {
    AddThree();
    EXPECT_EQ(tree.SelectedNode(), nullptr);
}

TEST_F(TreeViewTest, TellsItsViewAndNoHandlerOfANodeThatTheProgramSelects) {
    AddThree();
    tree.Select(tree.Find("A"));
    EXPECT_EQ(tree.SelectedNode(), tree.Find("A"));
    EXPECT_EQ(view.Times(Aspect::Selection), 1);
    EXPECT_TRUE(clicks.empty());
}

TEST_F(TreeViewTest, TellsItsHandlerAndNotItsViewOfANodeThatTheUserSelects) {
    AddThree();
    tree.UserSelect(*tree.Find("B"));
    tree.UserSelect(*tree.Find("B"));
    EXPECT_EQ(tree.SelectedNode(), tree.Find("B"));
    EXPECT_EQ(clicks, (std::vector<std::string>{"B", "B"}));
    EXPECT_EQ(view.Times(Aspect::Selection), 0);
}

TEST_F(TreeViewTest, NeedsNoHandler) {
    TreeView silent("tvwSilent", "Silent", {});
    const TreeNode& node = silent.Add("R", "Root", "");
    silent.UserSelect(node);
    EXPECT_EQ(silent.SelectedNode(), &node);
}

TEST_F(TreeViewTest, LetsItsHandlerEndIt) {
    std::vector<std::string> heard;
    std::unique_ptr<TreeView> mortal;
    mortal = std::make_unique<TreeView>("tvwMortal", "Mortal", [&](const TreeNode&) {
        mortal.reset();
        heard.push_back("ended");
    });
    const TreeNode& node = mortal->Add("R", "Root", "");
    mortal->UserSelect(node);
    EXPECT_EQ(heard, std::vector<std::string>{"ended"});
}

}  // namespace
}  // namespace velkarix
